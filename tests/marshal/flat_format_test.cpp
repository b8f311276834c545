// Buffers as bytes: what is written, in which order, and what coalescing leaves.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

constexpr aaa_attr_meta kMeta = {1, 2, 0x1234, 1, 0x10};

// The blocks of a flat buffer in the order in which they lie: "flags:block count[types]".
std::string blocks(const Bytes &buffer) {
  const auto number = [&buffer](std::size_t at) {
    return static_cast<unsigned>(buffer.at(at) | buffer.at(at + 1) << 8);
  };
  std::ostringstream text;
  for (std::size_t at = 1; at < buffer.size();) {
    const std::size_t end = at + number(at + 10);
    text << std::hex << number(at + 2) / 256 << ':' << std::dec << number(at + 4) << '[';
    for (at += 24; at < end; at += 8 + (number(at + 2) & 1) * 8 + number(at + 4)) text << number(at) << ' ';
    text << "] ";
  }
  return text.str();
}

TEST(BufferFormat, Goldens) {
  List list;
  EXPECT_EQ(flat_buffer(list), hex(golden::kEmpty));
  EXPECT_EQ(tlv_buffer(list), hex("02 04000000"));
  list.number(type::kUlong, 5);
  EXPECT_EQ(flat_buffer(list), hex(golden::kOneUlong));

  List outer;
  const aaa_attr_list_handle inner = outer.group(type::kGrouped, &kMeta);
  List(inner).number(type::kUlong, 5).release();
  EXPECT_EQ(flat_buffer(outer), join({hex(R"(
    01  cd ab 01 27  01 00  01 00  d0 01  30 00  00 00 00 00  00 00 00 00 00 00 00 00
    bc 01  01 00  08 00 00 00  01 02 34 12 01 00 10 00)"),
                                      little(inner, 8), hex(golden::kOneUlong + 5)}));

  // What was read is written again, but for the sender's addresses.
  List nested;
  ASSERT_EQ(decode(hex(golden::kNested), &nested), 0u);
  EXPECT_EQ(outline(nested), golden::kNestedOutline);
  Bytes written = flat_buffer(nested);
  EXPECT_EQ(aaa_attr_buffer_scrub(written.data(), static_cast<std::uint32_t>(written.size())), 0u);
  EXPECT_EQ(written, patched(hex(golden::kNested), "17=0100000000000000 53=0000000000000000 141=0000000000000000"));

  // A TLV buffer has no removed records and no producer client types; a text goes without its NUL.
  List tlv;
  aaa_attr_add_v1(tlv.number(3, 1), 197, "bob", 3, &kMeta, 5);
  List sub_list(tlv.group(444));
  sub_list.number(2, 5).group(445);
  sub_list.release();
  aaa_attr_remove(tlv.number(2, 7), 3);
  EXPECT_EQ(tlv_buffer(tlv), hex(golden::kTlvNested));
  std::uint32_t size = 0;
  EXPECT_EQ(aaa_attr_list_tlv_buffer_len(tlv, &size), 0u);
  EXPECT_EQ(size, 79u);
}

TEST(BufferFormat, CapacityIsNegotiated) {
  const struct {
    aaa_attr_cerrno (*encode)(aaa_attr_list_handle, void *, std::uint32_t *);
    const char *bytes;
    aaa_attr_cerrno bad_list;
    std::uint32_t bad_list_size;
    const char *complaint;
  } forms[] = {
      {aaa_attr_list_to_buffer, golden::kOneUlong, AAA_ATTR_ERR_BAD_FORMAT, 0, ""},
      {aaa_attr_list_to_buffer_v1, golden::kOneUlong, AAA_ATTR_ERR_BAD_LIST, 99, "Coalesce on attribute list failed\n"},
      {aaa_attr_list_tlv_to_buffer, "02 14000000 02000000 00000000 04000000 05000000", AAA_ATTR_ERR_BAD_LIST, 99, ""},
  };
  List list;
  list.number(type::kUlong, 5);
  for (const auto &form : forms) {
    const Bytes bytes = hex(form.bytes);
    const auto needed = static_cast<std::uint32_t>(bytes.size());
    for (std::uint32_t capacity = 0; capacity <= needed + 2; ++capacity) {
      SCOPED_TRACE(capacity);
      Bytes buffer(capacity, 0xEE), expected = buffer;
      std::uint32_t size = capacity;
      EXPECT_EQ(form.encode(list, buffer.data(), &size), capacity < needed ? AAA_ATTR_ERR_BAD_FORMAT : 0);
      EXPECT_EQ(size, needed);
      if (capacity >= needed) std::copy(bytes.begin(), bytes.end(), expected.begin());
      EXPECT_EQ(buffer, expected);
    }
    std::uint32_t size = 99;
    EXPECT_EQ(form.encode(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT) << "room enough, but no buffer";
    EXPECT_EQ(form.encode(list, nullptr, nullptr), AAA_ATTR_ERR_BAD_ARG);
    size = 99;
    testing::internal::CaptureStderr();
    EXPECT_EQ(form.encode(0, nullptr, &size), form.bad_list);
    EXPECT_EQ(size, form.bad_list_size);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), form.complaint);
  }
}

TEST(BufferFormat, BrokenSubListsAreRefused) {
  List outer, list;
  List inner(outer.group(444));
  aaa_attr_add(inner, 445, &kNoList, sizeof kNoList, nullptr);
  inner.release();
  std::uint32_t size = 99;
  aaa_attr_array_entry *entries = nullptr;
  EXPECT_EQ(aaa_attr_list_buffer_len(0, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_buffer_len(outer, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_buffer_coalesce_and_get_len(outer, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_tlv_buffer_len(outer, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_to_array(outer, &entries, &size), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(size, 99u);
  EXPECT_EQ(aaa_attr_list_to_buffer(outer, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_EQ(size, 0u);

  // A number that a client turned into a Grouped record, beside one that is.
  list.group(444);
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list.number(2, 5), &cursor);
  ASSERT_TRUE(aaa_cursor_move_by_type(cursor, 2));
  std::memcpy(aaa_cursor_get_current_attr(cursor), little(444, 2).data(), 2);
  aaa_cursor_free(cursor);
  EXPECT_EQ(aaa_attr_list_buffer_len(list, &size), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_EQ(aaa_attr_list_to_array(list, &entries, &size), AAA_ATTR_ERR_BAD_FORMAT);
}

// The nested lists of a block stand behind that block, not behind the last one that holds some.
TEST(BufferFormat, NestedListsFollowTheBlockThatHoldsThem) {
  List outer;
  const std::string long_text(400, 'x');
  List(outer.group(444)).number(2, 1).release();
  outer.text(30, long_text);
  List(outer.group(445)).number(3, 2).release();  // still in the first block
  outer.text(31, long_text);                      // a second block
  List middle(outer.group(444));
  outer.text(26, long_text);
  List(outer.group(459)).number(4, 4).release();  // in the third
  middle.text(30, long_text);
  List(middle.group(444)).text(30, long_text).text(31, long_text).release();
  middle.text(31, long_text).group(445);
  middle.release();
  EXPECT_EQ(blocks(flat_buffer(outer)),
            "25:3[444 30 445 ] 23:1[2 ] 23:1[3 ] "
            "24:1[31 444 ] 25:2[30 444 ] 21:2[30 ] 22:1[31 ] 26:1[31 445 ] 23:1[] "
            "26:1[26 459 ] 23:1[4 ] ");
  for (const Bytes &buffer : {flat_buffer(outer), tlv_buffer(outer)}) {
    List back;
    ASSERT_EQ(decode(buffer, &back), 0u);
    EXPECT_EQ(outline(back), outline(outer));
    EXPECT_EQ(blocks(flat_buffer(back)), blocks(flat_buffer(outer)));
  }
}

TEST(Coalesce, DropsHolesAndEmptyBlocks) {
  List list;
  List sub_list(list.group(444));
  aaa_attr_remove(sub_list.number(2, 1), 2);
  sub_list.release();
  list.number(2, 1).number(3, 2).number(2, 3).text(30, std::string(380, 'a'));
  list.text(31, std::string(300, 'b')).number(4, 4);  // a block that becomes empty
  list.text(26, std::string(200, 'c')).number(7, 5);
  for (const unsigned type : {3u, 31u, 4u, 30u}) aaa_attr_remove(list, type);
  std::uint32_t size = 0;
  EXPECT_EQ(aaa_attr_list_buffer_coalesce_and_get_len(list, &size), 0u);
  EXPECT_EQ(size, flat_buffer(list).size());
  EXPECT_EQ(blocks(flat_buffer(list)), "25:2[444 2 2 ] 23:1[2 ] 22:1[26 7 ] ") << "sub-lists stay as they are";
  EXPECT_EQ(aaa_attr_list_attr_count(list), 5u);

  // The last block goes, too; the first becomes the last and holds no sub-list, and the list goes on there.
  for (const unsigned type : {444u, 26u, 7u}) aaa_attr_remove(list, type);
  Bytes buffer(500);
  size = 500;
  EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, buffer.data(), &size), 0u);
  buffer.resize(size);
  EXPECT_EQ(buffer, join({hex("01 cdab0123 0100 0200 d001 3000 00000000 0000000000000000"),
                          hex("0200 0000 04000000 01000000  0200 0000 04000000 03000000")}));
  std::uint32_t status = 0;
  const auto *head = static_cast<const std::uint8_t *>(id_to_ptr(list, &status, 0));
  EXPECT_EQ(Bytes(head + 48, head + 512), Bytes(464)) << "no removed value is left behind";
  list.number(3, 7).text(30, std::string(480, 'd'));
  EXPECT_EQ(blocks(flat_buffer(list)), "21:2[2 2 3 ] 22:1[30 ] ");
}

// Every pattern of live and removed records among eight, so every sequence of runs.
TEST(Coalesce, KeepsEveryRunInOrder) {
  for (unsigned removed = 0; removed < 256; ++removed) {
    List list, expected;
    aaa_cursor *cursor = nullptr;
    for (unsigned i = 0; i < 8; ++i)
      for (List *to : {&list, &expected})
        if (to == &list || (removed >> i & 1) == 0) to->text(197, std::string(i + 1, 'x'), i % 3 ? nullptr : &kMeta);
    aaa_cursor_alloc(list, &cursor);
    for (unsigned i = 0; aaa_cursor_get_next(cursor) != 0; ++i)
      if (removed >> i & 1) aaa_cursor_remove(cursor);
    aaa_cursor_free(cursor);
    std::uint32_t size = 0;
    EXPECT_EQ(aaa_attr_list_buffer_coalesce_and_get_len(list, &size), 0u);
    EXPECT_EQ(flat_buffer(list), flat_buffer(expected)) << "removed: " << removed;
  }
}

}  // namespace
