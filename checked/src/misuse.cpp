#include "misuse.h"

#include <algorithm>
#include <mutex>

namespace attrmgr::checked {
namespace {

constexpr std::size_t kKept = 256;

std::mutex mutex;
Misuse kept[kKept];  // this and what follows: under mutex
std::size_t num_kept = 0;
std::uint64_t others = 0;

bool same_place(const Misuse &a, const Misuse &b) {
  return a.verdict == b.verdict && a.calls[0] == b.calls[0] && a.withdrawn_by == b.withdrawn_by;
}

}  // namespace

void note_misuse(const Misuse &misuse) {
  const std::lock_guard lock(mutex);
  Misuse *const end = kept + num_kept;
  Misuse *const known = std::find_if(kept, end, [&](const Misuse &other) { return same_place(misuse, other); });
  if (known != end) {
    known->uses += misuse.uses;
  } else if (num_kept < kKept) {
    kept[num_kept++] = misuse;
  } else {
    others += misuse.uses;
  }
}

std::vector<Misuse> misuses(std::uint64_t *num_others) {
  const std::lock_guard lock(mutex);
  *num_others = others;
  std::vector<Misuse> sorted(kept, kept + num_kept);
  std::stable_sort(sorted.begin(), sorted.end(), [](const Misuse &a, const Misuse &b) { return a.uses > b.uses; });
  return sorted;
}

void forget_misuses() {
  const std::lock_guard lock(mutex);
  num_kept = 0;
  others = 0;
}

void lock_misuses() { mutex.lock(); }
void unlock_misuses() { mutex.unlock(); }

}  // namespace attrmgr::checked
