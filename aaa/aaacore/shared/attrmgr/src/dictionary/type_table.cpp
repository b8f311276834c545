#include "dictionary/type_table.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "dictionary/format_rules.h"
#include "dictionary/name_index.h"

namespace attrmgr {
namespace {

constexpr std::uint32_t OPAQUE = AAA_ATTR_TYPE_OPAQUE;

struct AuthorRow {
  std::uint32_t type;
  std::string_view name;
};

constexpr AuthorRow kAuthorRows[] = {
#define AUTHOR(type, name, ...) {type, name},
#include "dictionary/author_bitmaps.def"
#undef AUTHOR
};

constexpr std::size_t kNoBitmap = ~std::size_t{0};

constexpr std::size_t bitmap_of(std::uint32_t type) {
  for (std::size_t n = 0; n < std::size(kAuthorRows); ++n)
    if (kAuthorRows[n].type == type) return n;
  return kNoBitmap;
}

constexpr TypeRow make_row(std::uint32_t type, std::string_view name, std::uint32_t format,
                           const aaa_attr_value_table *values, std::uint32_t flags, std::uint32_t class_mask) {
  const std::size_t bitmap = bitmap_of(type);
  if (bitmap == kNoBitmap) flags |= AAA_ATTR_TYPE_NO_AUTHOR;
  return {type, format, name, bitmap == kNoBitmap ? nullptr : &aaa_author_flags[bitmap], flags, class_mask, values};
}

#define ATTR(type, ...) type,
#define ENUM(type, ...) type,
constexpr std::uint32_t kTypeNumbers[] = {
#include "dictionary/attr_types.def"
};
#undef ATTR
#undef ENUM
static_assert(std::size(kTypeNumbers) == AAA_ATTR_TYPE_COUNT,
              "aaa_attr_dict.h: AAA_ATTR_TYPE_COUNT is not the number of rows in attr_types.def");

}  // namespace

constexpr TypeRow kTypes[AAA_ATTR_TYPE_COUNT] = {
#define ATTR(type, name, format, flags, class_mask) \
  make_row(type, name, AAA_ATTR_FMT_##format, nullptr, flags, class_mask),
#define ENUM(type, name, table, flags, class_mask) \
  make_row(type, name, AAA_ATTR_FMT_ENUM, &value_##table, flags, class_mask),
#include "dictionary/attr_types.def"
#undef ATTR
#undef ENUM
};

namespace {

constexpr bool every_row_stands_at_its_number() {
  for (std::uint32_t i = 0; i < std::size(kTypes); ++i)
    if (kTypes[i].type != i || kTypes[i].name.empty()) return false;
  return true;
}

constexpr bool author_rows_agree() {
  for (std::size_t n = 0; n < std::size(kAuthorRows); ++n) {
    if (n > 0 && kAuthorRows[n - 1].type >= kAuthorRows[n].type) return false;
    if (kTypes[kAuthorRows[n].type].name != kAuthorRows[n].name) return false;
  }
  return true;
}

static_assert(every_row_stands_at_its_number(), "attr_types.def: each row has a name, and stands at its number");
#define KNOWN(constant, number, type_name) \
  static_assert(kTypes[(number)].name == (type_name), "known_types.def: not the name that attr_types.def has");
#include "dictionary/known_types.def"
#undef KNOWN
static_assert(std::size(kAuthorRows) == AAA_AUTHOR_TYPES,
              "aaa_attr_values.h: AAA_AUTHOR_TYPES is not the number of rows in author_bitmaps.def");
static_assert(author_rows_agree(), "author_bitmaps.def: in type order, with the names of attr_types.def");

constexpr std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT> formats() {
  std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT> column{};
  for (std::size_t i = 0; i < column.size(); ++i) column[i] = static_cast<std::uint8_t>(kTypes[i].format);
  return column;
}

constexpr std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT + 1> type_traits() {
  std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT + 1> column{};
  for (std::size_t i = 0; i < std::size(kTypes); ++i) {
    if (kFormatRules.nul(kTypes[i].format) != 0) column[i] |= kEndsInNul;
    if (kTypes[i].format == AAA_ATTR_FMT_GROUPED) column[i] |= kOwnsSubList;
    if ((kTypes[i].flags & AAA_ATTR_TYPE_OPAQUE) != 0) column[i] |= kHoldsSecret;
  }
  column[0] |= kEndsWalk;
  return column;
}

}  // namespace

constexpr std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT> kFormats = formats();
constexpr std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT + 1> kTypeTraits = type_traits();
constexpr NameIndex kNameIndex(kTypes);

}  // namespace attrmgr
