// The bytes of blocks and records, how a list grows block by block, and where it ends.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/hostile.h"
#include "support/list_text.h"

namespace {

TEST(BlockLayout, RecordsArePackedAfterTheHeader) {
  List list;
  const std::uint32_t number = 0x12345678;
  const aaa_attr_meta meta = {3, 7, 0x0A0B, host_meta_flags(0x8001), 0x0C0D};
  EXPECT_EQ(aaa_attr_add_v1(list, type::kUlong, &number, 4, &meta, 5), 0u);
  EXPECT_EQ(aaa_attr_add_v1(list, type::kString, "abc", 3, nullptr, 0x1FF), 0u);
  EXPECT_EQ(aaa_attr_add_v1(list, type::kBinary, "abc", 3, nullptr, 1), 0u);
  EXPECT_EQ(aaa_attr_remove(list, type::kBinary), 0u);
  EXPECT_EQ(aaa_attr_add_existing_group_list(list, 0, type::kGrouped, nullptr), 0u);
  EXPECT_EQ(join({{AAA_MARSHAL_BUFFER}, Block(list).bytes()}), golden_buffer(R"(
    01
    cd ab 01 27              # a Grouped record came
    01 00 04 00 ad 01 53 00  # the removed record still counts
    01 00 00 00              # the library's own word: coalescing has something to do
    00 00 00 00 00 00 00 00
    02 00 15 00 04 00 00 00  # type 2, producer client type 5 and meta, length
    03 07 0b 0a 01 80 0d 0c  # service, protocol, tag, flags, client
    78 56 34 12
    c5 00 fc 01 04 00 00 00  # type 197, the low 7 bits of the client type, length with the NUL
    61 62 63 00
    1e 00 06 00 03 00 00 00  # type 30, client type 1, removed
    61 62 63
    bc 01 00 00 08 00 00 00  # type 444, no list
    00 00 00 00 00 00 00 00
  )"));

  std::uint8_t discriminator[3] = {0, 0, 0xEE};
  aaa_attr_discrim_pack(discriminator, 3, 250);
  EXPECT_EQ(Bytes(discriminator, discriminator + 3), hex("03 fa ee"));
  aaa_attr_discrim_init(discriminator);
  EXPECT_EQ(Bytes(discriminator, discriminator + 3), hex("00 00 ee"));
}

TEST(BlockLayout, RecordsFillTheLastBlockAndChainTheNext) {
  const std::tuple<std::vector<std::uint32_t>, std::string, std::string> rows[] = {
      // lengths of Binary values
      {{400, 72}, "23 1 2 512+0", "what needs exactly the free bytes fits"},
      {{479, 1}, "21 2 1 511+1 | 22 1 1 33+479", "one byte short"},
      {{480, 480}, "21 2 1 512+0 | 22 1 1 512+0", "the next record chains a block"},
      {{481}, "21 2 0 24+488 | 22 1 1 513+0", "a byte too long for a usual block"},
      {{1000, 1}, "21 3 0 24+488 | 20 1 1 1032+0 | 22 1 1 33+479", "the head's free bytes are not used again"},
      {{65503}, "21 2 0 24+488 | 22 1 1 65535+0", "the largest block"},
  };
  const Bytes value(65503);
  for (const auto &[lengths, expected, why] : rows) {
    const List list;
    for (const std::uint32_t length : lengths)
      EXPECT_EQ(aaa_attr_add(list, type::kBinary, value.data(), length, nullptr), 0u);
    EXPECT_EQ(shape(list), expected) << why;
  }
}

TEST(BlockLayout, ChainEndsAt65535Blocks) {
  const Bytes value(481);
  List list = list_of("T=old");
  for (int block = 1; block < 65535; ++block)
    ASSERT_EQ(aaa_attr_add(list, type::kBinary, value.data(), 481, nullptr), 0u);
  EXPECT_EQ(aaa_attr_add(list, type::kBinary, value.data(), 1, nullptr), AAA_ATTR_ERR_NO_MEMORY);
  const List more = list_of("U=x");
  EXPECT_EQ(aaa_attr_list_merge_list(list, more), AAA_ATTR_ERR_NO_MEMORY);
  EXPECT_EQ(shape(more), "23 1 1 34+478");
  EXPECT_EQ(Block(list).get(4), 65535);

  EXPECT_EQ(aaa_attr_add_or_replace(list, type::kString, "longer", 6, nullptr), AAA_ATTR_ERR_NO_MEMORY);
  EXPECT_EQ(aaa_attr_is_present(list, type::kString), 0) << "the superseded attribute is gone by then";
}

}  // namespace
