// The blocks of a list: making a head, chaining a block, finding the last one, going over all.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"

namespace attrmgr {

struct List {
  aaa_attr_list_handle handle = 0;
  BlockView head;
};

// Makes an empty list; owner is the code address on whose behalf. AAA_ATTR_ERR_NO_MEMORY: no block or no handle.
[[nodiscard]] aaa_attr_cerrno create_list(const void *owner, List *list);

// The same, and the new handle is looked up once: a list that the handle table refuses is released again.
[[nodiscard]] aaa_attr_cerrno create_checked_list(const void *owner, List *list);

// Allocates a block of max(512, size) bytes and chains it behind last. Counts it in the head if one is given; a caller
// that gives none sets block count and tail itself. Null when memory is exhausted or the head counts 65,535 blocks.
[[nodiscard]] BlockView aaa_attr_list_add_block(BlockView head, BlockView last, std::size_t size);

// The head remembers where the last block is, as a hint in its reserved word: the distance from the second block, in
// units of what malloc aligns to; 0 when it is too long. Not from the head, which is often of another thread, and so
// far away: one thread makes a list, another one fills it. Everything that changes a chain sets the hint.
void set_tail(BlockView head, BlockView last);

inline constexpr std::intptr_t kTailUnit = 16;

// The blocks are separate allocations: distances between them are those of addresses, not of pointers.
inline std::intptr_t address_of(BlockView block) { return reinterpret_cast<std::intptr_t>(block.bytes()); }

inline BlockView last_block(BlockView head) {
  const BlockView second = head.next();
  if (!second) return head;
  BlockView last(reinterpret_cast<std::byte *>(address_of(second) + head.reserved() * kTailUnit));
  while (const BlockView next = last.next()) last = next;
  return last;
}

// What a range-based for over a walk ends with.
struct WalkEnd {};

// for (BlockView block : Blocks(head))
class Blocks {
 public:
  class Iterator {
   public:
    explicit Iterator(BlockView block) : block_(block) {}
    BlockView operator*() const { return block_; }
    Iterator &operator++() {
      block_ = block_.next();
      return *this;
    }
    bool operator!=(WalkEnd) const { return static_cast<bool>(block_); }

   private:
    BlockView block_;
  };

  explicit Blocks(BlockView head) : head_(head) {}
  Iterator begin() const { return Iterator(head_); }
  WalkEnd end() const { return {}; }

 private:
  BlockView head_;
};

}  // namespace attrmgr

// The code address that called the exported function in which this stands.
#define ATTRMGR_CALLER __builtin_return_address(0)
