// A set of attribute types: a bit for each type of the dictionary. Other numbers, which only a buffer can bring into a
// list, share one; where that is set, the caller has to compare the numbers themselves.
#pragma once

#include <algorithm>
#include <bitset>
#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>

namespace attrmgr {

class TypeSet {
 public:
  void insert(std::uint32_t type) { types_[bit_of(type)] = true; }

  // Whether a number outside the dictionary is in the set.
  bool has_others() const { return types_[AAA_ATTR_TYPE_COUNT]; }

  // Whether the type is in the set; for a number outside the dictionary, whether it may be.
  bool may_contain(std::uint32_t type) const { return types_[bit_of(type)]; }

 private:
  // The last bit is that of all other numbers.
  static std::uint32_t bit_of(std::uint32_t type) { return std::min<std::uint32_t>(type, AAA_ATTR_TYPE_COUNT); }

  std::bitset<AAA_ATTR_TYPE_COUNT + 1> types_;
};

}  // namespace attrmgr
