// The data of the benchmarks: the same attributes for everyone, from a fixed pseudo-random sequence. Half are 32-bit
// numbers, a quarter strings of 8 to 24 bytes, 15 % IPv4 addresses, 10 % octets of 16 to 64 bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

enum class Kind { kNumber, kText, kAddress, kOctets, kEnum, kAddress6 };  // the last two in samples only

struct Attribute {
  std::uint32_t type;  // a number of attrmgr's dictionary, of a format that suits the kind
  Kind kind;
  std::uint32_t number;  // the value of a kNumber and a kEnum
  std::string value;     // every kind's value as bytes
};

using Attributes = std::vector<Attribute>;

// The attributes `first` to `first + count - 1` of the sequence. A type comes back only after all of its kind were
// used, which the first 128 attributes do not reach. Another `round` has the same types and other values.
Attributes attributes(std::size_t count, std::size_t first = 0, unsigned round = 0);

// `count` attributes of the sequence, in which the one at `place` has the type kWantedType, which no other has.
Attributes attributes_with_wanted(std::size_t count, std::size_t place);

inline constexpr std::uint32_t kWantedType = 307;   // "pppoe-session-id"
inline constexpr std::uint32_t kMissingType = 308;  // "igmp-query-interval"; never in any list

// One attribute of each kind of value a display knows, by the names that the benchmarks have for them.
struct Sample {
  const char *name;
  Attribute attribute;
};
const std::vector<Sample> &samples();

// The lists of the workloads of two lists, and what they make of the first 128 attributes.
Attributes merged_in();  // 32: half of them have a type that the first 128 have too
Attributes after_merge();
Attributes removed();  // 32 of the first 128
Attributes after_remove();
Attributes shuffled(Attributes attributes);

// All names of the dictionary, shuffled, and their numbers.
const std::vector<std::string> &names();

}  // namespace bench
