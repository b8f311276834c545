// The one writer of new records: the length rules of the formats, and appending behind a list's last record. Used and
// free bytes, record count and the holds-grouped flag of a block move together here.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// An attribute as a caller hands it over.
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

inline std::uint32_t reported_length(RecordView record) {
  return reported_length(record.length(), format_of(record.type()));
}

// The attribute that a record holds, as adding it to another list takes it.
NewAttribute attribute_of(RecordView record);

// Checks what the arguments alone decide, in two steps, since the list is checked between them.
// Type and value: AAA_ATTR_ERR_NOT_FOUND for a type above 622, AAA_ATTR_ERR_BAD_ARG for no value.
[[nodiscard]] aaa_attr_cerrno check_presence(const NewAttribute &attribute);
// Length: AAA_ATTR_ERR_BAD_ARG where it does not suit the format or no block could hold the record.
[[nodiscard]] aaa_attr_cerrno check_length(const NewAttribute &attribute);

// Appends a checked attribute. AAA_ATTR_ERR_NO_MEMORY: no block could be chained; the list is unchanged.
[[nodiscard]] aaa_attr_cerrno append_record(BlockView head, const NewAttribute &attribute);

// All of it: checks the attribute and appends it to the list.
[[nodiscard]] aaa_attr_cerrno add_attribute(BlockView head, const NewAttribute &attribute);
[[nodiscard]] aaa_attr_cerrno add_attribute(aaa_attr_list_handle list, const NewAttribute &attribute);

}  // namespace attrmgr
