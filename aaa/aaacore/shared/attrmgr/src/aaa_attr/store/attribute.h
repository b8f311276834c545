// An attribute between a caller and a record: as it is handed over, and as a record's is handed on.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/store/views.h"
#include "dictionary/type_table.h"

namespace attrmgr {

struct NewAttribute {
  std::uint32_t type;
  const void *value;
  std::uint32_t length;
  const void *meta;  // kMetaSize bytes, or null
  std::uint32_t client_type;
};

// The length under which a value is reported, compared and handed on: without the NUL of a String.
inline std::uint32_t reported_length(std::uint32_t stored_length, std::uint32_t format) {
  return format == AAA_ATTR_FMT_STRING && stored_length > 0 ? stored_length - 1 : stored_length;
}

inline std::uint32_t reported_length(ConstRecordView record) {
  return reported_length(record.length(), format_of(record.type()));
}

// The attribute that a record holds, as adding it to another list takes it.
inline NewAttribute attribute_of(ConstRecordView record) {
  return {record.type(), record.value(), reported_length(record), record.has_meta() ? record.meta_bytes() : nullptr,
          record.client_type()};
}

}  // namespace attrmgr
