// The platform layer that the library brings, and the frame around it: registration, the cursor pool, the result codes'
// names. How the library uses a platform layer that replaces its own is tested in abi.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <thread>

#include "support/lists.h"

namespace {

// Every pattern of zero and non-zero groups, against the system's own; nothing is written after the NUL.
TEST(Ipv6Text, AgreesWithTheSystem) {
  for (const unsigned group : {0x0001u, 0x0a0bu, 0x1000u, 0xfffeu, 0xffffu})
    for (unsigned pattern = 0; pattern < 256; ++pattern) {
      Bytes address(16);
      for (unsigned i = 0; i < 16; ++i)
        if (pattern >> i / 2 & 1) address[i] = static_cast<std::uint8_t>(i % 2 ? group : group >> 8);
      std::string text(64, '#'), expected = text;
      inet_ntop(AF_INET6, address.data(), expected.data(), INET6_ADDRSTRLEN);
      EXPECT_EQ(ipv6_address_to_string(address.data(), text.data()), text.data());
      EXPECT_EQ(text, expected);
    }
}

TEST(Ipv6Text, WritesNothingWithoutAnAddressOrRoom) {
  const std::uint8_t address[16] = {};
  char text[] = "as it was";
  EXPECT_EQ(ipv6_address_to_string(nullptr, text), text);
  EXPECT_STREQ(text, "as it was");
  EXPECT_EQ(ipv6_address_to_string(address, nullptr), nullptr);
  EXPECT_EQ(aaa_attr_ipv6_address_to_string(nullptr, text), text);
}

bool aligned(const void *memory) { return reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t) == 0; }

TEST(MallocPc, TheOwnerOutlivesWhateverIsWritten) {
  for (const std::size_t size : {0u, 1u, 8u, 24u, 512u, 513u, 1u << 20}) {
    SCOPED_TRACE(size);
    void *memory = malloc_pc(size, &size);
    ASSERT_TRUE(memory != nullptr && aligned(memory));
    std::memset(memory, 0xFF, size);
    EXPECT_EQ(malloc_pc_owner(memory, size), &size);
    std::free(memory);
  }
  EXPECT_EQ(malloc_pc(SIZE_MAX, nullptr), nullptr);
  EXPECT_EQ(malloc_pc_owner(nullptr, 0), nullptr);
}

constexpr std::uint32_t kPerChunk = 8;

// On a host with 32-bit addresses, a handle is not taken for the list whose address is its lower half.
TEST(Frame, HandlesWiderThanAnAddressNameNothing) {
  if (sizeof(void *) == sizeof(aaa_attr_list_handle)) GTEST_SKIP() << "there are none";
  aaa_attr_list_handle list = 0;
  ASSERT_EQ(aaa_attr_list_alloc(&list), 0u);
  const aaa_attr_list_handle wider = list | std::uint64_t{1} << 32;
  std::uint32_t number = 0;
  EXPECT_EQ(aaa_attr_get_uint32_t(wider, 2, &number), AAA_ATTR_ERR_STALE_HANDLE);
  aaa_attr_list_free(wider);
  EXPECT_EQ(aaa_attr_list_attr_count(wider), 0u);
  aaa_attr_cerrno code = 0;
  EXPECT_EQ(is_aaa_attr_list_valid(list, &code), 1) << "freed by another handle";
  aaa_attr_list_free(list);
}

// Three chunks of elements, each filled to its last byte; given back, they come again and nothing else does.
TEST(Pool, ElementsAreDistinctAndComeAgain) {
  for (const std::uint32_t size : {1u, 17u, 40u, 1000u}) {
    SCOPED_TRACE(size);
    chunk_pool *pool = chunk_create("test", size, kPerChunk, 0, 0, 0);
    std::uint8_t *elements[3 * kPerChunk], n = 0;
    for (auto *&element : elements) std::memset(element = static_cast<std::uint8_t *>(chunk_malloc(pool)), n++, size);
    n = 0;
    for (auto *element : elements)
      EXPECT_TRUE(aligned(element) && static_cast<std::size_t>(std::count(element, element + size, n++)) == size);
    for (auto *element : elements) chunk_free(pool, element);
    std::set<void *> again;
    while (again.size() < std::size(elements)) ASSERT_TRUE(again.insert(chunk_malloc(pool)).second);
    EXPECT_EQ(again, std::set<void *>(std::begin(elements), std::end(elements)));
    chunk_destroy(pool);
  }
  EXPECT_EQ(chunk_create("test", 0, kPerChunk, 0, 0, 0), nullptr);
  EXPECT_EQ(chunk_create("test", 40, 0, 0, 0, 0), nullptr);
}

// Elements change threads, as cursors do: no two threads hold one at once, and a taker finds what another gave back.
TEST(Pool, ServesThreads) {
  chunk_pool *pool = chunk_create("test", 40, kPerChunk, 0, 0, 0);
  std::set<void *> seen;
  for (int round = 0; round < 200; ++round)
    std::thread(chunk_free, pool, *seen.insert(chunk_malloc(pool)).first).join();
  EXPECT_LE(seen.size(), kPerChunk);
  std::vector<std::thread> threads;
  for (std::uint64_t id = 1; id <= 4; ++id)
    threads.emplace_back([pool, id] {
      std::uint64_t *taken[20];
      for (int round = 0; round < 500; ++round) {
        for (std::uint64_t *&element : taken) *(element = static_cast<std::uint64_t *>(chunk_malloc(pool))) = id;
        for (std::uint64_t *element : taken) EXPECT_EQ(*element, id);
        for (std::uint64_t *element : taken) chunk_free(pool, element);
      }
    });
  for (std::thread &thread : threads) thread.join();
  chunk_destroy(pool);
}

TEST(Frame, RegistrationLooksAtItsArgumentsEveryTime) {
  const std::uint16_t ids[] = {1, 2};
  EXPECT_EQ(aaa_attr_client_register("client", ids), 0u);
  EXPECT_EQ(aaa_attr_client_register("other", ids), 0u);
  EXPECT_EQ(aaa_attr_client_register(nullptr, ids), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_client_register("client", nullptr), AAA_ATTR_ERR_BAD_ARG);
}

TEST(Frame, HandlesAreAddressesAndAlwaysKnown) {
  std::uint32_t status = 7;
  const std::uint64_t handle = id_get(&status, 1);
  id_delete(handle, 1);
  EXPECT_EQ(handle, reinterpret_cast<std::uintptr_t>(&status));
  EXPECT_EQ(id_to_ptr(handle, &status, 1), &status);
  EXPECT_EQ(status, 0u);
}

TEST(Frame, CursorPoolIsMadeOnDemandAndMadeAgain) {
  EXPECT_EQ(aaa_base_chunk_flag, 0x101u);
  EXPECT_EQ(aaa_attr_chunk_size, 512);
  const List list;
  for (int life = 0; life < 2; ++life) {
    aaa_cursor *cursor = nullptr;
    ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0u);
    EXPECT_NE(aaa_base_chunk_cursor, nullptr);
    aaa_base_destroy_chunk_cursor();
    aaa_base_destroy_chunk_cursor();
    EXPECT_EQ(aaa_base_chunk_cursor, nullptr);
    EXPECT_EQ(aaa_cursor_free(cursor), 0u) << "without a pool nothing is touched";
  }
}

TEST(Frame, ResultCodesHaveTheirConstantsNames) {
  // The gap in the numbering names nothing.
  std::string names;
  for (const aaa_attr_cerrno code : {0u, 1u, 0xAFDF8200, 0xCFDF8400, 0xAFDF8600, 0xAFDF8800, 0xAFDF8A00, 0xAFDF8C00,
                                     0xAFDF8E00, 0xAFDF9000, 0xAFDF9400})
    names += aaa_attr_cerrno_name(code) + std::string(" ");
  EXPECT_EQ(names,
            "0 <unknown> AAA_ATTR_ERR_BAD_BUFFER AAA_ATTR_ERR_NO_MEMORY AAA_ATTR_ERR_BAD_ARG <unknown> "
            "AAA_ATTR_ERR_BAD_LIST AAA_ATTR_ERR_STALE_HANDLE AAA_ATTR_ERR_NOT_FOUND "
            "AAA_ATTR_ERR_BAD_FORMAT AAA_ATTR_ERR_BAD_LENGTH ");
  EXPECT_STREQ(aaa_attr_cerrno_text(0), "no error");
  EXPECT_STREQ(aaa_attr_cerrno_text(1), "unknown result code");
}

}  // namespace
