// What the report needs of the dictionary, from the dictionary's own table: this library is also preloaded into
// programs that do not use the other one, and the interface has no call for a type's flags.
#pragma once

#include <cstdint>

namespace attrmgr::checked {

struct AttributeType {
  const char *name;
  bool grouped;
  bool secret;  // not even told that it is there
};

// Null for a number that is no type.
const AttributeType *attribute_type(std::uint32_t type);

}  // namespace attrmgr::checked
