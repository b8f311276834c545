// Network form, held against a mapping of the tests' own, and buffers that come in the other byte order.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

using namespace std::literals;

cdm_endian_tran_type as_direction(int number) { return static_cast<cdm_endian_tran_type>(number); }

aaa_attr_cerrno translate(Bytes &buffer, int direction) {
  return aaa_attrs_buffer_tran(reinterpret_cast<char *>(buffer.data()), as_direction(direction));
}

aaa_attr_cerrno translate_v1(Bytes &buffer, int direction) {
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(buffer.data()), size_of(buffer), as_direction(direction));
}

aaa_attr_cerrno translate_v2(Bytes &buffer, int direction) {
  return aaa_attrs_buffer_tran_v2(reinterpret_cast<char *>(buffer.data()), size_of(buffer), as_direction(direction));
}

using Translation = aaa_attr_cerrno (*)(Bytes &, int);

// The buffer in the one form is refused in the one direction and gives the other form in the other.
void expect_turn(Translation call, const Bytes &from, const Bytes &to, int direction) {
  Bytes buffer = from;
  EXPECT_EQ(call(buffer, CDM_ENDIAN_TRAN_HTON + CDM_ENDIAN_TRAN_NTOH - direction), AAA_ATTR_ERR_BAD_BUFFER);
  EXPECT_EQ(buffer, from) << "refused, but changed";
  EXPECT_EQ(call(buffer, direction), 0u);
  EXPECT_EQ(buffer, to) << "translated";
}

// On a big-endian host network form is host form, and the buffer of a little-endian host is in neither.
void expect_no_turn(Translation call, const Bytes &little, const Bytes &network) {
  for (const int direction : {CDM_ENDIAN_TRAN_HTON, CDM_ENDIAN_TRAN_NTOH}) {
    Bytes buffer = network;
    EXPECT_EQ(call(buffer, direction), 0u);
    EXPECT_EQ(buffer, network) << "changed";
    buffer = little;
    EXPECT_EQ(call(buffer, direction), AAA_ATTR_ERR_BAD_BUFFER);
    EXPECT_EQ(buffer, little) << "refused, but changed";
  }
}

// What a little-endian host wrote, there and back; with all numbers translated, and with those of 32 bits.
void expect_translation(const char *what, const Bytes &little, const Bytes &network, const Bytes &all_numbers) {
  const std::tuple<const char *, Translation, const Bytes &> calls[] = {
      {"told no length", translate, network}, {"v1", translate_v1, network}, {"v2", translate_v2, all_numbers}};
  for (const auto &[name, call, translated] : calls) {
    SCOPED_TRACE(std::string(what) + ", " + name);
    if (kBigEndianHost) {
      expect_no_turn(call, little, translated);
    } else {
      expect_turn(call, little, translated, CDM_ENDIAN_TRAN_HTON);
      expect_turn(call, translated, little, CDM_ENDIAN_TRAN_NTOH);
    }
  }
}

void expect_translation(const char *what, const Bytes &little) {
  expect_translation(what, little, network_form(little), byte_order::turned(little, byte_order::Turn::kAllNumbers));
}

TEST(ByteOrder, Golden) {
  // Flag fields: a chained block, client type 5 with meta, a removed record, a mandatory bit, spare bits. Numbers of 64
  // bits: two that are, one that is not, and one that was removed.
  const Bytes little =
      join({{AAA_MARSHAL_BUFFER},
            block(kHead | kGroups | kHeader | 0x48, 2, {record(7, "\x11\x22\x34\x12\1\0\5\0\x0a\0\0\1"sv, 1 | 5 << 2)}),
            block(kLast | kHeader, 1,
                  {record(453, "\1\2\3\4\5\6\7\x08", 2), record(3, "\7\0\0\0"sv, 0x8200),
                   record(186, "\1\2\3\4\5\6\7\x08"), record(453, "\1\2\3\4\5\6\7\x08\x09")})});
  const std::string_view network =
      "01  abcd01b9 0002 0001 0000 002c 00000000 0100000000000000  0007 8280 00000004 1122123480000005 0a000001"
      "    abcd0148 0001 0004 0000 0055 00000000 0000000000000000  01c5 4000 00000008 0102030405060708"
      "                                                            0003 0041 00000004 00000007"
      "                                                            00ba 0000 00000008 0102030405060708"
      "                                                            01c5 0000 00000009 010203040506070809";
  const Bytes all_numbers = patched(hex(network), "77=0807060504030201 105=0807060504030201");
  expect_translation("golden", little, hex(network), all_numbers);
}

// Every type but Grouped ones, with and without a meta, and buffers with nested lists and in the foreign layout.
TEST(ByteOrder, EveryType) {
  Bytes records;
  std::uint16_t count = 0;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    if (format == AAA_ATTR_FMT_GROUPED) continue;
    const std::uint32_t flags = type * 0x3841 & 0xFFFF;
    const bool wide = format == AAA_ATTR_FMT_ULONGLONG || format == AAA_ATTR_FMT_UTC;
    const std::string value = "\1\2\3\4\5\6\7\x08"s.substr(0, format == AAA_ATTR_FMT_BOOLEAN ? 1 : wide ? 8 : 4);
    records = join(
        {records, record(type, (flags & 1 ? "\1\2\3\4"s + static_cast<char>(type) + "\6\7\x08" : "") + value, flags)});
    ++count;
  }
  Bytes buffer = join({{AAA_MARSHAL_BUFFER}, block(kHead | kLast, 1, {records})});
  std::copy_n(little(count, 2).data(), 2, &buffer[7]);
  expect_translation("every type", buffer);
  expect_translation("nested lists", hex(golden::kNested));
  expect_translation("the foreign layout", hex(golden::kForeign));
}

TEST(ByteOrder, ArgumentsAreRefused) {
  const std::pair<int, const char *> rows[] = {
      {0, golden::kNested},    {3, golden::kNested},   {4, golden::kNested}, {-1, golden::kNested}, {1, ""},
      {1, golden::kTlvNested}, {2, golden::kTlvNested}};
  for (const auto &[direction, golden] : rows)
    for (const auto call : {translate, translate_v1, translate_v2}) {
      const Bytes given = golden_buffer(golden);
      Bytes buffer = given;
      EXPECT_EQ(call(buffer, direction), AAA_ATTR_ERR_BAD_ARG) << direction;
      EXPECT_EQ(buffer, given);
    }
}

// What was not translated is refused, never misread.
TEST(ByteOrder, BuffersOfTheOtherOrderAreRefused) {
  Bytes binaries;  // so long that the other host takes the total for 256
  for (const std::size_t length : {30'000u, 35'508u})
    binaries = join({binaries, little(type::kBinary, 8), little(length, 4), Bytes(length)});
  const Bytes long_tlv = join({{AAA_MARSHAL_TLV}, little(binaries.size() + 4, 4), binaries});
  ASSERT_EQ(long_tlv.size(), 0x10001u);
  const std::tuple<const char *, Bytes, aaa_attr_cerrno> rows[] = {
      {"flat", hex(golden::kOneUlong), AAA_ATTR_ERR_BAD_BUFFER},
      {"flat, nested", hex(golden::kNested), AAA_ATTR_ERR_BAD_BUFFER},
      {"flat, foreign layout", hex(golden::kForeign), AAA_ATTR_ERR_BAD_BUFFER},
      {"TLV", hex(golden::kTlvNested), AAA_ATTR_ERR_BAD_LENGTH},
      {"TLV, an empty list", hex("02 04000000"), AAA_ATTR_ERR_BAD_LENGTH},
      {"TLV, a total that is one in either order", long_tlv, AAA_ATTR_ERR_NOT_FOUND},
  };
  for (const auto &[what, little, expected] : rows) {
    SCOPED_TRACE(what);
    List list;
    EXPECT_EQ(decode(host_form(little), &list), 0u);
    const Bytes other = other_hosts_form(little);
    EXPECT_EQ(decode(other, &list), expected);
    aaa_attr_cerrno code = 0;
    EXPECT_EQ(is_aaa_attr_buffer_valid(other.data(), size_of(other), &code), 0);
  }
}

}  // namespace
