// The records of one type in a list:
//
//   for (RecordView record : RecordsOfType(head, type))   those of Attributes(head) that have the type
//
// A block of many records is walked only when a vector search has found the two bytes of the type somewhere in it. The
// search is a filter: it looks at values too, and a match there, or in bytes of a meta, costs a walk and changes no
// answer.
#pragma once

#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {

// The block or, from it on, the next one in which the walk might find a record of the type. Null when there is none.
BlockView next_to_walk(BlockView block, std::uint16_t type);

struct Place {
  BlockView block;
  RecordView record;
};

class RecordsOfType {
 public:
  class Iterator {
   public:
    Iterator() = default;  // at the end
    Iterator(BlockView head, std::uint16_t type) : type_(type), searches_(!noted(head, kMayHoldTypeZero)) {
      if (enter(head)) ++*this;
    }
    // From a place in the list on; its record may have been removed meanwhile.
    Iterator(BlockView head, Place place, std::uint16_t type)
        : type_(type),
          searches_(!noted(head, kMayHoldTypeZero)),
          block_(place.block),
          scan_(place.record.bytes() + place.record.size(), place.block.end(), kUncounted),
          record_(place.record) {
      if (record_.deleted()) ++*this;
    }

    Place place() const { return {block_, record_}; }
    RecordView operator*() const { return record_; }  // null at the end
    bool operator!=(WalkEnd) const { return static_cast<bool>(record_); }

    Iterator &operator++() {
      do {
        while (scan_.next_of(type_)) {
          record_ = scan_.record();
          if (record_.deleted()) continue;
          if (record_.type() == 0) record_ = {};
          return *this;
        }
      } while (enter(block_.next()));
      record_ = {};
      return *this;
    }

   private:
    // How many records come after a place is not known; where they end is.
    static constexpr std::uint16_t kUncounted = 0xFFFF;

    bool enter(BlockView block) {
      block_ = block && searches_ ? next_to_walk(block, type_) : block;
      if (block_) scan_ = RecordScan(block_);
      return static_cast<bool>(block_);
    }

    std::uint16_t type_ = 0;
    bool searches_ = false;  // no record of type 0 may lie in a block that is passed over
    BlockView block_;
    RecordScan scan_;
    RecordView record_;
  };

  // Records have 16 bits for the type. A wider number, like 0, is found nowhere.
  RecordsOfType(BlockView head, std::uint32_t type)
      : head_(head), type_(type <= kRecordTypeMax ? static_cast<std::uint16_t>(type) : std::uint16_t{0}) {}
  Iterator begin() const { return Iterator(head_, type_); }
  WalkEnd end() const { return {}; }

 private:
  BlockView head_;
  std::uint16_t type_;
};

}  // namespace attrmgr
