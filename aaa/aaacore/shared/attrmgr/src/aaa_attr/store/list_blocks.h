// The blocks of a list: making a head, chaining a block, finding the last one, and what a head remembers of its list.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/views.h"

namespace attrmgr {

struct List {
  aaa_attr_list_handle handle = 0;
  BlockView head;
};

// Makes an empty list; owner is the code address on whose behalf. AAA_ATTR_ERR_NO_MEMORY: no block or no handle.
Error create_list(const void *owner, List *list);

// The same, and the new handle is looked up once: a list that the handle table refuses is released again.
Error create_checked_list(const void *owner, List *list);

// Allocates a block of max(512, size) bytes and chains it after last. Counts it in the head if one is given; a caller
// that gives none sets block count and tail itself. Null when memory is exhausted or the head counts 65,535 blocks.
[[nodiscard]] BlockView aaa_attr_list_add_block(BlockView head, BlockView last, std::size_t size);

// Frees a block. One that may hold a secret is overwritten first, so that the secret does not stay in memory.
void free_block(BlockView block);

// ---- What a block remembers of itself, and a head of its list ----

// Whether a block has any of the bits that layout.h names; setting and clearing them.
inline bool noted(BlockView block, std::uint32_t bits) { return (block.own_word() & bits) != 0; }

inline void note(BlockView block, std::uint32_t bits) { block.set_own_word(block.own_word() | bits); }

inline void rule_out(BlockView block, std::uint32_t bits) { block.set_own_word(block.own_word() & ~bits); }

// Marks a record of the list removed; its place comes back when the list is coalesced.
inline void remove_record(BlockView head, RecordView record) {
  record.mark_deleted();
  note(head, kMayNeedPacking);
}

// Remembers where the last block is. From the second block, not from the head, which is often of another thread, and
// so far away: one thread makes a list, another one fills it. Everything that changes a chain sets the hint.
void set_tail(BlockView head, BlockView last);

// The blocks are separate allocations: distances between them are those of addresses, not of pointers. Signed, since
// the last block may well lie below the second; 64 bits, so that no distance of a 32-bit host is too large.
inline std::int64_t address_of(BlockView block) {
  return static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(block.bytes()));
}

inline BlockView last_block(BlockView head) {
  const BlockView second = head.next();
  if (!second) return head;
  const auto distance = static_cast<std::int32_t>(head.own_word() & kTailHint);
  BlockView last(reinterpret_cast<std::byte *>(static_cast<std::uintptr_t>(address_of(second) + distance)));
  while (const BlockView next = last.next()) last = next;
  return last;
}

}  // namespace attrmgr

// The code address that called the exported function in which this stands.
#define ATTRMGR_CALLER __builtin_return_address(0)
