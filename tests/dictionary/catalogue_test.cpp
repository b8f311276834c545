// What the dictionary holds, seen from outside: types, value names, authorization bitmaps. All of it is on the wire and
// in the clients' configurations and never changes: hashes over whole tables hold every entry, counts say where to look
// for a wrong one. The hashes were computed from the written catalogue, not from the library's tables; each is over
// lines "<fact> NUL <fact> newline" in number order, numbers in decimal.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "support/lists.h"

namespace {

using Counts = std::map<std::uint32_t, int>;

// 64-bit FNV-1a.
std::uint64_t hash_of(std::string_view bytes) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return hash;
}

// Number, name and format of every type.
TEST(Catalogue, Types) {
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

// Number and class bits of types 1 to 622, as a cursor on an attribute of the type tells them; and the types whose
// values are not shown.
TEST(Catalogue, ClassBitsAndSecrets) {
  std::string lines;
  Counts per_bit;
  std::set<std::uint32_t> secrets;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    List list;
    for (const char *value : {"sixteen bytes...", "four", "1"})
      if (aaa_attr_list_attr_count(list) == 0) list.text(type, value);
    if (aaa_attr_list_attr_count(list) == 0) list.group(type);
    aaa_cursor *cursor = nullptr;
    aaa_cursor_alloc(list, &cursor);
    EXPECT_EQ(aaa_cursor_get_next(cursor), type);
    std::uint32_t bits = 0;
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
      if (aaa_cursor_attr_is_class(cursor, bit)) {
        bits |= bit;
        ++per_bit[bit];
      }
    aaa_cursor_free(cursor);
    lines += std::to_string(type) + '\0' + std::to_string(bits) + '\n';
    char shown[512] = "";
    aaa_attr_list_print_to_output_buffer(list, shown, sizeof shown);
    if (std::string_view(shown).find("<opaque value>") != std::string_view::npos) secrets.insert(type);
  }
  EXPECT_EQ(per_bit, (Counts{{0x2, 55}, {0x4, 1}, {0x8, 124}, {0x10, 29}}));
  EXPECT_EQ(secrets, (std::set<std::uint32_t>{28, 133, 145, 175, 214, 215, 216, 268, 275}));
  EXPECT_EQ(hash_of(lines), 0x14da398e23b52463u);
}

// Type, value and name of every value that has one.
TEST(Catalogue, ValueNames) {
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
TEST(Catalogue, AuthorizationBitmaps) {
  EXPECT_EQ(grants_of(aaa_author_flags[20]), "ppp/ip ppp/ipx ppp/ipv6 ike/ipsec ") << "inacl";
  EXPECT_EQ(grants_of(aaa_author_flags[41]), "ppp/ip ppp/ipx ppp/ipv6 outbound/ip outbound/ipx ") << "outacl";
  EXPECT_EQ(hash_of({reinterpret_cast<const char *>(aaa_author_flags), sizeof aaa_author_flags}), 0xec385814863366c4u);
}

}  // namespace
