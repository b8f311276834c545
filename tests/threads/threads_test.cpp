// Threads with lists of their own share nothing that they could disturb: the whole life of a list in many at once. The
// thread sanitizer watches this in its own build.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "support/lists.h"

namespace {

int ignore_line(char *, std::uint64_t) { return 0; }

// Builds, walks, marshals, decodes, displays and combines; what each thread gets depends on its number only.
std::string live_a_list(unsigned number) {
  List list;
  list.number(type::kUlong, number).text(type::kString, "thread " + std::to_string(number));
  List(list.group(type::kGrouped)).text(type::kString, std::string(600, 'x')).release();
  List flat;
  List tlv;
  EXPECT_EQ(decode(flat_buffer(list), &flat), 0u);
  EXPECT_EQ(decode(tlv_buffer(list), &tlv), 0u);
  EXPECT_EQ(aaa_attr_list_eq(flat, tlv), 1);
  aaa_attr_list_display(flat, ignore_line, 0);
  EXPECT_EQ(aaa_attr_list_append_list(flat, tlv), 0u);
  EXPECT_EQ(aaa_attr_remove(flat, type::kGrouped), 0u);
  return outline(flat);
}

TEST(Threads, UseListsOfTheirOwnAtOnce) {
  constexpr unsigned kThreads = 8;
  constexpr unsigned kRounds = 50;
  aaa_base_destroy_chunk_cursor();  // the first cursors are taken at once
  std::atomic<unsigned> waiting{kThreads};
  std::vector<std::string> last(kThreads);
  std::vector<std::thread> threads;
  for (unsigned number = 0; number < kThreads; ++number)
    threads.emplace_back([number, &waiting, &last] {
      --waiting;
      while (waiting > 0) std::this_thread::yield();
      for (unsigned round = 0; round < kRounds; ++round) last[number] = live_a_list(number);
    });
  for (std::thread &thread : threads) thread.join();
  for (unsigned number = 0; number < kThreads; ++number) EXPECT_EQ(last[number], live_a_list(number));
}

}  // namespace
