// What the dictionary holds, seen from outside: types, value names, authorization bitmaps. All of it is in buffers and
// in the clients' configurations and never changes. A checksum of each row names the row that did (row_sums.h). Hashes
// over whole tables, which were computed apart from the tables, tell that they were typed right: they are over lines
// "<fact> NUL <fact> newline" in number order, numbers in decimal.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "dictionary/row_sums.h"
#include "support/lists.h"

namespace {

using Counts = std::map<std::uint32_t, int>;

// 64-bit FNV-1a.
std::uint64_t hash_of(std::string_view bytes) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return hash;
}

std::uint16_t sum_of(std::string_view facts) { return static_cast<std::uint16_t>(hash_of(facts) >> 48); }

// A row that differs from what it was, or is new and not held yet.
template <std::size_t N>
void expect_sum(const std::uint16_t (&sums)[N], std::size_t row, const std::string &facts) {
  const std::uint16_t sum = sum_of(facts);
  if (row < N && sums[row] == sum) return;
  ADD_FAILURE() << (row < N ? "Changed, and must not: " : "New: hold it in row_sums.h. ") << facts << "\n(sum 0x"
                << std::hex << sum << ')';
}

// A list with one attribute of the type, in whatever value it takes.
List one_of(std::uint32_t type) {
  List list;
  for (const char *value : {"sixteen bytes...", "four", "1"})
    if (aaa_attr_list_attr_count(list) == 0) list.text(type, value);
  if (aaa_attr_list_attr_count(list) == 0) list.group(type);
  return list;
}

// The class bits of the type, as a cursor on an attribute of it tells them.
std::uint32_t class_bits(std::uint32_t type) {
  const List list = one_of(type);
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type);
  std::uint32_t bits = 0;
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
    if (aaa_cursor_attr_is_class(cursor, bit)) bits |= bit;
  aaa_cursor_free(cursor);
  return bits;
}

bool is_secret(std::uint32_t type) {
  char shown[512] = "";
  aaa_attr_list_print_to_output_buffer(one_of(type), shown, sizeof shown);
  return std::string_view(shown).find("<opaque value>") != std::string_view::npos;
}

// All that the dictionary says of a type, but for its bitmap.
std::string facts_of(std::uint32_t type) {
  std::string facts = "type " + std::to_string(type) + ": \"" + aaa_attr_get_name_from_type(type) + "\", " +
                      aaa_attr_get_format_string(aaa_attr_get_format_from_type(type));
  if (type != 0) facts += ", class bits " + std::to_string(class_bits(type)) + (is_secret(type) ? ", opaque" : "");
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(type, value); ++value)
    facts += (value == 0 ? ", values \"" : ", \"") + std::string(name) + '"';
  return facts;
}

TEST(Dictionary, EveryTypeIsWhatItWas) {
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) expect_sum(kTypeSums, type, facts_of(type));
  EXPECT_EQ(std::size(kTypeSums), AAA_ATTR_TYPE_COUNT);
}

// Number, name and format of every type.
TEST(Dictionary, Types) {
  std::string lines;
  Counts per_format;
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    lines += std::to_string(type) + '\0' + aaa_attr_get_name_from_type(type) + '\0' + std::to_string(format) + '\n';
    ++per_format[format];
  }
  const Counts expected = {{1, 210}, {2, 41}, {3, 195}, {4, 11}, {5, 30}, {6, 76},
                           {7, 30},  {8, 7},  {9, 4},   {11, 4}, {12, 15}};
  EXPECT_EQ(per_format, expected);
  EXPECT_EQ(hash_of(lines), 0xe46dad47388b1bdcu);
}

// Number and class bits of all types; and the types whose values are not shown.
TEST(Dictionary, ClassBitsAndSecrets) {
  std::string lines;
  Counts per_bit;
  std::set<std::uint32_t> secrets;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t bits = class_bits(type);
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
      if ((bits & bit) != 0) ++per_bit[bit];
    lines += std::to_string(type) + '\0' + std::to_string(bits) + '\n';
    if (is_secret(type)) secrets.insert(type);
  }
  EXPECT_EQ(per_bit, (Counts{{0x2, 55}, {0x4, 1}, {0x8, 124}, {0x10, 29}}));
  EXPECT_EQ(secrets, (std::set<std::uint32_t>{28, 133, 145, 175, 214, 215, 216, 268, 275}));
  EXPECT_EQ(hash_of(lines), 0x14da398e23b52463u);
}

// Type, value and name of every value that has one.
TEST(Dictionary, ValueNames) {
  std::string lines;
  Counts per_type;
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type)
    for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(type, value); ++value) {
      lines += std::to_string(type) + '\0' + std::to_string(value) + '\0' + name + '\n';
      ++per_type[type];
    }
  EXPECT_EQ(per_type.size(), 76u);
  EXPECT_EQ(hash_of(lines), 0x2de88ea4c2739b98u);
  EXPECT_EQ(value_service.names, name_service);
  EXPECT_EQ(value_protocol.names, name_protocol);
}

// What a bitmap grants, but for service none, which every type may be used with.
std::string grants_of(const aaa_author_bitmap &bitmap) {
  std::string grants;
  for (unsigned bit = AAA_AUTHOR_PROTOCOLS; bit < AAA_AUTHOR_SERVICES * AAA_AUTHOR_PROTOCOLS; ++bit)
    if (bitmap.bits[bit / 8] >> bit % 8 & 1)
      (grants += name_service[bit / AAA_AUTHOR_PROTOCOLS]) +=
          std::string("/") + name_protocol[bit % AAA_AUTHOR_PROTOCOLS] + ' ';
  return grants;
}

// Here the hash is over the bytes, bitmap after bitmap.
TEST(Dictionary, AuthorizationBitmaps) {
  EXPECT_EQ(grants_of(aaa_author_flags[20]), "ppp/ip ppp/ipx ppp/ipv6 ike/ipsec ") << "inacl";
  EXPECT_EQ(grants_of(aaa_author_flags[41]), "ppp/ip ppp/ipx ppp/ipv6 outbound/ip outbound/ipx ") << "outacl";
  for (std::size_t i = 0; i < std::size(aaa_author_flags); ++i)
    expect_sum(kBitmapSums, i, "bitmap " + std::to_string(i) + ": " + grants_of(aaa_author_flags[i]));
  EXPECT_EQ(std::size(kBitmapSums), std::size(aaa_author_flags));
  EXPECT_EQ(hash_of({reinterpret_cast<const char *>(aaa_author_flags), sizeof aaa_author_flags}), 0xec385814863366c4u);
}

}  // namespace
