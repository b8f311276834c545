// Copying, comparing and hashing values. Lengths come in no order that a branch predictor could learn: a branch on
// them, or a call that makes one, is mispredicted for one value of three. So values of 4 to 16 bytes, three of four,
// are handled without a branch: as four words that overlap, two from each end inwards.
#pragma once

#include <cstring>

#include "aaa_attr/store/views.h"

namespace attrmgr {

struct FourWords {
  static constexpr std::size_t kWord = sizeof(std::uint32_t);
  static constexpr std::size_t kLeast = kWord;
  static constexpr std::size_t kMost = 4 * kWord;

  static bool suit(std::size_t length) { return length >= kLeast && length <= kMost; }

  // For a length that they suit.
  explicit FourWords(std::size_t length) : inner(((length - 1) & 2 * kWord) / 2), last(length - kWord) {}

  std::size_t inner;  // where the second word begins, and how far before the last one the third
  std::size_t last;
};

inline constexpr std::size_t kCopiedInline = 32;  // the longest value that is copied without a call

inline void copy_value(std::byte *to, const std::byte *from, std::size_t length) {
  struct Half {
    std::byte bytes[kCopiedInline / 2];
  };
  if (FourWords::suit(length)) [[likely]] {
    const FourWords at(length);
    const auto word1 = load<std::uint32_t>(from);
    const auto word2 = load<std::uint32_t>(from + at.inner);
    const auto word3 = load<std::uint32_t>(from + at.last - at.inner);
    const auto word4 = load<std::uint32_t>(from + at.last);
    store(to, word1);
    store(to + at.inner, word2);
    store(to + at.last - at.inner, word3);
    store(to + at.last, word4);
  } else if (length >= sizeof(Half) && length <= kCopiedInline) {
    const auto first = load<Half>(from);
    const auto second = load<Half>(from + length - sizeof(Half));
    store(to, first);
    store(to + length - sizeof(Half), second);
  } else {
    std::memcpy(to, from, length);
  }
}

inline bool same_value_bytes(const std::byte *a, const std::byte *b, std::size_t length) {
  if (!FourWords::suit(length)) return std::memcmp(a, b, length) == 0;
  const FourWords at(length);
  const auto differ = [a, b](std::size_t i) { return load<std::uint32_t>(a + i) ^ load<std::uint32_t>(b + i); };
  return (differ(0) | differ(at.inner) | differ(at.last - at.inner) | differ(at.last)) == 0;
}

}  // namespace attrmgr
