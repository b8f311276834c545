// Reading received buffers: by marker, in the foreign layout, in place with cursors and look-ups.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

using namespace std::literals;

TEST(Decode, ByMarker) {
  const std::pair<Bytes, const char *> rows[] = {
      {{1}, ""},
      {golden_buffer(golden::kNested, "0=00"), golden::kNestedOutline},  // 0 means flat, too
      {golden_buffer(golden::kTlvNested), golden::kTlvNestedOutline},
  };
  for (const auto &[buffer, holds] : rows) {
    List list;
    EXPECT_EQ(decode(buffer, &list), 0u);
    EXPECT_EQ(outline(list), holds);
  }
  aaa_attr_list_handle handle = 77;
  EXPECT_EQ(aaa_attr_buffer_to_list("", 0, &handle), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(handle, 77u) << "left as it was";
}

// Values short enough for the room that a Grouped record left at the end of a block come after it all the same.
TEST(Decode, TlvInOrder) {
  List list, decoded;
  for (unsigned i = 0; i < 300; ++i) {
    list.text(type::kBinary, std::string(1 + i % 7, 'x'));
    list.group(type::kGrouped);
  }
  EXPECT_EQ(decode(tlv_buffer(list), &decoded), 0u);
  EXPECT_EQ(outline(decoded), outline(list));
}

// A foreign list becomes an ordinary one: it is written in the layout of this library, and grows.
TEST(Decode, ForeignLayout) {
  List list;
  ASSERT_EQ(decode(golden_buffer(golden::kForeign), &list), 0u);
  EXPECT_EQ(flat_buffer(list), golden_buffer(golden::kOneUlong));
  EXPECT_EQ(outline(list.number(type::kEnum, 7)), "2=05000000 3=07000000");

  // Blocks of both layouts, nested in each other; their handles are worth nothing here.
  const Bytes grouped = record(444, "handle 1"), removed = record(2, "old!", 2);
  const Bytes mixed = flat({block(kHead | kGroups | kForeignHeader, 3, {grouped, removed, grouped}),
                            block(kHead | kLast, 1, {record(30, "1")}), block(kHead | kForeignHeader, 2, {}),
                            block(kLast | kForeignHeader, 1, {record(30, "2")}), block(0, 1, {record(26, "c")}),
                            block(kLast | kForeignHeader, 1, {record(197, "x\0\0\1\0\0\0\0z\0"sv, 1 | 9 << 2)})});
  ASSERT_EQ(decode(mixed, &list), 0u);
  EXPECT_EQ(outline(list), "444={30=31} 444={30=32} 26=63 197[120,0,256,0,0]@9=7a");

  const auto alien = [](const Bytes &buffer) { return aaa_attr_buffer_is_alien(buffer.data(), size_of(buffer)); };
  const Bytes foreign = golden_buffer(golden::kForeign);
  EXPECT_EQ(alien(patched(foreign, "0=02")) + alien(patched(foreign, "4=33")), 0) << "not flat; layout 3";
  EXPECT_EQ(alien(head_of(foreign, 25)), 1);
  EXPECT_EQ(alien(head_of(foreign, 24)), 0);
}

TEST(Scrub, TakesOutEveryAddress) {
  aaa_attr_cerrno code = 0;
  std::uint8_t no_bytes = AAA_MARSHAL_BUFFER;
  EXPECT_EQ(is_aaa_attr_buffer_valid(&no_bytes, 0, &code), 0);
  EXPECT_EQ(code, AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_buffer_scrub(&no_bytes, 0), AAA_ATTR_ERR_BAD_ARG);
  // A removed Grouped record's value is an address, too, whatever its length.
  Bytes buffer = golden_buffer(golden::kNested, "13=01020304 61=bc01");
  const Bytes expected = golden_buffer(
      golden::kNested, "61=bc01 13=00000000 17=0100000000000000 53=0000000000000000 69=00 141=0000000000000000");
  EXPECT_EQ(aaa_attr_buffer_scrub(buffer.data(), size_of(buffer)), 0u);
  EXPECT_EQ(buffer, expected);
}

TEST(LookUp, FindsTheFirstInBufferOrder) {
  using Answer = std::tuple<aaa_attr_cerrno, std::uint32_t, std::uint32_t, Bytes>;
  const auto answer = [](const char *patches, std::uint32_t type, std::uint32_t capacity) {
    Bytes value(capacity + 1, 0xEE);  // one more than it may use, so that there is an address without capacity
    std::uint32_t size = capacity, format = 99;
    const Bytes buffer = golden_buffer(golden::kNested, patches);
    const aaa_attr_cerrno code = aaa_attr_get_from_buffer(buffer.data(), type, &format, value.data(), &size);
    EXPECT_EQ(value.back(), 0xEE);
    value.pop_back();
    return Answer(code, size, format, value);
  };
  EXPECT_EQ(answer("", 197, 5), Answer(0, 4, AAA_ATTR_FMT_STRING, hex("626f6200ee"))) << "a text comes with its NUL";
  EXPECT_EQ(answer("", 197, 3), Answer(AAA_ATTR_ERR_NO_MEMORY, 0, 99, hex("eeeeee"))) << "no room for the NUL";
  // The removed record gets another type: 2 is first met in the nested list, then in the block after that.
  EXPECT_EQ(answer("61=1e00", 2, 4), Answer(0, 4, AAA_ATTR_FMT_ULONG, in_host_order<std::uint32_t>(5)));
  EXPECT_EQ(answer("61=1e00 97=0300", 2, 4), Answer(0, 4, AAA_ATTR_FMT_ULONG, in_host_order<std::uint32_t>(7)));
  EXPECT_EQ(answer("", 197, 0), Answer(AAA_ATTR_ERR_BAD_ARG, 0, 99, Bytes()));
  EXPECT_EQ(answer("0=00", 197, 1), Answer(AAA_ATTR_ERR_BAD_ARG, 1, 99, hex("ee"))) << "for the decoder only";
  // A record that passes its block ends the search.
  EXPECT_EQ(answer("4=21 49=ff", 2, 4), Answer(AAA_ATTR_ERR_NO_MEMORY, 4, 99, hex("eeeeeeee")));
}

// The records that a buffer cursor visits, as "type:offset"; it gives no way to the sender's handles.
std::string visited(const Bytes &buffer) {
  aaa_cursor *cursor = nullptr, *sub_cursor = nullptr;
  EXPECT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
  std::uint32_t offset = 77;
  EXPECT_EQ(aaa_cursor_get_offset_in_buffer(cursor, &offset), AAA_ATTR_ERR_BAD_ARG) << "before the first record";
  EXPECT_EQ(offset, 77u);
  std::string text;
  const List copies;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) {
    EXPECT_EQ(aaa_cursor_get_offset_in_buffer(cursor, &offset), 0u);
    text += std::to_string(type) + ':' + std::to_string(offset) + ' ';
    EXPECT_EQ(aaa_cursor_grouped_alloc(cursor, &sub_cursor), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(aaa_cursor_list_add_attr(copies, cursor), type == 444 || type == 445 ? AAA_ATTR_ERR_BAD_ARG : 0);
  }
  EXPECT_EQ(aaa_cursor_get_next(cursor), 0u) << "the end is the end";
  EXPECT_EQ(cursor->left, 0u);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, 2), 0);
  EXPECT_EQ(aaa_cursor_reset(cursor), AAA_ATTR_ERR_BAD_LIST);
  aaa_cursor_free(cursor);
  return text;
}

TEST(BufferCursor, VisitsTheOuterListOnly) {
  const Bytes buffer = golden_buffer(golden::kNested);
  EXPECT_EQ(visited(buffer), "197:33 444:53 445:141 2:157 ");
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "17=0000000000000000")), "197:33 444:53 ") << "no next block";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "49=0900")), "197:33 444:53 ")
      << "the third record passes the block";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "7=ffff")), "197:33 444:53 ")
      << "more records than the block has room for";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "83=1700")), "197:33 444:53 ")
      << "no way past a nested block without a header";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "76=22")), "197:33 444:53 ") << "no nested list where one should be";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "76=27 101=05")), "197:33 444:53 ")
      << "a nested block's lists cannot be counted";
  EXPECT_EQ(visited(golden_buffer(golden::kNested, "101=05")), visited(buffer))
      << "what nests no lists is passed over unseen";

  // Nested lists of several blocks with nested lists between them, several to a block.
  const Bytes grouped = record(444, "handle 1"), inner = block(kHead | kLast, 1, {record(2, "abcd")});
  const Bytes middle =
      join({block(kHead | kGroups, 2, {grouped, grouped}), inner, inner, block(kLast | kGroups, 1, {grouped}), inner});
  EXPECT_EQ(visited(flat({block(kHead | kGroups, 3, {grouped, record(444, "handle 1", 2), grouped}), middle, inner,
                          block(0, 1, {}), block(kLast | kGroups, 1, {grouped, record(26, "c")}), middle})),
            "444:33 444:65 444:369 26:385 ");
}

// A buffer is no list: whatever address its first bytes make, a reset does not follow it.
TEST(BufferCursor, IsNotReset) {
  Bytes list_magic = golden_buffer(golden::kOneUlong);
  list_magic.erase(list_magic.begin());
  list_magic.resize(64);
  for (const Bytes &buffer : {golden_buffer(golden::kNested), list_magic}) {
    aaa_cursor *cursor = nullptr;
    ASSERT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
    EXPECT_EQ(aaa_cursor_reset(cursor), AAA_ATTR_ERR_BAD_LIST);
    EXPECT_EQ(cursor->block, reinterpret_cast<const aaa_attr_block *>(buffer.data() + 1)) << "where it was";
    aaa_cursor_free(cursor);
  }
}

// A removed record owns no nested list: it would become part of the outer one. So a Grouped record stays.
TEST(BufferCursor, RemovesWhatNestsNoList) {
  Bytes buffer = golden_buffer(golden::kNested);
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
  while (aaa_cursor_get_next(cursor) != 0) aaa_cursor_remove(cursor);
  aaa_cursor_free(cursor);
  EXPECT_EQ(buffer, golden_buffer(golden::kNested, "27=03 151=02")) << "type 197 and 2";
  EXPECT_EQ(visited(buffer), "444:53 445:141 ");
  List list;
  EXPECT_EQ(decode(buffer, &list), 0u);
  EXPECT_EQ(outline(list), "444={2=05000000} 445@5={}");
}

// The block after one that ends in its own header would be that block again.
TEST(BufferCursor, EndsAtABlockThatEndsInItsHeader) {
  for (const char *used : {"11=0000", "11=0000 7=0000", "11=1700 7=0000"})
    for (const char *flags : {"4=21", "4=25"}) {
      const Bytes buffer = golden_buffer(golden::kNested, used + " "s + flags);
      EXPECT_EQ(visited(buffer), "") << used << ' ' << flags;
      testing::internal::CaptureStdout();
      aaa_attr_list_buffer_print(buffer.data());
      EXPECT_EQ(testing::internal::GetCapturedStdout().find("\n1:"), std::string::npos) << used << ' ' << flags;
    }
}

}  // namespace
