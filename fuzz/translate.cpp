// Any bytes through the translation, in the direction that the first byte chooses: a refusal changes nothing, and what
// was translated comes back byte for byte.
#include <algorithm>

#include "exercise.h"
#include "flat_mutator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  for (const auto there : {CDM_ENDIAN_TRAN_HTON, CDM_ENDIAN_TRAN_NTOH}) {
    const auto back = there == CDM_ENDIAN_TRAN_HTON ? CDM_ENDIAN_TRAN_NTOH : CDM_ENDIAN_TRAN_HTON;
    std::vector<std::uint8_t> bytes{AAA_MARSHAL_BUFFER};
    bytes.insert(bytes.end(), data, data + size);
    const auto length = static_cast<std::uint32_t>(bytes.size());
    exercise::Copy copy(bytes.data(), bytes.size());
    char *buffer = reinterpret_cast<char *>(copy.data());
    if (aaa_attrs_buffer_tran_v1(buffer, length, there) != 0) {
      REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
      continue;
    }
    REQUIRE(aaa_attrs_buffer_tran_v1(buffer, length, there) == AAA_ATTR_ERR_BAD_BUFFER);
    REQUIRE(aaa_attrs_buffer_tran_v1(buffer, length, back) == 0);
    REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
    // Without the length, what lies within it is translated all the same.
    REQUIRE(aaa_attrs_buffer_tran(buffer, there) == 0 && aaa_attrs_buffer_tran(buffer, back) == 0);
    REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
  }
  return 0;
}
