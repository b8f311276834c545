// Reading received buffers: by marker, in the foreign layout, in place with cursors and look-ups.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

using namespace std::literals;

std::uint32_t size_of(const Bytes &buffer) { return static_cast<std::uint32_t>(buffer.size()); }

TEST(Decode, MarkersAndTheHandleAfterFailures) {
  constexpr aaa_attr_list_handle kUntouched = 77, kMade = 1;
  const struct {
    const char *what;
    const char *bytes;
    aaa_attr_cerrno code;
    aaa_attr_list_handle handle;
    const char *holds;
  } rows[] = {
      {"no bytes", "", AAA_ATTR_ERR_BAD_ARG, kUntouched, ""},
      {"the flat marker alone", "01", 0, kMade, ""},
      {"the TLV marker alone", "02", AAA_ATTR_ERR_BAD_LENGTH, 0, ""},
      {"a flat list", golden::kOneUlong, 0, kMade, "2=05000000"},
      {"a flat list in the foreign layout", golden::kForeign, 0, kMade, "2=05000000"},
      {"a nested TLV list", golden::kTlvNested, 0, kMade, golden::kTlvNestedOutline},
      {"marker 3", "03", AAA_ATTR_ERR_BAD_ARG, 0, ""},
      {"marker -128", "80", AAA_ATTR_ERR_BAD_ARG, 0, ""},
      {"marker -1", "ff", AAA_ATTR_ERR_BAD_ARG, 0, ""},
      {"a header cut short", "01 cdab0123 0100 0000 e801 18", AAA_ATTR_ERR_BAD_BUFFER, 0, ""},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.what);
    const Bytes buffer = hex(row.bytes);
    aaa_attr_list_handle handle = kUntouched;
    EXPECT_EQ(aaa_attr_buffer_to_list(buffer.data(), size_of(buffer), &handle), row.code);
    if (row.handle != kMade) {
      EXPECT_EQ(handle, row.handle);
      continue;
    }
    const List list(handle);
    EXPECT_EQ(outline(list), row.holds);
  }
  aaa_attr_list_handle handle = kUntouched;
  EXPECT_EQ(aaa_attr_buffer_to_list(nullptr, 1, &handle), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(handle, kUntouched);
  List list;
  EXPECT_EQ(decode(patched(hex(golden::kNested), "0=00"), &list), 0u) << "marker 0 means flat, too";
  EXPECT_EQ(outline(list), golden::kNestedOutline);
}

// A foreign list becomes an ordinary one: it is written in the layout of this library, and grows.
TEST(Decode, ForeignLayout) {
  List list;
  ASSERT_EQ(decode(hex(golden::kForeign), &list), 0u);
  EXPECT_EQ(flat_buffer(list), hex(golden::kOneUlong));
  EXPECT_EQ(outline(list.number(type::kEnum, 7)), "2=05000000 3=07000000");

  // Blocks of both layouts, nested in each other; their handles are worth nothing here.
  const Bytes mixed = flat({
      block(kHead | kGroups | kForeignHeader, 3,
            {record(444, "handle 1"), record(2, "old!", 2), record(445, "handle 2")}),
      block(kHead | kLast, 1, {record(30, "first")}),
      block(kHead | kForeignHeader, 2, {}),
      block(kLast | kForeignHeader, 1, {record(30, "second")}),
      block(0, 1, {record(26, "c")}),
      block(kLast | kForeignHeader, 1, {record(197, "x\0\0\1\0\0\0\0z\0"sv, 1 | 9 << 2)}),
  });
  ASSERT_EQ(decode(mixed, &list), 0u);
  EXPECT_EQ(outline(list), "444={30=6669727374} 445={30=7365636f6e64} 26=63 197[120,0,256,0,0]@9=7a");

  const auto alien = [](const Bytes &buffer) { return aaa_attr_buffer_is_alien(buffer.data(), size_of(buffer)); };
  Bytes foreign = hex(golden::kForeign);
  EXPECT_EQ(alien(foreign), 1);
  EXPECT_EQ(alien(patched(foreign, "0=02")), 0) << "not flat";
  EXPECT_EQ(alien(hex(golden::kOneUlong)), 0);
  EXPECT_EQ(alien(patched(hex(golden::kOneUlong), "4=33")), 0) << "layout 3";
  foreign.resize(25);
  EXPECT_EQ(alien(foreign), 1);
  EXPECT_EQ(alien(Bytes(foreign.begin(), foreign.end() - 1)), 0);
  aaa_attr_cerrno code = 0;
  EXPECT_EQ(is_aaa_attr_buffer_valid(hex(golden::kForeign).data(), 29, &code), 0);
  EXPECT_EQ(code, AAA_ATTR_ERR_BAD_BUFFER);
}

TEST(CheckAndScrub, Arguments) {
  for (const char *bytes : {"00", "02", "03", ""}) {
    const Bytes buffer = hex(bytes);
    Bytes copy = buffer;
    aaa_attr_cerrno code = 0;
    EXPECT_EQ(is_aaa_attr_buffer_valid(buffer.data(), size_of(buffer), &code), 0) << bytes;
    EXPECT_EQ(code, AAA_ATTR_ERR_BAD_ARG) << bytes;
    EXPECT_EQ(aaa_attr_buffer_scrub(copy.data(), size_of(copy)), AAA_ATTR_ERR_BAD_ARG) << bytes;
  }
  // A removed Grouped record's value is an address, too, whatever its length.
  Bytes buffer = patched(hex(golden::kNested), "13=01020304 61=bc01");
  EXPECT_EQ(aaa_attr_buffer_scrub(buffer.data(), size_of(buffer)), 0u);
  EXPECT_EQ(buffer, patched(hex(golden::kNested),
                            "17=0100000000000000 53=0000000000000000 61=bc01 69=00 141=0000000000000000"));
}

TEST(LookUp, FindsTheFirstInBufferOrder) {
  const std::string nested = "61=1e00";  // the removed record gets another type: 2 is first met in the nested list
  const struct {
    const char *what;
    std::string patches;
    std::uint32_t type, capacity;
    aaa_attr_cerrno code;
    std::uint32_t size, format;
    const char *value;
  } rows[] = {
      {"a text comes with its NUL", "", 197, 9, 0, 4, AAA_ATTR_FMT_STRING, "626f6200"},
      {"no room for the NUL", "", 197, 3, AAA_ATTR_ERR_NO_MEMORY, 0, 99, ""},
      {"a nested list before the next block", nested, 2, 4, 0, 4, AAA_ATTR_FMT_ULONG, "05000000"},
      {"the block behind a nested list", nested + " 97=0300", 2, 4, 0, 4, AAA_ATTR_FMT_ULONG, "07000000"},
      {"a Grouped value is what the sender wrote", "", 445, 8, 0, 8, AAA_ATTR_FMT_GROUPED, "3333333344444444"},
      {"no such type", "", 7, 8, AAA_ATTR_ERR_NO_MEMORY, 8, 99, ""},
      {"a type above 622 has no format", "149=6f02", 623, 8, 0, 4, AAA_ATTR_FMT_INVALID, "07000000"},
      {"no capacity", "", 197, 0, AAA_ATTR_ERR_BAD_ARG, 0, 99, ""},
      {"marker 0 is for the decoder only", "0=00", 197, 8, AAA_ATTR_ERR_BAD_ARG, 8, 99, ""},
      {"no head", "4=24", 197, 8, AAA_ATTR_ERR_NO_MEMORY, 8, 99, ""},
      {"nothing behind a record that passes its block", "49=ff", 445, 8, AAA_ATTR_ERR_NO_MEMORY, 8, 99, ""},
      {"nor in blocks without sub-lists", "4=21 49=ff", 2, 8, AAA_ATTR_ERR_NO_MEMORY, 8, 99, ""},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.what);
    const Bytes buffer = patched(hex(golden::kNested), row.patches);
    Bytes value(row.capacity + 1, 0xEE), expected = value;
    const Bytes found = hex(row.value);
    std::copy(found.begin(), found.end(), expected.begin());
    std::uint32_t size = row.capacity, format = 99;
    EXPECT_EQ(aaa_attr_get_from_buffer(buffer.data(), row.type, &format, value.data(), &size), row.code);
    EXPECT_EQ(size, row.size);
    EXPECT_EQ(format, row.format);
    EXPECT_EQ(value, expected);
  }
}

// The records that a buffer cursor visits, as "type:offset".
std::string visited(const Bytes &buffer) {
  aaa_cursor *cursor = nullptr;
  EXPECT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
  std::string text;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) {
    std::uint32_t offset = 0;
    EXPECT_EQ(aaa_cursor_get_offset_in_buffer(cursor, &offset), 0u);
    text += std::to_string(type) + ':' + std::to_string(offset) + ' ';
  }
  EXPECT_EQ(aaa_cursor_get_next(cursor), 0u) << "the end is the end";
  EXPECT_EQ(cursor->left, 0u);
  EXPECT_EQ(aaa_cursor_move_by_type(cursor, 2), 0);
  aaa_cursor_free(cursor);
  return text;
}

TEST(BufferCursor, VisitsTheOuterListOnly) {
  const Bytes buffer = hex(golden::kNested);
  EXPECT_EQ(visited(buffer), "197:33 444:53 445:141 2:157 ");
  EXPECT_EQ(visited(patched(buffer, "17=0000000000000000")), "197:33 444:53 ") << "no next block";
  EXPECT_EQ(visited(patched(buffer, "49=0900")), "197:33 444:53 ") << "the third record passes the block";
  EXPECT_EQ(visited(patched(buffer, "29=ffffffff")), "") << "the first one does";
  EXPECT_EQ(visited(patched(buffer, "7=ffff")), "197:33 444:53 ") << "more records than the block has room for";
  EXPECT_EQ(visited(patched(buffer, "83=1700")), "197:33 444:53 ") << "no way past a nested block without a header";
  EXPECT_EQ(visited(patched(buffer, "76=22")), "197:33 444:53 ") << "no nested list where one should be";

  // Nested lists of several blocks with nested lists between them, several to a block.
  const Bytes inner = block(kHead | kLast, 1, {record(2, "abcd")});
  const Bytes middle = join({block(kHead | kGroups, 2, {record(444, "handle 1"), record(445, "handle 2")}), inner,
                             inner, block(kLast | kGroups, 1, {record(444, "handle 1")}), inner});
  const Bytes grouped = record(444, "handle 1");
  EXPECT_EQ(visited(flat({block(kHead | kGroups, 3, {grouped, record(444, "handle 1", 2), grouped}), middle, inner,
                          block(0, 1, {}), block(kLast | kGroups, 1, {grouped, record(26, "c")}), middle})),
            "444:33 444:65 444:369 26:385 ");
}

TEST(BufferCursor, GivesNoWayToTheSendersHandles) {
  const Bytes buffer = hex(golden::kNested);
  aaa_cursor *cursor = nullptr, *sub_cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
  std::uint32_t offset = 77;
  EXPECT_EQ(aaa_cursor_get_offset_in_buffer(cursor, &offset), AAA_ATTR_ERR_BAD_ARG) << "before the first record";
  EXPECT_EQ(offset, 77u);
  List list;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) {
    SCOPED_TRACE(type);
    const bool grouped = type == 444 || type == 445;
    sub_cursor = cursor;
    EXPECT_EQ(aaa_cursor_grouped_alloc(cursor, &sub_cursor), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(sub_cursor, nullptr);
    EXPECT_EQ(aaa_cursor_list_add_attr(list, cursor), grouped ? AAA_ATTR_ERR_BAD_ARG : 0);
  }
  EXPECT_EQ(outline(list), "197[1,2,4660,1,16]=626f62 2=07000000");
  EXPECT_EQ(aaa_cursor_reset(cursor), AAA_ATTR_ERR_BAD_LIST);
  aaa_cursor_free(cursor);
}

}  // namespace
