// Bytes that somebody else holds.
#pragma once

#include <cstdint>
#include <span>

namespace attrtool {

using ByteSpan = std::span<const std::uint8_t>;

}  // namespace attrtool
