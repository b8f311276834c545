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
inline constexpr std::uint32_t kSlotsMax = kSlotsPerChunk * kChunksMax;
inline constexpr std::uint32_t kGenerationMax = 0xFFFFFFFF;
inline constexpr unsigned kGenerationShift = 32;
inline constexpr std::uint32_t kWithdrawalsKept = 5;
inline constexpr std::size_t kCallsMax = 16;

struct Slot {
  std::atomic<void *> block;              // the list's first block; null while there is no list
  std::atomic<std::uint32_t> generation;  // of the last handle issued; 0 for none
  std::uint32_t next_free;                // for the queue that a free slot stands in
};

// The calls that led to a list, innermost first; null after the last.
struct CallStack {
  std::atomic<const void *> calls[kCallsMax];
};

// What is written down for the report. Apart from the slots, which every look-up reads: so more of them fit the nearest
// cache.
struct History {
  std::atomic<const void *> withdrawn_by[kWithdrawalsKept];  // the calls that ended the last lists here, by generation
  std::atomic<std::uint32_t> process;                        // in which process the list was made, see inherit()
  std::atomic<CallStack *> made_by;                          // null unless stacks are wanted; kept for the next list
};

struct Chunk {
  Slot slots[kSlotsPerChunk];
  History histories[kSlotsPerChunk];
};

// A debugger reads the table of a core file by what the first fields say.
struct SlotTable {
  std::uint32_t version;
  std::uint32_t slot_size;
  std::uint32_t block_at;  // offset in a slot
  std::uint32_t generation_at;
  std::uint32_t slots_per_chunk;
  std::uint32_t chunks_max;
  std::atomic<Chunk *> chunks[kChunksMax];  // each begins with its slots; null: not needed so far
};

// Exported under the name attrmgr_checked_table.
extern "C" [[gnu::visibility("hidden")]] SlotTable attrmgr_checked_slots;

enum class Verdict { kWithdrawn, kNeverIssued };

inline std::uint32_t slot_of(std::uint64_t handle) { return static_cast<std::uint32_t>(handle); }
inline std::uint32_t generation_of(std::uint64_t handle) {
  return static_cast<std::uint32_t>(handle >> kGenerationShift);
}

// Null where no slot has been needed so far.
inline Chunk *chunk_of(std::uint32_t slot) {
  return attrmgr_checked_slots.chunks[slot / kSlotsPerChunk].load(std::memory_order_acquire);
}

// The slot of a number that may be any; null when there is none.
inline const Slot *find_slot(std::uint32_t number) {
  if (number >= kSlotsMax) return nullptr;
  const Chunk *chunk = chunk_of(number);
  return chunk != nullptr ? chunk->slots + number % kSlotsPerChunk : nullptr;
}

// Of a slot that there is.
inline Slot &slot_at(std::uint32_t number) { return chunk_of(number)->slots[number % kSlotsPerChunk]; }
inline History &history_at(std::uint32_t number) { return chunk_of(number)->histories[number % kSlotsPerChunk]; }

// The first block of the handle's list; null when the handle names none.
inline void *live_block(std::uint64_t handle) {
  const Slot *slot = find_slot(slot_of(handle));
  if (slot == nullptr) return nullptr;
  // Block before generation: a list that came into the slot meanwhile brought its generation along first.
  void *block = slot->block.load(std::memory_order_acquire);
  return slot->generation.load(std::memory_order_relaxed) == generation_of(handle) ? block : nullptr;
}

// What is to be said of a handle that names no list.
Verdict verdict_on(std::uint64_t handle);

// Issues a handle for the block; 0 when there are no slots left or no memory for more.
std::uint64_t issue(void *block);

// Withdraws a handle on behalf of the code at `by`. False when it names no list.
[[nodiscard]] bool withdraw(std::uint64_t handle, const void *by);

// The code that withdrew a withdrawn handle; null when it is not known any more.
const void *withdrawer(std::uint64_t handle);

// A forked process has copies of its parent's lists, which are not its own to answer for: inherit() tells them from
// those that the process makes itself from then on.
void inherit();
std::uint32_t current_process();

// Calls visit(handle, block) for every list of this process that has not ended.
template <class Visit>
void for_each_live(Visit visit) {
  for (std::uint32_t number = 0; number < kSlotsMax; ++number) {
    const Slot *slot = find_slot(number);
    if (slot == nullptr) break;  // chunks are added in order
    void *block = slot->block.load(std::memory_order_acquire);
    if (block == nullptr || history_at(number).process.load(std::memory_order_relaxed) != current_process()) continue;
    const std::uint64_t generation = slot->generation.load(std::memory_order_relaxed);
    visit(generation << kGenerationShift | number, block);
  }
}

}  // namespace attrmgr::checked
