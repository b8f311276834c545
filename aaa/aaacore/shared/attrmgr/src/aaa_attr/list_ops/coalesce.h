// Dropping removed records for good.
#pragma once

#include "aaa_attr/result/error.h"

namespace attrmgr {

// Packs the live records of each block together, in place and in order, zeroes the space after them and frees chained
// blocks that are left without a record. Sub-lists stay as they are. Codes of the handle.
Error aaa_attr_list_coalesce(aaa_attr_list_handle list);

}  // namespace attrmgr
