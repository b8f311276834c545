// Which lengths each format allows, and which formats store a NUL after the value. A table and not a switch: formats
// come in no order that a branch predictor could learn.
#pragma once

#include <algorithm>
#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>

namespace attrmgr {

class FormatRules {
 public:
  constexpr FormatRules() {
    for (Row &row : rows_) row = {kAnyLength, 0};
    rows_[AAA_ATTR_FMT_STRING].nul = 1;
    rows_[AAA_ATTR_FMT_STRING_ATTR].nul = 1;
    rows_[AAA_ATTR_FMT_ULONG].lengths = only(4);
    rows_[AAA_ATTR_FMT_ENUM].lengths = only(4);
    rows_[AAA_ATTR_FMT_IPV4].lengths = only(4);
    rows_[AAA_ATTR_FMT_IPV6].lengths = only(16);
    rows_[AAA_ATTR_FMT_ADDRESS].lengths = only(4) | only(16);
    rows_[AAA_ATTR_FMT_GROUPED].lengths = only(8);
    rows_[AAA_ATTR_FMT_BOOLEAN].lengths = only(1);
  }

  // Whether a value of the format may have the length.
  constexpr bool suits(std::uint32_t format, std::uint32_t length) const {
    return (rows_[format].lengths >> std::min(length, kLongest) & 1) != 0;
  }

  // The bytes that are stored after a value: 1 or 0.
  constexpr std::uint32_t nul(std::uint32_t format) const { return rows_[format].nul; }

 private:
  struct Row {
    std::uint32_t lengths;  // a bit for each length that is allowed; the last bit stands for all longer ones too
    std::uint32_t nul;
  };

  static constexpr std::uint32_t kLongest = 31;
  static constexpr std::uint32_t kAnyLength = ~1u;  // but not 0

  static constexpr std::uint32_t only(unsigned length) { return 1u << length; }

  Row rows_[AAA_ATTR_FMT_QOS_FILTER_RULE + 1]{};
};

inline constexpr FormatRules kFormatRules;

}  // namespace attrmgr
