// The handle table in use: its number, and whether it is the library's own.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_platform.h>

namespace attrmgr {

using IdToPtr = decltype(id_to_ptr);
extern IdToPtr *const kOwnIdToPtr;

// True where the process has not put its own table in the place of this one (replaceable.h).
inline bool handles_are_addresses() { return id_to_ptr == kOwnIdToPtr; }

// The address that such a handle is; null for one that is wider than an address, which names nothing.
inline void *as_address(std::uint64_t handle) {
  const auto address = static_cast<std::uintptr_t>(handle);
  return address == handle ? reinterpret_cast<void *>(address) : nullptr;
}

// The table's number for the id_ calls; 0 before the client process has registered.
extern std::uint16_t handle_table_number;
inline std::uint16_t handle_table() { return handle_table_number; }

}  // namespace attrmgr
