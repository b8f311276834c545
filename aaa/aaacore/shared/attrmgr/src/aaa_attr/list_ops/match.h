// When the values of two attributes are the same: reported length, and the bytes over it.
#pragma once

#include <cstring>

#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/value_bytes.h"

namespace attrmgr {

inline bool holds_value(RecordView record, const void *value, std::uint32_t length) {
  return reported_length(record) == length && (length == 0 || std::memcmp(record.value(), value, length) == 0);
}

// For records of one type.
inline bool same_value(RecordView a, RecordView b) {
  if (a.length() == b.length()) return same_value_bytes(a.value(), b.value(), a.length());
  return holds_value(a, b.value(), reported_length(b));
}

}  // namespace attrmgr
