// Any bytes as a TLV buffer: what the decoder accepts can be used in every way, and what it refuses breaks a rule.
#include "exercise.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const std::vector<std::uint8_t> bytes = exercise::received(AAA_MARSHAL_TLV, data, size);
  exercise::Copy buffer(bytes.data(), bytes.size());
  aaa_attr_list_handle list = 1;
  const auto whole = static_cast<std::uint32_t>(bytes.size());
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), whole, &list);
  exercise::fault_of(buffer.data(), whole, AAA_ATTR_READER_LIST, code);
  if (code != 0) {
    REQUIRE(list == 0 && (code == AAA_ATTR_ERR_BAD_LENGTH || code == AAA_ATTR_ERR_NOT_FOUND ||
                          code == AAA_ATTR_ERR_BAD_ARG || code == AAA_ATTR_ERR_NO_MEMORY));
    return 0;
  }
  exercise::use(list);
  // A TLV buffer made from the list decodes to an equal one.
  std::uint32_t length = 0;  // which the call below asks for
  (void)aaa_attr_list_tlv_to_buffer(list, nullptr, &length);
  std::vector<std::uint8_t> tlv(length);
  REQUIRE(aaa_attr_list_tlv_to_buffer(list, tlv.data(), &length) == 0);
  aaa_attr_list_handle again = 0;
  REQUIRE(aaa_attr_buffer_to_list(tlv.data(), length, &again) == 0);
  REQUIRE(aaa_attr_list_eq(list, again) == 1);
  aaa_attr_list_free(again);
  aaa_attr_list_free(list);
  return 0;
}
