// What calls answer when they fail.
#include <attrmgr/attrmgr.h>
#include <stdio.h>

#include "must.h"

// [chain]
// A record, or 0 and nothing left behind.
static aaa_attr_list_handle new_record(const char *name, uint32_t length, uint32_t seconds) {
  aaa_attr_list_handle record;
  aaa_attr_cerrno code = aaa_attr_list_alloc(&record);
  if (code == 0) code = aaa_attr_add(record, AAA_ATTR_TYPE_USERNAME, name, length, NULL);
  if (code == 0) code = aaa_attr_add(record, AAA_ATTR_TYPE_SESSION_TIMEOUT, &seconds, sizeof seconds, NULL);
  if (code == 0) return record;
  fprintf(stdout, "no record: %s\n", aaa_attr_cerrno_text(code));
  aaa_attr_list_free(record);  // 0, where there is none, is no mistake
  return 0;
}
// [chain]

static void tell(const char *what, aaa_attr_cerrno code) { printf("%s: %s\n", what, aaa_attr_cerrno_name(code)); }

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("errors", ids));
  aaa_attr_list_handle record = new_record("mira.holt", 9, 3600);
  (void)new_record("", 0, 3600);  // an empty value

  // [codes]
  const uint16_t two_bytes = 1500;
  uint32_t value;
  uint64_t wide;
  tell("a number of two bytes", aaa_attr_add(record, AAA_ATTR_TYPE_FRAMED_MTU, &two_bytes, sizeof two_bytes, NULL));
  tell("a type that is none", aaa_attr_add(record, AAA_ATTR_TYPE_COUNT, "x", 1, NULL));
  tell("an attribute that is not there", aaa_attr_get_uint32_t(record, AAA_ATTR_TYPE_FRAMED_MTU, &value));
  tell("4 bytes read as 8", aaa_attr_get_uint64_t(record, AAA_ATTR_TYPE_SESSION_TIMEOUT, &wide));
  tell("no list", aaa_attr_get_uint32_t(0, AAA_ATTR_TYPE_SESSION_TIMEOUT, &value));
  // [codes]
  aaa_attr_list_free(record);
}
