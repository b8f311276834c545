// The dictionary with what the library keeps to itself: constants, flags, classes, names elsewhere.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace attrtool {

struct TypeFacts {
  std::uint32_t type;
  const char *constant;  // "AAA_ATTR_TYPE_USERNAME"
  std::uint32_t flags;   // AAA_ATTR_TYPE_OPAQUE and others
  std::uint32_t classes;
  const char *elsewhere;  // "RFC 2865 User-Name (1)"; empty where none is certain

  const char *name() const;
  std::uint32_t format() const;
  const char *format_name() const;
};

// All types but 0, by number.
std::span<const TypeFacts> all_types();

// The constant of a value; empty where it has none.
const char *constant_of_value(std::uint32_t type, std::uint32_t value);

// "secret", "LI", and the bits that mean something to clients alone: "0x40".
std::vector<std::string> flags_of(const TypeFacts &facts);

// Whether the type has an authorization bitmap, and what it grants. Numbers as in the value tables.
bool has_bitmap(const TypeFacts &facts);
bool is_granted(const TypeFacts &facts, std::uint32_t service, std::uint32_t protocol);

std::string in_hexadecimal(std::uint32_t bits);

}  // namespace attrtool
