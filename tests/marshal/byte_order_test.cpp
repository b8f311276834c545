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
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(buffer.data()), size_of(buffer),
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

// A flat buffer lies block after block, nested or not, so the mapping needs no structure.
Bytes network_form(Bytes buffer) {
  const auto swap = [&buffer](std::size_t at, unsigned size) { std::reverse(&buffer[at], &buffer[at] + size); };
  const auto number = [&buffer](std::size_t at) { return std::size_t{buffer[at]} + 256u * buffer[at + 1]; };
  for (std::size_t at = 1; at < buffer.size();) {
    const std::size_t end = at + number(at + 10);
    const bool foreign = (buffer[at + 3] & 0x30) == 0x10;
    move_bits(&buffer[at + 3], kBlockFlagPlaces);
    for (const unsigned field : {0u, 4u, 6u, 8u, 10u}) swap(at + field, 2);
    for (at += foreign ? 16 : 24; at < end;) {
      const std::size_t length = number(at + 4);
      const std::uint32_t format = aaa_attr_get_format_from_type(static_cast<std::uint32_t>(number(at)));
      const bool has_meta = buffer[at + 2] & 1;
      move_bits(&buffer[at + 2], kRecordFlagPlaces);
      swap(at, 2), swap(at + 2, 2), swap(at + 4, 4);
      at += 8;
      if (has_meta) {
        move_bits(&buffer[at + 4], kMetaFlagPlaces);
        swap(at + 2, 2), swap(at + 4, 2), swap(at + 6, 2);
        at += 8;
      }
      if (format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM) swap(at, 4);
      at += length;
    }
  }
  return buffer;
}

// Translates there and back, told the length or not. A form that the buffer is not in is refused, it is left as it is.
void expect_translation(const Bytes &host, const Bytes &network) {
  const Bytes *const forms[] = {&host, &network};
  for (const auto call : {translate, translate_v1}) {
    Bytes buffer = host;
    for (const int form : {0, 1}) {
      EXPECT_EQ(call(buffer, form == 0 ? CDM_ENDIAN_TRAN_NTOH : CDM_ENDIAN_TRAN_HTON), AAA_ATTR_ERR_BAD_BUFFER);
      EXPECT_EQ(buffer, *forms[form]);
      EXPECT_EQ(call(buffer, form == 0 ? CDM_ENDIAN_TRAN_HTON : CDM_ENDIAN_TRAN_NTOH), 0u);
      EXPECT_EQ(buffer, *forms[1 - form]);
    }
  }
}

TEST(ByteOrder, Golden) {
  // Flag fields: a chained block, client type 5 with meta, a removed record, a mandatory bit, spare bits.
  expect_translation(
      flat({block(kHead | kGroups | kHeader | 0x48, 2, {record(7, "\x11\x22\x34\x12\1\0\5\0\x0a\0\0\1"sv, 1 | 5 << 2)}),
            block(kLast | kHeader, 1, {record(453, "\1\2\3\4\5\6\7\x08", 2), record(3, "\7\0\0\0"sv, 0x8200)})}),
      hex("01  abcd01b9 0002 0001 0000 002c 00000000 0100000000000000  0007 8280 00000004 1122123480000005 0a000001"
          "    abcd0148 0001 0002 0000 0034 00000000 0000000000000000  01c5 4000 00000008 0102030405060708"
          "                                                            0003 0041 00000004 00000007"));
}

// Every type but Grouped ones, with and without a meta, and buffers with nested lists and in the foreign layout.
TEST(ByteOrder, EveryType) {
  Bytes records;
  std::uint16_t count = 0;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    if (format == AAA_ATTR_FMT_GROUPED) continue;
    const std::uint32_t flags = type * 0x3841 & 0xFFFF;
    const std::string value = "\1\2\3\4"s.substr(0, format == AAA_ATTR_FMT_BOOLEAN ? 1 : 4);
    records = join(
        {records, record(type, (flags & 1 ? "\1\2\3\4"s + static_cast<char>(type) + "\6\7\x08" : "") + value, flags)});
    ++count;
  }
  Bytes buffer = flat({block(kHead | kLast, 1, {records})});
  std::copy_n(little(count, 2).data(), 2, &buffer[7]);
  expect_translation(buffer, network_form(buffer));
  for (const Bytes &host : {hex(golden::kNested), hex(golden::kForeign)}) expect_translation(host, network_form(host));
}

TEST(ByteOrder, ArgumentsAreRefused) {
  const std::pair<int, const char *> rows[] = {
      {0, golden::kNested},    {3, golden::kNested},   {4, golden::kNested}, {-1, golden::kNested}, {1, ""},
      {1, golden::kTlvNested}, {2, golden::kTlvNested}};
  for (const auto &[direction, given] : rows)
    for (const auto call : {translate, translate_v1}) {
      Bytes buffer = hex(given);
      EXPECT_EQ(call(buffer, direction), AAA_ATTR_ERR_BAD_ARG) << direction;
      EXPECT_EQ(buffer, hex(given));
    }
}

}  // namespace
