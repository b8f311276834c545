// The attribute type table, built at compile time from attr_types.def and author_bitmaps.def.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_values.h>

namespace attrmgr {

struct TypeRow {
  std::uint32_t type;
  std::uint32_t format;
  std::string_view name;                  // a literal: NUL follows
  const aaa_author_bitmap *author_flags;  // null without a bitmap
  std::uint32_t flags;
  std::uint32_t class_mask;
  const aaa_attr_value_table *values;  // Enum rows only
};

extern const TypeRow kTypes[AAA_ATTR_TYPE_COUNT];

// The formats of all types once more, dense: the column that every add and every walk reads.
extern const std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT> kFormats;

// What storing, copying and checking a record depend on its type for, a bit each, as dense as the formats. The last row
// stands for every number that is no type.
enum TypeTrait : std::uint8_t {
  kEndsInNul = 0x1,    // the stored value ends in a NUL
  kOwnsSubList = 0x2,  // the value is the handle of a list that the record owns
  kHoldsSecret = 0x4,  // the value must not outlive its list
  kEndsWalk = 0x8,     // type 0: a client's walk ends here
};
extern const std::array<std::uint8_t, AAA_ATTR_TYPE_COUNT + 1> kTypeTraits;

inline std::uint8_t traits_of(std::uint32_t type) {
  return kTypeTraits[type < AAA_ATTR_TYPE_COUNT ? type : AAA_ATTR_TYPE_COUNT];
}

// Null for a number that is no type.
inline const TypeRow *row_of(std::uint32_t type) { return type < AAA_ATTR_TYPE_COUNT ? &kTypes[type] : nullptr; }

// A literal, for any number.
inline const char *type_name(std::uint32_t type) {
  const TypeRow *row = row_of(type);
  return row != nullptr ? row->name.data() : "Unknown AAA Attribute";
}

// The name of an Enum row's value; null for a value without one, and for rows of other formats.
inline const char *value_name(const TypeRow &row, std::uint32_t value) {
  return row.values != nullptr && value < row.values->count ? row.values->names[value] : nullptr;
}

// AAA_ATTR_FMT_INVALID for a number that is no type: it can arrive in a buffer.
inline std::uint32_t format_of(std::uint32_t type) {
  return type < AAA_ATTR_TYPE_COUNT ? kFormats[type] : std::uint32_t{AAA_ATTR_FMT_INVALID};
}

}  // namespace attrmgr
