// The uses of handles that name no list, counted by caller.
#pragma once

#include <cstdint>
#include <vector>

#include "slot_table.h"

namespace attrmgr::checked {

struct Misuse {
  Verdict verdict;               // kWithdrawn or kNeverIssued
  const void *calls[kCallsMax];  // where the handle was first used, and what called that
  const void *withdrawn_by;      // where its list ended; null when it is not known, or there was none
  std::uint64_t handle;          // of the first use
  std::uint64_t uses;
};

void note_misuse(const Misuse &misuse);

// Most uses first. *others: uses that there was no room to keep apart.
std::vector<Misuse> misuses(std::uint64_t *others);

// In a forked process: what happened before the fork is the parent's to tell.
void forget_misuses();

// Around a fork.
void lock_misuses();
void unlock_misuses();

}  // namespace attrmgr::checked
