// Copying lists, and putting the attributes of one into another.
#include "support/changes.h"

namespace {

using Handle = aaa_attr_list_handle;

aaa_attr_cerrno copy_texts(Handle destination, Handle source) {
  return aaa_attr_list_copy_by_type(source, destination, type::kString);
}
aaa_attr_cerrno copy_groups(Handle destination, Handle source) {
  return aaa_attr_list_copy_by_type(source, destination, type::kGrouped);
}

constexpr PairCall append = aaa_attr_list_append_list;
constexpr PairCall merge = aaa_attr_list_merge_with_replace;
constexpr PairCall replace = aaa_attr_list_replace_and_add;
constexpr PairCall dip = aaa_attr_list_merge_double_dip;

TEST(Combine, AttributesAreTakenOver) {
  expect_changes({
      {"T=z", with(append, "T=x !T=y U+@5=y"), "T=z T=x U+@5=y", "duplicates stay, client types come along"},
      {"T=z", with(append, ""), "T=z", "an empty source"},
      {"G{T=a}", with(append, "G{T=b H{}} U=* H+@5{}"), "G{T=a} G{T=b H{}} U=* H+@5{}", "sub-lists"},
      {"", with(append, "T=x 0=null U=y"), "T=x", "the walk ends at type 0"},
      {"T@3=z V=a", with(merge, "T@5=x U@5=y"), "T@3=x V=a U@5=y", "in place, where the client type stays"},
      {"T@3=z V=a", with(merge, "V=a T@5=xx"), "!T@3=z V=a T@5=xx", "superseded"},
      {"T=z", with(merge, "T+=x"), "!T=z T+=x", "superseded for its meta"},
      {"T=a T=b", with(merge, "T=c T=d"), "T=d T=b", "each time the first of the type"},
      {"T=a T=b", with(merge, "T=cc T=dd"), "!T=a !T=b T=cc T=dd", "each time the first that is left"},
      {"G{T=a} T=b", with(merge, "G{T=c H{}} G+{T=d}"), "!G{} T=b G+{T=d}", "sub-lists"},
      {"T=z", with(copy_texts, "T@5=a U=b T+@5=c"), "T=z T=a T+=c", "of one type, without client types"},
      {"T=z", with(copy_texts, "U=b"), "T=z", "a type that the source lacks"},
      {"T=z", with(copy_groups, "G{H{T=x}} H{} G+@5{}"), "T=z G{H{T=x}} G+{}", "sub-lists"},
      {"T=a U@5=b", with(replace, "T@5=c T=d"), "!T=a U@5=b T=c T=d", "the source's types go first"},
      {"G{T=x} H{U=y}", with(replace, "G{H{}} G+{}"), "!G{} H{U=y} G{H{}} G+{}", "sub-lists"},
      {"T=a", with(replace, ""), "T=a", "an empty source"},
      {"P=p T@3=x", with(dip, "P@5=q T@5=y"), "P=p T@3=y P=q", "policies accumulate, the rest replaces"},
      {"Q=q T=x", with(dip, "Q=q Q=q T=yy U@5=z"), "Q=q !T=x Q=q Q=q T=yy U=z", "the other policy"},
      {"G{T=x}", with(dip, "G{H{}} H{T=y}"), "G{H{}} H{T=y}", "sub-lists"},
  });
}

TEST(Combine, ReplaceAndAddByExchangeSwapsTheHandles) {
  List list1 = list_of("T=a U@5=b G{T=x}"), list2 = list_of("T@3=c");
  const Handle former1 = list1, former2 = list2;
  EXPECT_EQ(aaa_attr_list_replace_and_add_v1(list1.out(), list2.out()), 0u);
  EXPECT_EQ(former1, list2);
  EXPECT_EQ(former2, list1);
  EXPECT_EQ(outline(list2), outline_of("U@5=b G{T=x}"));
  list2 = List(0);
  EXPECT_EQ(outline(list1), outline_of("T@3=c U@5=b G{T=x}"));
  EXPECT_EQ(flaws(list1), "");
}

TEST(Combine, SpliceMovesTheBlocks) {
  const auto splice = [](const char *source) {
    return [=](List &list) { return aaa_attr_list_merge_list(list, list_of(source).release()); };
  };
  expect_changes({
      {"T=x", splice("U=y"), "T=x U=y", "one block each", "21 2 1 34+478 | 22 1 1 34+478"},
      {"T=x", splice("U=y V=*"), "T=x U=y V=*", "two onto one", "21 3 1 34+478 | 20 1 1 34+478 | 22 1 1 553+0"},
      {"", splice(""), "", "two empty ones", "21 2 0 24+488 | 22 1 0 24+488"},
      {"G{}", splice("!T=x U=y"), "G{} U=y", "removed records too", "25 2 1 40+472 | 22 1 2 44+468"},
      {"T=* U=x", splice("G{T=x} V=* H{} T=y"), "T=* U=x G{T=x} V=* H{} T=y", "several blocks",
       "21 6 0 24+488 | 20 1 1 553+0 | 20 1 1 34+478 | 24 1 1 40+472 | 20 1 1 553+0 | 26 1 2 50+462"},
  });
}

TEST(Combine, CopyHasTheSourcesBlocksAndItsOwnSubLists) {
  const auto copy = [](List &list) {
    List source = std::move(list), copied(0);
    const aaa_attr_cerrno code = aaa_attr_list_copy(source, copied.out());
    list = std::move(copied);
    return code;
  };
  for (const char *text : {"", "T+@5=x !U=y", "T=* U=* V=*", "G{T=x G{H{}}} !T=* H{U=*}"})
    expect_changes({{text, copy, text, "removed records too"}});
  List behind = list_of("0=null G{T=x} T=* G{T=y}");  // freeing both frees no list twice
  EXPECT_EQ(copy(behind), 0u);
}

// A copy that stops half-way goes without the source's sub-lists.
TEST(Combine, CopyRefusesDamagedBlocks) {
  const struct {
    std::size_t block, offset;
    std::uint16_t value;
  } rows[] = {{0, 2, 0x2502}, {1, 2, 0x2002}, {2, 2, 0x2402}, {3, 2, 0x2202}, {0, 10, 513}};
  for (const auto &row : rows) {
    SCOPED_TRACE("offset " + std::to_string(row.offset) + " of block " + std::to_string(row.block));
    const List source = list_of("G{T=x} U=* H{V=y} T=*");
    const Block block = blocks_of(source)[row.block];
    const std::uint16_t good = block.get(row.offset);
    block.put(row.offset, row.value);
    Handle copy = 77;
    EXPECT_EQ(aaa_attr_list_copy(source, &copy), AAA_ATTR_ERR_BAD_LIST);
    EXPECT_EQ(copy, 77u);
    block.put(row.offset, good);
    EXPECT_EQ(outline(source), outline_of("G{T=x} U=* H{V=y} T=*"));
  }
  const List source = list_of("G{T=x} H{U=y}"), gone = list_of("T=z");
  aaa_attr_add_existing_group_list(source, gone, type::kGrouped, nullptr);
  Block(gone).put(0, 0xFFFF);
  Handle copy = 77;
  EXPECT_EQ(aaa_attr_list_copy(source, &copy), AAA_ATTR_ERR_STALE_HANDLE) << "of the third sub-list";
  const List destination;
  EXPECT_EQ(append(destination, source), AAA_ATTR_ERR_STALE_HANDLE);
  EXPECT_EQ(outline(destination), outline_of("G{T=x} H{U=y}")) << "what came before stays";
  Block(gone).put(0, 0xABCD);
  const Handle handle = gone;
  EXPECT_EQ(aaa_attr_remove_on_match(source, type::kGrouped, &handle, sizeof handle), 0u);
}

TEST(Combine, BadAndIdenticalListsAreRefused) {
  constexpr aaa_attr_cerrno kBadArg = AAA_ATTR_ERR_BAD_ARG, kBadList = AAA_ATTR_ERR_BAD_LIST;
  const std::string message = "Unable to remove attributes of list2 in list1";
  const PairCall exchange = [](Handle list1, Handle list2) { return aaa_attr_list_replace_and_add_v1(&list1, &list2); };
  const struct {
    const char *call;
    PairCall combine;
    aaa_attr_cerrno zero;
    std::string printed;
  } rows[] = {
      {"append", append, kBadArg, ""},
      {"merge", merge, kBadArg, ""},
      {"copy by type", copy_groups, kBadArg, ""},
      {"double dip", dip, kBadArg, ""},
      {"splice", aaa_attr_list_merge_list, kBadList, ""},
      {"replace and add", replace, kBadArg, message},
      {"exchange", exchange, kBadArg, message},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.call);
    const List list = list_of("G{T=x} U=y"), bad;  // a sub-list that was copied in vain must not leak
    Block(bad).put(0, 0);
    testing::internal::CaptureStderr();
    for (const auto &pair : {std::pair<Handle, Handle>{0, list}, {list, 0}, {0, 0}})
      EXPECT_EQ(row.combine(pair.first, pair.second), row.zero);
    EXPECT_EQ(row.combine(list, list), kBadArg);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    testing::internal::CaptureStderr();
    for (const auto &pair : {std::pair<Handle, Handle>{list, bad}, {bad, list}, {bad, bad}})
      EXPECT_EQ(row.combine(pair.first, pair.second), kBadList);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), row.printed + row.printed + row.printed);
    EXPECT_EQ(outline(list), outline_of("G{T=x} U=y"));
    EXPECT_EQ(flaws(list), "");
    EXPECT_EQ(copy_texts(bad, list), 0u) << "nothing to add, nobody looks";
    Block(bad).put(0, 0xABCD);
  }
  Handle copy = 77;
  EXPECT_EQ(aaa_attr_list_copy(0, &copy), kBadList);
  EXPECT_EQ(copy, 77u);
}

}  // namespace
