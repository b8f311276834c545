// Any bytes as a flat buffer: what the decoder accepts can be used in every way and goes round unchanged.
#include "exercise.h"
#include "flat_mutator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  std::vector<std::uint8_t> bytes{AAA_MARSHAL_BUFFER};
  bytes.insert(bytes.end(), data, data + size);
  exercise::Copy buffer(bytes.data(), bytes.size());
  aaa_attr_list_handle list = 1;
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), static_cast<std::uint32_t>(bytes.size()), &list);
  if (code != 0) {
    REQUIRE(list == 0 && (code == AAA_ATTR_ERR_BAD_BUFFER || code == AAA_ATTR_ERR_NO_MEMORY));
    return 0;
  }
  exercise::use(list);
  aaa_attr_list_free(list);
  return 0;
}
