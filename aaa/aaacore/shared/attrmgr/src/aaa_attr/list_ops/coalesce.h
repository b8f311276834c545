// Dropping removed records for good.
#pragma once

#include <attrmgr/aaa_attr_types.h>

namespace attrmgr {

// Packs the live records of each block together, in place and in order, zeroes the space after them and frees chained
// blocks that are left without a record. Sub-lists stay as they are. Codes of the handle.
[[nodiscard]] aaa_attr_cerrno aaa_attr_list_coalesce(aaa_attr_list_handle list);

}  // namespace attrmgr
