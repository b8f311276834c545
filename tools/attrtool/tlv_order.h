// TLV buffers of a host of the other byte order. The library reads those of its own host alone: the numbers of the
// framing, of metas and of the formats that hold a number are turned round here, where they lie.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "capture.h"

namespace attrtool {

// Whether the total of a TLV buffer makes more sense when it is turned round.
bool is_tlv_of_other_order(ByteSpan bytes);

enum class TlvOrder { kToHost, kFromHost };

// AAA_ATTR_ERR_BAD_LENGTH where the lengths do not add up or lists nest too deep; the buffer is unchanged then.
[[nodiscard]] aaa_attr_cerrno reorder_tlv(std::vector<std::uint8_t> *bytes, TlvOrder order);

}  // namespace attrtool
