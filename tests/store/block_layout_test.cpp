// The bytes of blocks and records, and how a list grows block by block.
#include "support/changes.h"

namespace {

TEST(BlockLayout, RecordsArePackedBehindTheHeader) {
  List list;
  EXPECT_EQ(Block(list).bytes(), hex(R"(
    cd ab 01 23              # magic, version, flags: head, last, 24-byte header
    01 00 00 00 e8 01 18 00  # 1 block, 0 records, 488 free, 24 used
    00 00 00 00              # reserved
    00 00 00 00 00 00 00 00  # next
  )"));

  const std::uint32_t number = 0x12345678;
  const aaa_attr_meta meta = {3, 7, 0x0A0B, 0x8001, 0x0C0D};
  EXPECT_EQ(aaa_attr_add_v1(list, type::kUlong, &number, 4, &meta, 5), 0u);
  EXPECT_EQ(aaa_attr_add_v1(list, type::kString, "abc", 3, nullptr, 0x1FF), 0u);
  EXPECT_EQ(aaa_attr_add_v1(list, type::kBinary, "abc", 3, nullptr, 1), 0u);
  EXPECT_EQ(aaa_attr_remove(list, type::kBinary), 0u);
  const std::uint64_t sub_list = list.group(type::kGrouped);
  Bytes expected = hex(R"(
    cd ab 01 27              # a Grouped record came
    01 00 04 00 ad 01 53 00  # the removed record still counts
    00 00 00 00
    00 00 00 00 00 00 00 00
    02 00 15 00 04 00 00 00  # type 2, producer client type 5 and meta, length
    03 07 0b 0a 01 80 0d 0c  # service, protocol, tag, flags, client
    78 56 34 12
    c5 00 fc 01 04 00 00 00  # type 197, the low 7 bits of the client type, length with the NUL
    61 62 63 00
    1e 00 06 00 03 00 00 00  # type 30, client type 1, removed
    61 62 63
    bc 01 00 00 08 00 00 00  # type 444; the sub-list's handle follows
  )");
  const auto *handle = reinterpret_cast<const std::uint8_t *>(&sub_list);
  expected.insert(expected.end(), handle, handle + sizeof sub_list);
  EXPECT_EQ(Block(list).bytes(), expected);
}

TEST(BlockLayout, RecordsFillTheLastBlockAndChainTheNext) {
  const struct {
    std::vector<std::uint32_t> lengths;  // of Binary values
    const char *shape;
    const char *why;
  } rows[] = {
      {{400, 72}, "23 1 2 512+0", "what needs exactly the free bytes fits"},
      {{479, 1}, "21 2 1 511+1 | 22 1 1 33+479", "one byte short"},
      {{480, 480}, "21 2 1 512+0 | 22 1 1 512+0", "the next record chains a block"},
      {{481}, "21 2 0 24+488 | 22 1 1 513+0", "a byte too long for a usual block"},
      {{1000}, "21 2 0 24+488 | 22 1 1 1032+0", "a block as large as its record"},
      {{1000, 1}, "21 3 0 24+488 | 20 1 1 1032+0 | 22 1 1 33+479", "the head's free bytes are not used again"},
      {{65503}, "21 2 0 24+488 | 22 1 1 65535+0", "the largest block"},
  };
  const Bytes value(65535, 0x5A);
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    List list;
    for (const std::uint32_t length : row.lengths)
      EXPECT_EQ(aaa_attr_add(list, type::kBinary, value.data(), length, nullptr), 0u);
    EXPECT_EQ(shape(list), row.shape);
    EXPECT_EQ(flaws(list), "");
  }
}

TEST(BlockLayout, CoalescedAndDecodedListsGrowAtTheirEnd) {
  const auto coalesce = [](List &list) {
    std::uint32_t size;
    return aaa_attr_list_buffer_coalesce_and_get_len(list, &size);
  };
  expect_changes({
      {"T=* U=x !V=*", coalesce, "T=* U=x", "the last block is gone"},
      {"T=* !U=* V=*", coalesce, "T=* V=*", "a block between is gone"},
      {"!T=* !U=* !V=*", coalesce, "", "all but the head is gone"},
      {"T=* U=* V=*", [](List &list) { return decode(flat_buffer(list), &list); }, "T=* U=* V=*", "decoded"},
  });
}

TEST(BlockLayout, ChainEndsAt65535Blocks) {
  const Bytes value(481);
  List list = list_of("T=old");
  for (int block = 1; block < 65535; ++block)
    ASSERT_EQ(aaa_attr_add(list, type::kBinary, value.data(), 481, nullptr), 0u);
  EXPECT_EQ(Block(list).block_count(), 65535);
  EXPECT_EQ(aaa_attr_add(list, type::kBinary, value.data(), 1, nullptr), AAA_ATTR_ERR_NO_MEMORY);
  List more = list_of("U=x");
  EXPECT_EQ(aaa_attr_list_merge_list(list, more), AAA_ATTR_ERR_NO_MEMORY);
  EXPECT_EQ(outline(more), outline_of("U=x"));
  EXPECT_EQ(flaws(more), "");
  EXPECT_EQ(aaa_attr_add_or_replace(list, type::kString, "new", 3, nullptr), 0u) << "needs no block";
  EXPECT_EQ(aaa_attr_list_attr_count(list), 65535u);
  EXPECT_EQ(flaws(list), "");

  EXPECT_EQ(aaa_attr_add_or_replace(list, type::kString, "longer", 6, nullptr), AAA_ATTR_ERR_NO_MEMORY);
  EXPECT_EQ(aaa_attr_is_present(list, type::kString), 0) << "the superseded attribute is gone by then";
}

}  // namespace
