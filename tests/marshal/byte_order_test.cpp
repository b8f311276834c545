// Network form, held against a mapping of its own: field by field and bit by bit.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

using namespace std::literals;

aaa_attr_cerrno translate(Bytes &buffer, int direction) {
  return aaa_attrs_buffer_tran(reinterpret_cast<char *>(buffer.data()), static_cast<cdm_endian_tran_type>(direction));
}

aaa_attr_cerrno translate_v1(Bytes &buffer, int direction) {
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(buffer.data()), static_cast<std::uint32_t>(buffer.size()),
                                  static_cast<cdm_endian_tran_type>(direction));
}

// Moves host bit i to network bit places[i], in a field that is still in host byte order.
template <std::size_t N>
void move_bits(std::uint8_t *field, const int (&places)[N]) {
  std::uint8_t moved[N / 8] = {};
  for (std::size_t i = 0; i < N; ++i) {
    const auto to = static_cast<std::size_t>(places[i]);
    if (field[i / 8] >> i % 8 & 1) moved[to / 8] = static_cast<std::uint8_t>(moved[to / 8] | 1 << to % 8);
  }
  std::copy(moved, moved + N / 8, field);
}

constexpr int kBlockFlagPlaces[] = {7, 6, 5, 4, 2, 3, 0, 1};
constexpr int kRecordFlagPlaces[] = {15, 14, 7, 8, 9, 10, 11, 12, 13, 0, 1, 2, 3, 4, 5, 6};
constexpr int kMetaFlagPlaces[] = {15, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

// A flat buffer lies block behind block, nested or not, so the mapping needs no structure.
Bytes network_form(Bytes buffer) {
  const auto swap = [&buffer](std::size_t at, unsigned size) { std::reverse(&buffer[at], &buffer[at] + size); };
  const auto number = [&buffer](std::size_t at) { return std::size_t{buffer[at]} + 256u * buffer[at + 1]; };
  for (std::size_t at = 1; at < buffer.size();) {
    const std::size_t end = at + number(at + 10);
    const bool foreign = (buffer[at + 3] & 0x30) == 0x10;
    move_bits(&buffer[at + 3], kBlockFlagPlaces);
    for (const unsigned field : {0u, 4u, 6u, 8u, 10u}) swap(at + field, 2);
    for (at += foreign ? 16 : 24; at < end;) {
      const std::size_t type = number(at), length = number(at + 4);
      const bool has_meta = buffer[at + 2] & 1;
      move_bits(&buffer[at + 2], kRecordFlagPlaces);
      swap(at, 2), swap(at + 2, 2), swap(at + 4, 4);
      at += 8;
      if (has_meta) {
        move_bits(&buffer[at + 4], kMetaFlagPlaces);
        swap(at + 2, 2), swap(at + 4, 2), swap(at + 6, 2);
        at += 8;
      }
      if (type == type::kUlong || type == type::kEnum) swap(at, 4);
      at += length;
    }
  }
  return buffer;
}

// Translates there and back, told the length or not, and refuses the form that the buffer is not in.
void expect_translation(const Bytes &host, const Bytes &network) {
  for (const auto call : {translate, translate_v1}) {
    Bytes buffer = host;
    EXPECT_EQ(call(buffer, CDM_ENDIAN_TRAN_NTOH), AAA_ATTR_ERR_BAD_BUFFER);
    EXPECT_EQ(buffer, host);
    EXPECT_EQ(call(buffer, CDM_ENDIAN_TRAN_HTON), 0u);
    EXPECT_EQ(buffer, network);
    EXPECT_EQ(call(buffer, CDM_ENDIAN_TRAN_HTON), AAA_ATTR_ERR_BAD_BUFFER);
    EXPECT_EQ(buffer, network);
    EXPECT_EQ(call(buffer, CDM_ENDIAN_TRAN_NTOH), 0u);
    EXPECT_EQ(buffer, host);
  }
  for (std::size_t size = 1; size < network.size(); ++size) {
    const Bytes cut(network.begin(), network.begin() + static_cast<std::ptrdiff_t>(size));
    Bytes buffer = cut;
    EXPECT_EQ(translate_v1(buffer, CDM_ENDIAN_TRAN_NTOH), AAA_ATTR_ERR_BAD_BUFFER) << size;
    EXPECT_EQ(buffer, cut) << size;
  }
}

TEST(ByteOrder, Goldens) {
  expect_translation(hex(golden::kEmpty), hex("01  abcd 01 c8  0001 0000  01e8 0018  00000000 0000000000000000"));
  expect_translation(hex(golden::kOneUlong), hex(R"(
    01  abcd 01 c8  0001 0001  01dc 0024  00000000 0000000000000000
    0002 0000 00000004  00000005)"));
  expect_translation(hex(golden::kForeign), hex(R"(
    01  abcd 01 c4  0001 0001  01e4 001c  00000000
    0002 0000 00000004  00000005)"));
  // Flag fields: a chained block, client type 5 with meta, a removed record, a mandatory bit, spare bits.
  expect_translation(
      flat({block(kHead | kGroups | kHeader | 0x48, 2, {record(7, "\x11\x22\x34\x12\1\0\5\0\x0a\0\0\1"sv, 1 | 5 << 2)}),
            block(kLast | kHeader, 1, {record(453, "\1\2\3\4\5\6\7\x08", 2), record(3, "\7\0\0\0"sv, 0x8200)})}),
      hex(R"(
    01  abcd 01 b9  0002 0001  0000 002c  00000000 0100000000000000
    0007 8280 00000004  1122 1234 8000 0005  0a000001
        abcd 01 48  0001 0002  0000 0034  00000000 0000000000000000
    01c5 4000 00000008  0102030405060708
    0003 0041 00000004  00000007)"));
}

TEST(ByteOrder, EveryFormatNestedAndRemoved) {
  List list;
  List inner(list.group(444));
  std::uint32_t client_type = 1;
  for (List *to : {&list, &inner}) {
    for (const std::uint32_t type : {2u, 3u, 7u, 11u, 25u, 30u, 145u, 186u, 197u, 224u, 258u, 293u, 429u, 453u}) {
      const std::uint32_t format = aaa_attr_get_format_from_type(type);
      const std::uint32_t length = format == AAA_ATTR_FMT_IPV6 ? 16 : format == AAA_ATTR_FMT_BOOLEAN ? 1 : 4;
      const aaa_attr_meta meta = {static_cast<std::uint8_t>(type), 3, 0x1234,
                                  static_cast<std::uint16_t>(0x8421 << type % 5), 0xABCD};
      client_type = client_type * 3 % 128;
      EXPECT_EQ(aaa_attr_add_v1(*to, type, "\1\2\3\4\5\6\7\10\11\12\13\14\15\16\17\20", length,
                                type % 2 ? &meta : nullptr, client_type),
                0u)
          << type;
    }
    aaa_attr_remove(to->text(31, std::string(400, 'x')), 3);
    List(to->group(445)).number(2, 0x01020304).release();
  }
  inner.release();
  const Bytes buffer = flat_buffer(list);
  ASSERT_GT(buffer.size(), 1500u);
  expect_translation(buffer, network_form(buffer));
  expect_translation(hex(golden::kNested), network_form(hex(golden::kNested)));
}

TEST(ByteOrder, ArgumentsAreRefused) {
  for (const auto call : {translate, translate_v1}) {
    const Bytes flat_form = hex(golden::kNested), tlv = hex(golden::kTlvNested);
    Bytes buffer = flat_form;
    for (const int direction : {0, 3}) EXPECT_EQ(call(buffer, direction), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(buffer, flat_form);
    buffer = tlv;
    for (const int direction : {1, 2}) EXPECT_EQ(call(buffer, direction), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(buffer, tlv);
    Bytes none;
    EXPECT_EQ(call(none, 1), AAA_ATTR_ERR_BAD_ARG);
  }
}

}  // namespace
