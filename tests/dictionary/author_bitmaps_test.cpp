// The exported authorization bitmaps. What they must hold is expanded here anew from pairs of names.
#include <gtest/gtest.h>

#include <bit>
#include <set>
#include <sstream>

#include "support/fnv.h"
#include "support/lists.h"

namespace {

unsigned value_of(const aaa_attr_value_table &table, std::string_view name) {
  unsigned value = 0;
  while (value < table.count && table.names[value] != name) ++value;
  return value;
}

// Bits of blank-separated grants "service/protocol"; "*" for every protocol.
std::set<unsigned> bits_of(const std::string &grants) {
  std::set<unsigned> bits;
  std::istringstream words("none/* " + grants);
  for (std::string word; words >> word;) {
    const unsigned service = value_of(value_service, word.substr(0, word.find('/')));
    const std::string protocol = word.substr(word.find('/') + 1);
    for (unsigned p = 0; p < AAA_AUTHOR_PROTOCOLS; ++p)
      if (protocol == "*" || value_of(value_protocol, protocol) == p) bits.insert(service * AAA_AUTHOR_PROTOCOLS + p);
  }
  return bits;
}

bool bit(const aaa_author_bitmap &bitmap, unsigned n) { return bitmap.bits[n / 8] >> n % 8 & 1; }

TEST(AuthorBitmaps, GrantsBitByBit) {
  const std::string tunnel = "ppp/vpdn vpdn/* vpdn-out/* resource-management/*";
  const struct {
    const char *type;
    unsigned bitmap;
    std::string grants;
  } rows[] = {
      {"acl", 0, "shell/*"},
      {"addr", 1, "ppp/ip slip/ip outbound/ip mobileip/ip ike/ipsec"},
      {"idletimeout", 18, "shell/* ppp/lcp"},
      {"inacl", 20, "ppp/ip ppp/ipx ppp/ipv6 ike/ipsec"},
      {"l2tp-rx-speed", 24, tunnel},
      {"ppp-multilink", 38, "ppp/multilink outbound/ip preauth/*"},
      {"outacl", 41, "ppp/ip ppp/ipx ppp/ipv6 outbound/ip outbound/ipx"},
      {"service-type", 51, "ppp/lcp ppp/vpdn preauth/*"},
      {"keepalive", 62, "ppp/sss"},
      {"tunnel-type", 69, tunnel + " ike/ipsec"},
      {"tunnel-password", 73, "ppp/vpdn vpdn/* vpdn-out/* ike/ipsec"},
      {"dhcp-server", 97, "mobileip/ip"},
      {"MS-MPPE-Recv-Key", 99, "ppp/ccp"},
      {"ipv6-nd-dns-servers-addr", 100, "ppp/ipv6 ike/ipsec"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.type);
    const std::set<unsigned> granted = bits_of(row.grants);
    for (unsigned n = 0; n < AAA_AUTHOR_BITMAP_SIZE * 8; ++n)
      EXPECT_EQ(bit(aaa_author_flags[row.bitmap], n), granted.contains(n)) << "bit " << n;
  }
}

// The counts were taken from the written table of grants, and so was the hash over all bytes, bitmap after bitmap: it
// guards every bit, the counts tell in which row one is wrong.
TEST(AuthorBitmaps, EveryBitmap) {
  const int counts[] = {
      98,  54,  54, 50,  50,  50,  51,  98,  98,  50,  50,  50,  50,  50,  51,  51,  51,  50,  99,  51,  53,
      53,  50,  99, 197, 197, 197, 197, 197, 197, 197, 197, 197, 50,  99,  50,  50,  51,  100, 51,  53,  54,
      54,  50,  51, 50,  98,  98,  98,  147, 147, 100, 52,  51,  53,  147, 148, 50,  197, 50,  50,  50,  50,
      98,  50,  50, 50,  50,  50,  198, 198, 197, 197, 149, 197, 197, 197, 148, 197, 99,  197, 148, 197, 197,
      197, 148, 50, 50,  50,  50,  50,  50,  148, 50,  50,  50,  51,  50,  50,  50,  51,
  };
  static_assert(std::size(counts) == AAA_AUTHOR_TYPES);
  Fnv all;
  for (unsigned n = 0; n < AAA_AUTHOR_TYPES; ++n) {
    SCOPED_TRACE("bitmap " + std::to_string(n));
    const aaa_author_bitmap &bitmap = aaa_author_flags[n];
    int count = 0;
    for (const std::uint8_t byte : bitmap.bits) count += std::popcount(byte);
    EXPECT_EQ(count, counts[n]);
    for (unsigned p = 0; p < AAA_AUTHOR_PROTOCOLS; ++p) EXPECT_TRUE(bit(bitmap, p)) << "service none, protocol " << p;
    EXPECT_EQ(bitmap.bits[AAA_AUTHOR_BITMAP_SIZE - 1] >> 2, 0) << "bits behind the last pair";
    all.put(std::string_view(reinterpret_cast<const char *>(bitmap.bits), sizeof bitmap.bits));
  }
  EXPECT_EQ(all.hash(), 0xec385814863366c4u);
}

}  // namespace
