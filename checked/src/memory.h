// Reading memory that may not be there, or may go away meanwhile.
#pragma once

#include <cstddef>
#include <cstdint>

namespace attrmgr::checked {

// False when not all of it can be read.
bool read_memory(std::uint64_t address, void *to, std::size_t size);

}  // namespace attrmgr::checked
