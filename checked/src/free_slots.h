// Slots that name no list. Each thread has a queue of its own, so that making and freeing a list takes no lock; what is
// too much there, and what a thread leaves behind when it ends, goes to a queue that all threads share.
//
// A slot rests in its queue before it is used again: the longer it does, the longer it is known which call ended the
// list that a stale handle named.
#pragma once

#include <cstdint>

namespace attrmgr::checked {

inline constexpr std::uint32_t kNoSlot = 0xFFFFFFFF;

// A slot to issue a handle from; kNoSlot when there is none, or no memory for more.
std::uint32_t take_slot();

// A slot whose list is gone.
void give_slot(std::uint32_t slot);

// Around a fork, which may happen while another thread has the shared queue locked.
void lock_free_slots();
void unlock_free_slots();

}  // namespace attrmgr::checked
