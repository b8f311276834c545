// Any bytes through the translation, in either direction: what the rules (flat_rules.h) accept in host form is
// translated and comes back byte for byte; a refusal changes nothing.
#include <algorithm>

#include "exercise.h"
#include "flat_mutator.h"
#include "support/flat_rules.h"

namespace {

using Translate = aaa_attr_cerrno (*)(char *, std::uint32_t, cdm_endian_tran_type);

void there_and_back(Translate translate, const std::uint8_t *data, std::size_t size) {
  for (const auto there : {CDM_ENDIAN_TRAN_HTON, CDM_ENDIAN_TRAN_NTOH}) {
    const auto back = there == CDM_ENDIAN_TRAN_HTON ? CDM_ENDIAN_TRAN_NTOH : CDM_ENDIAN_TRAN_HTON;
    const std::vector<std::uint8_t> bytes = exercise::received(AAA_MARSHAL_BUFFER, data, size);
    const auto length = static_cast<std::uint32_t>(bytes.size());
    exercise::Copy copy(bytes.data(), bytes.size());
    char *buffer = reinterpret_cast<char *>(copy.data());
    const aaa_attr_cerrno code = translate(buffer, length, there);
    if (there == CDM_ENDIAN_TRAN_HTON) {
      const flat_rules::Reading reading(bytes.data(), bytes.size(), AAA_ATTR_READER_HTON);
      REQUIRE(code == (reading.accepted() ? 0 : AAA_ATTR_ERR_BAD_BUFFER));
      exercise::require_fault(bytes.data(), length, AAA_ATTR_READER_HTON, code, reading.fault());
    } else {
      exercise::fault_of(bytes.data(), length, AAA_ATTR_READER_NTOH, code);
    }
    if (code != 0) {
      REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
      continue;
    }
    if (std::equal(bytes.begin(), bytes.end(), copy.data())) {  // a list of no blocks, or a big-endian host
      REQUIRE(translate(buffer, length, there) == 0);
      continue;
    }
    if (there == CDM_ENDIAN_TRAN_NTOH)
      REQUIRE(flat_rules::Reading(copy.data(), bytes.size(), AAA_ATTR_READER_HTON).accepted());
    REQUIRE(translate(buffer, length, there) == AAA_ATTR_ERR_BAD_BUFFER);
    REQUIRE(translate(buffer, length, back) == 0);
    REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
    // Without the length, what lies within it is translated all the same.
    REQUIRE(aaa_attrs_buffer_tran(buffer, there) == 0 && aaa_attrs_buffer_tran(buffer, back) == 0);
    REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  there_and_back(aaa_attrs_buffer_tran_v1, data, size);
  there_and_back(aaa_attrs_buffer_tran_v2, data, size);
  return 0;
}
