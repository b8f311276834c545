// Walking lists: what a cursor visits, what it tells about the record it stands on, and what it changes.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

std::string types_ahead(aaa_cursor *cursor) {
  std::string types;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) types += std::to_string(type) + ' ';
  return types;
}

TEST(CursorWalk, VisitsLiveRecordsThatTheFilterLetsThrough) {
  // An empty head, a block with a removed record only, a block between the others that was emptied.
  const List list = list_of("!T=* U=*");
  const Block emptied = blocks_of(list)[2];
  emptied.put(6, 0);
  emptied.put(10, 24);
  const aaa_attr_meta metas[] = {{3, 7, 1, 0, 0}, {3, 0, 0, 0, 0}, {0, 7, 0, 0, 0}, {3, 7, 2, 0, 0}, {7, 3, 0, 0, 0}};
  const std::uint32_t types[] = {type::kEnum, type::kIpv4, 17, type::kEnum, 39};
  EXPECT_EQ(aaa_attr_add(list, type::kUlong, "\3\7\0", 4, nullptr), 0u);  // no meta, but a value that looks like one
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(aaa_attr_add(list, types[i], "four", 4, &metas[i]), 0u);
    if (i == 2) aaa_attr_list_append_list(list, list_of("T=*"));
  }
  const struct {
    std::uint32_t service, protocol;
    const char *types;
  } rows[] = {
      {0, 0, "2 3 7 17 197 3 39 "}, {3, 7, "3 3 "}, {3, 0, "7 "}, {0, 7, "17 "}, {7, 3, "39 "}, {256 + 3, 7, ""},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::to_string(row.service) + "," + std::to_string(row.protocol));
    aaa_cursor *cursor = nullptr;
    EXPECT_EQ(aaa_cursor_alloc_filtered(list, &cursor, row.service, row.protocol), 0u);
    EXPECT_EQ(types_ahead(cursor), row.types);
    EXPECT_EQ(aaa_cursor_get_next(cursor), 0u) << "the end stays the end";
    EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
    EXPECT_EQ(types_ahead(cursor), row.types) << "a reset keeps the filter";
    aaa_cursor_free(cursor);
  }
}

TEST(CursorWalk, SeesWhatIsAddedBehindItsBlock) {
  List list = list_of("T=a");
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type::kString);
  list.number(type::kUlong, 1);
  EXPECT_EQ(types_ahead(cursor), "") << "the block was counted when it was entered";
  list.text(type::kBinary, std::string(480, 'x'));
  EXPECT_EQ(types_ahead(cursor), "30 ");
  EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
  EXPECT_EQ(types_ahead(cursor), "197 2 30 ");
  aaa_cursor_free(cursor);
}

TEST(CursorWalk, RecordOfTypeZeroEndsAWalkAndTheNextGoesOn) {
  const List list = list_of("T=a 0=null U=b !0=null V=c");
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(types_ahead(cursor), "197 ");
  EXPECT_EQ(types_ahead(cursor), "6 15 ");
  EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('U')), 0) << "it is behind the end";
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('V')), 1);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, 0), 1) << "the end is what type 0 asks for";
  aaa_cursor_free(cursor);
}

// Everything the readers say, with 99 where an out-parameter was left alone.
std::string readings(const aaa_cursor *cursor) {
  std::uint32_t length = 99, text_length = 99, number = 99, ulong_value = 99, offset = 99;
  std::uint64_t wide = 99, handle = 99;
  const void *value = aaa_cursor_get(cursor, &length);
  const char *text = aaa_cursor_get_string(cursor, &text_length);
  const char *name = aaa_cursor_get_name(cursor);
  const aaa_attr_meta *meta = aaa_cursor_get_meta(cursor);
  const aaa_attr_cerrno codes[] = {aaa_cursor_get_uint32_t(cursor, &number), aaa_cursor_get_uint64_t(cursor, &wide),
                                   aaa_cursor_get_grouped_attr_handle(cursor, &handle),
                                   aaa_attr_get_ulong_val(cursor, &ulong_value),
                                   aaa_cursor_get_offset_in_buffer(cursor, &offset)};
  char line[256];
  std::snprintf(line, sizeof line, "%s %u, %u/%u%s, text %s %u, u32 %x u64 %lx handle %lx ulong %x offset %u",
                name != nullptr ? name : "none", aaa_cursor_get_format(cursor), aaa_cursor_get_length(cursor), length,
                value != nullptr ? "" : " null", text != nullptr ? text : "null", text_length, number, wide, handle,
                ulong_value, offset);
  std::string all = line;
  std::snprintf(line, sizeof line, ", meta %d tag %u mandatory %u client %u grouped %d class %d%d,",
                meta != nullptr ? meta->client : -1, aaa_cursor_get_tag(cursor), aaa_cursor_mandatory(cursor),
                aaa_cursor_get_producer_client_type(cursor), aaa_cursor_grouped(cursor),
                aaa_cursor_attr_is_class(cursor, 0x8), aaa_cursor_attr_is_class(cursor, 0x2));
  all += line;
  for (const aaa_attr_cerrno code : codes) all += ' ' + std::string(code == 0 ? "0" : aaa_attr_cerrno_name(code) + 13);
  return all;
}

TEST(CursorReaders, AnswerForTheCurrentRecordOnly) {
  const std::string none =
      "none 0, 0/99 null, text null 99, u32 63 u64 63 handle 63 ulong 63 offset 99, "
      "meta -1 tag 0 mandatory 0 client 0 grouped 0 class 00, BAD_ARG BAD_ARG BAD_ARG BAD_ARG BAD_ARG";
  const std::string last =
      "force-local-chap 12, 1/1, text null 99, u32 63 u64 63 handle 63 ulong 63 offset 99, "
      "meta -1 tag 0 mandatory 0 client 0 grouped 0 class 00, BAD_FORMAT BAD_FORMAT BAD_FORMAT BAD_ARG BAD_ARG";
  const std::string positions[] = {
      none,  // before the first record
      "addr 7, 4/4, text null 99, u32 100007f u64 63 handle 63 ulong 100007f offset 99, "
      "meta 11 tag 9 mandatory 1 client 23 grouped 0 class 11, 0 BAD_FORMAT BAD_FORMAT 0 BAD_ARG",
      "username 1, 3/3, text abc 3, u32 636261 u64 63 handle 63 ulong 636261 offset 99, "
      "meta -1 tag 0 mandatory 0 client 127 grouped 0 class 01, 0 BAD_FORMAT BAD_FORMAT 0 BAD_ARG",
      "username 1, 7/7, text 1234567 7, u32 63 u64 37363534333231 handle 37363534333231 ulong 34333231 offset 99, "
      "meta -1 tag 0 mandatory 0 client 0 grouped 0 class 01, BAD_FORMAT 0 0 0 BAD_ARG",
      "Failed AVP 5, 8/8, text null 99, u32 63 u64 0 handle 0 ulong 0 offset 99, "
      "meta -1 tag 0 mandatory 0 client 0 grouped 1 class 00, BAD_FORMAT 0 0 0 BAD_ARG",
      last,
      last,  // the end: the cursor still stands on what it stepped over last
  };
  const List list;
  const std::uint8_t address[] = {127, 0, 0, 1};
  const std::uint64_t no_list = 0;
  aaa_attr_add_v1(list, type::kIpv4, address, 4, &kMeta, 23);
  aaa_attr_add_v1(list, type::kString, "abc", 3, nullptr, 127);
  aaa_attr_add(list, type::kString, "1234567", 7, nullptr);
  aaa_attr_add_existing_group_list(list, no_list, type::kGrouped, nullptr);
  aaa_attr_add(list, type::kBoolean, "\1", 1, nullptr);
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_current_attr(cursor), static_cast<void *>(Block(list).at(24)));
  for (const std::string &position : positions) {
    EXPECT_EQ(readings(cursor), position);
    aaa_cursor_get_next(cursor);
  }
  EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
  EXPECT_EQ(readings(cursor), none);
  aaa_cursor_free(cursor);
  EXPECT_EQ(readings(nullptr), none);

  const List empty;
  ASSERT_EQ(aaa_cursor_alloc(empty, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_next(cursor), 0u);
  EXPECT_EQ(readings(cursor), none) << "the end of an empty list";
  aaa_cursor_free(cursor);
}

TEST(CursorEdits, ChangeTheCurrentRecordOnly) {
  const List list = list_of("T+@5=a U=b V=c");
  List copy;
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  aaa_cursor_remove(cursor);
  EXPECT_EQ(aaa_cursor_set_producer_client_type(cursor, 7), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_cursor_list_add_attr(copy, cursor), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(outline(list), outline_of("T+@5=a U=b V=c"));

  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('T')), 1);
  EXPECT_EQ(aaa_cursor_list_add_attr(copy, cursor), 0u);
  EXPECT_EQ(aaa_cursor_list_add_attr(0, cursor), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_cursor_set_producer_client_type(cursor, 0), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_cursor_set_producer_client_type(cursor, 24), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_cursor_set_producer_client_type(cursor, 23), 0u);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('U'));
  aaa_cursor_remove(cursor);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('V')) << "the walk goes on from where it was";
  EXPECT_EQ(aaa_cursor_list_add_attr(copy, cursor), 0u);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('T')), 0) << "no way back";
  EXPECT_EQ(outline(list), outline_of("T+@23=a V=c"));
  EXPECT_EQ(outline(copy), outline_of("T+@5=a V=c"));
  EXPECT_EQ(flaws(list) + flaws(copy), "");
  aaa_cursor_free(cursor);
}

TEST(CursorAllocation, RefusedHandlesStillHandOutTheCursor) {
  for (const bool filtered : {false, true}) {
    aaa_cursor *cursor = nullptr;
    EXPECT_EQ(filtered ? aaa_cursor_alloc_filtered(0, &cursor, 3, 7) : aaa_cursor_alloc(0, &cursor),
              AAA_ATTR_ERR_BAD_LIST);
    EXPECT_NE(cursor, nullptr);
    EXPECT_EQ(aaa_cursor_get_next(cursor), 0u);
    EXPECT_EQ(aaa_cursor_reset(cursor), AAA_ATTR_ERR_BAD_LIST);
    aaa_cursor_free(cursor);
  }
}

TEST(CursorAllocation, GroupedAllocOpensSubListsOnly) {
  List list = list_of("G{T=x U=y} T=12345678");
  const List gone = list_of("T=x");
  aaa_attr_add_existing_group_list(list, 0, type::kGrouped, nullptr);
  aaa_attr_add_existing_group_list(list, gone, type::kOtherGrouped, nullptr);
  Block(gone).put(0, 0xFFFF);
  const struct {
    std::uint32_t next;
    aaa_attr_cerrno code;
    const char *types;
  } rows[] = {
      {0, AAA_ATTR_ERR_NOT_FOUND, ""},  // before the first
      {type::kGrouped, 0, "197 6 "},
      {type::kString, AAA_ATTR_ERR_BAD_ARG, ""},
      {type::kGrouped, AAA_ATTR_ERR_BAD_LIST, ""},
      {type::kOtherGrouped, AAA_ATTR_ERR_STALE_HANDLE, ""},
  };
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  for (const auto &row : rows) {
    EXPECT_EQ(row.next != 0 ? aaa_cursor_get_next(cursor) : 0, row.next);
    aaa_cursor *sub_cursor = cursor;
    EXPECT_EQ(aaa_cursor_grouped_alloc(cursor, &sub_cursor), row.code);
    EXPECT_EQ(sub_cursor != nullptr, row.code == 0);
    EXPECT_EQ(types_ahead(sub_cursor), row.types);
    aaa_cursor_free(sub_cursor);
  }
  aaa_cursor_remove(cursor);  // gone has its owner back
  aaa_cursor_free(cursor);
  Block(gone).put(0, 0xABCD);
}

}  // namespace
