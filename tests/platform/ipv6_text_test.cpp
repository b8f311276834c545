// IPv6 addresses as text.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include "support/lists.h"

namespace {

// The text, with the bytes behind it seen to be untouched.
std::string text_of(const Bytes &address) {
  std::string buffer(AAA_IPV6_TEXT_SIZE + 8, '#');
  EXPECT_EQ(ipv6_address_to_string(address.data(), buffer.data()), buffer.data());
  const std::size_t length = buffer.find('\0');
  EXPECT_EQ(buffer.find_first_not_of('#', length + 1), std::string::npos);
  return buffer.substr(0, length);
}

TEST(Ipv6Text, RecommendedForm) {
  const struct {
    const char *why, *address, *text;
  } rows[] = {
      {"no address", "0000 0000 0000 0000 0000 0000 0000 0000", "::"},
      {"loopback, not an IPv4 address", "0000 0000 0000 0000 0000 0000 0000 0001", "::1"},
      {"leading zeros go, trailing ones stay", "2001 0db8 0a00 00b0 0001 1000 0010 0100",
       "2001:db8:a00:b0:1:1000:10:100"},
      {"lower case", "ABCD EF01 ABCD EF01 ABCD EF01 ABCD EF01", "abcd:ef01:abcd:ef01:abcd:ef01:abcd:ef01"},
      {"one zero group is not shortened", "2001 0db8 0000 0001 0001 0001 0001 0001", "2001:db8:0:1:1:1:1:1"},
      {"the longer run is shortened", "2001 0000 0000 0001 0000 0000 0000 0001", "2001:0:0:1::1"},
      {"the first of two equal runs", "2001 0db8 0000 0000 0001 0000 0000 0001", "2001:db8::1:0:0:1"},
      {"a run at the beginning", "0000 0000 0001 0002 0003 0004 0005 0006", "::1:2:3:4:5:6"},
      {"a run at the end", "2001 0db8 0000 0000 0000 0000 0000 0000", "2001:db8::"},
      {"IPv4-mapped", "0000 0000 0000 0000 0000 ffff c000 0201", "::ffff:192.0.2.1"},
      {"the longest IPv4 address", "0000 0000 0000 0000 0000 ffff ffff ffff", "::ffff:255.255.255.255"},
      {"IPv4-mapped but for one bit", "0000 0000 0000 0000 0000 fffe c000 0201", "::fffe:c000:201"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(text_of(hex(row.address)), row.text);
  }
}

// Every pattern of zero and non-zero groups, against the system's own.
TEST(Ipv6Text, AgreesWithTheSystem) {
  for (const unsigned group : {0x0001u, 0x0a0bu, 0xffffu})
    for (unsigned pattern = 0; pattern < 256; ++pattern) {
      Bytes address(16);
      for (unsigned i = 0; i < 8; ++i)
        if (pattern >> i & 1) {
          address[2 * i] = static_cast<std::uint8_t>(group >> 8);
          address[2 * i + 1] = static_cast<std::uint8_t>(group);
        }
      char expected[INET6_ADDRSTRLEN];
      inet_ntop(AF_INET6, address.data(), expected, sizeof expected);
      EXPECT_EQ(text_of(address), expected) << "pattern " << pattern;
    }
}

}  // namespace
