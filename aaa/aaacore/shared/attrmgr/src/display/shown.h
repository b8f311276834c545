// What the displays show: a list's attributes but the hidden ones, numbered from 1, and the lists nested in them.
#pragma once

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/li_set.h"
#include "dictionary/type_table.h"

namespace attrmgr {

inline bool is_shown(RecordView record) { return !hidden_from_display(record.type()); }

// Whether a list is nested in the record, and its handle.
inline bool nests_list(RecordView record, aaa_attr_list_handle *sub_list) {
  if (format_of(record.type()) != AAA_ATTR_FMT_GROUPED || record.length() != kHandleSize) return false;
  *sub_list = load<aaa_attr_list_handle>(record.value());
  return true;
}

}  // namespace attrmgr
