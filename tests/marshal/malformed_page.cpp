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

`aaa_attr_buffer_fault` names the rule that is broken and the byte, counted from the marker, as the last columns do; where
the check or the translation breaks off at something else first, they say so.
)";

std::string in_short(aaa_attr_cerrno code) {
  return code == 0 ? "-" : aaa_attr_cerrno_name(code) + std::strlen("AAA_ATTR_ERR_");
}

// The rule and the place, of all that refuse the buffer. That another form is one goes without saying.
std::string fault_of(const malformed::Case &row) {
  const auto text = [](const aaa_attr_fault &fault) {
    return std::string(aaa_attr_rule_text(fault.rule)) + " (byte " + std::to_string(fault.offset) + ")";
  };
  if (row.fault.rule == AAA_ATTR_RULE_NONE) return "-";
  std::string all = text(row.fault);
  for (const malformed::Other &other : row.others) {
    if (other.fault.rule == AAA_ATTR_RULE_MARKER || other.fault.offset == malformed::kOtherByteOrder.offset) continue;
    all += std::string("; ") + (other.who == 'V' ? "check" : "translation") + ": " + text(other.fault);
  }
  return all;
}

}  // namespace

int main() {
  std::fputs(kIntroduction, stdout);
  for (const malformed::Section &section : malformed::sections()) {
    std::printf("\n## %s\n\n", section.title);
    std::puts(
        "| what is wrong | decoder | check | translation | the rule that is broken | why it is one |\n"
        "|---|---|---|---|---|---|");
    for (const malformed::Case &row : section.cases)
      std::printf("| %s | %s | %s | %s | %s | %s |\n", row.what, in_short(row.decode).c_str(),
                  in_short(row.check).c_str(), in_short(row.translate).c_str(), fault_of(row).c_str(), row.reason);
  }
  return 0;
}
