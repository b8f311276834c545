// Whether the handle table in use is the library's own.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_platform.h>

namespace attrmgr {

using IdToPtr = decltype(id_to_ptr);
extern IdToPtr *const kOwnIdToPtr;

// True where no process has put its own table in the place of this one, in which a handle is an address. Then there is
// nothing to call: every operation begins with a handle.
inline bool handles_are_addresses() { return id_to_ptr == kOwnIdToPtr; }

}  // namespace attrmgr
