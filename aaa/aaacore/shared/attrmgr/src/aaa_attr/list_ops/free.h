// Freeing a list with everything it owns.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"

namespace attrmgr {

// aaa_attr_list_free.
void free_list(aaa_attr_list_handle list);

// Frees a list whose sub-lists belong to someone else.
void free_without_sub_lists(aaa_attr_list_handle list, BlockView head);

}  // namespace attrmgr
