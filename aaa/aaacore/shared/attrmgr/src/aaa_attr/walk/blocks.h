// The walk over the blocks of a list:
//
//   for (BlockView block : Blocks(head))
#pragma once

#include "aaa_attr/store/views.h"

namespace attrmgr {

// What a range-based for over a walk ends with.
struct WalkEnd {};

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

// The records of a list, removed ones included: no walk finds more.
inline std::uint32_t count_records(BlockView head) {
  std::uint32_t records = 0;
  for (const BlockView block : Blocks(head)) records += block.record_count();
  return records;
}

}  // namespace attrmgr
