// Constants for the types that the code treats in a way of their own, from known_types.def.
#pragma once

#include <cstdint>

namespace attrmgr {

#define KNOWN(constant, type, name) inline constexpr std::uint32_t constant = type;
#include "dictionary/known_types.def"
#undef KNOWN

}  // namespace attrmgr
