// The one writer of new records, after a list's last one. Used and free bytes, record count and flags of a block, and
// what the head remembers of the list, move together here. It is inline: this is what every list is built with, and a
// record takes no longer to write than the calls to get here.
#pragma once

#include <cstdint>
#include <cstring>

#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/new_record.h"
#include "aaa_attr/store/value_bytes.h"

namespace attrmgr {

// A list and where it ends. A loop that appends keeps one: finding the last block again may mean walking the chain.
struct ListEnd {
  BlockView head;
  BlockView last;

  ListEnd() = default;
  explicit ListEnd(BlockView list) : head(list), last(last_block(list)) {}
};

// What few types mean to the list that takes one in.
inline void note_type(const ListEnd &list, std::uint8_t type_traits) {
  if ((type_traits & kOwnsSubList) != 0) {
    BlockView block = list.last;
    block.add_flags(kBlockHoldsGrouped);
  }
  if ((type_traits & kHoldsSecret) != 0) note(list.last, kMayHoldSecret);
  if ((type_traits & kEndsWalk) != 0) note(list.head, kMayHoldTypeZero);
}

// Writes a checked attribute after the last record of the list's last block, which has room for it.
inline void write_record(const ListEnd &list, const NewAttribute &attribute, const NewRecord &measured) {
  BlockView block = list.last;
  const std::uint16_t used = block.used();
  block.set_used(static_cast<std::uint16_t>(used + measured.size));
  block.set_free_bytes(static_cast<std::uint16_t>(block.free_bytes() - measured.size));
  block.set_record_count(static_cast<std::uint16_t>(block.record_count() + 1));
  const std::uint8_t traits = traits_of(attribute.type);
  if ((traits & ~kEndsInNul) != 0) [[unlikely]]
    note_type(list, traits);

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
  copy_value(value, static_cast<const std::byte *>(attribute.value), attribute.length);
}

// Appends a checked attribute. AAA_ATTR_ERR_NO_MEMORY: no block could be chained; the list is unchanged.
inline Error append_checked(ListEnd &list, const NewAttribute &attribute, const NewRecord &record) {
  if (record.size > list.last.free_bytes()) [[unlikely]] {
    const auto size = static_cast<std::size_t>(record.size) + kHeaderSize;
    const BlockView block = aaa_attr_list_add_block(list.head, list.last, size);
    if (!block) return AAA_ATTR_ERR_NO_MEMORY;
    list.last = block;
  }
  write_record(list, attribute, record);
  return 0;
}

// Checks the attribute and appends it.
inline Error append(ListEnd &list, const NewAttribute &attribute) {
  if (const Error error = check_presence(attribute)) return error;
  const NewRecord record = measure(attribute);
  if (const Error error = check_length(attribute, record)) return error;
  return append_checked(list, attribute, record);
}

}  // namespace attrmgr
