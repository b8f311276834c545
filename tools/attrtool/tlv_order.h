// TLV buffers of a host of the other byte order. The library reads those of its own host alone: the numbers of the
// framing, of metas and of the formats that hold a number are turned round here, where they lie.
#pragma once

#include "byte_span.h"

namespace attrtool {

// Whether the total of a TLV buffer makes more sense when it is turned round.
bool is_tlv_of_other_order(ByteSpan bytes);

enum class TlvOrder { kToHost, kFromHost };

// Turns the numbers where they lie, as far as the lengths of the buffer add up: what refuses it then is what would have
// refused it where it was made, at the same byte.
void turn_tlv(std::span<std::uint8_t> bytes, TlvOrder order);

}  // namespace attrtool
