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
  Slot &slot = slot_at(number);
  const std::uint32_t generation = slot.generation.load(std::memory_order_relaxed) + 1;
  history_at(number).process.store(current_process(), std::memory_order_relaxed);
  slot.generation.store(generation, std::memory_order_relaxed);
  slot.block.store(block, std::memory_order_release);
  return std::uint64_t{generation} << kGenerationShift | number;
}

Verdict verdict_on(std::uint64_t handle) {
  const Slot *slot = find_slot(slot_of(handle));
  const std::uint32_t generation = generation_of(handle);
  const bool issued =
      slot != nullptr && generation != 0 && generation <= slot->generation.load(std::memory_order_relaxed);
  return issued ? Verdict::kWithdrawn : Verdict::kNeverIssued;
}

bool withdraw(std::uint64_t handle, const void *by) {
  void *block = live_block(handle);
  if (block == nullptr) return false;
  const std::uint32_t number = slot_of(handle);
  const std::uint32_t generation = generation_of(handle);
  history_at(number).withdrawn_by[generation % kWithdrawalsKept].store(by, std::memory_order_relaxed);
  // Two threads may free the same list at once: the slot is given back by one of them only.
  std::atomic<void *> &current = slot_at(number).block;
  if (!current.compare_exchange_strong(block, nullptr, std::memory_order_release, std::memory_order_relaxed))
    return false;
  if (generation != kGenerationMax) give_slot(number);
  return true;
}

const void *withdrawer(std::uint64_t handle) {
  const std::uint32_t number = slot_of(handle);
  const std::uint32_t generation = generation_of(handle);
  const auto &withdrawn_by = history_at(number).withdrawn_by[generation % kWithdrawalsKept];
  const void *by = withdrawn_by.load(std::memory_order_relaxed);
  const std::uint32_t age = slot_at(number).generation.load(std::memory_order_relaxed) - generation;
  return age < kWithdrawalsKept ? by : nullptr;
}

std::uint32_t current_process() { return process_number.load(std::memory_order_relaxed); }

void inherit() { process_number.fetch_add(1, std::memory_order_relaxed); }

}  // namespace attrmgr::checked
