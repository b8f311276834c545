// bench_checked [--quick]: what the checked handle table costs. Both tables are in this process, each with a library
// and workloads of its own; they take turns every few hundred microseconds, so that what else the machine does meets
// both alike. Times are medians, and the ratio is the median of the ratios of neighbouring turns.
//
// Fails when a look-up in the checked table takes 10 ns or more, or a whole workload twice as long as with the plain
// one.
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "workloads.h"

namespace {

using Clock = std::chrono::steady_clock;
using Nanoseconds = std::chrono::duration<double, std::nano>;

constexpr double kTurn = 300'000;  // nanoseconds
constexpr int kTurns = 401;
constexpr double kLookupLimit = 10;  // nanoseconds
constexpr double kRatioLimit = 2;

// In a namespace of its own: an object finds only what it is linked with.
const Workload *load(const char *path) {
  void *object = dlmopen(LM_ID_NEWLM, path, RTLD_NOW | RTLD_LOCAL);
  if (object == nullptr) {
    std::fprintf(stderr, "bench_checked: %s\n", dlerror());
    std::exit(2);
  }
  return reinterpret_cast<WorkloadTable *>(dlsym(object, kWorkloadTable))();
}

double time_of(const Workload &workload, std::uint64_t times) {
  const Clock::time_point start = Clock::now();
  workload.run(times);
  return Nanoseconds(Clock::now() - start).count() / static_cast<double>(times);
}

// How often a workload runs in a turn.
std::uint64_t times_in_turn(const Workload &workload) {
  std::uint64_t times = 1;
  while (time_of(workload, times) * static_cast<double>(times) < kTurn) times *= 2;
  return times;
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// True when the workload stays below its limit.
bool measure(const Workload &plain, const Workload &checked, int turns) {
  plain.run(1);  // what is made once
  checked.run(1);
  const std::uint64_t times = turns > 1 ? times_in_turn(plain) : 1;
  std::vector<double> plain_times, checked_times, ratios;
  for (int turn = 0; turn < turns; ++turn) {
    plain_times.push_back(time_of(plain, times));
    checked_times.push_back(time_of(checked, times));
    ratios.push_back(checked_times.back() / plain_times.back());
  }
  const bool is_lookup = std::string_view(plain.name).starts_with("lookup");
  const double ratio = median(ratios), figure = median(checked_times);
  const bool good = is_lookup ? figure < kLookupLimit : ratio < kRatioLimit;
  std::printf("%-24s %10.1f %10.1f %8.2f%s\n", plain.name, median(plain_times), figure, ratio,
              good || turns == 1 ? "" : "  too much");
  std::fflush(stdout);
  return good;
}

}  // namespace

int main(int argc, char **argv) {
  const bool quick = argc > 1 && std::string_view(argv[1]) == "--quick";
  const Workload *plain = load(PLAIN_OBJECT), *checked = load(CHECKED_OBJECT);
  std::printf("%-24s %10s %10s %8s\n", "workload", "plain ns", "checked ns", "ratio");
  bool good = true;
  for (; plain->name != nullptr; ++plain, ++checked) good = measure(*plain, *checked, quick ? 1 : kTurns) && good;
  return good || quick ? 0 : 1;
}
