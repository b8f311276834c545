// Who owns a sub-list: a record owns one, a list never itself, and whatever names a list twice, it is freed once.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

Handle sub_list_of(Handle list) {
  Handle sub_list = 0;
  aaa_attr_get_uint64_t(list, type::kGrouped, &sub_list);
  return sub_list;
}

// Lets a list's last record, which is Grouped, own another list than its own. No call does such a thing.
void misuse(Handle owner, Handle owned) {
  const Block last = blocks_of(owner).back();
  std::uint8_t *const value = last.at(last.used() - sizeof owned);
  Handle own;
  std::memcpy(&own, value, sizeof own);
  aaa_attr_list_free(own);
  std::memcpy(value, &owned, sizeof owned);
}

// The address sanitizer tells of a block that is freed twice, read when it is gone, or never freed.
TEST(Ownership, FreeingEndsAndFreesOnce) {
  const std::tuple<const char *, const char *, void (*)(Handle)> rows[] = {
      {"two records of a block", "G{T=* U=*} H{}", [](Handle list) { misuse(list, sub_list_of(list)); }},
      {"records of two blocks", "G{T=* U=*} T=* H{}", [](Handle list) { misuse(list, sub_list_of(list)); }},
      {"a record and one of the sub-list", "G{} G{H{}}",
       [](Handle list) {
         const Block head(list);
         Handle second;
         std::memcpy(&second, head.at(head.used() - sizeof second), sizeof second);
         misuse(second, sub_list_of(list));
       }},
      {"the list itself", "H{}", [](Handle list) { misuse(list, list); }},
      {"the list itself, from its last block", "T=* U=* H{}", [](Handle list) { misuse(list, list); }},
      {"a sub-list and its outer list", "G{T=* H{}}", [](Handle list) { misuse(sub_list_of(list), list); }},
      {"a sub-list itself", "G{H{}} T=*", [](Handle list) { misuse(sub_list_of(list), sub_list_of(list)); }},
  };
  for (const auto &[why, text, make] : rows) {
    SCOPED_TRACE(why);
    const Handle list = list_of(text).release();
    make(list);
    aaa_attr_list_free(list);
  }
}

// Every call that makes an owner, of the list and a sub-list of its own.
const std::pair<const char *, aaa_attr_cerrno (*)(Handle, Handle, const aaa_attr_meta *)> kAdding[] = {
    {"aaa_attr_add",
     [](Handle l, Handle s, const aaa_attr_meta *m) { return aaa_attr_add(l, type::kGrouped, &s, sizeof s, m); }},
    {"aaa_attr_add_v1",
     [](Handle l, Handle s, const aaa_attr_meta *m) { return aaa_attr_add_v1(l, type::kGrouped, &s, sizeof s, m, 5); }},
    {"aaa_attr_add_existing_group_list",
     [](Handle l, Handle s, const aaa_attr_meta *m) {
       return aaa_attr_add_existing_group_list(l, s, type::kGrouped, m);
     }},
    {"aaa_attr_add_or_replace",
     [](Handle l, Handle s, const aaa_attr_meta *m) {
       return aaa_attr_add_or_replace(l, type::kGrouped, &s, sizeof s, m);
     }},
    {"aaa_attr_add_or_replace_v1",
     [](Handle l, Handle s, const aaa_attr_meta *m) {
       return aaa_attr_add_or_replace_v1(l, type::kGrouped, &s, sizeof s, m);
     }},
    {"aaa_attr_add_or_replace_v2",
     [](Handle l, Handle s, const aaa_attr_meta *m) {
       return aaa_attr_add_or_replace_v2(l, type::kGrouped, &s, sizeof s, m, 5);
     }},
};

TEST(Ownership, AListIsNotAddedToItself) {
  for (const auto &[name, add] : kAdding)
    for (const char *text : {"T=x", "G{U=y} T=x"}) {
      const List list = list_of(text);
      EXPECT_EQ(add(list, list, nullptr), AAA_ATTR_ERR_BAD_ARG) << name << " to " << text;
      EXPECT_EQ(outline(list), outline_of(text)) << name << " to " << text;
    }
}

// Replaced by the sub-list that it holds, a record keeps it; no second record is given it.
TEST(Ownership, ASubListGetsNoSecondOwner) {
  const List list = list_of("G+{T=x}");
  const Handle sub_list = sub_list_of(list);
  aaa_attr_meta other = kMeta;
  ++other.tag;
  for (const aaa_attr_meta *meta : {static_cast<const aaa_attr_meta *>(nullptr), &std::as_const(other)}) {
    EXPECT_EQ(aaa_attr_add_or_replace_v1(list, type::kGrouped, &sub_list, sizeof sub_list, meta), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(outline(list), outline_of("G+{T=x}"));
  }
  EXPECT_EQ(aaa_attr_add_or_replace_v1(list, type::kGrouped, &sub_list, sizeof sub_list, &kMeta), 0u);
  EXPECT_EQ(outline(list), outline_of("G+{T=x}")) << "in place";
  EXPECT_EQ(aaa_attr_add_or_replace_v2(list, type::kGrouped, &sub_list, sizeof sub_list, nullptr, 0), 0u);
  EXPECT_EQ(outline(list), outline_of("G{T=x}")) << "its record is another one, and the only one";
  EXPECT_EQ(aaa_attr_list_attr_count(list), 2u);
}

// What is written may lie inside the sub-list that goes.
TEST(Ownership, ValueAndMetaAreTakenBeforeTheSubListGoes) {
  for (const bool in_place : {true, false}) {
    const List list = list_of(in_place ? "G+{T+=x}" : "G{T+=x N=12345678}");
    List fresh = list_of("U=y");
    aaa_cursor *outer = nullptr, *inner = nullptr;
    ASSERT_EQ(aaa_cursor_alloc(list, &outer), 0u);
    aaa_cursor_get_next(outer);
    ASSERT_EQ(aaa_cursor_grouped_alloc(outer, &inner), 0u);
    aaa_cursor_get_next(inner);
    const aaa_attr_meta *meta = aaa_cursor_get_meta(inner);
    Handle replacement = fresh.release();
    const void *value = &replacement;
    if (!in_place) {  // the value itself lies there
      aaa_cursor_get_next(inner);
      std::uint32_t length;
      void *stored = const_cast<void *>(aaa_cursor_get(inner, &length));
      value = std::memcpy(stored, &replacement, sizeof replacement);
    }
    EXPECT_EQ(aaa_attr_add_or_replace(list, type::kGrouped, value, sizeof replacement, meta), 0u);
    EXPECT_EQ(outline(list), outline_of("G+{U=y}")) << (in_place ? "in place" : "superseded");
    aaa_cursor_free(inner);
    aaa_cursor_free(outer);
  }
}

}  // namespace
