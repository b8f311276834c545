// Any bytes as a flat buffer: the decoder accepts what the rules (flat_rules.h) accept, and that can be used in every
// way and goes round unchanged.
#include "exercise.h"
#include "flat_mutator.h"
#include "support/flat_rules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  std::vector<std::uint8_t> bytes{AAA_MARSHAL_BUFFER};
  bytes.insert(bytes.end(), data, data + size);
  exercise::Copy buffer(bytes.data(), bytes.size());
  aaa_attr_list_handle list = 1;
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), static_cast<std::uint32_t>(bytes.size()), &list);
  const bool decodable = flat_rules::Reading(bytes.data(), bytes.size()).decodable();
  REQUIRE(code == (decodable ? 0 : AAA_ATTR_ERR_BAD_BUFFER));
  if (code != 0) {
    REQUIRE(list == 0);
    return 0;
  }
  exercise::use(list);
  aaa_attr_list_free(list);
  return 0;
}
