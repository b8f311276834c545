// The gather list, and IPv6 prefix values.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/hostile.h"

namespace {

TEST(Gather, EntriesAddUpToTheFlatBuffer) {
  List list;
  const std::string filler(440, 'x');
  list.text(30, filler);
  for (std::uint32_t entries = 2; entries < 9; entries += 3) {
    SCOPED_TRACE(entries);
    std::uint32_t count = 99;
    EXPECT_EQ(aaa_attr_list_to_array(list, nullptr, &count), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(count, entries);
    std::vector<aaa_attr_array_entry> given(entries + 1, aaa_attr_array_entry{nullptr, 77});
    aaa_attr_array_entry *made = given.data();
    for (count = 1; count < entries;) {
      const std::uint32_t capacity = count;
      EXPECT_EQ(aaa_attr_list_to_array(list, &made, &count), AAA_ATTR_ERR_BAD_ARG);
      EXPECT_EQ(count, entries);
      count = capacity + 1;
    }
    count = entries + 1;
    EXPECT_EQ(aaa_attr_list_to_array(list, &made, &count), 0u);
    EXPECT_EQ(count, entries);
    EXPECT_EQ(given[entries].length, 77u) << "written behind the entries";
    aaa_attr_array_entry *allocated = nullptr;
    count = 0;
    ASSERT_EQ(aaa_attr_list_to_array(list, &allocated, &count), 0u);
    EXPECT_EQ(count, entries);

    Bytes gathered;
    for (std::uint32_t i = 0; i < count; ++i) {
      EXPECT_EQ(allocated[i].base, given[i].base);
      EXPECT_EQ(allocated[i].length, given[i].length);
      const auto *base = static_cast<const std::uint8_t *>(allocated[i].base);
      gathered.insert(gathered.end(), base, base + allocated[i].length);
      if (i > 0)
        std::fill_n(gathered.end() - static_cast<std::ptrdiff_t>(allocated[i].length) + 12, 4, std::uint8_t{0});
    }
    std::free(allocated);
    EXPECT_EQ(gathered, flat_buffer(list));
    List(list.group(444)).text(30, filler).text(30, filler).release();  // three blocks more: its own two, and ...
    list.text(30, filler);                                              // ... one of the outer list
  }
}

// Every prefix length that the byte can hold, over an address of ones.
TEST(Ipv6Prefix, EveryLength) {
  for (unsigned length = 0; length < 256; ++length) {
    SCOPED_TRACE(length);
    const Bytes ones(16, 0xFF);
    Bytes value(18, 0xEE), address(16, 0xEE);
    aaa_attr_encode_ipv6_prefix(ones.data(), static_cast<std::int32_t>(length + 256), value.data());
    EXPECT_EQ(value, join({{0, static_cast<std::uint8_t>(length)}, ones}));
    Bytes masked = value, expected(16, length > 128 ? 0xEE : 0);
    for (unsigned bit = 0; bit < length && length <= 128; ++bit)
      expected[bit / 8] = static_cast<std::uint8_t>(expected[bit / 8] | 0x80 >> bit % 8);
    if (length < 128 && length % 8 != 0) masked[2 + length / 8] = expected[length / 8];
    std::uint8_t out_length = 77;
    EXPECT_EQ(aaa_attr_decode_ipv6_prefix(value.data(), address.data(), &out_length),
              length > 128 ? AAA_ATTR_ERR_BAD_ARG : 0);
    EXPECT_EQ(out_length, length > 128 ? 0 : length);
    EXPECT_EQ(address, expected);
    EXPECT_EQ(value, masked) << "only the last prefix byte is cleared in the value";
  }
  std::uint8_t value[18] = {}, address[16] = {}, length = 77;
  EXPECT_EQ(aaa_attr_decode_ipv6_prefix(value, address, nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_decode_ipv6_prefix(nullptr, address, &length), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(length, 0u);
  char text[AAA_IPV6_TEXT_SIZE];
  EXPECT_EQ(aaa_attr_ipv6_address_to_string(address, text), text);
  EXPECT_STREQ(text, "::");
}

}  // namespace
