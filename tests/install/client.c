/* A list through a buffer and back, in C11, and the version of the library on standard output. Exit status 0 when what
   arrives is what was sent, and headers and library are of one version. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <attrmgr/attrmgr.h>

int main(void) {
  const uint16_t ids[2] = {1, 2};
  aaa_attr_list_handle sent, received;
  uint32_t size = 0;
  uint32_t version = 0;
  puts(aaa_attr_version(&version));
  if (strcmp(aaa_attr_version(NULL), AAA_ATTR_VERSION_TEXT) != 0) return 1;
  if (version != AAA_ATTR_VERSION || version < AAA_ATTR_VERSION_NUMBER(1, 0, 0)) return 1;
  if (aaa_attr_client_register("client", ids) != 0 || aaa_attr_list_alloc(&sent) != 0) return 1;
  if (aaa_attr_add(sent, aaa_attr_get_type_from_name("username"), "bob", 3, NULL) != 0) return 1;
  if (aaa_attr_list_to_buffer_v1(sent, NULL, &size) != AAA_ATTR_ERR_BAD_FORMAT) return 1;
  void *buffer = malloc(size);
  if (buffer == NULL || aaa_attr_list_to_buffer_v1(sent, buffer, &size) != 0) return 1;
  if (aaa_attr_buffer_to_list(buffer, size, &received) != 0) return 1;
  const char *text = NULL;
  uint32_t length = 0;
  if (aaa_attr_get_string(received, aaa_attr_get_type_from_name("username"), &text, &length) != 0) return 1;
  const int same = length == 3 && strcmp(text, "bob") == 0;
  aaa_attr_list_free(received);
  aaa_attr_list_free(sent);
  free(buffer);
  return same ? 0 : 1;
}
