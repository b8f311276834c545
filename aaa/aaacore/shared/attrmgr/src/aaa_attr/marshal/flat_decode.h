// Rebuilding a list from its flat form.
#pragma once

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {

// Decodes the flat form at bytes into a list that has just been made; sub-lists are made for owner. Bytes after the
// list are ignored; no bytes at all are an empty list. On failure the list owns what was built so far.
Error aaa_attr_buffer_blocks_to_list(const std::byte *bytes, std::uint32_t length, const List &list, const void *owner);

}  // namespace attrmgr
