// Any bytes that is_aaa_attr_buffer_valid accepts: the decoder accepts them too, and all readers see the same records.
#include "exercise.h"
#include "flat_mutator.h"

namespace {

using namespace exercise;

// Looks up a spread of types; what is found has the type's format and fits the space given.
void look_up_everything(const std::uint8_t *buffer) {
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; type += 37) {
    std::uint8_t value[256];
    std::uint32_t format = 0;
    std::uint32_t size = sizeof value;
    const aaa_attr_cerrno code = aaa_attr_get_from_buffer(buffer, type, &format, value, &size);
    REQUIRE(code == 0 || code == AAA_ATTR_ERR_NO_MEMORY);
    if (code == 0) REQUIRE(format == aaa_attr_get_format_from_type(type) && size <= sizeof value);
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  REQUIRE(std::freopen("/dev/null", "w", stdout) != nullptr);  // the print is exercised, not read
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  std::vector<std::uint8_t> bytes{AAA_MARSHAL_BUFFER};
  bytes.insert(bytes.end(), data, data + size);
  const auto length = static_cast<std::uint32_t>(bytes.size());
  Copy buffer(bytes.data(), bytes.size());
  aaa_attr_cerrno code = 0;
  if (is_aaa_attr_buffer_valid(buffer.data(), length, &code) == 0) {
    REQUIRE(code == AAA_ATTR_ERR_BAD_BUFFER);
    return 0;
  }
  aaa_attr_list_handle list = 0;
  REQUIRE(aaa_attr_buffer_to_list(buffer.data(), length, &list) == 0);
  REQUIRE(walk_buffer(buffer.data()) == walk_list(list));
  aaa_attr_list_buffer_print(buffer.data());
  look_up_everything(buffer.data());
  REQUIRE(std::equal(bytes.begin(), bytes.end(), buffer.data()));

  REQUIRE(aaa_attr_buffer_scrub(buffer.data(), length) == 0);
  aaa_attr_list_handle scrubbed = 0;
  REQUIRE(is_aaa_attr_buffer_valid(buffer.data(), length, &code) == 1);
  REQUIRE(aaa_attr_buffer_to_list(buffer.data(), length, &scrubbed) == 0);
  REQUIRE(aaa_attr_list_eq(list, scrubbed) == 1);
  aaa_attr_list_free(scrubbed);
  aaa_attr_list_free(list);
  return 0;
}
