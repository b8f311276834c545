// What the process registered.
#pragma once

#include <cstdint>

namespace attrmgr {

// The handle table's number for the id_ calls; 0 before registration.
extern std::uint16_t handle_table_number;
inline std::uint16_t handle_table() { return handle_table_number; }

}  // namespace attrmgr
