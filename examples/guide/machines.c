// A flat buffer goes to another machine.
#include <attrmgr/attrmgr.h>
#include <stdio.h>

#include "must.h"

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("machines", ids));
  aaa_attr_list_handle record, received;
  const uint32_t mtu = 1500;
  uint8_t message[512];
  uint32_t size = sizeof message, arrived_mtu;
  must(aaa_attr_list_alloc(&record));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_FRAMED_MTU, &mtu, sizeof mtu, NULL));

  // [send]
  must(aaa_attr_list_to_buffer_v1(record, message, &size));
  must(aaa_attr_buffer_scrub(message, size));  // the sender's addresses stay at home
  must(aaa_attrs_buffer_tran_v1((char *)message, size, CDM_ENDIAN_TRAN_HTON));
  // [send]

  // [receive]
  if (aaa_attrs_buffer_tran_v1((char *)message, size, CDM_ENDIAN_TRAN_NTOH) == 0 &&
      aaa_attr_buffer_to_list(message, size, &received) == 0) {
    must(aaa_attr_get_uint32_t(received, AAA_ATTR_TYPE_FRAMED_MTU, &arrived_mtu));
    printf("MTU %u\n", (unsigned)arrived_mtu);
    aaa_attr_list_free(received);
  }
  // [receive]
  aaa_attr_list_free(record);
}
