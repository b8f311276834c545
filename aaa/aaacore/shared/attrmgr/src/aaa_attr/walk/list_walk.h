// Walks over the records of a list in memory, as ranges:
//
//   for (RecordView record : LiveRecords(head))   every record that is not removed; for what a list owns
//   for (RecordView record : Attributes(head))    the same, up to a record of type 0, where a client's walk ends
//   for (RecordView record : BlockRecords(block)) the live records of one block
//
// Records appended to the block that a walk stands in are not visited; removing the current record is safe.
#pragma once

#include "aaa_attr/store/views.h"
#include "aaa_attr/walk/blocks.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {

enum class WalkScope { kBlock, kList, kClient };

template <WalkScope kScope>
class RecordWalk {
 public:
  class Iterator {
   public:
    explicit Iterator(BlockView first) : block_(first), scan_(first) { ++*this; }
    RecordView operator*() const { return record_; }  // null at the end
    bool operator!=(WalkEnd) const { return static_cast<bool>(record_); }

    Iterator &operator++() {
      record_ = next_live();
      if (kScope == WalkScope::kClient && record_ && record_.type() == 0) record_ = {};
      return *this;
    }

   private:
    RecordView next_live() {
      for (;;) {
        while (scan_.next())
          if (!scan_.record().deleted()) return scan_.record();
        block_ = kScope == WalkScope::kBlock ? BlockView() : block_.next();
        if (!block_) return {};
        scan_ = RecordScan(block_);
      }
    }

    BlockView block_;
    RecordScan scan_;
    RecordView record_;
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
