// Replacing the first attribute of a type.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/list_ops/type_index.h"
#include "aaa_attr/store/append.h"

namespace attrmgr {

// What becomes of the found record when the new attribute's meta differs from its own.
enum class OnOtherMeta {
  kAddAlongside,  // it stays
  kSupersede,     // it is removed
};

// With an index of the list, the record is looked up in the index, which then learns of what was added.
Error add_or_replace(ListEnd &list, NewAttribute attribute, OnOtherMeta on_other_meta, TypeIndex *index = nullptr);

}  // namespace attrmgr
