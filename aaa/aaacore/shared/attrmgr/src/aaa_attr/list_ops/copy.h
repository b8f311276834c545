// Deep copies of lists.
#pragma once

#include "aaa_attr/result/error.h"

namespace attrmgr {

// aaa_attr_list_copy on behalf of owner. *copy is written on success only.
Error copy_list(aaa_attr_list_handle source, const void *owner, aaa_attr_list_handle *copy);

}  // namespace attrmgr
