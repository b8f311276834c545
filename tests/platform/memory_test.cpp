// malloc_pc and the element pools.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <set>
#include <thread>

#include "support/lists.h"

namespace {

bool aligned(const void *memory) { return reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t) == 0; }

TEST(MallocPc, TheOwnerOutlivesWhateverIsWritten) {
  int here = 0;
  for (const std::size_t size : {0u, 1u, 7u, 8u, 24u, 512u, 513u, 1u << 20}) {
    SCOPED_TRACE(size);
    const void *const owners[] = {&here, nullptr};
    for (const void *owner : owners) {
      void *memory = malloc_pc(size, owner);
      ASSERT_NE(memory, nullptr);
      EXPECT_TRUE(aligned(memory));
      std::memset(memory, 0xFF, size);
      EXPECT_EQ(malloc_pc_owner(memory), owner);
      std::free(memory);
    }
  }
  volatile std::size_t too_much = SIZE_MAX;
  EXPECT_EQ(malloc_pc(too_much, &here), nullptr);
  EXPECT_EQ(malloc_pc_owner(nullptr), nullptr);
}

constexpr std::uint32_t kPerChunk = 8;

class Pool : public testing::Test {
 protected:
  void create(std::uint32_t element_size) { pool = chunk_create("test", element_size, kPerChunk, 0, 0, 0); }
  ~Pool() override { chunk_destroy(pool); }
  chunk_pool *pool = nullptr;
};

// Three chunks of elements, each filled to its last byte; given back, they come again and nothing else does.
TEST_F(Pool, ElementsAreDistinctAndComeAgain) {
  for (const std::uint32_t size : {1u, 8u, 17u, 40u, 64u, 1000u}) {
    SCOPED_TRACE(size);
    create(size);
    std::set<std::uint8_t *> first, again;
    while (first.size() < 3 * kPerChunk) {
      auto *element = static_cast<std::uint8_t *>(chunk_malloc(pool));
      ASSERT_TRUE(element != nullptr && aligned(element));
      std::memset(element, static_cast<int>(first.size()), size);
      ASSERT_TRUE(first.insert(element).second);
    }
    std::set<int> contents;
    for (std::uint8_t *element : first) {
      EXPECT_EQ(std::count(element, element + size, element[0]), size);
      contents.insert(element[0]);
      chunk_free(pool, element);
    }
    EXPECT_EQ(contents.size(), first.size());
    while (again.size() < first.size())
      ASSERT_TRUE(again.insert(static_cast<std::uint8_t *>(chunk_malloc(pool))).second);
    EXPECT_EQ(again, first);
    chunk_destroy(pool);
    pool = nullptr;
  }
}

TEST_F(Pool, ThreadsNeverShareAnElement) {
  create(40);
  std::vector<std::thread> threads;
  for (std::uint64_t id = 1; id <= 4; ++id)
    threads.emplace_back([this, id] {
      std::vector<std::uint64_t *> taken(20);
      for (int round = 0; round < 500; ++round) {
        for (std::uint64_t *&element : taken) *(element = static_cast<std::uint64_t *>(chunk_malloc(pool))) = id;
        for (std::uint64_t *element : taken) {
          EXPECT_EQ(*element, id);
          chunk_free(pool, element);
        }
      }
    });
  for (std::thread &thread : threads) thread.join();
}

// A cursor made by one thread and freed by another must not cost memory each time.
TEST_F(Pool, ElementsFreedByAnotherThreadAreFoundAgain) {
  create(40);
  std::set<void *> seen;
  for (int round = 0; round < 200; ++round) {
    void *element = chunk_malloc(pool);
    seen.insert(element);
    std::thread([this, element] { chunk_free(pool, element); }).join();
  }
  EXPECT_LE(seen.size(), kPerChunk);
}

TEST_F(Pool, RefusesSizesOfNothing) {
  EXPECT_EQ(chunk_create("test", 0, kPerChunk, 0, 0, 0), nullptr);
  EXPECT_EQ(chunk_create("test", 40, 0, 0, 0, 0), nullptr);
  EXPECT_EQ(chunk_malloc(nullptr), nullptr);
  create(40);
  chunk_free(pool, nullptr);
  EXPECT_NE(chunk_malloc(pool), nullptr);
}

}  // namespace
