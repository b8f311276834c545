// A set of attribute types: a bit for each type of the dictionary. Other numbers, which only a buffer can bring into a
// list, have no bit; the set says that it holds some, and its maker looks closer.
#pragma once

#include <bitset>
#include <cstdint>

#include <attrmgr/aaa_attr_dict.h>

namespace attrmgr {

class TypeSet {
 public:
  void insert(std::uint32_t type) {
    if (type < AAA_ATTR_TYPE_COUNT) {
      types_[type] = true;
    } else {
      others_ = true;
    }
  }

  // Whether the type is in the set; for a number outside the dictionary, whether it may be.
  bool may_contain(std::uint32_t type) const { return type < AAA_ATTR_TYPE_COUNT ? types_[type] : others_; }

 private:
  std::bitset<AAA_ATTR_TYPE_COUNT> types_;
  bool others_ = false;
};

}  // namespace attrmgr
