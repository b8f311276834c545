// Registration, the cursor pool's life, the result codes' names. How the frame uses a replaced platform layer is tested
// in abi.
#include <gtest/gtest.h>

#include "support/lists.h"

namespace {

TEST(Registration, ArgumentsAreLookedAtEveryTime) {
  const std::uint16_t ids[] = {1, 2};
  const std::uint16_t other_ids[] = {3, 4};
  EXPECT_EQ(aaa_attr_client_register(nullptr, ids), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_client_register("client", nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_client_register("client", ids), 0u);
  EXPECT_EQ(aaa_attr_client_register("other", other_ids), 0u);
  EXPECT_EQ(aaa_attr_client_register(nullptr, other_ids), AAA_ATTR_ERR_BAD_ARG);
}

TEST(HandleTable, HandlesAreAddressesAndAlwaysKnown) {
  std::uint64_t block = 0;
  std::uint32_t status = 7;
  const std::uint64_t handle = id_get(&block, 1);
  EXPECT_EQ(handle, reinterpret_cast<std::uintptr_t>(&block));
  id_delete(handle, 1);
  EXPECT_EQ(id_to_ptr(handle, &status, 1), &block);
  EXPECT_EQ(status, 0u);
  EXPECT_EQ(id_create_new_table(256, 4096, "table"), 1);
}

TEST(CursorPool, IsMadeOnDemandAndMadeAgain) {
  EXPECT_EQ(aaa_base_chunk_flag, 0x101u);
  EXPECT_EQ(aaa_attr_chunk_size, 512);
  List list;
  list.number(type::kUlong, 1);
  for (int life = 0; life < 3; ++life) {
    aaa_base_destroy_chunk_cursor();
    EXPECT_EQ(aaa_base_chunk_cursor, nullptr);
    aaa_cursor *cursor = nullptr;
    ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
    EXPECT_NE(aaa_base_chunk_cursor, nullptr);
    EXPECT_EQ(aaa_cursor_get_next(cursor), type::kUlong);
    EXPECT_EQ(aaa_cursor_free(cursor), 0u);
  }
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
  aaa_base_destroy_chunk_cursor();
  aaa_base_destroy_chunk_cursor();
  EXPECT_EQ(aaa_cursor_free(cursor), 0u) << "without a pool nothing is touched";
  EXPECT_EQ(aaa_base_chunk_cursor, nullptr);
}

TEST(ResultCodes, HaveTheirConstantsNames) {
  const struct {
    std::uint32_t code;
    const char *name;
  } rows[] = {
      {0, "0"},
      {0xAFDF8200, "AAA_ATTR_ERR_BAD_BUFFER"},
      {0xCFDF8400, "AAA_ATTR_ERR_NO_MEMORY"},
      {0xAFDF8600, "AAA_ATTR_ERR_BAD_ARG"},
      {0xAFDF8A00, "AAA_ATTR_ERR_BAD_LIST"},
      {0xAFDF8C00, "AAA_ATTR_ERR_STALE_HANDLE"},
      {0xAFDF8E00, "AAA_ATTR_ERR_NOT_FOUND"},
      {0xAFDF9000, "AAA_ATTR_ERR_BAD_FORMAT"},
      {0xAFDF9400, "AAA_ATTR_ERR_BAD_LENGTH"},
      {1, "<unknown>"},
      {0xAFDF8800, "<unknown>"},  // the gap in the numbering
      {UINT32_MAX, "<unknown>"},
  };
  for (const auto &row : rows) EXPECT_STREQ(aaa_attr_cerrno_name(row.code), row.name) << std::hex << row.code;
}

}  // namespace
