// Coalescing: what it drops, what it leaves, and that it knows when there is something to do.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/hostile.h"
#include "support/list_text.h"

namespace {

using Handle = aaa_attr_list_handle;

TEST(Coalesce, DropsHolesAndEmptyBlocks) {
  List list;
  list.group(444);
  list.number(2, 1).number(3, 2).number(2, 3).text(30, std::string(380, 'a'));
  list.text(31, std::string(300, 'b')).number(4, 4);  // a block that becomes empty
  list.text(26, std::string(200, 'c')).number(7, 5);
  for (const unsigned type : {3u, 31u, 4u, 30u}) aaa_attr_remove(list, type);
  std::uint32_t size = 0;
  EXPECT_EQ(aaa_attr_list_buffer_coalesce_and_get_len(list, &size), 0u);
  EXPECT_EQ(size, flat_buffer(list).size());
  EXPECT_EQ(shape(list), "25 2 3 64+448 | 22 1 2 244+268");

  // The last block goes, too; the first becomes the last and holds no sub-list, and the list goes on there.
  for (const unsigned type : {444u, 26u, 7u}) aaa_attr_remove(list, type);
  Bytes buffer(size);
  EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, buffer.data(), &size), 0u);
  const Bytes records = join({record(2, {"\1\0\0\0", 4}), record(2, {"\3\0\0\0", 4})});
  EXPECT_EQ(head_of(buffer, size),
            host_form(join({hex("01 cdab0123 0100 0200 d001 3000 00000000 0000000000000000"), records})));
  std::uint32_t status = 0;
  const auto *head = static_cast<const std::uint8_t *>(id_to_ptr(list, &status, 0));
  EXPECT_EQ(Bytes(head + 48, head + 512), Bytes(464)) << "no removed value is left behind";
  EXPECT_EQ(shape(list.number(3, 7).text(30, std::string(480, 'd'))), "21 2 3 60+452 | 22 1 1 512+0");
}

// The first encoding clears what is left over after the records; a list that is not changed stays clear, a block that
// is chained later is cleared with the next one.
TEST(Coalesce, ClearsWhatComesAfterTheRecords) {
  const auto is_clear = [](Handle list) {
    for (const Block block : blocks_of(list))
      for (std::size_t i = block.used(); i < std::size_t{block.used()} + block.get(8); ++i)
        if (*block.at(i) != 0) return false;
    return true;
  };
  const auto dirty = [](Handle list) {
    const Block last = blocks_of(list).back();
    std::memset(last.at(last.used()), 0xEE, last.get(8));
  };
  List list = list_of("T=x");
  dirty(list);
  EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, nullptr, nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_TRUE(is_clear(list)) << "whatever the size is asked by";
  List more = list_of("U=* V=y");
  dirty(more);
  ASSERT_EQ(aaa_attr_list_merge_list(list, more.release()), 0u);
  std::uint32_t size = 0;
  EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_TRUE(is_clear(list)) << "spliced";
  list.text(type::kString, std::string(600, 'x')).text(type::kString, "y");
  dirty(list);
  EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_TRUE(is_clear(list)) << "chained";
}

// Whatever marks a record removed makes the next coalescing drop it.
TEST(Coalesce, DropsWhateverWasRemoved) {
  const std::pair<const char *, void (*)(List &)> rows[] = {
      {"aaa_attr_remove", [](List &list) { aaa_attr_remove(list, type_named('U')); }},
      {"aaa_attr_remove_on_match", [](List &list) { aaa_attr_remove_on_match(list, type_named('U'), "u", 1); }},
      {"aaa_attr_list_remove_list", [](List &list) { aaa_attr_list_remove_list(list, list_of("U=other")); }},
      {"aaa_attr_list_remove_list_on_match",
       [](List &list) { aaa_attr_list_remove_list_on_match(list, list_of("U=u")); }},
      {"aaa_attr_list_remove_common_attrs",
       [](List &list) { aaa_attr_list_remove_common_attrs(list, list_of("U=u")); }},
      {"the other list of aaa_attr_list_remove_common_attrs",
       [](List &list) { aaa_attr_list_remove_common_attrs(list_of("U=u"), list); }},
      {"aaa_cursor_remove",
       [](List &list) {
         aaa_cursor *cursor = nullptr;
         aaa_cursor_alloc(list, &cursor);
         aaa_cursor_move_by_type(cursor, type_named('U'));
         aaa_cursor_remove(cursor);
         aaa_cursor_free(cursor);
       }},
      {"a decoded list",
       [](List &list) {
         aaa_attr_remove(list, type_named('U'));
         decode(flat_buffer(list), &list);
       }},
      {"a copied list",
       [](List &list) {
         aaa_attr_remove(list, type_named('U'));
         List copy(0);
         EXPECT_EQ(aaa_attr_list_copy(list, copy.out()), 0u);
         list = std::move(copy);
       }},
      {"a spliced list",
       [](List &list) {
         aaa_attr_remove(list, type_named('U'));
         List first;
         EXPECT_EQ(aaa_attr_list_merge_list(first, list.release()), 0u);
         list = std::move(first);
       }},
  };
  for (const auto &[name, remove] : rows) {
    List list = list_of("T=t U=u V=v");
    std::uint32_t size = 0;
    EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT);  // nothing to do so far
    remove(list);
    EXPECT_EQ(aaa_attr_list_attr_count(list), 3u) << name << " marks only";
    EXPECT_EQ(aaa_attr_list_to_buffer_v1(list, nullptr, &size), AAA_ATTR_ERR_BAD_FORMAT);
    EXPECT_EQ(aaa_attr_list_attr_count(list), 2u) << name;
    EXPECT_EQ(outline(list), outline_of("T=t V=v")) << name;
  }
}

}  // namespace
