// Whether a list of this process, made by this copy of the library, may hold a record of type 0, at which a client's
// walk ends. It never happens in earnest; until it does, who looks for something else may pass over blocks without
// looking for that too.
#pragma once

#include <atomic>

namespace attrmgr {

inline constinit std::atomic<bool> type_zero_seen{false};

// Called by whoever puts a record of type 0 into a list.
inline void note_type_zero() { type_zero_seen.store(true, std::memory_order_relaxed); }

inline bool may_meet_type_zero() { return type_zero_seen.load(std::memory_order_relaxed); }

}  // namespace attrmgr
