// Hashes by which records of one list are found in another. They are keyed with a random number of the process, so that
// a peer cannot choose records that all have the same hash and make each look-up a walk.
#pragma once

#include <cstddef>
#include <cstdint>

#include "aaa_attr/store/value_bytes.h"
#include "aaa_attr/store/views.h"

namespace attrmgr {

// The process's key, the same for as long as it runs.
std::uint64_t hash_key();

// The product of two numbers, its halves folded together: each bit depends on all bits of both.
inline std::uint64_t fold(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
  __extension__ using Product = unsigned __int128;
  const Product product = Product{a} * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
#else
  const std::uint64_t low = std::uint64_t{static_cast<std::uint32_t>(a)} * static_cast<std::uint32_t>(b);
  const std::uint64_t middle1 = (a >> 32) * static_cast<std::uint32_t>(b);
  const std::uint64_t middle2 = (b >> 32) * static_cast<std::uint32_t>(a);
  const std::uint64_t high = (a >> 32) * (b >> 32);
  const std::uint64_t carry = (low >> 32) + static_cast<std::uint32_t>(middle1) + static_cast<std::uint32_t>(middle2);
  const std::uint64_t product_high = high + (middle1 >> 32) + (middle2 >> 32) + (carry >> 32);
  return (a * b) ^ product_high;
#endif
}

class RecordHasher {
 public:
  RecordHasher() : key_(hash_key()) {}

  std::uint64_t of_number(std::uint64_t number) const { return fold(number ^ key_, kOddBits ^ (key_ >> 7)); }

  // Type, length and value: equal for live records of which same_value() holds. Where lengths are reported without a
  // NUL the stored bytes end in one.
  std::uint64_t of_value(RecordView record) const {
    const std::size_t length = record.length();
    const std::byte *at = record.value();
    // Mixed before the value comes in: otherwise a value could cancel what the type does to the same bits.
    const std::uint64_t start = of_number(std::uint64_t{length} << 16 | record.type());
    if (!FourWords::suit(length)) return of_bytes(start, at, length);
    const FourWords words(length);
    const auto pair = [at](std::size_t i, std::size_t k) {
      return std::uint64_t{load<std::uint32_t>(at + i)} << 32 | load<std::uint32_t>(at + k);
    };
    return fold(start ^ pair(0, words.inner), ~key_ ^ pair(words.last - words.inner, words.last));
  }

  // The same with the meta, if there is one.
  std::uint64_t of_value_and_meta(RecordView record) const {
    const std::uint64_t hash = of_value(record);
    return record.has_meta() ? fold(hash ^ load<std::uint64_t>(record.meta_bytes()), ~key_) : hash;
  }

 private:
  static constexpr std::uint64_t kOddBits = 0x9E3779B97F4A7C15;  // of the golden ratio

  // For lengths below 4 and above 16.
  static std::uint64_t of_bytes(std::uint64_t hash, const std::byte *at, std::size_t length) {
    if (length == 0) return fold(hash, kOddBits);
    if (length < FourWords::kLeast) {
      const auto byte = [at](std::size_t i) { return std::to_integer<std::uint64_t>(at[i]); };
      return fold(hash ^ (byte(0) << 16 | byte(length / 2) << 8 | byte(length - 1)), kOddBits);
    }
    constexpr std::size_t kWord = sizeof hash;
    const std::byte *const last = at + length - kWord;
    for (; at < last; at += kWord) hash = fold(hash ^ load<std::uint64_t>(at), kOddBits ^ hash >> 32);
    return fold(hash ^ load<std::uint64_t>(last), kOddBits);
  }

  std::uint64_t key_;
};

}  // namespace attrmgr
