// Some records of one list, found by their hash while another list is passed over. Two lists of any length are held
// against each other window by window, in little memory and without an allocation: a window of a thousand records makes
// a square of their numbers a thousandth of it.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "aaa_attr/store/unwritten.h"
#include "aaa_attr/store/views.h"
#include "aaa_attr/walk/blocks.h"

namespace attrmgr {

// What a window remembers of a record.
struct WindowEntry {
  RecordView record;
  std::uint32_t hash;
  std::uint16_t next;  // the next entry of the same bucket, in the order in which they came; after the last the first
  bool matched;        // the user's own: whether the other list has one like it
};

// The memory of a window, or of several.
template <std::size_t N>
struct WindowSpace {
  Unwritten<WindowEntry> entries[N];
  std::uint16_t buckets[2 * N];
};

class RecordWindow {
 public:
  // A window for at least one record, on the space from the entry `first` on.
  template <std::size_t N>
  RecordWindow(WindowSpace<N> &space, std::size_t first, std::size_t capacity)
      : entries_(space.entries + first),
        buckets_(space.buckets + 2 * first),
        capacity_(std::max<std::size_t>(capacity, 1)) {
    clear();
  }

  void clear() {
    size_ = 0;
    std::memset(buckets_, 0xFF, num_buckets() * sizeof *buckets_);
  }

  bool full() const { return size_ == capacity_; }

  // Only when it is not full.
  void add(std::uint64_t hash, RecordView record) {
    const auto number = static_cast<std::uint16_t>(size_++);
    std::uint16_t &last = buckets_[bucket_of(hash)];
    std::uint16_t first = number;
    if (last != kNone) first = std::exchange(entries_[last].value.next, number);
    entries_[number].write({record, short_hash(hash), first, false});
    last = number;
  }

  // The first entry, in the order in which they came, that has the hash and of which test(entry) holds; null for none.
  template <class Test>
  WindowEntry *find(std::uint64_t hash, Test test) {
    return search(hash, test, [](std::uint16_t, std::uint16_t) {});
  }

  // The same, and it is not found again.
  template <class Test>
  WindowEntry *take(std::uint64_t hash, Test test) {
    return search(hash, test, [this, hash](std::uint16_t before, std::uint16_t found) {
      std::uint16_t &last = buckets_[bucket_of(hash)];
      entries_[before].value.next = entries_[found].value.next;
      if (last == found) last = before == found ? kNone : before;
    });
  }

 private:
  static constexpr std::uint16_t kNone = 0xFFFF;

  // Bits of the hash that have nothing to do with each other.
  static std::uint32_t short_hash(std::uint64_t hash) { return static_cast<std::uint32_t>(hash >> 32); }
  std::size_t num_buckets() const { return std::bit_floor(2 * capacity_); }
  std::size_t bucket_of(std::uint64_t hash) const { return static_cast<std::size_t>(hash) & (num_buckets() - 1); }

  // Calls on_found(the entry before it in the bucket, its own number).
  template <class Test, class OnFound>
  WindowEntry *search(std::uint64_t hash, Test test, OnFound on_found) {
    const std::uint16_t last = buckets_[bucket_of(hash)];
    if (last == kNone) return nullptr;
    std::uint16_t before = last;
    do {
      const std::uint16_t at = entries_[before].value.next;
      WindowEntry &entry = entries_[at].value;
      if (entry.hash == short_hash(hash) && test(entry)) {
        on_found(before, at);
        return &entry;
      }
      before = at;
    } while (before != last);
    return nullptr;
  }

  Unwritten<WindowEntry> *entries_;
  std::uint16_t *buckets_;  // the last entry of each
  std::size_t capacity_;
  std::size_t size_ = 0;
};

}  // namespace attrmgr
