// The LI attribute types, and the flag that lets displays show them.
#pragma once

#include <cstdint>

namespace attrmgr {

bool is_li_type(std::uint32_t type);

// Whether a display leaves attributes of the type out.
bool hidden_from_display(std::uint32_t type);

}  // namespace attrmgr
