#include "slot_table.h"

#include "free_slots.h"

namespace attrmgr::checked {

extern "C" {
constinit SlotTable attrmgr_checked_slots = {
    1, sizeof(Slot), offsetof(Slot, block), offsetof(Slot, generation), kSlotsPerChunk, kChunksMax, {}};
[[gnu::visibility("default"), gnu::alias("attrmgr_checked_slots")]] extern SlotTable attrmgr_checked_table;
}

namespace {

std::atomic<std::uint32_t> process_number{0};

}  // namespace

std::uint64_t issue(void *block) {
  const std::uint32_t number = take_slot();
  if (number == kNoSlot) return 0;
  Slot *slot = slot_at(number);
  const std::uint32_t generation = slot->generation.load(std::memory_order_relaxed) + 1;
  slot->process.store(current_process(), std::memory_order_relaxed);
  slot->generation.store(generation, std::memory_order_relaxed);
  slot->block.store(block, std::memory_order_release);
  return std::uint64_t{generation} << kGenerationShift | number;
}

Found withdraw(std::uint64_t handle, const void *by) {
  Found found = find(handle);
  if (found.verdict != Verdict::kLive) return found;
  Slot &slot = *found.slot;
  const std::uint32_t generation = generation_of(handle);
  slot.withdrawn_by[generation % kWithdrawalsKept].store(by, std::memory_order_relaxed);
  // Two threads may free the same list at once: the slot is given back by one of them only.
  void *block = found.block;
  if (!slot.block.compare_exchange_strong(block, nullptr, std::memory_order_release, std::memory_order_relaxed))
    return {found.slot, nullptr, Verdict::kWithdrawn};
  if (generation != kGenerationMax) give_slot(slot_of(handle));
  return found;
}

const void *withdrawer(const Slot &slot, std::uint64_t handle) {
  const std::uint32_t generation = generation_of(handle);
  const void *by = slot.withdrawn_by[generation % kWithdrawalsKept].load(std::memory_order_relaxed);
  const bool kept = slot.generation.load(std::memory_order_relaxed) - generation < kWithdrawalsKept;
  return kept ? by : nullptr;
}

std::uint32_t current_process() { return process_number.load(std::memory_order_relaxed); }

void inherit() { process_number.fetch_add(1, std::memory_order_relaxed); }

}  // namespace attrmgr::checked
