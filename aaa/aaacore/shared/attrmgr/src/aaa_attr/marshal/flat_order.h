// The order in which a list's blocks lie in its flat form: each block, then the nested lists of the live Grouped
// records of that block, in record order, to any depth. Measuring, writing and the gather list all walk it here.
#pragma once

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// Calls visit(block) for every block. Stops with the first code other than 0 that visit gives, with the codes of the
// handles, or with AAA_ATTR_ERR_BAD_FORMAT at a Grouped record whose value is not a handle.
template <class Visit>
[[nodiscard]] aaa_attr_cerrno for_each_flat_block(aaa_attr_list_handle list, Visit &visit) {
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  for (const BlockView block : Blocks(head)) {
    if (const aaa_attr_cerrno code = visit(block)) return code;
    if (!block.has(kBlockHoldsGrouped)) continue;
    for (const RecordView record : BlockRecords(block)) {
      if (format_of(record.type()) != AAA_ATTR_FMT_GROUPED) continue;
      if (record.length() != kHandleSize) return AAA_ATTR_ERR_BAD_FORMAT;
      const auto sub_list = load<aaa_attr_list_handle>(record.value());
      if (const aaa_attr_cerrno code = for_each_flat_block(sub_list, visit)) return code;
    }
  }
  return 0;
}

}  // namespace attrmgr
