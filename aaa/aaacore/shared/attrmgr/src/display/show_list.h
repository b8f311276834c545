// The walk under every display of a list: its attributes but the hidden ones, numbered from 1, and after an attribute
// that holds a list, that list in the same way. A display is a class with these functions:
//
//   void bad_list(handle)               the handle names no list
//   void begin(handle)                  of the list, before its attributes
//   void attribute(record, number)
//   void begin_nested(handle)           before the list that the last attribute holds, and after it
//   void end_nested(handle)
//   bool full() const                   nothing more can be shown: the walk may stop
#pragma once

#include <cstdint>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/li_set.h"

namespace attrmgr {

template <class Display>
void show_list(aaa_attr_list_handle list, Display &display) {
  const auto [head, error] = resolve(list);
  if (error) return display.bad_list(list);
  display.begin(list);
  std::uint64_t number = 0;
  for (const RecordView record : Attributes(head)) {
    if (display.full()) return;
    if (hidden_from_display(record.type())) continue;
    display.attribute(record, ++number);
    if (!holds_handle(record) || display.full()) continue;
    display.begin_nested(owned_list(record));
    show_list(owned_list(record), display);
    display.end_nested(owned_list(record));
  }
}

}  // namespace attrmgr
