// Walking and reading lists: what a cursor visits, what it tells about the record it stands on, and what it changes;
// what is read of the first attribute of a type.
#include <gtest/gtest.h>

#include <sstream>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

std::string types_ahead(aaa_cursor *cursor) {
  std::string types;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) types += std::to_string(type) + ' ';
  return types;
}

TEST(CursorWalk, VisitsLiveRecordsThatTheFilterLetsThrough) {
  List list = list_of("!T=*");  // an empty head, a block with a removed record only
  const aaa_attr_meta metas[] = {{3, 7, 1, 0, 0}, {3, 0, 0, 0, 0}, {0, 7, 0, 0, 0}, {3, 7, 2, 0, 0}, {7, 3, 0, 0, 0}};
  const std::uint32_t types[] = {type::kEnum, type::kIpv4, 17, type::kEnum, 39};
  list.text(type::kUlong, "\3\7xx");  // no meta, but a value that looks like one
  for (int i = 0; i < 5; ++i) list.text(types[i], "four", &metas[i]);
  list.text(type::kString, std::string(520, 'x'));
  const std::tuple<std::uint32_t, std::uint32_t, std::string> rows[] = {
      {0, 0, "2 3 7 17 3 39 197 "}, {3, 7, "3 3 "}, {3, 0, "7 "}, {0, 7, "17 "}, {7, 3, "39 "}, {256 + 3, 7, ""},
  };
  for (const auto &[service, protocol, expected] : rows) {
    SCOPED_TRACE(std::to_string(service) + "," + std::to_string(protocol));
    aaa_cursor *cursor = nullptr;
    EXPECT_EQ(aaa_cursor_alloc_filtered(list, &cursor, service, protocol), 0u);
    EXPECT_EQ(types_ahead(cursor), expected);
    EXPECT_EQ(aaa_cursor_get_next(cursor), 0u) << "the end stays the end";
    EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
    EXPECT_EQ(types_ahead(cursor), expected) << "a reset keeps the filter";
    aaa_cursor_free(cursor);
  }
}

TEST(CursorWalk, EndsAtTypeZeroAndGoesOnAndSeesWhatIsAddedBehindItsBlock) {
  List list = list_of("T=a 0=null U=b V=c");
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('U')), 0) << "it is past the end";
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('V')), 1);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, type_named('U')), 0) << "no way back";
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, 0), 1) << "the end is what type 0 asks for";

  EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type::kString);
  list.number(type::kUlong, 1).text(type::kBinary, std::string(480, 'x'));
  EXPECT_EQ(types_ahead(cursor), "") << "type 0";
  EXPECT_EQ(types_ahead(cursor), "6 15 30 ") << "the first block was counted when it was entered";
  aaa_cursor_free(cursor);
}

// What the readers say, with 99 where an out-parameter was left alone.
std::string readings(const aaa_cursor *cursor) {
  std::uint32_t length = 99, text_length = 99, number = 99, ulong_value = 99, offset = 99;
  std::uint64_t wide = 99, handle = 99;
  const char *name = aaa_cursor_get_name(cursor), *text = aaa_cursor_get_string(cursor, &text_length);
  const void *value = aaa_cursor_get(cursor, &length);
  const aaa_attr_meta *meta = aaa_cursor_get_meta(cursor);
  const std::string codes =
      in_short(aaa_cursor_get_uint32_t(cursor, &number), aaa_cursor_get_uint64_t(cursor, &wide),
               aaa_cursor_get_grouped_attr_handle(cursor, &handle), aaa_attr_get_ulong_val(cursor, &ulong_value),
               aaa_cursor_get_offset_in_buffer(cursor, &offset));
  std::ostringstream out;
  out << (name ? name : "none") << ' ' << aaa_cursor_get_format(cursor) << ", " << aaa_cursor_get_length(cursor) << '/'
      << length << (value ? ", " : " null, ") << (text ? text : "null") << ' ' << text_length << ", " << std::hex
      << number << ' ' << wide << ' ' << handle << ' ' << ulong_value << ' ' << std::dec << offset << codes << ", "
      << (meta ? meta->client : -1) << ' ' << aaa_cursor_get_tag(cursor) << ' ' << aaa_cursor_mandatory(cursor) << ' '
      << aaa_cursor_get_producer_client_type(cursor) << ' ' << aaa_cursor_grouped(cursor) << ' '
      << aaa_cursor_attr_is_class(cursor, 0x8) << aaa_cursor_attr_is_class(cursor, 0x2);
  return out.str();
}

TEST(CursorReaders, AnswerForTheCurrentRecordOnly) {
  const std::string none = "none 0, 0/99 null, null 99, 63 63 63 63 99 86 86 86 86 86, -1 0 0 0 0 00";
  const std::string last = "force-local-chap 12, 1/1, null 99, 63 63 63 63 99 90 90 90 86 86, -1 0 0 0 0 00";
  const std::string positions[] = {
      none,  // before the first record
      "addr 7, 4/4, null 99, 100007f 63 63 100007f 99 00 90 90 00 86, 11 9 1 23 0 11",
      "username 1, 3/3, abc 3, 636261 63 63 636261 99 00 90 90 00 86, -1 0 0 127 0 01",
      "username 1, 7/7, 1234567 7, 63 37363534333231 37363534333231 34333231 99 90 00 00 00 86, -1 0 0 0 0 01",
      "Failed AVP 5, 8/8, null 99, 63 0 0 0 99 90 00 00 00 86, -1 0 0 0 1 00",
      last,
      last,  // the end: the cursor still stands on what it stepped over last
  };
  List list;
  ASSERT_EQ(aaa_attr_add_v1(list, type::kIpv4, "\x7f\0\0\1", 4, &kMeta, 23), 0u);
  ASSERT_EQ(aaa_attr_add_v1(list, type::kString, "abc", 3, nullptr, 127), 0u);
  ASSERT_EQ(aaa_attr_add(list, type::kString, "1234567", 7, nullptr), 0u);
  ASSERT_EQ(aaa_attr_add_existing_group_list(list, 0, type::kGrouped, nullptr), 0u);
  list.text(type::kBoolean, "\1");
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_current_attr(cursor), static_cast<void *>(Block(list).at(24)));
  for (const std::string &position : positions) {
    EXPECT_EQ(readings(cursor), position);
    aaa_cursor_get_next(cursor);
  }
  EXPECT_EQ(in_short(aaa_cursor_get_uint32_t(cursor, nullptr), aaa_cursor_get_uint64_t(cursor, nullptr),
                     aaa_cursor_get_grouped_attr_handle(cursor, nullptr), aaa_attr_get_ulong_val(cursor, nullptr)),
            " 86 86 86 86");
  EXPECT_EQ(aaa_cursor_get(cursor, nullptr), nullptr);
  EXPECT_EQ(aaa_cursor_reset(cursor), 0u);
  EXPECT_EQ(readings(cursor), none);
  aaa_cursor_free(cursor);
  EXPECT_EQ(readings(nullptr), none);
}

TEST(CursorEdits, ChangeTheCurrentRecordOnly) {
  const List list = list_of("T+=a U=b V=c"), copy;
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  aaa_cursor_remove(cursor);
  const auto stamp = aaa_cursor_set_producer_client_type;
  EXPECT_EQ(in_short(stamp(cursor, 7), aaa_cursor_list_add_attr(copy, cursor)), " 86 86");
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('T'));
  EXPECT_EQ(in_short(stamp(cursor, 0), stamp(cursor, 24), stamp(cursor, 128 + 7), stamp(cursor, 23)), " 86 86 86 00");
  EXPECT_EQ(in_short(aaa_cursor_list_add_attr(0, cursor), aaa_cursor_list_add_attr(copy, cursor)), " 8a 00");
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('U'));
  aaa_cursor_remove(cursor);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('V')) << "the walk goes on from where it was";
  EXPECT_EQ(aaa_cursor_list_add_attr(copy, cursor), 0u);
  EXPECT_EQ(outline(list), "197[3,7,9,1,11]@23=61 15=63");
  EXPECT_EQ(outline(copy), outline(list));
  aaa_cursor_free(cursor);
}

TEST(CursorAllocation, OpensListsOnly) {
  List list = list_of("G{T=x U=y} T=12345678");
  ASSERT_EQ(aaa_attr_add_existing_group_list(list, 0, type::kGrouped, nullptr), 0u);
  const Block gone(list.group(type::kOtherGrouped));
  gone.put(0, 0xFFFF);
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  std::string opened;  // before the first record, then on each
  do {
    aaa_cursor *sub_cursor = cursor;
    opened += in_short(aaa_cursor_grouped_alloc(cursor, &sub_cursor));
    opened += sub_cursor != nullptr ? '{' + types_ahead(sub_cursor) + '}' : "";
    aaa_cursor_free(sub_cursor);
  } while (aaa_cursor_get_next(cursor) != 0);
  EXPECT_EQ(opened, " 8e 00{197 6 } 86 8a 8c");
  aaa_cursor_free(cursor);
  gone.put(0, 0xABCD);  // under a handle that names no list, it is freed all the same

  for (const bool filtered : {false, true}) {
    const auto code = filtered ? aaa_cursor_alloc_filtered(0, &cursor, 3, 7) : aaa_cursor_alloc(0, &cursor);
    ASSERT_NE(cursor, nullptr) << "handed out all the same";
    EXPECT_EQ(in_short(code, aaa_cursor_reset(cursor)), " 8a 8a");
    EXPECT_EQ(readings(cursor) + types_ahead(cursor), readings(nullptr));
    aaa_cursor_free(cursor);
  }
}

// What reading says of a type, with 99 where an out-parameter was left alone.
std::string found(aaa_attr_list_handle list, std::uint32_t type) {
  std::uint32_t length = 99, text_length = 99, number = 99;
  std::uint64_t wide = 99;
  const void *value = nullptr;
  const char *text = "99";
  const std::string codes =
      in_short(aaa_attr_get(list, type, &value, &length), aaa_attr_get_string(list, type, &text, &text_length),
               aaa_attr_get_uint32_t(list, type, &number), aaa_attr_get_uint64_t(list, type, &wide));
  std::ostringstream out;
  out << length << ", " << text << ' ' << text_length << std::hex << ", " << number << ", " << wide << ':' << codes;
  return out.str();
}

TEST(Find, NumbersAreReadByLengthAndTextsByFormat) {
  List list = list_of("!T=dead T+=abc T=de N=12345678");
  list.text(type::kSecret, "xx");
  Block(list).put(Block(list).used() - 8 - 2u, 700);  // a type that only a buffer can bring
  list.number(0, 1).number(type::kUlong, 5);
  const std::string none = "99, 99 99, 63, 63: 8e ", refused = "99, 99 99, 63, 63: 8a ";
  const std::tuple<aaa_attr_list_handle, std::uint32_t, std::string> rows[] = {
      {list, type::kString, "3, abc 3, 636261, 63: 00 00 00 86"},
      {list, type::kBinary, "8, 99 99, 63, 3837363534333231: 00 86 86 00"},
      {list, type_named('V'), none + "8e 8e 8e"},
      {list, 700, "2, 99 99, 63, 63: 00 86 86 86"},
      {list, 0, none + "86 8e 8e"},
      {list, type::kUlong, none + "86 8e 8e"},  // a record of type 0 ends the walk before it
      {list, 0x10000 + type::kString, none + "86 8e 8e"},
      {0, type::kString, refused + "8a 8a 8a"},
      {0, type::kUlong, refused + "86 8a 8a"},
  };
  for (const auto &[l, type, expected] : rows) EXPECT_EQ(found(l, type), expected) << "type " << type;
}

}  // namespace
