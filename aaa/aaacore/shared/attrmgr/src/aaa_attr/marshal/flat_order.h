// The order in which a list's blocks lie in its flat form: each block, then the nested lists of the live Grouped
// records of that block, in record order, to any depth. Measuring, writing and the gather list all walk it here.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/blocks.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {

// Calls visit(block) for every block. Stops with the first code other than 0 that visit gives, with the codes of the
// handles, or with AAA_ATTR_ERR_BAD_FORMAT at a Grouped record whose value is not a handle.
template <class Visit>
[[nodiscard]] aaa_attr_cerrno for_each_flat_block(BlockView head, Visit &visit) {
  for (const BlockView block : Blocks(head)) {
    if (const aaa_attr_cerrno code = visit(block)) return code;
    if (!block.has(kBlockHoldsGrouped)) continue;
    for (RecordScan scan(block); scan.next();) {
      const RecordView record = scan.record();
      if (record.deleted() || !is_grouped(record)) continue;
      if (record.length() != kHandleSize) return AAA_ATTR_ERR_BAD_FORMAT;
      const Resolved sub_list = resolve(sub_list_of(record));
      if (sub_list.code != 0) return sub_list.code;
      if (const aaa_attr_cerrno code = for_each_flat_block(sub_list.head, visit)) return code;
    }
  }
  return 0;
}

template <class Visit>
[[nodiscard]] aaa_attr_cerrno for_each_flat_block(aaa_attr_list_handle list, Visit &visit) {
  const Resolved resolved = resolve(list);
  return resolved.code == 0 ? for_each_flat_block(resolved.head, visit) : resolved.code;
}

}  // namespace attrmgr
