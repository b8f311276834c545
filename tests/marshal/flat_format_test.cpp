// Buffers as bytes: what is written, in which order; gather lists, IPv6 prefix values.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/blocks.h"
#include "support/hostile.h"

namespace {

constexpr aaa_attr_meta kMeta = {1, 2, 0x1234, AAA_ATTR_META_MANDATORY, 0x10};

TEST(BufferFormat, Goldens) {
  List outer;
  const aaa_attr_list_handle inner = outer.group(type::kGrouped, &kMeta);
  List(inner).number(type::kUlong, 5).release();
  const Bytes before =
      golden_buffer("01  cdab0127 0100 0100 d001 3000 00000000 0000000000000000  bc01 0100 08000000 0102341201001000");
  const Bytes nested_list = golden_buffer(golden::kOneUlong);
  EXPECT_EQ(flat_buffer(outer),
            join({before, in_host_order<std::uint64_t>(inner), Bytes(nested_list.begin() + 1, nested_list.end())}));

  // What was read is written again, but for the sender's addresses.
  List nested;
  ASSERT_EQ(decode(golden_buffer(golden::kNested), &nested), 0u);
  EXPECT_EQ(outline(nested), golden::kNestedOutline);
  Bytes written = flat_buffer(nested);
  EXPECT_EQ(aaa_attr_buffer_scrub(written.data(), size_of(written)), 0u);
  EXPECT_EQ(written, golden_buffer(golden::kNested, "17=0100000000000000 53=0000000000000000 141=0000000000000000"));

  // A TLV buffer has no removed records and no producer client types; a text goes without its NUL.
  List tlv;
  ASSERT_EQ(aaa_attr_add_v1(tlv.number(3, 1), 197, "bob", 3, &kMeta, 5), 0u);
  List sub_list(tlv.group(444));
  sub_list.number(2, 5).group(445);
  sub_list.release();
  aaa_attr_remove(tlv.number(2, 7), 3);
  EXPECT_EQ(tlv_buffer(tlv), golden_buffer(golden::kTlvNested));
  std::uint32_t size = 0;
  EXPECT_EQ(aaa_attr_list_tlv_buffer_len(tlv, &size), 0u);
  EXPECT_EQ(size, 79u);
}

TEST(BufferFormat, CapacityIsNegotiated) {
  using Encode = aaa_attr_cerrno (*)(aaa_attr_list_handle, void *, std::uint32_t *);
  const std::tuple<Encode, const char *, const char *, aaa_attr_cerrno, std::uint32_t> forms[] = {
      {aaa_attr_list_to_buffer, golden::kOneUlong, "", AAA_ATTR_ERR_BAD_FORMAT, 0},
      {aaa_attr_list_to_buffer_v1, golden::kOneUlong, "Coalesce on attribute list failed\n", AAA_ATTR_ERR_BAD_LIST, 99},
      {aaa_attr_list_tlv_to_buffer, "02 14000000 02000000 00000000 04000000 05000000", "", AAA_ATTR_ERR_BAD_LIST, 99},
  };
  List list;
  list.number(type::kUlong, 5);
  for (const auto &[encode, digits, complaint, bad_list, bad_list_size] : forms) {
    const Bytes bytes = golden_buffer(digits);
    const std::uint32_t needed = size_of(bytes);
    for (std::uint32_t capacity = 0; capacity <= needed + 2; ++capacity) {
      SCOPED_TRACE(capacity);
      Bytes buffer(capacity, 0xEE), expected = buffer;
      std::uint32_t size = capacity;
      EXPECT_EQ(encode(list, buffer.data(), &size), capacity < needed ? AAA_ATTR_ERR_BAD_FORMAT : 0);
      EXPECT_EQ(size, needed);
      if (capacity >= needed) std::copy(bytes.begin(), bytes.end(), expected.begin());
      EXPECT_EQ(buffer, expected);
    }
    std::uint32_t size = 99;
    EXPECT_EQ(encode(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT) << "room enough, but no buffer";
    size = 99;
    testing::internal::CaptureStderr();
    EXPECT_EQ(encode(0, nullptr, &size), bad_list);
    EXPECT_EQ(size, bad_list_size);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), complaint);
  }
}

TEST(BufferFormat, BrokenSubListsAreRefused) {
  List outer;
  ASSERT_EQ(aaa_attr_add(outer.group(444), 445, &kNoList, sizeof kNoList, nullptr), 0u);
  std::uint32_t size = 99;
  aaa_attr_array_entry *entries = nullptr;
  EXPECT_EQ(aaa_attr_list_buffer_len(outer, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_tlv_buffer_len(outer, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_to_array(outer, &entries, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(size, 99u);
}

TEST(Gather, EntriesAddUpToTheFlatBuffer) {
  List list;
  const std::string filler(440, 'x');
  list.text(30, filler);
  for (std::uint32_t entries = 2; entries < 9; entries += 3) {
    SCOPED_TRACE(entries);
    std::vector<aaa_attr_array_entry> given(entries + 1, aaa_attr_array_entry{nullptr, 77});
    aaa_attr_array_entry *made = given.data(), *allocated = nullptr;
    for (std::uint32_t capacity = 0; capacity <= entries + 1; ++capacity) {
      std::uint32_t count = capacity;
      EXPECT_EQ(aaa_attr_list_to_array(list, capacity == 0 ? nullptr : &made, &count),
                capacity < entries ? AAA_ATTR_ERR_BAD_ARG : 0);
      EXPECT_EQ(count, entries);
      EXPECT_EQ(given[capacity < entries ? 0 : entries].length, 77u) << "written in vain, or after the entries";
    }
    std::uint32_t count = 0;
    ASSERT_EQ(aaa_attr_list_to_array(list, &allocated, &count), 0u);
    EXPECT_EQ(count, entries);
    Bytes gathered;
    for (std::uint32_t i = 0; i < count; ++i) {
      EXPECT_EQ(allocated[i].base, given[i].base);
      EXPECT_EQ(allocated[i].length, given[i].length);
      const auto *base = static_cast<const std::uint8_t *>(allocated[i].base);
      gathered.insert(gathered.end(), base, base + allocated[i].length);
      if (i > 0) std::fill_n(gathered.end() - static_cast<int>(allocated[i].length) + 12, 4, std::uint8_t{0});
    }
    std::free(allocated);
    EXPECT_EQ(gathered, flat_buffer(list));
    List(list.group(444)).text(30, filler).text(30, filler).release();  // three blocks more: its own two, and ...
    list.text(30, filler);                                              // ... one of the outer list
  }
}

// Every prefix length that the byte can hold, over an address of ones.
TEST(Ipv6Prefix, EveryLength) {
  const Bytes ones(16, 0xFF);
  for (unsigned length = 0; length < 256; ++length) {
    SCOPED_TRACE(length);
    const bool valid = length <= 128;
    Bytes value(18, 0xEE), address(16, 0xEE), expected(16, valid ? 0 : 0xEE);
    aaa_attr_encode_ipv6_prefix(ones.data(), static_cast<std::int32_t>(length + 256), value.data());
    EXPECT_EQ(value, join({{0, static_cast<std::uint8_t>(length)}, ones}));
    Bytes masked = value;
    for (unsigned bit = 0; bit < length && valid; ++bit)
      expected[bit / 8] = static_cast<std::uint8_t>(expected[bit / 8] | 0x80 >> bit % 8);
    if (valid && length % 8 != 0) masked[2 + length / 8] = expected[length / 8];
    std::uint8_t out_length = 77;
    EXPECT_EQ(aaa_attr_decode_ipv6_prefix(value.data(), address.data(), &out_length), valid ? 0 : AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(out_length, valid ? length : 0);
    EXPECT_EQ(address, expected);
    EXPECT_EQ(value, masked) << "only the last prefix byte is cleared in the value";
  }
}

}  // namespace
