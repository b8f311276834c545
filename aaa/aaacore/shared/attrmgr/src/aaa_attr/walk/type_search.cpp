#include "aaa_attr/walk/type_search.h"

#include <cstring>

namespace attrmgr {
namespace {

// Lengths and small numbers have the two bytes of a low type all over a block.
constexpr std::uint16_t kLowestSearchedType = 128;

using Bytes [[gnu::vector_size(32)]] = std::uint8_t;
using Words [[gnu::vector_size(32)]] = std::uint64_t;

// Two vectors at a time: the blocks of a list are of nearly one length, and most then take as many strides.
constexpr std::size_t kStride = 2 * sizeof(Bytes);

// The search looks at whole strides; what is shorter is walked as soon as searched.
constexpr std::uint16_t kLeastUsed = kHeaderSize + 1 + kStride;

// The two bytes of a type as they lie in a record, each at every place of a vector.
struct Pair {
  Bytes first;
  Bytes second;
};

[[gnu::always_inline]] inline void fill(std::uint8_t byte, Bytes *places) {
  constexpr std::uint64_t kEveryByte = 0x0101010101010101;
  const std::uint64_t word = byte * kEveryByte;
  *places = reinterpret_cast<Bytes>(Words{word, word, word, word});
}

// Adds to *found where, among the places of a vector, the pair stands.
[[gnu::always_inline]] inline void look(const std::byte *at, const Pair &pair, Words *found) {
  Bytes here;
  Bytes after;
  std::memcpy(&here, at, sizeof here);
  std::memcpy(&after, at + 1, sizeof after);
  *found |= reinterpret_cast<Words>((here == pair.first) & (after == pair.second));
}

// Whether the pair stands anywhere among the block's records, of more than kLeastUsed bytes. What is left of the last
// stride is looked at twice.
[[gnu::always_inline]] inline bool holds(BlockView block, const Pair &pair) {
  const std::size_t places = static_cast<std::size_t>(block.end() - block.records()) - 1;
  Words found{};
  for (std::size_t i = 0; i + kStride < places; i += kStride) {
    look(block.records() + i, pair, &found);
    look(block.records() + i + sizeof(Bytes), pair, &found);
  }
  look(block.end() - 1 - kStride, pair, &found);
  look(block.end() - 1 - sizeof(Bytes), pair, &found);
  return (found[0] | found[1] | found[2] | found[3]) != 0;
}

[[gnu::always_inline]] inline BlockView pass_over(BlockView block, std::uint16_t type) {
  std::uint8_t bytes[sizeof type];
  std::memcpy(bytes, &type, sizeof bytes);
  Pair pair;
  fill(bytes[0], &pair.first);
  fill(bytes[1], &pair.second);
  while (block && block.used() > kLeastUsed && !holds(block, pair)) block = block.next();
  return block;
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] BlockView pass_over_avx2(BlockView block, std::uint16_t type) { return pass_over(block, type); }

// Not in line: without AVX2 the vectors lie on the stack, which the other way need not pay for.
[[gnu::noinline]] BlockView pass_over_plain(BlockView block, std::uint16_t type) { return pass_over(block, type); }

BlockView pass_over_fast(BlockView block, std::uint16_t type) {
  return __builtin_cpu_supports("avx2") ? pass_over_avx2(block, type) : pass_over_plain(block, type);
}
#else
BlockView pass_over_fast(BlockView block, std::uint16_t type) { return pass_over(block, type); }
#endif

}  // namespace

BlockView next_to_walk(BlockView block, std::uint16_t type) {
  if (type < kLowestSearchedType) return block;
  return pass_over_fast(block, type);
}

}  // namespace attrmgr
