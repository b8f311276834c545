// What a new attribute must be like, and how large a record it becomes.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/attribute.h"
#include "dictionary/format_rules.h"
#include "dictionary/type_table.h"

namespace attrmgr {

struct NewRecord {
  bool is_grouped() const { return format == AAA_ATTR_FMT_GROUPED; }

  std::uint32_t format;
  std::uint32_t nul;   // bytes of it after the value: 1 or 0
  std::uint64_t size;  // the whole record
};

// For a type of the dictionary.
inline NewRecord measure(const NewAttribute &attribute) {
  const std::uint32_t format = kFormats[attribute.type];
  static_assert(kEndsInNul == 1);
  const std::uint32_t nul = kTypeTraits[attribute.type] & kEndsInNul;
  const std::size_t meta_size = attribute.meta != nullptr ? kMetaSize : 0;
  return {format, nul, kRecordHeaderSize + meta_size + std::uint64_t{attribute.length} + nul};
}

// Checks what the arguments alone decide, in two steps, since the list is checked between them.
// Type and value: AAA_ATTR_ERR_NOT_FOUND for a number that is no type, AAA_ATTR_ERR_BAD_ARG for no value.
inline Error check_presence(const NewAttribute &attribute) {
  if (attribute.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
  return attribute.value == nullptr || attribute.length == 0 ? AAA_ATTR_ERR_BAD_ARG : 0;
}

// Length: AAA_ATTR_ERR_BAD_ARG where it does not suit the format or no block could hold the record.
inline Error check_length(const NewAttribute &attribute, const NewRecord &record) {
  const bool suits = kFormatRules.suits(record.format, attribute.length);
  return suits && record.size <= kBlockSizeMax - kHeaderSize ? 0 : AAA_ATTR_ERR_BAD_ARG;
}

}  // namespace attrmgr
