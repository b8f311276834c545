// How a reader says which rule a buffer breaks. Decoders take Unnamed, which stores nothing and costs nothing; the call
// that tells why a buffer is refused takes Named.
#pragma once

#include <attrmgr/aaa_attr_fault.h>

#include <cstddef>

namespace attrmgr {

struct Unnamed {
  static constexpr bool kNames = false;
  static void note(aaa_attr_rule, const std::byte *) {}
  static void note_list(const std::byte *, unsigned) {}
};

struct Named {
  static constexpr bool kNames = true;
  void note(aaa_attr_rule broken, const std::byte *where) {
    rule = broken;
    at = where;
  }
  void note_list(const std::byte *where, unsigned how_deep) {
    list_end = where;
    depth = how_deep;
  }

  aaa_attr_rule rule = AAA_ATTR_RULE_NONE;
  const std::byte *at = nullptr;  // the field that breaks it

  // Of the TLV list that the refused record is in: where it ends, and 1 for the outer one; 0 when its total is refused.
  const std::byte *list_end = nullptr;
  unsigned depth = 0;
};

}  // namespace attrmgr
