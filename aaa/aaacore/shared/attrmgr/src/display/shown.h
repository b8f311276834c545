// What the displays show: a list's attributes but the hidden ones, numbered from 1, and the lists nested in them.
#pragma once

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/li_set.h"
#include "dictionary/type_table.h"

namespace attrmgr {

inline bool is_shown(ConstRecordView record) { return !hidden_from_display(record.type()); }

}  // namespace attrmgr
