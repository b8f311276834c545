// Which records own a list, and which list.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// Of a Grouped type. Its value may yet be no handle: lengths in a received buffer are what the sender likes.
template <class Form>
inline bool is_grouped(BasicRecord<Form> record) {
  return (traits_of(record.type()) & kOwnsSubList) != 0;
}

// The handle that a Grouped record holds; 0, which names no list, for every other record.
inline aaa_attr_list_handle sub_list_of(RecordView record) {
  return is_grouped(record) && record.length() == kHandleSize ? load<aaa_attr_list_handle>(record.value()) : 0;
}

}  // namespace attrmgr
