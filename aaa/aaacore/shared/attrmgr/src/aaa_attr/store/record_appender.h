// The one writer of new records: the length rules of the formats, and appending behind a list's last record. Used and
// free bytes, record count and the holds-grouped flag of a block move together here. All of it is inline: this is what
// every list is built with, and a record takes no longer to write than the calls to get here.
#pragma once

#include <cstdint>
#include <cstring>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/type_zero.h"
#include "aaa_attr/store/views.h"
#include "dictionary/format_rules.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// The record that an attribute becomes, measured.
struct NewRecord {
  std::uint32_t format;
  std::uint32_t nul;   // bytes of it behind the value: 1 or 0
  std::uint64_t size;  // the whole record
};

// For a type of the dictionary.
inline NewRecord measure(const NewAttribute &attribute) {
  const std::uint32_t format = kFormats[attribute.type];
  const std::uint32_t nul = kFormatRules.nul(format);
  const std::size_t meta_size = attribute.meta != nullptr ? kMetaSize : 0;
  return {format, nul, kRecordHeaderSize + meta_size + std::uint64_t{attribute.length} + nul};
}

// Checks what the arguments alone decide, in two steps, since the list is checked between them.
// Type and value: AAA_ATTR_ERR_NOT_FOUND for a type above 622, AAA_ATTR_ERR_BAD_ARG for no value.
[[nodiscard]] inline aaa_attr_cerrno check_presence(const NewAttribute &attribute) {
  if (attribute.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
  return attribute.value == nullptr || attribute.length == 0 ? AAA_ATTR_ERR_BAD_ARG : 0;
}

// Length: AAA_ATTR_ERR_BAD_ARG where it does not suit the format or no block could hold the record.
[[nodiscard]] inline aaa_attr_cerrno check_length(const NewAttribute &attribute, const NewRecord &record) {
  const bool suits = kFormatRules.suits(record.format, attribute.length);
  return suits && record.size <= kBlockSizeMax - kHeaderSize ? 0 : AAA_ATTR_ERR_BAD_ARG;
}

// Copies a value and returns 0, the code of what ends with it: so the call for a long one is a jump. Numbers and
// addresses, two attributes of three, need no call.
aaa_attr_cerrno copy_long_value(std::byte *to, const void *from, std::size_t length);

inline aaa_attr_cerrno copy_value(std::byte *to, const void *from, std::size_t length) {
  constexpr std::size_t kUsual = 4;
  if (length != kUsual) return copy_long_value(to, from, length);
  std::memcpy(to, from, kUsual);
  return 0;
}

// Writes a checked attribute behind the last record of a block that has room for it. Returns 0.
inline aaa_attr_cerrno write_record(BlockView block, const NewAttribute &attribute, const NewRecord &measured) {
  const std::uint16_t used = block.used();
  block.set_used(static_cast<std::uint16_t>(used + measured.size));
  block.set_free_bytes(static_cast<std::uint16_t>(block.free_bytes() - measured.size));
  block.set_record_count(static_cast<std::uint16_t>(block.record_count() + 1));
  if (measured.format == AAA_ATTR_FMT_GROUPED) block.add_flags(kBlockHoldsGrouped);
  if (attribute.type == 0) note_type_zero();

  std::byte *const at = block.bytes() + used;
  RecordView record(at);
  const std::uint32_t flags = (attribute.client_type & kClientTypeMax) << kClientTypeShift;
  record.set_type(static_cast<std::uint16_t>(attribute.type));
  record.set_flags(static_cast<std::uint16_t>(flags | (attribute.meta != nullptr ? kRecordHasMeta : 0)));
  record.set_length(attribute.length + measured.nul);
  std::byte *value = at + kRecordHeaderSize;
  if (attribute.meta != nullptr) {
    std::memcpy(value, attribute.meta, kMetaSize);
    value += kMetaSize;
  }
  // The last byte is the NUL, or else is overwritten at once: a branch here would often be guessed wrong.
  value[attribute.length + measured.nul - 1] = std::byte{0};
  return copy_value(value, attribute.value, attribute.length);
}

// The rare half of append_record. An attribute handed over by reference would have to lie in memory on the usual way,
// too: it is handed over in its parts, in registers.
[[nodiscard]] aaa_attr_cerrno append_to_new_block(BlockView head, std::uint32_t type, const void *value,
                                                  std::uint32_t length, const void *meta, std::uint32_t client_type);

// Appends a checked attribute. AAA_ATTR_ERR_NO_MEMORY: no block could be chained; the list is unchanged.
[[nodiscard]] inline aaa_attr_cerrno append_record(BlockView head, const NewAttribute &attribute,
                                                   const NewRecord &record) {
  const BlockView block = last_block(head);
  if (record.size > block.free_bytes())
    return append_to_new_block(head, attribute.type, attribute.value, attribute.length, attribute.meta,
                               attribute.client_type);
  return write_record(block, attribute, record);
}

// All of it: checks the attribute and appends it to the list.
[[nodiscard]] inline aaa_attr_cerrno add_attribute(BlockView head, const NewAttribute &attribute) {
  if (const aaa_attr_cerrno code = check_presence(attribute)) return code;
  const NewRecord record = measure(attribute);
  if (const aaa_attr_cerrno code = check_length(attribute, record)) return code;
  return append_record(head, attribute, record);
}

// The rare half of the next one: the handle has to be looked up.
[[nodiscard]] aaa_attr_cerrno add_to_looked_up(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                               std::uint32_t length, const void *meta, std::uint32_t client_type);

[[nodiscard]] inline aaa_attr_cerrno add_attribute(aaa_attr_list_handle list, const NewAttribute &attribute) {
  if (const aaa_attr_cerrno code = check_presence(attribute)) return code;
  const BlockView head = head_at(list);
  if (head) return add_attribute(head, attribute);
  return add_to_looked_up(list, attribute.type, attribute.value, attribute.length, attribute.meta,
                          attribute.client_type);
}

}  // namespace attrmgr
