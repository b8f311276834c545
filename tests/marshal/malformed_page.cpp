// Writes docs/malformed.md, the page of the rules by which buffers are refused, from the table that the tests check.
#include <cstdio>

#include "support/malformed.h"

namespace {

constexpr char kIntroduction[] = R"(# The buffers that are refused

What the calls for received bytes answer when something is wrong with a buffer. `attrmgr_malformed_page` writes this page
from `tests/support/malformed.h`, where the bytes are; the tests hold the library against the same rows.

- decoder: `aaa_attr_buffer_to_list`
- check: `is_aaa_attr_buffer_valid`, and `aaa_attr_buffer_scrub`
- translation: `aaa_attrs_buffer_tran_v1`, from the form that the section's buffers are in

A dash means that the call accepts the buffer. The codes begin with `AAA_ATTR_ERR_`.
)";

std::string in_short(aaa_attr_cerrno code) {
  return code == 0 ? "-" : aaa_attr_cerrno_name(code) + std::strlen("AAA_ATTR_ERR_");
}

}  // namespace

int main() {
  std::fputs(kIntroduction, stdout);
  for (const malformed::Section &section : malformed::sections()) {
    std::printf("\n## %s\n\n", section.title);
    std::puts("| what is wrong | decoder | check | translation | why |\n|---|---|---|---|---|");
    for (const malformed::Case &row : section.cases)
      std::printf("| %s | %s | %s | %s | %s |\n", row.what, in_short(row.decode).c_str(), in_short(row.check).c_str(),
                  in_short(row.translate).c_str(), row.reason);
  }
  return 0;
}
