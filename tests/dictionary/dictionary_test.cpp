// What the dictionary holds, seen from outside: types, value names, authorization bitmaps. All of it is in buffers and
// in the clients' configurations and never changes. A checksum of each row names the row that did (row_sums.h). The
// sums were taken when hashes over whole tables, computed apart from them, had told that every row was typed right.
#include <gtest/gtest.h>

#include "dictionary/row_sums.h"
#include "support/lists.h"

namespace {

// 64-bit FNV-1a.
std::uint64_t hash_of(std::string_view bytes) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return hash;
}

std::uint16_t sum_of(std::string_view facts) { return static_cast<std::uint16_t>(hash_of(facts) >> 48); }

// Every row has its sum, and the sum of what it was.
template <std::size_t N>
void expect_sum(const std::uint16_t (&sums)[N], std::size_t row, const std::string &facts) {
  const std::uint16_t sum = sum_of(facts);
  if (row < N && sums[row] == sum) return;
  ADD_FAILURE() << facts << '\n'
                << (row < N
                        ? "Not what it was. What clients have compiled in must not change; if only a value was added, "
                        : "New: ")
                << "hold it in row_sums.h, row " << row << ": 0x" << std::hex << sum;
}

// A list with one attribute of the type, in whatever value it takes.
List one_of(std::uint32_t type) {
  List list;
  for (const std::string_view value : {"sixteen bytes...", "four", "1"})
    if (aaa_attr_add(list, type, value.data(), static_cast<std::uint32_t>(value.size()), nullptr) == 0) return list;
  list.group(type);
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
  EXPECT_LE(std::size(kTypeSums), AAA_ATTR_TYPE_COUNT) << "row_sums.h: more rows than the dictionary has";
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

TEST(Dictionary, AuthorizationBitmaps) {
  EXPECT_EQ(grants_of(aaa_author_flags[20]), "ppp/ip ppp/ipx ppp/ipv6 ike/ipsec ") << "inacl";
  EXPECT_EQ(grants_of(aaa_author_flags[41]), "ppp/ip ppp/ipx ppp/ipv6 outbound/ip outbound/ipx ") << "outacl";
  for (std::size_t i = 0; i < std::size(aaa_author_flags); ++i)
    expect_sum(kBitmapSums, i, "bitmap " + std::to_string(i) + ": " + grants_of(aaa_author_flags[i]));
  EXPECT_EQ(std::size(kBitmapSums), std::size(aaa_author_flags));
  EXPECT_EQ(hash_of({reinterpret_cast<const char *>(aaa_author_flags), sizeof aaa_author_flags}), 0xec385814863366c4u)
      << "a bitmap has another byte; where no row is named above, for service none";
}

}  // namespace
