// The four calls that the library makes, in front of its own.
#include <attrmgr/aaa_platform.h>

#include <cstdlib>
#include <new>

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

// Notes which calls have led to a list. Where there is no memory for it, the report has less to tell.
[[gnu::cold, gnu::noinline]] void note_calls(std::uint64_t handle) {
  History &history = history_at(slot_of(handle));
  CallStack *stack = history.made_by.load(std::memory_order_relaxed);
  if (stack == nullptr) stack = new (std::nothrow) CallStack{};
  if (stack == nullptr) return;
  const void *calls[kCallsMax] = {};
  find_calls(calls, options().stack);
  for (std::size_t i = 0; i < kCallsMax; ++i) stack->calls[i].store(calls[i], std::memory_order_relaxed);
  history.made_by.store(stack, std::memory_order_release);
}

// Takes down the use of a handle that names no list.
Verdict tell(std::uint64_t handle) {
  const Verdict verdict = verdict_on(handle);
  Misuse misuse{};
  misuse.verdict = verdict;
  misuse.withdrawn_by = verdict == Verdict::kWithdrawn ? withdrawer(handle) : nullptr;
  misuse.handle = handle;
  misuse.uses = 1;
  find_calls(misuse.calls, options().stack);
  note_misuse(misuse);
  if (options().abort) {
    write_misuse(misuse);
    std::abort();
  }
  return verdict;
}

[[gnu::cold, gnu::noinline]] void *refuse(std::uint64_t handle, std::uint32_t *status) {
  const bool stale = tell(handle) == Verdict::kWithdrawn;
  if (status != nullptr) *status = stale ? kStatusStale : kStatusBad;
  return stale || status == nullptr ? nullptr : no_list;
}

}  // namespace

std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return kTable; }

std::uint64_t id_get(void *first_block, std::uint16_t) {
  if (attention.load(std::memory_order_relaxed)) attend(__builtin_return_address(0));
  const std::uint64_t handle = first_block != nullptr ? issue(first_block) : 0;
  if (stacks_wanted && handle != 0) note_calls(handle);
  return handle;
}

void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  void *block = live_block(handle);
  if (block == nullptr) return refuse(handle, status);
  if (status != nullptr) *status = kStatusValid;
  return block;
}

void id_delete(std::uint64_t handle, std::uint16_t) {
  if (!withdraw(handle, caller_by_frames(__builtin_frame_address(0)))) tell(handle);
}
