// A hash of what a list holds, whatever the order and the number of repetitions: lists that are equal as sets have the
// same hash. Few that differ have, and since the hash is keyed a peer cannot know which.
#pragma once

#include <bit>
#include <cstring>

#include "aaa_attr/list_ops/record_hash.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {

// A bit for each record's hash: a record that comes again changes nothing. What is left of many records is a full map,
// in which one more is not seen.
template <std::size_t kWords>
class HashBits {
 public:
  HashBits() { std::memset(words_, 0, sizeof words_); }

  void insert(std::uint64_t hash) {
    std::uint64_t &word = words_[hash >> 6 & (kWords - 1)];
    const std::uint64_t bit = std::uint64_t{1} << (hash & 63);
    num_set_ += (word & bit) == 0;
    word |= bit;
  }

  // Whether so many are set that others may be hidden by them. Like all here it depends on the set alone.
  bool crowded() const { return num_set_ > kWords * 64 / 4; }

  std::uint64_t hash(const RecordHasher &hasher) const {
    std::uint64_t sum = 0;
    for (std::uint64_t place = 0; place < kWords; ++place)
      if (words_[place] != 0) sum ^= hasher.of_number(hasher.of_number(place) ^ words_[place]);
    return sum;
  }

 private:
  static_assert(std::has_single_bit(kWords));
  std::uint64_t words_[kWords];
  std::size_t num_set_ = 0;
};

class Contents {
 public:
  std::uint64_t of_list(aaa_attr_list_handle list) const {
    const auto [head, error] = resolve(list);
    if (error) return hasher_.of_number(list);
    HashBits<32> bits;
    for (const RecordView record : Attributes(head)) bits.insert(of_record(record));
    const std::uint64_t hash = bits.hash(hasher_);
    return bits.crowded() ? hash ^ of_many_values(head) : hash;
  }

  std::uint64_t of_record(RecordView record) const {
    if (is_grouped(record)) return hasher_.of_number(of_list(owned_list(record)) ^ record.type());
    return hasher_.of_value_and_meta(record);
  }

 private:
  // Not inlined: its map takes 4 KiB of stack, which must not be there at every level of nesting.
  [[gnu::noinline]] std::uint64_t of_many_values(BlockView list) const {
    HashBits<512> bits;
    for (const RecordView record : Attributes(list))
      if (!is_grouped(record)) bits.insert(hasher_.of_value_and_meta(record) >> 16);
    return bits.hash(hasher_);
  }

  RecordHasher hasher_;
};

}  // namespace attrmgr
