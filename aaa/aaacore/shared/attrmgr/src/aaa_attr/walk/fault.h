// How a reader says which rule a buffer breaks. What reads to get on with it takes Unnamed, which keeps nothing and
// costs nothing; who asks why takes Named.
#pragma once

#include <attrmgr/aaa_attr_fault.h>

#include <cstddef>

namespace attrmgr {

struct Unnamed {
  static constexpr bool kNames = false;
  static void note(aaa_attr_rule, const std::byte *) {}
};

struct Named {
  static constexpr bool kNames = true;
  void note(aaa_attr_rule broken, const std::byte *where) {
    rule = broken;
    at = where;
  }

  aaa_attr_rule rule = AAA_ATTR_RULE_NONE;
  const std::byte *at = nullptr;  // the field that breaks it
};

}  // namespace attrmgr
