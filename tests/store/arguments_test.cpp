// What list and cursor calls refuse, and in which order: null pointers, bad values, handles that name no list.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

const void *value;
std::uint32_t length;

TEST(Arguments, NullsAreRefusedBeforeTheHandle) {
  using namespace type;
  const List list = list_of("T=x");
  for (Handle l : {Handle{list}, Handle{0}}) {
    EXPECT_EQ(in_short(aaa_attr_list_alloc(nullptr), aaa_attr_add_group_list(l, nullptr, kGrouped, nullptr),
                       aaa_attr_find_attr_type_number(l, kString, nullptr), aaa_attr_get(l, kString, nullptr, &length),
                       aaa_attr_get(l, kString, &value, nullptr), aaa_attr_get_string(l, kString, nullptr, &length),
                       aaa_attr_get_uint32_t(l, kUlong, nullptr), aaa_attr_get_uint64_t(l, kUlonglong, nullptr),
                       aaa_attr_remove_on_match(l, kString, nullptr, 1), aaa_attr_list_copy(l, nullptr),
                       aaa_attr_list_replace_and_add_v1(nullptr, &l), aaa_attr_list_replace_and_add_v1(&l, nullptr),
                       aaa_attr_filter_on_type(nullptr, &length, 1), aaa_attr_filter_on_type(&l, nullptr, 1)),
              " 86 86 86 86 86 86 86 86 86 86 86 86 86 86");
    EXPECT_EQ(in_short(aaa_cursor_alloc(l, nullptr), aaa_cursor_alloc_filtered(l, nullptr, 1, 1),
                       aaa_cursor_alloc_from_buffer(&value, nullptr), aaa_cursor_grouped_alloc(nullptr, nullptr),
                       aaa_cursor_reset(nullptr), aaa_cursor_list_add_attr(l, nullptr)),
              " 86 86 86 86 86 86");
    EXPECT_EQ(in_short(aaa_attr_get_value_from_enum_name(type::kEnum, nullptr, &length),
                       aaa_attr_get_value_from_enum_name(type::kEnum, "Stop", nullptr),
                       aaa_attr_get_value_from_enum_name(AAA_ATTR_TYPE_COUNT, nullptr, &length)),
              " 86 86 86");
    EXPECT_EQ(in_short(is_aaa_attr_list_empty(l, nullptr), aaa_attr_get_nth(l, kString, nullptr, &length, 0),
                       aaa_attr_get_nth(l, kString, &value, nullptr, 0)),
              " 8a 8e 8e");
    EXPECT_EQ(is_aaa_attr_list_valid(l, nullptr), 0);
    std::uint16_t count;
    EXPECT_EQ(in_short(aaa_attr_remove_on_match(l, kString, nullptr, 0), aaa_attr_remove(l, kBinary),
                       aaa_attr_find_attr_type_number(l, kString, &count), aaa_attr_list_set_producer_client_type(l, 7),
                       aaa_attr_list_init_producer_client_type(l, 7)),
              l != 0 ? " 00 00 00 00 00" : " 8a 8a 8a 8a 8a");
  }
  EXPECT_EQ(static_cast<aaa_attr_cerrno>(aaa_cursor_move_by_type(nullptr, 0)) + aaa_cursor_free(nullptr), 0u);
  aaa_attr_discrim_pack(nullptr, 1, 1);
  aaa_attr_discrim_init(nullptr);
  aaa_cursor_remove(nullptr);
  Handle no_list = 0, sub_list = 77;
  EXPECT_EQ(
      in_short(aaa_attr_filter_on_type(&no_list, nullptr, 0), aaa_attr_add_group_list(0, &sub_list, kGrouped, nullptr)),
      " 8a 8a");
  EXPECT_EQ(sub_list, 0u);
}

TEST(Arguments, OfAddingAreCheckedInOrder) {
  const List list;
  const std::tuple<std::string, Handle, std::uint32_t, std::uint32_t, const char *, std::string> rows[] = {
      {"the type comes first", 0, 623, 0, nullptr, " 8e 8e 8e 8e 8e"},
      {"not cut to 16 bits", list, 0x10000 + type::kBinary, 1, "x", " 8e 8e 8e 8e 8e"},
      {"no value", 0, type::kBinary, 1, nullptr, " 86 86 8e 8e 8e"},
      {"no length", 0, type::kBinary, 0, "x", " 86 86 8a 8a 8a"},
      {"the list before the format", 0, type::kUlong, 1, "x", " 8a 8a 8a 8a 8a"},
      {"the format last", list, type::kUlong, 1, "x", " 86 86 86 86 86"},
      {"a byte above the largest block, and not read", list, type::kBinary, 65504, "x", " 86 86 86 86 86"},
      {"a size that wraps in 32 bits", list, type::kBinary, 0xFFFFFFF8, "x", " 86 86 86 86 86"},
      {"a size that wraps with the meta", list, type::kBinary, 0xFFFFFFF0, "x", " 86 86 86 86 86"},
      {"a size that wraps with the NUL", list, type::kString, 0xFFFFFFFF, "x", " 86 86 86 86 86"},
  };
  for (const auto &[why, to, type, size, bytes, expected] : rows) {
    const std::string codes =
        in_short(aaa_attr_add(to, type, bytes, size, nullptr), aaa_attr_add_v1(to, type, bytes, size, &kMeta, 5),
                 aaa_attr_add_or_replace(to, type, bytes, size, nullptr),
                 aaa_attr_add_or_replace_v1(to, type, bytes, size, nullptr),
                 aaa_attr_add_or_replace_v2(to, type, bytes, size, &kMeta, 5));
    EXPECT_EQ(codes, expected) << why;
  }
  EXPECT_EQ(aaa_attr_list_attr_count(list), 0u);
}

TEST(Arguments, ValidityLooksAtEveryBlock) {
  const std::tuple<std::size_t, std::uint16_t, std::string> rows[] = {
      {0, 0xABCD, " 00 00 8e"}, {0, 0xCDAB, " 8a 8a 8a"}, {0, 0xFFFF, " 8c 8a 8c"},
      {1, 0, " 8a 8a 8e"},      {2, 0xFFFF, " 8c 8a 8e"},
  };
  aaa_attr_cerrno code = 1;
  for (const auto &[block, magic, codes] : rows) {
    SCOPED_TRACE("block " + std::to_string(block) + " has magic " + std::to_string(magic));
    const List list = list_of("!T=* !U=*");
    blocks_of(list)[block].put(0, magic);
    int empty = 77;
    EXPECT_EQ(is_aaa_attr_list_valid(list, &code), codes.starts_with(" 00"));
    EXPECT_EQ(in_short(code, is_aaa_attr_list_empty(list, &empty), aaa_attr_get(list, type::kUlong, &value, &length)),
              codes);
    EXPECT_EQ(empty, code == 0 ? 1 : 77) << "removed records do not count";
    EXPECT_EQ(aaa_attr_list_attr_count(list), block > 0 || code == 0 ? 2u : 0u);
    if (block == 0 && code != 0) aaa_attr_list_free(list);  // does nothing, and the list is whole once it is mended
    blocks_of(list)[block].put(0, 0xABCD);
    EXPECT_EQ(aaa_attr_add(list, type::kString, "x", 1, nullptr) + is_aaa_attr_list_empty(list, &empty), 0u);
    EXPECT_EQ(empty, 0);
  }
  EXPECT_EQ(is_aaa_attr_list_valid(0, &code) + aaa_attr_is_present(0, type::kString), 0);
  EXPECT_EQ(aaa_attr_list_attr_count(0), 0u);
  EXPECT_EQ(in_short(code), " 8a");
  aaa_attr_list_free(0);
}

}  // namespace
