// Operations on whole lists: the blocks that they leave, and that a list's end is found again; what is refused of one
// and of two lists; equality, of lists as sets of attributes, to any depth.
#include <gtest/gtest.h>

#include <functional>

#include "support/blocks.h"
#include "support/codes.h"
#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

aaa_attr_cerrno coalesce(List &list) {
  std::uint32_t size;
  return aaa_attr_list_buffer_coalesce_and_get_len(list, &size);
}
aaa_attr_cerrno decode_flat(List &list) { return decode(flat_buffer(list), &list); }
aaa_attr_cerrno copy(List &list) {
  const List source = std::move(list);
  blocks_of(source).back().put(8, 0);  // a copy counts the free bytes of its own blocks
  return aaa_attr_list_copy(source, list.out());
}
using Change = std::function<aaa_attr_cerrno(List &)>;

Change splice(const char *source) {
  return [=](List &list) { return aaa_attr_list_merge_list(list, list_of(source).release()); };
}

TEST(Chain, IsWholeAndGrowsAtItsEnd) {
  const std::tuple<std::string, Change, std::string, std::string, std::string> rows[] = {
      {"T=* U=x !V=*", coalesce, "T=* U=x", "21 3 0 24+488 | 20 1 1 553+0 | 22 1 1 34+478", "the last block goes"},
      {"T=* !U=* V=*", coalesce, "T=* V=*", "21 3 0 24+488 | 20 1 1 553+0 | 22 1 1 553+0", "a block between goes"},
      {"!T=* !U=*", coalesce, "", "23 1 0 24+488", "all but the head go"},
      {"T=* U=*", decode_flat, "T=* U=*", "21 3 0 24+488 | 20 1 1 553+0 | 22 1 1 553+0", "decoded"},
      {"G{T=* H{}} !T=* V=x", copy, "G{T=* H{}} V=x", "25 3 1 40+472 | 20 1 1 553+0 | 22 1 1 34+478", "as it was"},
      {"T=* U=x", splice("G{T=x} H{} T=y !V=*"), "T=* U=x G{T=x} H{} T=y",
       "21 5 0 24+488 | 20 1 1 553+0 | 20 1 1 34+478 | 24 1 3 66+446 | 22 1 1 553+0", "removed records, too"},
  };
  for (const auto &[before, call, after, blocks, why] : rows) {
    SCOPED_TRACE(why);
    List list = list_of(before);
    EXPECT_EQ(call(list), 0u);
    EXPECT_EQ(outline(list), outline_of(after));
    EXPECT_EQ(shape(list), blocks);
    for (const Block block : blocks_of(list))
      EXPECT_TRUE(block.at(0) == Block(list).at(0) || block.get<std::uint32_t>(12) == 0) << "no hint but in the head";
    // The end is found again by a record that may have room there and by one that does not fit.
    std::string_view more = "V=x V=*";
    add_items(more, list);
    EXPECT_EQ(outline(list), outline_of(after + " V=x V=*"));
  }
}

// The rebuild cannot add a type outside the dictionary, which a buffer can bring. Then the old list stays, with its
// sub-lists, and only what was not wanted is gone.
TEST(Chain, FilterThatFailsLosesNothing) {
  List list = list_of("G{T=x} U=y H{} N=z N=w V=v");
  const std::size_t at_z = 24 + 16 + 10 + 16, at_w = at_z + 9;
  Block(list).put(at_z, 700);
  Block(list).put(at_w, 701);
  const std::uint32_t types[] = {type::kGrouped, 700, type_named('V'), 0x10000 + type_named('U')};
  EXPECT_EQ(aaa_attr_filter_on_type(list.out(), types, 4), AAA_ATTR_ERR_NOT_FOUND);
  Block(list).put(at_z, type::kBinary);
  EXPECT_EQ(outline(list), outline_of("G{T=x} N=z V=v"));
  EXPECT_EQ(aaa_attr_list_attr_count(list), 6u);
}

using PairCall = aaa_attr_cerrno (*)(Handle, Handle);

aaa_attr_cerrno copy_groups(Handle to, Handle from) { return aaa_attr_list_copy_by_type(from, to, type::kGrouped); }

TEST(TwoLists, BadAndIdenticalOnesAreRefused) {
  constexpr aaa_attr_cerrno kBadArg = AAA_ATTR_ERR_BAD_ARG, kBadList = AAA_ATTR_ERR_BAD_LIST;
  const std::string message = "Unable to remove attributes of list2 in list1";
  const PairCall exchange = [](Handle list1, Handle list2) { return aaa_attr_list_replace_and_add_v1(&list1, &list2); };
  struct Row {
    const char *name;
    PairCall call;
    aaa_attr_cerrno of_handle_0, of_one_list_twice;
    bool all_blocks;  // are looked at, not the head only
    std::string printed;
  };
  const Row rows[] = {
      {"append_list", aaa_attr_list_append_list, kBadArg, kBadArg, false, ""},
      {"merge_with_replace", aaa_attr_list_merge_with_replace, kBadArg, kBadArg, false, ""},
      {"copy_by_type", copy_groups, kBadArg, kBadArg, false, ""},
      {"merge_double_dip", aaa_attr_list_merge_double_dip, kBadArg, kBadArg, false, ""},
      {"merge_list", aaa_attr_list_merge_list, kBadList, kBadArg, false, ""},
      {"replace_and_add", aaa_attr_list_replace_and_add, kBadArg, kBadArg, true, message},
      {"replace_and_add_v1", exchange, kBadArg, kBadArg, true, message},
      {"remove_list", aaa_attr_list_remove_list, kBadList, 0, true, ""},
      {"remove_list_on_match", aaa_attr_list_remove_list_on_match, kBadList, 0, true, ""},
      {"remove_common_attrs", aaa_attr_list_remove_common_attrs, kBadList, 0, true, ""},
  };
  for (const auto &[name, call, of_handle_0, of_one_list_twice, all_blocks, printed] : rows) {
    SCOPED_TRACE(name);
    const List list = list_of("G{T=x} U=y"), bad = list_of("T=*"), texts = list_of("T=x U=y");
    const Block damaged = blocks_of(bad)[all_blocks ? 1 : 0];
    damaged.put(0, 0);
    testing::internal::CaptureStderr();
    EXPECT_CODE(of_handle_0, call(0, list));
    EXPECT_CODE(of_handle_0, call(list, 0));
    EXPECT_CODE(of_handle_0, call(0, 0));
    EXPECT_CODE(of_one_list_twice, call(texts, texts));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    testing::internal::CaptureStderr();
    EXPECT_CODE(kBadList, call(list, bad));
    EXPECT_CODE(kBadList, call(bad, list));
    EXPECT_CODE(kBadList, call(bad, bad));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), printed + printed + printed);
    EXPECT_EQ(aaa_attr_list_eq(list, bad), 0);
    EXPECT_EQ(aaa_attr_list_eq(bad, list), 0);
    EXPECT_EQ(aaa_attr_list_eq(bad, bad), 1) << "a list is equal to itself, whatever it holds";
    damaged.put(0, 0xABCD);
    EXPECT_EQ(outline(list), outline_of("G{T=x} U=y"));
    EXPECT_EQ(outline(texts), of_one_list_twice == 0 ? "" : outline_of("T=x U=y"));
  }
}

// A copy that stops half-way goes without the source's sub-lists.
TEST(TwoLists, CopyRefusesDamagedBlocks) {
  const std::tuple<std::size_t, std::size_t, std::uint16_t> rows[] = {
      {0, 2, 0x2502}, {1, 2, 0x2002}, {3, 2, 0x2202}, {0, 10, 513}};  // versions, used bytes
  Handle copy = 77;
  for (const auto &[block, offset, value] : rows) {
    const List source = list_of("G{T=x} U=* H{V=y} T=*");
    const Block damaged = blocks_of(source)[block];
    const std::uint16_t good = damaged.get(offset);
    damaged.put(offset, value);
    EXPECT_EQ(aaa_attr_list_copy(source, &copy), AAA_ATTR_ERR_BAD_LIST) << "block " << block;
    damaged.put(offset, good);
    EXPECT_EQ(outline(source), outline_of("G{T=x} U=* H{V=y} T=*")) << "block " << block;
  }
  EXPECT_EQ(aaa_attr_list_copy(0, &copy), AAA_ATTR_ERR_BAD_LIST);
  List source = list_of("G{T=x} H{U=y}"), destination;
  const Block gone(source.group(type::kGrouped));
  gone.put(0, 0xFFFF);
  EXPECT_EQ(aaa_attr_list_copy(source, &copy), AAA_ATTR_ERR_STALE_HANDLE) << "of the third sub-list";
  EXPECT_EQ(copy, 77u);
  EXPECT_EQ(aaa_attr_list_append_list(destination, source), AAA_ATTR_ERR_STALE_HANDLE);
  EXPECT_EQ(outline(destination), outline_of("G{T=x} H{U=y}")) << "what came before stays";
  gone.put(0, 0xABCD);
}

// The bytes of all blocks, of the sub-lists too.
std::string bytes_of(aaa_attr_list_handle list) {
  std::string bytes;
  for (const Block block : blocks_of(list)) bytes.append(reinterpret_cast<const char *>(block.at(0)), block.used());
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  aaa_attr_list_handle sub_list = 0;
  while (aaa_cursor_get_next(cursor) != 0)
    if (aaa_cursor_grouped(cursor) != 0 && aaa_cursor_get_grouped_attr_handle(cursor, &sub_list) == 0)
      bytes += bytes_of(sub_list);
  aaa_cursor_free(cursor);
  return bytes;
}

// Lists nested 128 deep around `innermost`: before and after are the texts around the sub-list of each level. Searched
// in both directions at every level, such lists would never be done with.
std::string nested(const std::string &innermost, const std::string &before, const std::string &after) {
  std::string text = innermost;
  for (int level = 0; level < AAA_ATTR_NESTING_MAX; ++level) text = before + "G{" + text + "}" + after;
  return text;
}

// Items with the numbers from first to last between `before` and `after`.
std::string items(const char *before, int first, int last, const char *after) {
  std::string text;
  for (int i = first, step = first < last ? 1 : -1; i != last + step; i += step) {
    text += before;
    text += std::to_string(i);
    text += after;
  }
  return text;
}
std::string groups(int first, int last) { return items("G{T=", first, last, "} "); }
std::string values(int first, int last) { return items("N=", first, last, " "); }

TEST(Equality, ComparesSetsOfAttributesAndLeavesNoTrace) {
  const std::tuple<std::string, std::string, bool, std::string> rows[] = {
      {"G{T=a} G{T=b} G{T=* U=*}", "G{U=* T=*} G{T=a} G{T=b}", true, "shuffled"},
      {"G{T=a} G{T=a} G{T=b}", "G{T=b} G{T=b} G{T=a}", true, "others repeated"},
      {"G{T=a} G{T=b} G{T=a}", "G{T=a} G{T=a} G{T=c}", false, "b and c"},
      {"G{T=a} U=x G{T=b}", "U=x G{T=b} G{T=b} G{T=a} G{}", false, "the empty one"},
      {"H{G{T=a} G{T=b}} H{G{T=c}}", "H{G{T=c} G{T=c}} H{G{T=b} G{T=a}}", true, "shuffled at two levels"},
      {groups(0, 699), groups(699, 0), true, "a great many in opposite order"},
      {groups(0, 699), groups(699, 1), false, "one of a great many"},
      {"T=x U=y", "U=y T=x", true, "few, in opposite order"},
      {"T=x U=y U=z", "U=z T=x", false, "few, one is missing"},
      {"T=x U=y U=y", "U=y T=x T=x", true, "few, others repeated"},
      {"T=x U=y", "U=y T=x !V=z", true, "few, a removed one does not count"},
      {"T+=x", "T=x", false, "meta on one side, in order"},
      {"T+=x U=y", "U=y T=x", false, "meta on one side, few in another order"},
      {values(0, 299) + "T=x", values(299, 0) + "T=x", true, "many in opposite order"},
      {values(0, 299) + "T=x", values(299, 0) + "T=y", false, "one of many"},
      {values(0, 299) + "T=x", values(299, 0) + "T+=x", false, "meta on one side, many in another order"},
      {values(0, 299), values(299, 0) + values(7, 9), true, "many, some repeated"},
      {nested("", "T=x ", ""), nested("", "", " T=x"), true, "opposite order"},
      {nested("U=a", "T=x ", ""), nested("U=b", "", " T=x"), false, "opposite order, another innermost list"},
      {nested("U=a", "", ""), nested("U=b", "", ""), false, "the same order, another innermost list"},
      {nested("", "", " T=x U=y"), nested("", "", " U=y T=x"), true, "the order differs after the sub-list"},
      {nested("", "G{T=x} ", ""), nested("", "", " G{T=x}"), true, "two of a type in opposite order"},
      {nested("U=a", "G{T=x} ", ""), nested("U=b", "", " G{T=x}"), false, "two of a type, another innermost list"},
      {nested("", "G{} T=x G{T=x} ", ""), nested("", "T=x G{T=x} G{T=x} ", " G{}"), true, "with duplicates"},
      {nested("", "H{} ", " H{U=a}"), nested("", "H{U=a} ", " H{} T=x"), false, "one more at every level"},
  };
  for (const auto &[text1, text2, equal, why] : rows) {
    SCOPED_TRACE(why);
    const List list1 = list_of(text1), list2 = list_of(text2);
    const std::string before1 = bytes_of(list1), before2 = bytes_of(list2);
    EXPECT_EQ(aaa_attr_list_eq(list1, list2), equal);
    EXPECT_EQ(aaa_attr_list_eq(list2, list1), equal);
    EXPECT_TRUE(bytes_of(list1) == before1 && bytes_of(list2) == before2);
  }
  EXPECT_EQ(aaa_attr_list_eq(0, 0), 1);
  EXPECT_EQ(aaa_attr_list_eq(0, List()) + aaa_attr_list_eq(List(), 0), 0);
}

TEST(Equality, ComparesEveryByteOfTheMeta) {
  const List list = list_of("T+=x"), other = list_of("T+=x");
  for (std::size_t byte = 0; byte < sizeof kMeta; ++byte) {
    *Block(other).at(24 + 8 + byte) ^= 0x80;
    EXPECT_EQ(aaa_attr_list_eq(list, other), 0) << byte;
    *Block(other).at(24 + 8 + byte) ^= 0x80;
    EXPECT_EQ(aaa_attr_list_eq(list, other), 1) << byte;
  }
  // The bytes of the meta as a value are no meta.
  List with, without;
  const std::string_view bytes(reinterpret_cast<const char *>(&kMeta), sizeof kMeta);
  with.text(type::kBinary, bytes, &kMeta);
  without.text(type::kBinary, bytes);
  EXPECT_EQ(aaa_attr_list_eq(with, without), 0);
  EXPECT_EQ(aaa_attr_list_eq(without, with), 0);
}

}  // namespace
