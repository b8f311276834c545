// The table behind the handles: which handle names which list.
//
//   handle := generation:u32 slot:u32            generation in the high half; neither it nor the handle is ever 0
//
// A slot is given out again when its list is gone, with the next generation, so that no handle is ever issued twice; a
// slot whose generations are used up stays empty. Looking up takes no lock. Slots lie in chunks that are neither moved
// nor released.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace attrmgr::checked {

inline constexpr std::uint32_t kSlotsPerChunk = 1024;
inline constexpr std::uint32_t kChunksMax = 16384;
inline constexpr std::uint32_t kGenerationMax = 0xFFFFFFFF;
inline constexpr unsigned kGenerationShift = 32;
inline constexpr std::uint32_t kWithdrawalsKept = 5;
inline constexpr std::size_t kCacheLine = 64;

// A cache line of its own: lists of different threads do not slow each other down.
struct alignas(kCacheLine) Slot {
  std::atomic<void *> block;                                 // the list's first block; null while there is no list
  std::atomic<std::uint32_t> generation;                     // of the last handle issued; 0 for none
  std::uint32_t next_free;                                   // for the queue that a free slot stands in
  std::atomic<std::uint32_t> process;                        // in which process the list was made, see inherited()
  std::atomic<const void *> withdrawn_by[kWithdrawalsKept];  // the calls that ended the last lists here, by generation
};
static_assert(sizeof(Slot) == kCacheLine);

// A debugger reads the table of a core file by what the first fields say.
struct SlotTable {
  std::uint32_t version;
  std::uint32_t slot_size;
  std::uint32_t block_at;  // offset in a slot
  std::uint32_t generation_at;
  std::uint32_t slots_per_chunk;
  std::uint32_t chunks_max;
  std::atomic<Slot *> chunks[kChunksMax];  // null: not needed so far
};

// Exported under the name attrmgr_checked_table.
extern "C" [[gnu::visibility("hidden")]] SlotTable attrmgr_checked_slots;

enum class Verdict { kLive, kWithdrawn, kNeverIssued };

struct Found {
  Slot *slot;   // null when never issued
  void *block;  // null unless live
  Verdict verdict;
};

inline std::uint32_t slot_of(std::uint64_t handle) { return static_cast<std::uint32_t>(handle); }
inline std::uint32_t generation_of(std::uint64_t handle) {
  return static_cast<std::uint32_t>(handle >> kGenerationShift);
}

// Null for a slot that was never needed.
inline Slot *slot_at(std::uint32_t number) {
  const std::uint32_t chunk = number / kSlotsPerChunk;
  if (chunk >= kChunksMax) return nullptr;
  Slot *slots = attrmgr_checked_slots.chunks[chunk].load(std::memory_order_acquire);
  return slots != nullptr ? slots + number % kSlotsPerChunk : nullptr;
}

inline Found find(std::uint64_t handle) {
  Slot *slot = slot_at(slot_of(handle));
  if (slot == nullptr) return {nullptr, nullptr, Verdict::kNeverIssued};
  // Block before generation: a list that came into the slot meanwhile brought its generation along first.
  void *block = slot->block.load(std::memory_order_acquire);
  const std::uint32_t last = slot->generation.load(std::memory_order_relaxed);
  const std::uint32_t generation = generation_of(handle);
  if (generation == last && block != nullptr) return {slot, block, Verdict::kLive};
  const bool issued = generation != 0 && generation <= last;
  return {issued ? slot : nullptr, nullptr, issued ? Verdict::kWithdrawn : Verdict::kNeverIssued};
}

// Issues a handle for the block; 0 when there are no slots left or no memory for more.
std::uint64_t issue(void *block);

// Withdraws a handle on behalf of the code at `by`; its verdict before that.
Found withdraw(std::uint64_t handle, const void *by);

// The code that withdrew the handle; null when it is not known any more.
const void *withdrawer(const Slot &slot, std::uint64_t handle);

// A forked process has copies of its parent's lists, which are not its own to answer for: inherit() tells them from
// those that the process makes itself from then on.
void inherit();
std::uint32_t current_process();

// Calls visit(handle, block) for every list of this process that has not ended.
template <class Visit>
void for_each_live(Visit visit) {
  for (std::uint32_t chunk = 0; chunk < kChunksMax; ++chunk) {
    if (attrmgr_checked_slots.chunks[chunk].load(std::memory_order_acquire) == nullptr) continue;
    for (std::uint32_t i = 0; i < kSlotsPerChunk; ++i) {
      const std::uint32_t number = chunk * kSlotsPerChunk + i;
      const Slot &slot = *slot_at(number);
      void *block = slot.block.load(std::memory_order_acquire);
      if (block == nullptr || slot.process.load(std::memory_order_relaxed) != current_process()) continue;
      const std::uint64_t generation = slot.generation.load(std::memory_order_relaxed);
      visit(generation << kGenerationShift | number, block);
    }
  }
}

}  // namespace attrmgr::checked
