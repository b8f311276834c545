// Rebuilding a list from a TLV buffer.
#pragma once

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/views.h"

namespace attrmgr {

// Adds the attributes of a TLV body (total and records) to the list; sub-lists are made for owner. Bytes after the
// body are ignored. On failure the list owns what was built so far.
Error aaa_attr_tlv_buffer_to_list(const std::byte *bytes, std::uint64_t length, BlockView list, const void *owner);

}  // namespace attrmgr
