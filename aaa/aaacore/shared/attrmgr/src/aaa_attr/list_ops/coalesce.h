// Dropping removed records for good.
#pragma once

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {

// The list whether or not there is anything to do.
void pack_and_clear(BlockView head);

// Packs the live records of each block together, in place and in order, zeroes the space after them and frees chained
// blocks that are left without a record. Sub-lists stay as they are. A client that asks for the size of a buffer and
// then for its bytes coalesces twice; the second time there is nothing to do, nor to call.
inline void coalesce(BlockView head) {
  if ((head.own_word() & (kMayNeedPacking | kTailsAreClear)) != kTailsAreClear) pack_and_clear(head);
}

// The same for a handle, with its codes.
inline Error aaa_attr_list_coalesce(aaa_attr_list_handle list) {
  const auto [head, error] = resolve(list);
  if (!error) coalesce(head);
  return error;
}

}  // namespace attrmgr
