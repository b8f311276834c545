// Any bytes as a flat buffer: the decoder accepts what the rules (flat_rules.h) accept, and that can be used in every
// way and goes round unchanged. What it refuses breaks the rule that is named, where it is said to.
#include "exercise.h"
#include "flat_mutator.h"
#include "support/flat_rules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const std::vector<std::uint8_t> bytes = exercise::received(AAA_MARSHAL_BUFFER, data, size);
  exercise::Copy buffer(bytes.data(), bytes.size());
  aaa_attr_list_handle list = 1;
  const auto length = static_cast<std::uint32_t>(bytes.size());
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), length, &list);
  const flat_rules::Reading reading(bytes.data(), bytes.size(), AAA_ATTR_READER_LIST);
  REQUIRE(code == (reading.accepted() ? 0 : AAA_ATTR_ERR_BAD_BUFFER));
  exercise::require_fault(buffer.data(), length, AAA_ATTR_READER_LIST, code, reading.fault());
  if (code != 0) {
    REQUIRE(list == 0);
    return 0;
  }
  exercise::use(list);
  aaa_attr_list_free(list);
  return 0;
}
