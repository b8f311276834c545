// What the process registered.
#pragma once

#include <cstdint>

namespace attrmgr {

// The handle table's number for the id_ calls; 0 before registration.
std::uint16_t handle_table();

}  // namespace attrmgr
