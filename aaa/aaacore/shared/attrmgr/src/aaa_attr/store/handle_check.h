// The one way from a list handle to the list's first block.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"

namespace attrmgr {

// Gives 0 and the head, or AAA_ATTR_ERR_BAD_LIST or AAA_ATTR_ERR_STALE_HANDLE.
[[nodiscard]] aaa_attr_cerrno resolve(aaa_attr_list_handle list, BlockView *head);

// resolve, and every further block carries the list magic too.
[[nodiscard]] aaa_attr_cerrno check_whole_list(aaa_attr_list_handle list);

}  // namespace attrmgr
