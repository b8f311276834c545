// The data of the benchmarks: the same attributes for everyone, from fixed pseudo-random sequences. Half are 32-bit
// numbers, a quarter strings of 8 to 24 bytes, 15 % IPv4 addresses, 10 % octets of 16 to 64 bytes.
//
// There are many lists, and no two alike: kinds, types and lengths come in another order in each. A processor that
// meets the same list again and again learns it by heart, and then guesses every branch right, as it never does in a
// daemon.
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

// How many lists of a size a workload goes round: too many to be learnt, few enough to be prepared in no time.
constexpr std::size_t num_lists(std::size_t count) {
  if (count <= 8) return 4096;
  if (count <= 32) return 1024;
  if (count <= 128) return 512;
  return count <= 1024 ? 64 : 8;
}

// The attributes `first` to `first + count - 1` of a list. A type comes back only after all of its kind were used,
// which the first 160 attributes do not reach. Another `round` has the same types and other values.
Attributes attributes(std::size_t count, std::size_t list, std::size_t first = 0, unsigned round = 0);

// `count` attributes of a list, in which the one at `place` has the type kWantedType, which no other has.
Attributes attributes_with_wanted(std::size_t count, std::size_t place, std::size_t list);

// `count` attributes of a list, one of which is a password. No other list holds a secret.
Attributes attributes_with_secret(std::size_t count, std::size_t list);

inline constexpr std::uint32_t kWantedType = 307;   // "pppoe-session-id"
inline constexpr std::uint32_t kMissingType = 308;  // "igmp-query-interval"; never in any list

// One attribute of each kind of value a display knows, by the names that the benchmarks have for them.
struct Sample {
  const char *name;
  Attribute attribute;
};
const std::vector<Sample> &samples();

// The lists of the workloads of two lists, and what they make of the first 128 attributes of a list.
Attributes merged_in(std::size_t list);  // 32: half of them have a type that the first 128 have too
Attributes after_merge(std::size_t list);
Attributes removed(std::size_t list);  // 32 of the first 128
Attributes after_remove(std::size_t list);
Attributes shuffled(Attributes attributes, std::size_t list);

// All names of the dictionary, shuffled, and their numbers.
const std::vector<std::string> &names();

}  // namespace bench
