// Secrets in lists, displays and buffers.
#define _DEFAULT_SOURCE  // explicit_bzero
#include <attrmgr/attrmgr.h>
#include <stdio.h>
#include <string.h>

#include "must.h"

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("secrets", ids));
  aaa_attr_list_handle request;
  must(aaa_attr_list_alloc(&request));
  must(aaa_attr_add(request, AAA_ATTR_TYPE_USERNAME, "mira.holt", 9, NULL));

  // [secret]
  char password[] = "correct horse";
  must(aaa_attr_add(request, AAA_ATTR_TYPE_PASSWORD, password, sizeof password - 1, NULL));
  explicit_bzero(password, sizeof password);  // the library wipes its copy, not yours
  aaa_attr_list_print(request);
  // [secret]

  // [buffer]
  uint8_t message[512];
  uint32_t size = sizeof message;
  must(aaa_attr_list_to_buffer_v1(request, message, &size));  // the secret travels
  explicit_bzero(message, size);                              // and this is your copy again
  // [buffer]

  aaa_attr_list_free(request);  // wiped, then given back
}
