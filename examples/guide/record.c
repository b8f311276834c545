// Builds a record and reads it.
#include <attrmgr/attrmgr.h>
#include <stdio.h>

#include "must.h"

int main(void) {
  // [register]
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("accounting", ids));
  // [register]

  // [build]
  aaa_attr_list_handle record;
  must(aaa_attr_list_alloc(&record));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_USERNAME, "mira.holt", 9, NULL));
  const uint32_t stop = AAA_ACCT_STATUS_TYPE_STOP;
  must(aaa_attr_add(record, AAA_ATTR_TYPE_ACCT_STATUS_TYPE, &stop, sizeof stop, NULL));
  const uint8_t address[4] = {203, 0, 113, 7};  // network byte order
  must(aaa_attr_add(record, AAA_ATTR_TYPE_ADDR, address, sizeof address, NULL));
  // [build]

  // [read]
  const char *name;
  uint32_t length, status, seconds;
  must(aaa_attr_get_string(record, AAA_ATTR_TYPE_USERNAME, &name, &length));
  must(aaa_attr_get_uint32_t(record, AAA_ATTR_TYPE_ACCT_STATUS_TYPE, &status));
  printf("%s: %s\n", name, aaa_attr_get_enum_name_from_type(AAA_ATTR_TYPE_ACCT_STATUS_TYPE, status));
  if (aaa_attr_get_uint32_t(record, AAA_ATTR_TYPE_SESSION_TIMEOUT, &seconds) == AAA_ATTR_ERR_NOT_FOUND)
    puts("no session timeout");
  // [read]

  aaa_attr_list_free(record);
}
