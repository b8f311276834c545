// Two threads against one: what they share is the pool of cursors and the allocator. items_per_second is that of all
// threads together.
#include <attrmgr/attrmgr.h>
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <thread>

#include "data.h"

namespace {

void cursor_cycle(benchmark::State &state) {
  aaa_attr_list_handle list = 0;
  aaa_attr_list_alloc(&list);
  while (state.KeepRunning()) {
    aaa_cursor *cursor = nullptr;
    aaa_cursor_alloc(list, &cursor);
    benchmark::DoNotOptimize(cursor);
    aaa_cursor_free(cursor);
  }
  state.SetItemsProcessed(state.iterations());
  aaa_attr_list_free(list);
}

// What a message costs at both ends: a list of 32 attributes is built, encoded, freed, decoded and freed.
void exchange(benchmark::State &state) {
  const bench::Attributes attributes = bench::attributes(32, 0);
  std::byte buffer[4096];
  while (state.KeepRunning()) {
    aaa_attr_list_handle list = 0;
    aaa_attr_list_alloc(&list);
    for (const bench::Attribute &attribute : attributes)
      (void)aaa_attr_add(list, attribute.type, attribute.value.data(),
                         static_cast<std::uint32_t>(attribute.value.size()), nullptr);
    std::uint32_t length = sizeof buffer;
    (void)aaa_attr_list_to_buffer(list, buffer, &length);
    aaa_attr_list_free(list);
    aaa_attr_list_handle received = 0;
    if (aaa_attr_buffer_to_list(buffer, length, &received) != 0) state.SkipWithError("does not decode");
    aaa_attr_list_free(received);
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(cursor_cycle)->ThreadRange(1, 2)->UseRealTime();
BENCHMARK(exchange)->ThreadRange(1, 2)->UseRealTime();

}  // namespace

// A thread that only waits: in a process of a single thread locks cost nothing, and one thread would be compared with
// two of another world.
int main(int argc, char **argv) {
  std::jthread waiting([](const std::stop_token &stop) {
    while (!stop.stop_requested()) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
