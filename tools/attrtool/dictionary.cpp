#include "dictionary.h"

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "explain_words.h"

namespace attrtool {
namespace {

constexpr TypeFacts kTypes[] = {
#define TYPE(number, constant, flags, classes, elsewhere) {number, constant, flags, classes, elsewhere},
#define VALUE(type, number, constant)
#include "dictionary_facts.inc"
#undef TYPE
#undef VALUE
};

struct ValueConstant {
  std::uint32_t type, number;
  const char *constant;
};
constexpr ValueConstant kValues[] = {
#define TYPE(number, constant, flags, classes, elsewhere)
#define VALUE(type, number, constant) {type, number, constant},
#include "dictionary_facts.inc"
#undef TYPE
#undef VALUE
};

// The n-th type without the flag has the n-th bitmap; type 0 counts.
const aaa_author_bitmap *bitmap_of(const TypeFacts &facts) {
  if (!has_bitmap(facts)) return nullptr;
  const auto before = std::count_if(std::begin(kTypes), std::begin(kTypes) + facts.type,
                                    [](const TypeFacts &other) { return has_bitmap(other); });
  return &aaa_author_flags[before];
}

}  // namespace

const char *TypeFacts::name() const { return aaa_attr_get_name_from_type(type); }
std::uint32_t TypeFacts::format() const { return aaa_attr_get_format_from_type(type); }
const char *TypeFacts::format_name() const { return aaa_attr_get_format_string(format()); }

std::span<const TypeFacts> all_types() { return std::span(kTypes).subspan(1); }

const char *constant_of_value(std::uint32_t type, std::uint32_t value) {
  const auto *found = std::find_if(std::begin(kValues), std::end(kValues),
                                   [=](const ValueConstant &row) { return row.type == type && row.number == value; });
  return found == std::end(kValues) ? "" : found->constant;
}

std::vector<std::string> flags_of(const TypeFacts &facts) {
  constexpr std::uint32_t kInWords = AAA_ATTR_TYPE_NO_AUTHOR | AAA_ATTR_TYPE_OPAQUE;
  std::vector<std::string> words;
  if (is_opaque(facts.type)) words.emplace_back("secret");
  if (is_left_out(facts.type)) words.emplace_back("LI");
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
    if ((facts.flags & ~kInWords & bit) != 0) words.push_back(in_hexadecimal(bit));
  return words;
}

bool has_bitmap(const TypeFacts &facts) { return (facts.flags & AAA_ATTR_TYPE_NO_AUTHOR) == 0; }

bool is_granted(const TypeFacts &facts, std::uint32_t service, std::uint32_t protocol) {
  const aaa_author_bitmap *bitmap = bitmap_of(facts);
  if (bitmap == nullptr || service >= AAA_AUTHOR_SERVICES || protocol >= AAA_AUTHOR_PROTOCOLS) return false;
  const std::uint32_t bit = service * AAA_AUTHOR_PROTOCOLS + protocol;
  return (bitmap->bits[bit / 8] >> bit % 8 & 1) != 0;
}

std::string in_hexadecimal(std::uint32_t bits) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%X", bits);
  return text;
}

}  // namespace attrtool
