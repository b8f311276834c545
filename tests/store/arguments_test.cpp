// What list and cursor calls refuse, and in which order: null pointers, bad values, handles that name no list.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/codes.h"
#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

const void *value;
std::uint32_t length;

constexpr aaa_attr_cerrno kBadArg = AAA_ATTR_ERR_BAD_ARG, kBadList = AAA_ATTR_ERR_BAD_LIST,
                          kStale = AAA_ATTR_ERR_STALE_HANDLE, kNotFound = AAA_ATTR_ERR_NOT_FOUND;

TEST(Arguments, NullsAreRefusedBeforeTheHandle) {
  using namespace type;
  const List list = list_of("T=x");
  std::uint16_t count;
  for (Handle l : {Handle{list}, Handle{0}}) {
    SCOPED_TRACE(l != 0 ? "a good list" : "handle 0");
    EXPECT_CODE(kBadArg, aaa_attr_list_alloc(nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_add_group_list(l, nullptr, kGrouped, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_find_attr_type_number(l, kString, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_get(l, kString, nullptr, &length));
    EXPECT_CODE(kBadArg, aaa_attr_get(l, kString, &value, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_get_string(l, kString, nullptr, &length));
    EXPECT_CODE(kBadArg, aaa_attr_get_uint32_t(l, kUlong, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_get_uint64_t(l, kUlonglong, nullptr));
    EXPECT_CODE(kNotFound, aaa_attr_get_nth(l, kString, nullptr, &length, 0));
    EXPECT_CODE(kNotFound, aaa_attr_get_nth(l, kString, &value, nullptr, 0));
    EXPECT_CODE(kBadArg, aaa_attr_remove_on_match(l, kString, nullptr, 1));
    EXPECT_CODE(kBadArg, aaa_attr_list_copy(l, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_list_replace_and_add_v1(nullptr, &l));
    EXPECT_CODE(kBadArg, aaa_attr_list_replace_and_add_v1(&l, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_filter_on_type(nullptr, &length, 1));
    EXPECT_CODE(kBadArg, aaa_attr_filter_on_type(&l, nullptr, 1));
    EXPECT_CODE(kBadArg, aaa_cursor_alloc(l, nullptr));
    EXPECT_CODE(kBadArg, aaa_cursor_alloc_filtered(l, nullptr, 1, 1));
    EXPECT_CODE(kBadArg, aaa_cursor_list_add_attr(l, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_list_buffer_len(l, nullptr));
    EXPECT_CODE(kBadArg, aaa_attr_list_buffer_coalesce_and_get_len(l, nullptr));
    EXPECT_CODE(kBadList, is_aaa_attr_list_empty(l, nullptr));
    EXPECT_EQ(is_aaa_attr_list_valid(l, nullptr), 0);
    // No null here: the handle decides.
    const aaa_attr_cerrno of_list = l != 0 ? 0 : kBadList;
    EXPECT_CODE(of_list, aaa_attr_remove_on_match(l, kString, nullptr, 0));
    EXPECT_CODE(of_list, aaa_attr_remove(l, kBinary));
    EXPECT_CODE(of_list, aaa_attr_find_attr_type_number(l, kString, &count));
    EXPECT_CODE(of_list, aaa_attr_list_set_producer_client_type(l, 7));
    EXPECT_CODE(of_list, aaa_attr_list_init_producer_client_type(l, 7));
  }
  EXPECT_CODE(kBadArg, aaa_cursor_alloc_from_buffer(&value, nullptr));
  EXPECT_CODE(kBadArg, aaa_cursor_grouped_alloc(nullptr, nullptr));
  EXPECT_CODE(kBadArg, aaa_cursor_reset(nullptr));
  EXPECT_CODE(kBadArg, aaa_attr_get_value_from_enum_name(kEnum, nullptr, &length));
  EXPECT_CODE(kBadArg, aaa_attr_get_value_from_enum_name(kEnum, "Stop", nullptr));
  EXPECT_CODE(kBadArg, aaa_attr_get_value_from_enum_name(AAA_ATTR_TYPE_COUNT, nullptr, &length));
  EXPECT_EQ(aaa_cursor_move_by_type(nullptr, 0), 0);
  EXPECT_CODE(0, aaa_cursor_free(nullptr));
  aaa_attr_discrim_pack(nullptr, 1, 1);
  aaa_attr_discrim_init(nullptr);
  aaa_cursor_remove(nullptr);
  Handle no_list = 0, sub_list = 77;
  EXPECT_CODE(kBadList, aaa_attr_filter_on_type(&no_list, nullptr, 0));
  EXPECT_CODE(kBadList, aaa_attr_add_group_list(0, &sub_list, kGrouped, nullptr));
  EXPECT_EQ(sub_list, 0u);
}

TEST(Arguments, OfAddingAreCheckedInOrder) {
  const List list;
  struct Row {
    const char *why;
    Handle to;
    std::uint32_t type, size;
    const char *bytes;
    aaa_attr_cerrno of_add, of_replace;
  };
  const Row rows[] = {
      {"the type comes first", 0, AAA_ATTR_TYPE_COUNT, 0, nullptr, kNotFound, kNotFound},
      {"not cut to 16 bits", list, 0x10000 + type::kBinary, 1, "x", kNotFound, kNotFound},
      {"no value", 0, type::kBinary, 1, nullptr, kBadArg, kNotFound},
      {"no length", 0, type::kBinary, 0, "x", kBadArg, kBadList},
      {"the list before the format", 0, type::kUlong, 1, "x", kBadList, kBadList},
      {"the format last", list, type::kUlong, 1, "x", kBadArg, kBadArg},
      {"a byte above the largest block, and not read", list, type::kBinary, 65504, "x", kBadArg, kBadArg},
      {"a size that wraps in 32 bits", list, type::kBinary, 0xFFFFFFF8, "x", kBadArg, kBadArg},
      {"a size that wraps with the meta", list, type::kBinary, 0xFFFFFFF0, "x", kBadArg, kBadArg},
      {"a size that wraps with the NUL", list, type::kString, 0xFFFFFFFF, "x", kBadArg, kBadArg},
  };
  for (const auto &[why, to, type, size, bytes, of_add, of_replace] : rows) {
    SCOPED_TRACE(why);
    EXPECT_CODE(of_add, aaa_attr_add(to, type, bytes, size, nullptr));
    EXPECT_CODE(of_add, aaa_attr_add_v1(to, type, bytes, size, &kMeta, 5));
    EXPECT_CODE(of_replace, aaa_attr_add_or_replace(to, type, bytes, size, nullptr));
    EXPECT_CODE(of_replace, aaa_attr_add_or_replace_v1(to, type, bytes, size, nullptr));
    EXPECT_CODE(of_replace, aaa_attr_add_or_replace_v2(to, type, bytes, size, &kMeta, 5));
  }
  EXPECT_EQ(aaa_attr_list_attr_count(list), 0u);
}

TEST(Arguments, ValidityLooksAtEveryBlock) {
  struct Row {
    const char *why;
    std::size_t block;
    std::uint16_t magic;
    aaa_attr_cerrno of_valid, of_empty, of_get;
  };
  const Row rows[] = {
      {"sound", 0, 0xABCD, 0, 0, kNotFound},
      {"no list", 0, 0xCDAB, kBadList, kBadList, kBadList},
      {"freed", 0, 0xFFFF, kStale, kBadList, kStale},
      {"no list, second block", 1, 0, kBadList, kBadList, kNotFound},
      {"freed, last block", 2, 0xFFFF, kStale, kBadList, kNotFound},
  };
  aaa_attr_cerrno code = 1;
  for (const auto &[why, block, magic, of_valid, of_empty, of_get] : rows) {
    SCOPED_TRACE(why);
    const List list = list_of("!T=* !U=*");
    blocks_of(list)[block].put(0, magic);
    int empty = 77;
    EXPECT_EQ(is_aaa_attr_list_valid(list, &code), of_valid == 0);
    EXPECT_CODE(of_valid, code);
    EXPECT_CODE(of_empty, is_aaa_attr_list_empty(list, &empty));
    EXPECT_CODE(of_get, aaa_attr_get(list, type::kUlong, &value, &length));
    EXPECT_EQ(empty, of_empty == 0 ? 1 : 77) << "removed records do not count";
    EXPECT_EQ(aaa_attr_list_attr_count(list), block > 0 || of_valid == 0 ? 2u : 0u);
    if (block == 0 && of_valid != 0) aaa_attr_list_free(list);  // does nothing, and the list is whole once it is mended
    blocks_of(list)[block].put(0, 0xABCD);
    EXPECT_CODE(0, aaa_attr_add(list, type::kString, "x", 1, nullptr));
    EXPECT_CODE(0, is_aaa_attr_list_empty(list, &empty));
    EXPECT_EQ(empty, 0);
  }
  EXPECT_EQ(is_aaa_attr_list_valid(0, &code), 0);
  EXPECT_CODE(kBadList, code);
  EXPECT_EQ(aaa_attr_is_present(0, type::kString), 0);
  EXPECT_EQ(aaa_attr_list_attr_count(0), 0u);
  aaa_attr_list_free(0);
}

}  // namespace
