// What is measured with and without the checked table. The workloads are compiled into two shared objects, each linked
// with its own handle table, and loaded side by side into one process.
#pragma once

#include <cstdint>

struct Workload {
  const char *name;
  void (*run)(std::uint64_t times);
};

// Exported by both objects: the workloads, in the same order; the last one has no name.
using WorkloadTable = const Workload *();
inline constexpr char kWorkloadTable[] = "bench_workloads";
