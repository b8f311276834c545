/* A client in C: a list with a sub-list goes through both kinds of buffer and comes back. */
#include <attrmgr/attrmgr.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define CHECK(condition)                                                       \
  do {                                                                         \
    if (!(condition)) {                                                        \
      fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
      exit(1);                                                                 \
    }                                                                          \
  } while (0)

typedef aaa_attr_cerrno (*encoder)(aaa_attr_list_handle, void *, uint32_t *);

static aaa_attr_list_handle through(encoder encode, aaa_attr_list_handle list) {
  uint32_t size = 0;
  CHECK(encode(list, NULL, &size) == AAA_ATTR_ERR_BAD_FORMAT);
  void *buffer = malloc(size);
  CHECK(buffer != NULL && encode(list, buffer, &size) == 0);
  aaa_attr_list_handle copy = 0;
  CHECK(aaa_attr_buffer_to_list(buffer, size, &copy) == 0);
  free(buffer);
  CHECK(aaa_attr_list_eq(list, copy) == 1);
  return copy;
}

int main(void) {
  const uint16_t ids[2] = {1, 2};
  const aaa_attr_meta meta = {.service = 4, .protocol = 3, .tag = 1, .flags = AAA_ATTR_META_MANDATORY};
  const uint32_t minutes = 30;
  aaa_attr_list_handle list = 0, group = 0;
  CHECK(aaa_attr_client_register("client", ids) == 0);
  CHECK(aaa_attr_list_alloc(&list) == 0);
  CHECK(aaa_attr_add(list, aaa_attr_get_type_from_name("username"), "alice", 5, &meta) == 0);
  CHECK(aaa_attr_add_group_list(list, &group, aaa_attr_get_type_from_name("Failed AVP"), NULL) == 0);
  CHECK(aaa_attr_add(group, aaa_attr_get_type_from_name("idletimeout"), &minutes, sizeof minutes, NULL) == 0);

  const encoder encoders[] = {aaa_attr_list_to_buffer_v1, aaa_attr_list_tlv_to_buffer};
  for (unsigned i = 0; i < 2; ++i) {
    const aaa_attr_list_handle copy = through(encoders[i], list);
    const char *name = NULL;
    uint32_t length = 0;
    CHECK(aaa_attr_get_string(copy, 197, &name, &length) == 0 && length == 5 && strcmp(name, "alice") == 0);
    aaa_attr_list_free(copy);
  }
  CHECK(strcmp(value_protocol.names[3], "ip") == 0 && name_protocol[3] == value_protocol.names[3]);
  CHECK(aaa_author_flags[0].bits[0] == 0xFF);
  aaa_attr_list_free(list);
  aaa_base_destroy_chunk_cursor();
  return 0;
}
