// Removals that other operations build on.
#pragma once

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/views.h"

namespace attrmgr {

// aaa_attr_list_remove_list.
Error remove_types_of(aaa_attr_list_handle list, aaa_attr_list_handle types_from);

// Removes a record of the list and, if it is Grouped, releases its sub-list.
void remove_with_sub_list(BlockView head, RecordView record);

}  // namespace attrmgr
