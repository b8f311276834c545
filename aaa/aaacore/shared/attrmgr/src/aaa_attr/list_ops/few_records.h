// The records of a short list, found by type. For so few that is less work than hashing their values.
#pragma once

#include <cstdint>
#include <cstring>

#include "aaa_attr/store/unwritten.h"
#include "aaa_attr/store/views.h"

namespace attrmgr {

class FewRecords {
 public:
  static constexpr std::size_t kMost = 128;

  FewRecords() { std::memset(newest_, kNone, sizeof newest_); }

  // At most kMost.
  void add(RecordView record) {
    std::uint8_t &newest = newest_[bucket_of(record)];
    entries_[size_].write({record, newest, false});
    newest = static_cast<std::uint8_t>(size_++);
  }

  // Matches the record with all of its type of which same(record, own) holds, and tells whether there is one.
  template <class Same>
  bool match(RecordView record, Same same) {
    bool found = false;
    for (std::uint8_t i = newest_[bucket_of(record)]; i != kNone; i = entries_[i].value.older) {
      Entry &entry = entries_[i].value;
      if (entry.record.type() != record.type() || !same(record, entry.record)) continue;
      found = true;
      num_matched_ += !entry.matched;
      entry.matched = true;
    }
    return found;
  }

  bool all_matched() const { return num_matched_ == size_; }

 private:
  struct Entry {
    RecordView record;
    std::uint8_t older;  // the next one of the bucket
    bool matched;
  };

  static constexpr std::uint8_t kNone = 0xFF;
  static_assert(kMost <= kNone);

  // A bucket for each type of the dictionary: those that have one together are numbers that only a buffer brings.
  static constexpr std::size_t kBuckets = 1024;
  static_assert(AAA_ATTR_TYPE_COUNT <= kBuckets);
  static std::size_t bucket_of(RecordView record) { return record.type() % kBuckets; }

  std::uint8_t newest_[kBuckets];
  Unwritten<Entry> entries_[kMost];
  std::size_t size_ = 0;
  std::size_t num_matched_ = 0;
};

}  // namespace attrmgr
