// The rows of the attribute type table, seen from outside. Numbers, names and formats are on the wire and in the
// clients' configurations: none of them ever changes.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "support/fnv.h"
#include "support/lists.h"

namespace {

// A list that holds one attribute of the type. Sixteen bytes suit every format that does not ask for another length.
List list_of(std::uint32_t type) {
  const std::map<std::uint32_t, std::uint32_t> lengths = {
      {AAA_ATTR_FMT_ULONG, 4}, {AAA_ATTR_FMT_ENUM, 4}, {AAA_ATTR_FMT_IPV4, 4}, {AAA_ATTR_FMT_BOOLEAN, 1}};
  const std::uint32_t format = aaa_attr_get_format_from_type(type);
  List list;
  if (format == AAA_ATTR_FMT_GROUPED) {
    list.group(type);
  } else {
    const char value[] = "0123456789abcdef";
    aaa_attr_add(list, type, value, lengths.contains(format) ? lengths.at(format) : 16, nullptr);
  }
  return list;
}

// The class bits that a cursor reports of the type.
std::uint32_t class_of(std::uint32_t type) {
  const List list = list_of(type);
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type);
  std::uint32_t bits = 0;
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
    if (aaa_cursor_attr_is_class(cursor, bit)) bits |= bit;
  aaa_cursor_free(cursor);
  return bits;
}

// Hash over "<number> NUL <name> NUL <format> newline" of all rows in number order, numbers in decimal. It was computed
// from the written catalogue of the attributes, not from the library's tables.
TEST(Catalogue, NumbersNamesAndFormatsNeverChange) {
  Fnv rows;
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type)
    rows.put(type)
        .field()
        .put(aaa_attr_get_name_from_type(type))
        .field()
        .put(aaa_attr_get_format_from_type(type))
        .line();
  EXPECT_EQ(rows.hash(), 0xe46dad47388b1bdcu);
}

TEST(Catalogue, RowsPerFormat) {
  std::map<std::uint32_t, int> rows;
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) ++rows[aaa_attr_get_format_from_type(type)];
  const std::map<std::uint32_t, int> expected = {{1, 210}, {2, 41}, {3, 195}, {4, 11}, {5, 30}, {6, 76},
                                                 {7, 30},  {8, 7},  {9, 4},   {11, 4}, {12, 15}};
  EXPECT_EQ(rows, expected);
}

// The hash is over "<number> NUL <class bits> newline" of types 1 to 622, computed like the one above; the counts tell
// which bit is wrong.
TEST(Catalogue, ClassBits) {
  std::map<std::uint32_t, int> rows;
  Fnv all;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t bits = class_of(type);
    all.put(type).field().put(bits).line();
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
      if (bits & bit) ++rows[bit];
  }
  const std::map<std::uint32_t, int> expected = {{0x2, 55}, {0x4, 1}, {0x8, 124}, {0x10, 29}};
  EXPECT_EQ(rows, expected);
  EXPECT_EQ(all.hash(), 0x14da398e23b52463u);
}

TEST(Catalogue, ExactlyTheNineSecretsAreNotShown) {
  std::set<std::uint32_t> secrets;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    char text[512] = "";
    aaa_attr_list_print_to_output_buffer(list_of(type), text, sizeof text);
    if (std::string_view(text).find("<opaque value>") != std::string_view::npos) secrets.insert(type);
  }
  EXPECT_EQ(secrets, (std::set<std::uint32_t>{28, 133, 145, 175, 214, 215, 216, 268, 275}));
}

}  // namespace
