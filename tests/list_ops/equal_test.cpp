// Equality: lists as sets of attributes, to any depth.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

// The bytes of all blocks, of the sub-lists too.
Bytes bytes_of(aaa_attr_list_handle list) {
  Bytes bytes;
  for (const Block block : blocks_of(list)) {
    const Bytes more = block.bytes();
    bytes.insert(bytes.end(), more.begin(), more.end());
  }
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  while (aaa_cursor_get_next(cursor) != 0) {
    aaa_attr_list_handle sub_list = 0;
    if (aaa_cursor_grouped(cursor) == 0 || aaa_cursor_get_grouped_attr_handle(cursor, &sub_list) != 0) continue;
    const Bytes more = bytes_of(sub_list);
    bytes.insert(bytes.end(), more.begin(), more.end());
  }
  aaa_cursor_free(cursor);
  return bytes;
}

TEST(Equality, ComparesSetsOfAttributes) {
  const struct {
    const char *list1;
    const char *list2;
    bool equal;
    const char *why;
  } rows[] = {
      {"", "", true, "empty"},
      {"", "T=x", false, "one is empty"},
      {"", "!T=x", true, "removed attributes do not count"},
      {"T=x U=y", "U=y T=x", true, "order"},
      {"T=x T=x", "T=x", true, "repetition"},
      {"T=x T=y T=x", "T=y T=y T=x", true, "repetition in both"},
      {"T=x T=y", "T=x", false, "one more"},
      {"T=x U=y V=z", "V=z T=x", false, "one more, in another order"},
      {"T=x !U=y", "T=x", true, "removed"},
      {"T=x", "U=x", false, "type"},
      {"T=x", "T=y", false, "value"},
      {"T=x", "T=xx", false, "length"},
      {"T+=x", "T=x", false, "meta of one"},
      {"T+=x", "T+=x", true, "meta of both"},
      {"T@5=x", "T@7=x", true, "client types"},
      {"T=* U=* V=*", "V=* U=* T=*", true, "several blocks"},
      {"T=x 0=null U=y", "T=x", true, "the walk ends at type 0"},
      {"G{T=x}", "G{T=x}", true, "sub-lists"},
      {"G{T=x}", "G{T=x U=y}", false, "one more in the sub-list"},
      {"G{T=x}", "H{T=x}", false, "type of the sub-list"},
      {"G+{T=x}", "G{T=x}", true, "meta of sub-lists"},
      {"G{T=* U=* G{T=*}}", "G{G{T=*} U=* T=*}", true, "sub-lists of several blocks"},
      {"G{T=a} G{T=b} G{T=* U=*}", "G{U=* T=*} G{T=a} G{T=b}", true, "shuffled"},
      {"G{T=a} G{T=b} G{T=a} G{T=c}", "G{T=c} G{T=b} G{T=a}", true, "shuffled and repeated"},
      {"G{T=a} G{T=a} G{T=b}", "G{T=b} G{T=b} G{T=a}", true, "others repeated"},
      {"G{T=a} G{T=b} G{T=a}", "G{T=a} G{T=a} G{T=c}", false, "b and c"},
      {"G{T=a} G{T=b} G{T=c}", "G{T=c} G{T=b}", false, "a"},
      {"G{T=a} U=x G{T=b}", "U=x G{T=b} G{T=b} G{T=a} G{}", false, "the empty one"},
      {"H{T=a} G{T=b} V=x", "G{T=b} H{T=a} V=y", false, "behind the sub-lists"},
      {"H{G{T=a} G{T=b}} H{G{T=c}}", "H{G{T=c} G{T=c}} H{G{T=b} G{T=a}}", true, "shuffled at two levels"},
      {"H{G{T=a} G{T=b}} H{G{T=c}}", "H{G{T=c} G{T=a}} H{G{T=b} G{T=a}}", false, "nearly so"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.list1) + " and " + row.list2 + ": " + row.why);
    const List list1 = list_of(row.list1), list2 = list_of(row.list2);
    const Bytes before1 = bytes_of(list1), before2 = bytes_of(list2);
    EXPECT_EQ(aaa_attr_list_eq(list1, list2), row.equal);
    EXPECT_EQ(aaa_attr_list_eq(list2, list1), row.equal);
    EXPECT_EQ(bytes_of(list1), before1);
    EXPECT_EQ(bytes_of(list2), before2);
  }
}

TEST(Equality, ComparesEveryByteOfTheMeta) {
  const aaa_attr_meta meta = {3, 7, 9, 1, 11};
  const List list;
  aaa_attr_add(list, type::kString, "x", 1, &meta);
  for (std::size_t byte = 0; byte < sizeof meta; ++byte) {
    const List other;
    aaa_attr_add(other, type::kString, "x", 1, &meta);
    EXPECT_EQ(aaa_attr_list_eq(list, other), 1);
    *Block(other).at(24 + 8 + byte) ^= 0x80;
    EXPECT_EQ(aaa_attr_list_eq(list, other), 0) << byte;
  }
}

TEST(Equality, OfHandles) {
  const List list = list_of("T=* U=*"), damaged = list_of("T=* U=*");
  EXPECT_EQ(aaa_attr_list_eq(0, 0), 1);
  EXPECT_EQ(aaa_attr_list_eq(list, list), 1);
  EXPECT_EQ(aaa_attr_list_eq(list, 0), 0);
  EXPECT_EQ(aaa_attr_list_eq(0, list), 0);
  blocks_of(damaged)[1].put(0, 0xFFFF);
  EXPECT_EQ(aaa_attr_list_eq(list, damaged), 0);
  EXPECT_EQ(aaa_attr_list_eq(damaged, list), 0);
  EXPECT_EQ(aaa_attr_list_eq(damaged, damaged), 1);
}

// Lists nested 128 deep around `innermost`: before and behind are the texts around the sub-list of each level.
List nested(const std::string &innermost, const std::string &before, const std::string &behind) {
  std::string text = innermost;
  for (int level = 0; level < AAA_ATTR_NESTING_MAX; ++level) text = before + "G{" + text + "}" + behind;
  return list_of(text);
}

// A search in both directions at every level would go on for ages.
TEST(Equality, OfDeepListsTakesNoLongerForTheirOrder) {
  const struct {
    List list1;
    List list2;
    bool equal;
    const char *why;
  } rows[] = {
      {nested("", "T=x ", ""), nested("", "", " T=x"), true, "opposite order"},
      {nested("U=a", "T=x ", ""), nested("U=b", "", " T=x"), false, "opposite order, another innermost list"},
      {nested("U=a", "T=x ", ""), nested("", "", " T=x"), false, "opposite order, one has no innermost attribute"},
      {nested("U=a", "", ""), nested("U=b", "", ""), false, "the same order"},
      {nested("", "", " T=x U=y"), nested("", "", " U=y T=x"), true, "the order differs behind the sub-list"},
      {nested("", "G{T=x} ", ""), nested("", "", " G{T=x}"), true, "two of a type in opposite order"},
      {nested("U=a", "G{T=x} ", ""), nested("U=b", "", " G{T=x}"), false, "two of a type, another innermost list"},
      {nested("", "G{} T=x G{T=x} ", ""), nested("", "T=x G{T=x} G{T=x} ", " G{}"), true, "with duplicates"},
      {nested("", "H{} ", " H{U=a}"), nested("", "H{U=a} ", " H{} T=x"), false, "one more at every level"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(aaa_attr_list_eq(row.list1, row.list2), row.equal);
    EXPECT_EQ(aaa_attr_list_eq(row.list2, row.list1), row.equal);
  }
}

TEST(Equality, LeavesTheListsUsable) {
  for (const std::string last : {"", " H{}"}) {
    const List list1 = list_of("T=x G{T=* V=a} G{T=* U=b}"), list2 = list_of("G{T=* U=b} G{T=* V=a} T=x" + last);
    EXPECT_EQ(aaa_attr_list_eq(list1, list2), last.empty());
    aaa_cursor *cursor = nullptr;
    ASSERT_EQ(aaa_cursor_alloc(list2, &cursor), 0u);
    while (aaa_cursor_move_by_type(cursor, type::kGrouped) != 0) {
      aaa_attr_list_handle sub_list = 0;
      EXPECT_EQ(aaa_cursor_get_grouped_attr_handle(cursor, &sub_list), 0u);
      EXPECT_EQ(aaa_attr_list_append_list(sub_list, list_of("P=x P=*")), 0u);
      EXPECT_EQ(flaws(sub_list), "");
    }
    aaa_cursor_free(cursor);
    EXPECT_EQ(outline(list2), outline_of("G{T=* U=b P=x P=*} G{T=* V=a P=x P=*} T=x" + last));
  }
}

}  // namespace
