// The four calls that the library makes, in front of its own.
#include <attrmgr/aaa_platform.h>

#include <cstdlib>

#include "caller.h"
#include "misuse.h"
#include "options.h"
#include "process.h"
#include "report.h"
#include "slot_table.h"

using namespace attrmgr::checked;

namespace {

constexpr std::uint16_t kTable = 1;  // there is one, registered or not
constexpr std::uint32_t kStatusValid = 0;
constexpr std::uint32_t kStatusBad = 1;
constexpr std::uint32_t kStatusStale = 2;

// What a number that never was a handle leads to: without a pointer, the library would say that it is stale. Nothing is
// ever read from it but a magic that is none.
constexpr std::size_t kBlockSize = 512;
alignas(std::max_align_t) constinit char no_list[kBlockSize] = {};

[[gnu::cold, gnu::noinline]] void tell(std::uint64_t handle, const Found &found) {
  const bool stale = found.verdict == Verdict::kWithdrawn;
  const Misuse misuse{found.verdict, caller_by_unwinding(), stale ? withdrawer(*found.slot, handle) : nullptr, handle,
                      1};
  note_misuse(misuse);
  if (!options().abort) return;
  write_misuse(misuse);
  std::abort();
}

[[gnu::cold, gnu::noinline]] void *refuse(std::uint64_t handle, const Found &found, std::uint32_t *status) {
  tell(handle, found);
  const bool stale = found.verdict == Verdict::kWithdrawn;
  if (status != nullptr) *status = stale ? kStatusStale : kStatusBad;
  return stale || status == nullptr ? nullptr : no_list;
}

}  // namespace

std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return kTable; }

std::uint64_t id_get(void *first_block, std::uint16_t) {
  if (!library_found()) find_library(__builtin_return_address(0));
  report_if_asked();
  return first_block != nullptr ? issue(first_block) : 0;
}

void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  const Found found = find(handle);
  if (found.verdict != Verdict::kLive) return refuse(handle, found, status);
  if (status != nullptr) *status = kStatusValid;
  return found.block;
}

void id_delete(std::uint64_t handle, std::uint16_t) {
  const Found found = withdraw(handle, caller_by_frames(__builtin_frame_address(0)));
  if (found.verdict != Verdict::kLive) tell(handle, found);
}
