// Validity, freeing, counting and stamping of whole lists.
#include <pthread.h>

#include "support/changes.h"

namespace {

TEST(ListLifecycle, ValidityLooksAtEveryBlock) {
  constexpr std::uint16_t kFreedMark = 0xFFFF;
  const struct {
    std::size_t block;
    std::uint16_t magic;
    aaa_attr_cerrno valid;
    aaa_attr_cerrno get;  // as all that only looks at the head
  } rows[] = {
      {0, 0xABCD, 0, 0},
      {0, 0xCDAB, AAA_ATTR_ERR_BAD_LIST, AAA_ATTR_ERR_BAD_LIST},
      {0, kFreedMark, AAA_ATTR_ERR_STALE_HANDLE, AAA_ATTR_ERR_STALE_HANDLE},
      {1, 0x1234, AAA_ATTR_ERR_BAD_LIST, 0},
      {1, kFreedMark, AAA_ATTR_ERR_STALE_HANDLE, 0},
      {2, 0, AAA_ATTR_ERR_BAD_LIST, 0},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE("block " + std::to_string(row.block) + " has magic " + std::to_string(row.magic));
    const List list = list_of("T=* U=* V=*");
    blocks_of(list)[row.block].put(0, row.magic);
    aaa_attr_cerrno code = 1;
    EXPECT_EQ(is_aaa_attr_list_valid(list, &code), row.valid == 0);
    EXPECT_EQ(code, row.valid);
    int empty = 77;
    EXPECT_EQ(is_aaa_attr_list_empty(list, &empty), row.valid == 0 ? 0 : AAA_ATTR_ERR_BAD_LIST);
    EXPECT_EQ(empty, row.valid == 0 ? 0 : 77);
    const void *value;
    std::uint32_t length;
    EXPECT_EQ(aaa_attr_get(list, type::kString, &value, &length), row.get);
    EXPECT_EQ(aaa_attr_list_attr_count(list), row.get == 0 ? 3u : 0u);
    if (row.get != 0) aaa_attr_list_free(list);  // does nothing, and the list is whole once it is mended
    blocks_of(list)[row.block].put(0, 0xABCD);
    EXPECT_EQ(outline(list), outline_of("T=* U=* V=*"));
  }
  aaa_attr_cerrno code = 1;
  EXPECT_EQ(is_aaa_attr_list_valid(0, &code), 0);
  EXPECT_EQ(code, AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(aaa_attr_list_attr_count(0), 0u);
  aaa_attr_list_free(0);
}

TEST(ListLifecycle, CountSeesRemovedRecordsAndEmptinessDoesNot) {
  const struct {
    const char *list;
    std::uint32_t count;
    int empty;
  } rows[] = {{"", 0, 1}, {"T=x", 1, 0}, {"!T=x", 1, 1}, {"!T=* !U=* V=*", 3, 0}, {"!T=* !U=*", 2, 1}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.list);
    const List list = list_of(row.list);
    int empty = 77;
    EXPECT_EQ(aaa_attr_list_attr_count(list), row.count);
    EXPECT_EQ(is_aaa_attr_list_empty(list, &empty), 0u);
    EXPECT_EQ(empty, row.empty);
  }
}

// Lists that own others in every place; the leak checker tells whether all of them went.
TEST(ListLifecycle, FreeingFreesWhatLiveGroupedRecordsOwn) {
  list_of("G{G{G{T=x} H{}} T=* G{U=* G{}}} T=* H{T=y}");
  list_of("T=* U=* G{T=x} H{} V=* G{T=* H{}}");
  list_of("G{T=x} 0=null G{U=behind-the-end-of-a-clients-walk}");

  List list;
  EXPECT_EQ(aaa_attr_add_existing_group_list(list, 0, type::kGrouped, nullptr), 0u);
  list.group(type::kGrouped);  // behind one that names no list

  const List kept = list_of("T=x");
  list = List();
  EXPECT_EQ(aaa_attr_add_existing_group_list(list, kept, type::kGrouped, nullptr), 0u);
  aaa_cursor *cursor = nullptr;
  EXPECT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  EXPECT_EQ(aaa_cursor_get_next(cursor), type::kGrouped);
  aaa_cursor_remove(cursor);  // a record that is gone owns nothing
  aaa_cursor_free(cursor);
  EXPECT_EQ(aaa_attr_add_existing_group_list(list, kept, type::kBinary, nullptr), 0u);  // no more than a number
  list = List(0);
  EXPECT_EQ(outline(kept), outline_of("T=x"));
}

TEST(ListLifecycle, FreeingTakesTheSameStackAtAnyDepth) {
  constexpr std::size_t kSmallStack = 64 * 1024;
  aaa_attr_list_handle list = 0;
  aaa_attr_list_alloc(&list);
  aaa_attr_list_handle innermost = list;
  for (int level = 0; level < 100'000; ++level)
    ASSERT_EQ(aaa_attr_add_group_list(innermost, &innermost, type::kGrouped, nullptr), 0u);
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, kSmallStack), 0);
  pthread_t thread;
  auto free_list = [](void *handle) -> void * {
    aaa_attr_list_free(*static_cast<aaa_attr_list_handle *>(handle));
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, free_list, &list), 0);
  EXPECT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

TEST(ListLifecycle, ClientTypesAreStampedOnLiveAttributes) {
  using Stamp = aaa_attr_cerrno (*)(aaa_attr_list_handle, std::uint32_t);
  const Stamp set = aaa_attr_list_set_producer_client_type, init = aaa_attr_list_init_producer_client_type;
  const auto stamp = [](Stamp call, std::uint32_t client_type, aaa_attr_cerrno code = 0) {
    return [=](List &list) { return call(list, client_type) ^ code; };
  };
  constexpr aaa_attr_cerrno kBadArg = AAA_ATTR_ERR_BAD_ARG;
  expect_changes({
      {"T=x U@5=y T=* U@24=z", stamp(set, 7), "T@7=x U@7=y T@7=* U@7=z", "all of them"},
      {"T=x U@5=y T=* U@24=z", stamp(init, 7), "T@7=x U@5=y T@7=* U@7=z", "a valid one stays"},
      {"T@1=x U@23=y", stamp(init, 7), "T@1=x U@23=y", "the ends of the range stay"},
      {"T+=x !T=y", stamp(set, 1), "T+@1=x !T=y", "the lowest"},
      {"T+=x !T=y", stamp(init, 23), "T+@23=x !T=y", "the highest"},
      {"T=x U@5=y", stamp(set, 0, kBadArg), "T=x U@5=y", "too low"},
      {"T=x U@5=y", stamp(set, 24, kBadArg), "T=x U@5=y", "too high"},
      {"T=x", stamp(set, 128 + 7, kBadArg), "T=x", "not cut to 7 bits"},
      {"T=x", stamp(init, 0, kBadArg), "T=x", "too low"},
      {"U@5=y", stamp(init, 24, kBadArg), "U@5=y", "too high, even where it is not needed"},
      {"!T=x", stamp(set, 0), "!T=x", "nothing to stamp"},
      {"", stamp(init, 24), "", "nothing to stamp"},
  });
  for (const Stamp call : {set, init}) EXPECT_EQ(call(0, 7), AAA_ATTR_ERR_BAD_LIST);
}

TEST(ListLifecycle, DiscriminatorIsServiceThenProtocol) {
  std::uint8_t discriminator[3] = {0, 0, 0xEE};
  aaa_attr_discrim_pack(discriminator, 3, 250);
  EXPECT_EQ(Bytes(discriminator, discriminator + 3), hex("03 fa ee"));
  aaa_attr_discrim_init(discriminator);
  EXPECT_EQ(Bytes(discriminator, discriminator + 3), hex("00 00 ee"));
}

}  // namespace
