// Lists as text.
#include <attrmgr/attrmgr.h>
#include <stdio.h>
#include <string.h>

#include "must.h"

// [output]
// Receives one line at a time; here each goes to a log.
static int to_log(char *line, uint64_t context) {
  const char *prefix = (const char *)(uintptr_t)context;
  return printf("%s%s\n", prefix, line[0] == '\n' ? line + 1 : line);
}
// [output]

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("print", ids));
  aaa_attr_list_handle record;
  const uint32_t stop = AAA_ACCT_STATUS_TYPE_STOP;
  must(aaa_attr_list_alloc(&record));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_USERNAME, "mira.holt", 9, NULL));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_ACCT_STATUS_TYPE, &stop, sizeof stop, NULL));

  // [display]
  aaa_attr_list_print(record);  // to the standard output
  aaa_attr_list_display(record, to_log, (uint64_t)(uintptr_t) "session 7: ");
  // [display]

  // [dictionary]
  const uint32_t type = aaa_attr_get_type_from_name("Acct-Status-Type");
  uint32_t value;
  must(aaa_attr_get_value_from_enum_name(type, "Start", &value));
  printf("type %u, %s: Start is %u\n", (unsigned)type, aaa_attr_get_format_string(aaa_attr_get_format_from_type(type)),
         (unsigned)value);
  // [dictionary]

  aaa_attr_list_free(record);
}
