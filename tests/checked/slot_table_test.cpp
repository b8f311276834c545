// The handle calls of the checked table themselves: no handle comes twice, none is taken for another, whatever threads
// do meanwhile. Linked with the checked table alone; what it is given for a list is not looked at.
#include <attrmgr/aaa_platform.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <set>
#include <thread>
#include <vector>

namespace {

constexpr std::uint32_t kValid = 0, kBad = 1, kStale = 2;

char lists[4];

// What the table says of the handle.
std::uint32_t status_of(std::uint64_t handle) {
  std::uint32_t status = 99;
  id_to_ptr(handle, &status, 1);
  return status;
}

TEST(CheckedTable, HandlesNameTheirListUntilItEnds) {
  EXPECT_EQ(id_create_new_table(256, 4096, "lists"), 1);
  const std::uint64_t one = id_get(&lists[0], 0), other = id_get(&lists[1], 1);
  std::uint32_t status = 99;
  EXPECT_TRUE(one != 0 && other != 0 && one != other);
  EXPECT_EQ(id_to_ptr(one, &status, 1), &lists[0]);
  EXPECT_EQ(status, kValid);
  id_delete(one, 1);
  EXPECT_EQ(id_to_ptr(one, &status, 1), nullptr);
  EXPECT_EQ(status, kStale);
  EXPECT_EQ(id_to_ptr(other, nullptr, 1), &lists[1]) << "no status is asked for";
  id_delete(one, 1);
  EXPECT_EQ(status_of(other), kValid) << "ending a list twice leaves the others alone";
  id_delete(other, 1);
  EXPECT_EQ(id_get(nullptr, 1), 0u) << "no list, no handle";
}

TEST(CheckedTable, NumbersThatNeverWereAHandle) {
  const std::uint64_t handle = id_get(&lists[0], 1);
  for (const std::uint64_t number :
       {std::uint64_t{1}, handle + (std::uint64_t{1} << 32), handle & 0xFFFFFFFF, handle | 0x80000000,
        std::uint64_t{reinterpret_cast<std::uintptr_t>(lists)}, ~std::uint64_t{0}, handle ^ 0x8000000000000000}) {
    std::uint32_t status = 99;
    EXPECT_NE(id_to_ptr(number, &status, 1), &lists[0]);
    EXPECT_EQ(status, kBad) << std::hex << number;
  }
  EXPECT_EQ(status_of(handle), kValid);
  id_delete(handle, 1);
}

// More lists than a slot's rest, so that slots come again and again.
TEST(CheckedTable, NoHandleComesTwice) {
  std::set<std::uint64_t> seen;
  std::vector<std::uint64_t> live;
  for (int i = 0; i < 100000; ++i) {
    live.push_back(id_get(&lists[0], 1));
    ASSERT_TRUE(seen.insert(live.back()).second) << std::hex << live.back();
    if (i % 3 == 0) continue;
    id_delete(live.front(), 1);
    live.erase(live.begin());
    if (live.size() > 50) {
      id_delete(live.back(), 1);
      live.pop_back();
    }
  }
  for (const std::uint64_t handle : live) id_delete(handle, 1);
  for (const std::uint64_t handle : {*seen.begin(), *seen.rbegin()}) EXPECT_EQ(status_of(handle), kStale);
}

// Each thread looks up its own lists and one that has ended, whose slot the others use again; lists are made in one
// thread and ended in the next.
TEST(CheckedTable, ServesThreads) {
  constexpr int kThreads = 4, kRounds = 20000, kHeld = 8;
  const std::uint64_t ended = id_get(&lists[3], 1);
  id_delete(ended, 1);
  std::atomic<std::uint64_t> passed[kThreads] = {};
  std::atomic<int> wrong{0};
  std::vector<std::thread> threads;
  for (int number = 0; number < kThreads; ++number)
    threads.emplace_back([&, number] {
      char own[kHeld];
      std::uint64_t held[kHeld] = {};
      for (int round = 0; round < kRounds; ++round) {
        const int at = round % kHeld;
        std::uint32_t status = kValid;
        if (held[at] != 0 && id_to_ptr(held[at], &status, 1) != &own[at]) ++wrong;
        if (round % 512 == 0 && status_of(ended) != kStale) ++wrong;
        const std::uint64_t taken = passed[(number + 1) % kThreads].exchange(held[at]);
        if (taken != 0) id_delete(taken, 1);
        held[at] = id_get(&own[at], 1);
      }
      for (const std::uint64_t handle : held) id_delete(handle, 1);
    });
  for (std::thread &thread : threads) thread.join();
  for (const std::atomic<std::uint64_t> &handle : passed)
    if (handle != 0) id_delete(handle, 1);
  EXPECT_EQ(wrong, 0);
}

// Two threads free the same lists in the same order. The slower one finds the slots in the cache already and catches
// up, so that they meet again and again. Each list ends once and its slot is given back once, so that no two lists
// share it later.
TEST(CheckedTable, FreesThatRaceEndOneListOnce) {
  constexpr int kRounds = 10, kLists = 50000;
  std::vector<std::uint64_t> handles(kLists);
  const auto end_all = [&handles] {
    for (const std::uint64_t handle : handles)
      if (status_of(handle) == kValid) id_delete(handle, 1);
  };
  for (int round = 0; round < kRounds; ++round) {
    for (std::uint64_t &handle : handles) handle = id_get(&lists[0], 1);
    for (const std::uint64_t handle : handles) ASSERT_EQ(status_of(handle), kValid) << "another list has its slot";
    std::atomic<bool> running{false};
    std::thread rival([&] {
      running = true;
      end_all();
    });
    while (!running) std::this_thread::yield();
    end_all();
    rival.join();
    for (const std::uint64_t handle : handles) ASSERT_EQ(status_of(handle), kStale);
  }
}

}  // namespace
