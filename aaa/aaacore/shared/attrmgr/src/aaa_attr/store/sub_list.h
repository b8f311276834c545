// Which records own a list, and which list; nothing else asks for the type or for the length of the handle. A
// record of a Grouped type owns the list whose handle is its value, and is that list's only owner.
#pragma once

#include <cstring>

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/views.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// Of a Grouped type. The value need not be a handle: in a received buffer it may have any length.
template <class Form, class Byte>
bool is_grouped(BasicRecord<Form, Byte> record) {
  return (traits_of(record.type()) & kOwnsSubList) != 0;
}

// Grouped, with a value of a handle's length. The handle may be 0: then there is no list.
template <class Form, class Byte>
bool holds_handle(BasicRecord<Form, Byte> record) {
  return is_grouped(record) && record.length() == kHandleSize;
}

// The list that the record owns; 0, which names none, for every record that owns none.
inline aaa_attr_list_handle owned_list(ConstRecordView record) {
  return holds_handle(record) ? load<aaa_attr_list_handle>(record.value()) : 0;
}

// Makes the list the record's. Only for one that holds a handle.
inline void set_owned_list(RecordView record, aaa_attr_list_handle list) { store(record.value(), list); }

// Forgets what a Grouped record of a buffer names: it means nothing in this process, whatever its length.
inline void forget_handle(RecordView record) {
  if (is_grouped(record)) std::memset(record.value(), 0, record.length());
}

// The list that a new Grouped attribute would own.
inline aaa_attr_list_handle list_in(const NewAttribute &attribute) {
  return load<aaa_attr_list_handle>(static_cast<const std::byte *>(attribute.value));
}

}  // namespace attrmgr
