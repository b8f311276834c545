// Every null pointer that a list or cursor call can be given: refused before the handle is looked at.
#include <gtest/gtest.h>

#include <functional>

#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

constexpr aaa_attr_cerrno kBadArg = AAA_ATTR_ERR_BAD_ARG;
constexpr aaa_attr_cerrno kNotFound = AAA_ATTR_ERR_NOT_FOUND;
constexpr aaa_attr_cerrno kBadList = AAA_ATTR_ERR_BAD_LIST;

const void *value;
std::uint32_t length;

TEST(NullArguments, ListCallsRefuseThem) {
  const struct {
    const char *call;
    aaa_attr_cerrno result;
    std::function<aaa_attr_cerrno(Handle)> on;
  } rows[] = {
      {"list_alloc", kBadArg, [](Handle) { return aaa_attr_list_alloc(nullptr); }},
      {"list_valid", 0, [](Handle l) -> aaa_attr_cerrno { return is_aaa_attr_list_valid(l, nullptr) != 0; }},
      {"list_empty", kBadList, [](Handle l) { return is_aaa_attr_list_empty(l, nullptr); }},
      {"add", kBadArg, [](Handle l) { return aaa_attr_add(l, type::kBinary, nullptr, 1, nullptr); }},
      {"add_v1", kBadArg, [](Handle l) { return aaa_attr_add_v1(l, type::kBinary, nullptr, 1, nullptr, 1); }},
      {"replace", kNotFound, [](Handle l) { return aaa_attr_add_or_replace(l, type::kBinary, nullptr, 1, nullptr); }},
      {"replace_v1", kNotFound,
       [](Handle l) { return aaa_attr_add_or_replace_v1(l, type::kBinary, nullptr, 1, nullptr); }},
      {"replace_v2", kNotFound,
       [](Handle l) { return aaa_attr_add_or_replace_v2(l, type::kBinary, nullptr, 1, nullptr, 1); }},
      {"add_group_list", kBadArg,
       [](Handle l) { return aaa_attr_add_group_list(l, nullptr, type::kGrouped, nullptr); }},
      {"find_number", kBadArg, [](Handle l) { return aaa_attr_find_attr_type_number(l, type::kString, nullptr); }},
      {"get, value", kBadArg, [](Handle l) { return aaa_attr_get(l, type::kString, nullptr, &length); }},
      {"get, length", kBadArg, [](Handle l) { return aaa_attr_get(l, type::kString, &value, nullptr); }},
      {"get_nth, value", kNotFound, [](Handle l) { return aaa_attr_get_nth(l, type::kString, nullptr, &length, 0); }},
      {"get_nth, length", kNotFound, [](Handle l) { return aaa_attr_get_nth(l, type::kString, &value, nullptr, 0); }},
      {"get_string", kBadArg, [](Handle l) { return aaa_attr_get_string(l, type::kString, nullptr, nullptr); }},
      {"get_uint32", kBadArg, [](Handle l) { return aaa_attr_get_uint32_t(l, type::kUlong, nullptr); }},
      {"get_uint64", kBadArg, [](Handle l) { return aaa_attr_get_uint64_t(l, type::kUlonglong, nullptr); }},
      {"remove_on_match", kBadArg, [](Handle l) { return aaa_attr_remove_on_match(l, type::kString, nullptr, 1); }},
      {"copy", kBadArg, [](Handle l) { return aaa_attr_list_copy(l, nullptr); }},
      {"replace_and_add_v1, first", kBadArg, [](Handle l) { return aaa_attr_list_replace_and_add_v1(nullptr, &l); }},
      {"replace_and_add_v1, second", kBadArg, [](Handle l) { return aaa_attr_list_replace_and_add_v1(&l, nullptr); }},
      {"filter, list", kBadArg, [](Handle) { return aaa_attr_filter_on_type(nullptr, &length, 1); }},
      {"filter, types", kBadArg, [](Handle l) { return aaa_attr_filter_on_type(&l, nullptr, 1); }},
      {"cursor_alloc", kBadArg, [](Handle l) { return aaa_cursor_alloc(l, nullptr); }},
      {"cursor_alloc_filtered", kBadArg, [](Handle l) { return aaa_cursor_alloc_filtered(l, nullptr, 1, 1); }},
      {"cursor_alloc_from_buffer", kBadArg, [](Handle) { return aaa_cursor_alloc_from_buffer(&value, nullptr); }},
      {"cursor_grouped_alloc", kBadArg, [](Handle) { return aaa_cursor_grouped_alloc(nullptr, nullptr); }},
      {"cursor_reset", kBadArg, [](Handle) { return aaa_cursor_reset(nullptr); }},
      {"cursor_list_add_attr", kBadArg, [](Handle l) { return aaa_cursor_list_add_attr(l, nullptr); }},
      {"cursor_free", 0, [](Handle) { return aaa_cursor_free(nullptr); }},
      {"cursor_move_by_type", 0, [](Handle) -> aaa_attr_cerrno { return aaa_cursor_move_by_type(nullptr, 0) != 0; }},
      {"cursor_get_next", 0, [](Handle) { return aaa_cursor_get_next(nullptr); }},
  };
  const List list = list_of("T=x");
  for (const auto &row : rows) {
    SCOPED_TRACE(row.call);
    EXPECT_EQ(row.on(list), row.result) << "a good list";
    EXPECT_EQ(row.on(0), row.result) << "handle 0";
  }
  EXPECT_EQ(outline(list), outline_of("T=x"));
  EXPECT_EQ(aaa_attr_remove_on_match(list, type::kString, nullptr, 0), 0u) << "no bytes, no pointer";

  aaa_attr_discrim_pack(nullptr, 1, 1);
  aaa_attr_discrim_init(nullptr);
  aaa_cursor_remove(nullptr);
}

TEST(NullArguments, CursorReadersRefuseThemOnARecord) {
  const List list = list_of("T=1234567");
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  ASSERT_EQ(aaa_cursor_get_next(cursor), type::kString);
  EXPECT_EQ(aaa_cursor_get(cursor, nullptr), nullptr);
  EXPECT_EQ(aaa_cursor_get_string(cursor, nullptr), nullptr);
  EXPECT_EQ(aaa_cursor_get_uint32_t(cursor, nullptr), kBadArg);
  EXPECT_EQ(aaa_cursor_get_uint64_t(cursor, nullptr), kBadArg);
  EXPECT_EQ(aaa_cursor_get_grouped_attr_handle(cursor, nullptr), kBadArg);
  EXPECT_EQ(aaa_cursor_get_offset_in_buffer(cursor, nullptr), kBadArg);
  EXPECT_EQ(aaa_attr_get_ulong_val(cursor, nullptr), kBadArg);
  aaa_cursor_free(cursor);
}

}  // namespace
