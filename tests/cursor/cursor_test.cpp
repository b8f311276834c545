// Walking and reading lists: what a cursor visits, what it tells about the record it stands on, and what it changes;
// what is read of the first attribute of a type.
#include <gtest/gtest.h>

#include <sstream>

#include "support/blocks.h"
#include "support/codes.h"
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

// What a reader of a number gives, in hexadecimal, or the name of its code; such a call leaves its argument alone.
template <class T, class Call>
std::string number_or_code(Call call) {
  constexpr T kUntouched = 99;
  T number = kUntouched;
  const aaa_attr_cerrno code = call(&number);
  if (code != 0) return short_name(code) + (number != kUntouched ? " but writes" : "");
  std::ostringstream out;
  out << std::hex << number;
  return out.str();
}

// What the first bytes of a value are as a number, as number_or_code() gives it.
template <class T>
std::string number_of(std::string_view bytes) {
  std::ostringstream out;
  out << std::hex << number_in<T>(bytes);
  return out.str();
}

// What all readers say of the current attribute.
std::string readings(const aaa_cursor *cursor) {
  std::uint32_t length = 99, text_length = 99;
  const char *name = aaa_cursor_get_name(cursor), *text = aaa_cursor_get_string(cursor, &text_length);
  const void *value = aaa_cursor_get(cursor, &length);
  const aaa_attr_meta *meta = aaa_cursor_get_meta(cursor);
  const auto of = [cursor](auto reader) { return [cursor, reader](auto *out) { return reader(cursor, out); }; };
  std::ostringstream out;
  out << (name ? name : "none") << " format " << aaa_cursor_get_format(cursor) << " length "
      << aaa_cursor_get_length(cursor) << '/' << length << (value ? "" : " null") << ", text " << (text ? text : "null")
      << '/' << text_length << ", u32 " << number_or_code<std::uint32_t>(of(aaa_cursor_get_uint32_t)) << ", u64 "
      << number_or_code<std::uint64_t>(of(aaa_cursor_get_uint64_t)) << ", group "
      << number_or_code<std::uint64_t>(of(aaa_cursor_get_grouped_attr_handle)) << ", ulong "
      << number_or_code<std::uint32_t>(of(aaa_attr_get_ulong_val)) << ", offset "
      << number_or_code<std::uint32_t>(of(aaa_cursor_get_offset_in_buffer)) << ", meta client "
      << (meta ? meta->client : -1) << " tag " << aaa_cursor_get_tag(cursor) << " mandatory "
      << aaa_cursor_mandatory(cursor) << ", producer " << aaa_cursor_get_producer_client_type(cursor) << ", grouped "
      << aaa_cursor_grouped(cursor) << ", class " << aaa_cursor_attr_is_class(cursor, 0x8)
      << aaa_cursor_attr_is_class(cursor, 0x2);
  return out.str();
}

TEST(CursorReaders, AnswerForTheCurrentRecordOnly) {
  const std::string no_meta = "meta client -1 tag 0 mandatory 0";
  const std::string none =
      "none format 0 length 0/99 null, text null/99, u32 BAD_ARG, u64 BAD_ARG, group BAD_ARG, ulong BAD_ARG, offset "
      "BAD_ARG, " +
      no_meta + ", producer 0, grouped 0, class 00";
  const std::string last =
      "force-local-chap format 12 length 1/1, text null/99, u32 BAD_FORMAT, u64 BAD_FORMAT, group BAD_FORMAT, ulong "
      "BAD_ARG, offset BAD_ARG, " +
      no_meta + ", producer 0, grouped 0, class 00";
  const std::string loopback = number_of<std::uint32_t>({"\x7f\0\0\1", 4}), abc = number_of<std::uint32_t>("abc"),
                    digits = number_of<std::uint64_t>("1234567");
  const std::string positions[] = {
      none,  // before the first record
      "addr format 7 length 4/4, text null/99, u32 " + loopback + ", u64 BAD_FORMAT, group BAD_FORMAT, ulong " +
          loopback + ", offset BAD_ARG, meta client 11 tag 9 mandatory 1, producer 23, grouped 0, class 11",
      "username format 1 length 3/3, text abc/3, u32 " + abc + ", u64 BAD_FORMAT, group BAD_FORMAT, ulong " + abc +
          ", offset BAD_ARG, " + no_meta + ", producer 127, grouped 0, class 01",
      "username format 1 length 7/7, text 1234567/7, u32 BAD_FORMAT, u64 " + digits + ", group " + digits + ", ulong " +
          number_of<std::uint32_t>("1234") + ", offset BAD_ARG, " + no_meta + ", producer 0, grouped 0, class 01",
      "Failed AVP format 5 length 8/8, text null/99, u32 BAD_FORMAT, u64 0, group 0, ulong 0, offset BAD_ARG, " +
          no_meta + ", producer 0, grouped 1, class 00",
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
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, aaa_cursor_get_uint32_t(cursor, nullptr));
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, aaa_cursor_get_uint64_t(cursor, nullptr));
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, aaa_cursor_get_grouped_attr_handle(cursor, nullptr));
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, aaa_attr_get_ulong_val(cursor, nullptr));
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
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, stamp(cursor, 7));
  EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, aaa_cursor_list_add_attr(copy, cursor));
  EXPECT_EQ(aaa_cursor_get_next(cursor), type_named('T'));
  for (const std::uint32_t invalid : {0u, 24u, 128u + 7u})
    EXPECT_CODE(AAA_ATTR_ERR_BAD_ARG, stamp(cursor, invalid)) << invalid;
  EXPECT_CODE(0, stamp(cursor, 23));
  EXPECT_CODE(AAA_ATTR_ERR_BAD_LIST, aaa_cursor_list_add_attr(0, cursor));
  EXPECT_CODE(0, aaa_cursor_list_add_attr(copy, cursor));
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
    opened += short_name(aaa_cursor_grouped_alloc(cursor, &sub_cursor)) + ' ';
    opened += sub_cursor != nullptr ? '{' + types_ahead(sub_cursor) + '}' : "";
    aaa_cursor_free(sub_cursor);
  } while (aaa_cursor_get_next(cursor) != 0);
  EXPECT_EQ(opened, "NOT_FOUND 0 {197 6 }BAD_ARG BAD_LIST STALE_HANDLE ");
  aaa_cursor_free(cursor);
  gone.put(0, 0xABCD);  // under a handle that names no list, it is freed all the same

  for (const bool filtered : {false, true}) {
    const auto code = filtered ? aaa_cursor_alloc_filtered(0, &cursor, 3, 7) : aaa_cursor_alloc(0, &cursor);
    ASSERT_NE(cursor, nullptr) << "handed out all the same";
    EXPECT_CODE(AAA_ATTR_ERR_BAD_LIST, code);
    EXPECT_CODE(AAA_ATTR_ERR_BAD_LIST, aaa_cursor_reset(cursor));
    EXPECT_EQ(readings(cursor) + types_ahead(cursor), readings(nullptr));
    aaa_cursor_free(cursor);
  }
}

// What reading says of a type.
std::string found(aaa_attr_list_handle list, std::uint32_t type) {
  std::uint32_t length = 99, text_length = 99;
  const void *value = nullptr;
  const char *text = "99";
  const aaa_attr_cerrno of_value = aaa_attr_get(list, type, &value, &length);
  const aaa_attr_cerrno of_text = aaa_attr_get_string(list, type, &text, &text_length);
  const auto of = [list, type](auto reader) { return [=](auto *out) { return reader(list, type, out); }; };
  return "length " + (of_value == 0 ? std::to_string(length) : short_name(of_value)) + ", text " +
         (of_text == 0 ? text + ('/' + std::to_string(text_length)) : short_name(of_text)) + ", u32 " +
         number_or_code<std::uint32_t>(of(aaa_attr_get_uint32_t)) + ", u64 " +
         number_or_code<std::uint64_t>(of(aaa_attr_get_uint64_t));
}

TEST(Find, NumbersAreReadByLengthAndTextsByFormat) {
  List list = list_of("!T=dead T+=abc T=de N=12345678");
  list.text(type::kSecret, "xx");
  Block(list).put(Block(list).used() - 8 - 2u, 700);  // a type that only a buffer can bring
  list.number(0, 1).number(type::kUlong, 5);
  const std::string no_text = "length NOT_FOUND, text BAD_ARG, u32 NOT_FOUND, u64 NOT_FOUND";
  const std::tuple<aaa_attr_list_handle, std::uint32_t, std::string> rows[] = {
      {list, type::kString, "length 3, text abc/3, u32 " + number_of<std::uint32_t>("abc") + ", u64 BAD_ARG"},
      {list, type::kBinary, "length 8, text BAD_ARG, u32 BAD_ARG, u64 " + number_of<std::uint64_t>("12345678")},
      {list, type_named('V'), "length NOT_FOUND, text NOT_FOUND, u32 NOT_FOUND, u64 NOT_FOUND"},
      {list, 700, "length 2, text BAD_ARG, u32 BAD_ARG, u64 BAD_ARG"},
      {list, 0, no_text},
      {list, type::kUlong, no_text},  // a record of type 0 ends the walk before it
      {list, 0x10000 + type::kString, no_text},
      {0, type::kString, "length BAD_LIST, text BAD_LIST, u32 BAD_LIST, u64 BAD_LIST"},
      {0, type::kUlong, "length BAD_LIST, text BAD_ARG, u32 BAD_LIST, u64 BAD_LIST"},
  };
  for (const auto &[l, type, expected] : rows) EXPECT_EQ(found(l, type), expected) << "type " << type;
}

}  // namespace
