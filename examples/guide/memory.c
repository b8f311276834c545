// Who owns what, and until when.
#include <attrmgr/attrmgr.h>
#include <stdio.h>

#include "must.h"

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("memory", ids));
  aaa_attr_list_handle record, id;
  must(aaa_attr_list_alloc(&record));
  must(aaa_attr_list_alloc(&id));
  must(aaa_attr_add(id, AAA_ATTR_TYPE_SUBSCRIPTION_ID_DATA, "100-2277", 8, NULL));

  // [own]
  must(aaa_attr_add_existing_group_list(record, id, AAA_ATTR_TYPE_SUBSCRIPTION_ID, NULL));  // record owns id now
  // [own]

  // [take]
  must(aaa_attr_remove_on_match(record, AAA_ATTR_TYPE_SUBSCRIPTION_ID, &id, sizeof id));  // id is ours again
  // [take]
  printf("taken out: %d left, %d in the other\n", aaa_attr_is_present(record, AAA_ATTR_TYPE_SUBSCRIPTION_ID),
         aaa_attr_is_present(id, AAA_ATTR_TYPE_SUBSCRIPTION_ID_DATA));

  // [remove]
  must(aaa_attr_add(record, AAA_ATTR_TYPE_ROUTE, "192.0.2.0/24", 12, NULL));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_ROUTE, "198.51.100.0/24", 15, NULL));
  must(aaa_attr_remove_on_match(record, AAA_ATTR_TYPE_ROUTE, "192.0.2.0/24", 12));  // the one
  must(aaa_attr_remove(record, AAA_ATTR_TYPE_ROUTE));                               // all of the type
  // [remove]

  // [pack]
  uint32_t before, after;
  must(aaa_attr_list_buffer_len(record, &before));
  must(aaa_attr_list_buffer_coalesce_and_get_len(record, &after));  // values have moved: old pointers are gone
  printf("packed: %s\n", after < before ? "smaller" : "as before");
  // [pack]

  aaa_attr_list_free(id);
  aaa_attr_list_free(record);
}
