// The order in which a list's blocks lie in its flat form: each block, then the nested lists of the live Grouped
// records of that block, in record order, to any depth. Measuring, writing and the gather list all walk it here.
#pragma once

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {

// Calls visit(block) for every block of the list that begins with the head. Stops with the first error that visit
// gives, with the codes of the handles, or with AAA_ATTR_ERR_BAD_FORMAT at a Grouped record whose value is not a
// handle.
template <class Visit>
Error for_each_flat_block(BlockView head, Visit &visit) {
  for (const BlockView block : Blocks(head)) {
    if (const Error error = visit(block)) return error;
    if (!block.has(kBlockHoldsGrouped)) continue;
    for (RecordScan scan(block); scan.next();) {
      const RecordView record = scan.record();
      if (!is_grouped(record) || record.deleted()) continue;
      if (!holds_handle(record)) return AAA_ATTR_ERR_BAD_FORMAT;
      const auto [owned, refused] = resolve(owned_list(record));
      if (refused) return refused;
      // Most have one block that owns nothing: no call is needed.
      const bool alone = !owned.next() && !owned.has(kBlockHoldsGrouped);
      if (const Error error = alone ? visit(owned) : for_each_flat_block(owned, visit)) return error;
    }
  }
  return 0;
}

template <class Visit>
Error for_each_flat_block(aaa_attr_list_handle list, Visit &visit) {
  const auto [head, refused] = resolve(list);
  return refused ? refused : for_each_flat_block(head, visit);
}

}  // namespace attrmgr
