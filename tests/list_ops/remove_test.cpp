// Removing attributes from one list, and from a list what another holds.
#include "support/changes.h"

namespace {

std::function<aaa_attr_cerrno(List &)> remove(std::uint32_t type) {
  return [=](List &list) { return aaa_attr_remove(list, type); };
}
std::function<aaa_attr_cerrno(List &)> remove_text(const std::string &value) {
  return [=](List &list) {
    return aaa_attr_remove_on_match(list, type::kString, value.data(), static_cast<std::uint32_t>(value.size()));
  };
}

TEST(Remove, ByTypeAndByValue) {
  const char *const kTexts = "T=abc T=abd U=abc T=ab T+=abc T=abcd";
  expect_changes({
      {"T=x U=y T+@5=* !T=z T=v", remove(type::kString), "!T=x U=y !T+@5=* !T=z !T=v", "all of the type"},
      {"G{T=x G{}} U=y G{} H{G{}}", remove(type::kGrouped), "!G{} U=y !G{} H{G{}}", "with their sub-lists"},
      {"T=x U=y", remove(type::kBinary), "T=x U=y", "none is there"},
      {"T=x 0=null U=y", remove(0), "T=x 0=null U=y", "the end of a walk is no match"},
      {"T=x", remove(0x10000 + type::kString), "T=x", "not cut to 16 bits"},
      {kTexts, remove_text("abc"), "!T=abc T=abd U=abc T=ab !T+=abc T=abcd", "all of the value, whatever the meta"},
      {kTexts, remove_text(std::string("abc\0", 4)), kTexts, "the NUL is not part of the value"},
      {kTexts, remove_text("ab"), "T=abc T=abd U=abc !T=ab T+=abc T=abcd", "a prefix is another value"},
      {kTexts, remove_text(""), kTexts, "nothing is so short"},
  });
  EXPECT_EQ(aaa_attr_remove(0, type::kString), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_remove_on_match(0, type::kString, "abc", 3), AAA_ATTR_ERR_BAD_LIST);
}

TEST(Remove, WhatAnotherListHolds) {
  const PairCall types = aaa_attr_list_remove_list;
  const PairCall values = aaa_attr_list_remove_list_on_match;
  const PairCall common = aaa_attr_list_remove_common_attrs;
  expect_changes({
      {"T=x U=y T=z", with(types, "T=z"), "!T=x U=y !T=z", "whatever the value"},
      {"T=x U=y V=z G{H{}} H{}", with(types, "V=a G{} T=b T=c"), "!T=x U=y !V=z !G{} H{}", "several, sub-lists"},
      {"T=x U=y", with(types, ""), "T=x U=y", "nothing to remove"},
      {"T=x U=y", with(types, "!T=x"), "T=x U=y", "removed attributes have no say"},
      {"T=x U=y V=z", with(types, "U=* 0=null T=a"), "T=x !U=y V=z", "the walk ends at type 0"},
      {"T=x T=y U=x T+=x", with(values, "T=x"), "!T=x T=y U=x !T+=x", "whatever the meta"},
      {"T=x T=xx U=y U=z V=*", with(values, "U=z V=* T=xx"), "T=x !T=xx U=y !U=z !V=*", "several values"},
      {"T=x", with(values, "T=y T=x"), "!T=x", "not only the first of a type"},
      {"G{T=x} U=y", with(values, "G{T=x}"), "G{T=x} U=y", "sub-lists are compared by handle"},
      {"T=x", with(values, "!T=x U=x"), "T=x", "removed attributes have no say"},
      {"T=x U=y V=z", with(common, "T=x U=w", "!T=x U=w"), "!T=x !U=y V=z", "only the same values go from both"},
      {"T=y", with(common, "T=x T=y"), "!T=y", "held against the first of the type only"},
      {"T=x T=y", with(common, "T=x T=y", "!T=x !T=y"), "!T=x !T=y", "the next one meets the next one"},
      {"T=y T=x", with(common, "T=x T=y", "!T=x T=y"), "!T=y !T=x", "y against x, x against x"},
      {"T=x T=x", with(common, "T=x", "!T=x"), "!T=x T=x", "each takes one away"},
      {"T+@5=x U=*", with(common, "U=* T=x", "!U=* !T=x"), "!T+@5=x !U=*", "whatever the meta and the order"},
      {"T=x", with(common, "!T=x"), "T=x", "removed attributes have no say"},
  });
  for (const PairCall remove : {types, values, common}) {
    const List list = list_of("T=x U=y T=x V=*"), damaged = list_of("T=* U=*");
    blocks_of(damaged)[1].put(0, 0xFFFF);
    const aaa_attr_list_handle pairs[][2] = {{list, 0}, {0, list}, {list, damaged}, {damaged, list}};
    for (const auto &pair : pairs) EXPECT_EQ(remove(pair[0], pair[1]), AAA_ATTR_ERR_BAD_LIST);
    EXPECT_EQ(outline(list), outline_of("T=x U=y T=x V=*"));
    EXPECT_EQ(remove(list, list), 0u);
    EXPECT_EQ(outline(list), "") << "a list less itself";
  }
}

// Who names a sub-list by its handle has it back.
TEST(Remove, ByValueLeavesTheSubListToTheCaller) {
  const List sub_list = list_of("T=x"), list, other;
  const aaa_attr_list_handle handle = sub_list;
  const auto add_to = [&handle](aaa_attr_list_handle to) {
    EXPECT_EQ(aaa_attr_add_existing_group_list(to, handle, type::kGrouped, nullptr), 0u);
  };
  add_to(list);
  EXPECT_EQ(aaa_attr_remove_on_match(list, type::kGrouped, &handle, sizeof handle), 0u);
  add_to(list);
  add_to(other);
  EXPECT_EQ(aaa_attr_list_remove_list_on_match(list, other), 0u);
  add_to(list);
  EXPECT_EQ(aaa_attr_list_remove_common_attrs(list, other), 0u);
  EXPECT_EQ(outline(list) + outline(other), "");
  EXPECT_EQ(outline(sub_list), outline_of("T=x"));
}

}  // namespace
