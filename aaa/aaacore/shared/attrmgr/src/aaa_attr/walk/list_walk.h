// Walks over a list in memory, as ranges:
//
//   for (BlockView block : Blocks(head))          its blocks
//   for (RecordView record : LiveRecords(head))   every record that is not removed; for what a list owns
//   for (RecordView record : Attributes(head))    the same, up to a record of type 0, where a client's walk ends
//   for (RecordView record : BlockRecords(block)) the live records of one block
//
// Records appended to the block that a walk stands in are not visited; removing the current record is safe.
#pragma once

#include "aaa_attr/store/views.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {

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

enum class WalkScope { kBlock, kList, kClient };

template <WalkScope kScope>
class RecordWalk {
 public:
  class Iterator {
   public:
    explicit Iterator(BlockView first) : block_(first), scan_(first) { find_live(); }
    RecordView operator*() const { return scan_.record(); }
    Iterator &operator++() {
      find_live();
      return *this;
    }
    bool operator!=(WalkEnd) const { return static_cast<bool>(block_); }

   private:
    void find_live() {
      for (;;) {
        while (scan_.next()) {
          const RecordView record = scan_.record();
          if (record.deleted()) continue;
          if (kScope == WalkScope::kClient && record.type() == 0) block_ = BlockView();
          return;
        }
        block_ = kScope == WalkScope::kBlock ? BlockView() : block_.next();
        if (!block_) return;
        scan_ = RecordScan(block_);
      }
    }

    BlockView block_;
    RecordScan scan_;
  };

  explicit RecordWalk(BlockView first) : first_(first) {}
  Iterator begin() const { return Iterator(first_); }
  WalkEnd end() const { return {}; }

 private:
  BlockView first_;
};

using BlockRecords = RecordWalk<WalkScope::kBlock>;
using LiveRecords = RecordWalk<WalkScope::kList>;
using Attributes = RecordWalk<WalkScope::kClient>;

}  // namespace attrmgr
