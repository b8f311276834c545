// The identifiers that follow from the dictionary's names. A rule makes them, no list: nobody has to name a type twice.
//
//   "Acct-Status-Type"       AAA_ATTR_TYPE_ACCT_STATUS_TYPE    attr::acct_status_type
//   value "Tunnel-Start"     AAA_ACCT_STATUS_TYPE_TUNNEL_START
//
// Where two types would get the same identifier the lower one keeps it, as a look-up by name finds the lower one too,
// so that no row added at the end renames a constant in use. The other gets its format after it, SESSION_ID_STRING, or
// a number when the formats are the same: INPUT_OCTETS_2. A value name that comes back in its table gets its number.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace generate {

struct Value {
  std::uint32_t number;
  std::string name;
  std::string constant;  // "AAA_ACCT_STATUS_TYPE_TUNNEL_START"; empty for a number without a meaning
};

struct Type {
  std::uint32_t number;
  std::string name;
  std::string suffix;         // "ACCT_STATUS_TYPE"
  std::string cpp;            // "acct_status_type"; an underscore after it where C++ has a keyword of that name
  std::vector<Value> values;  // of Enum types
};

// Every type of the dictionary, by number. Ends the program with a sentence where a constant would occur twice.
const std::vector<Type> &types();

std::string constant_of(const Type &type);     // "AAA_ATTR_TYPE_ACCT_STATUS_TYPE"
std::string enumeration_of(const Type &type);  // "aaa_acct_status_type"

// The name in double quotes, as C and C++ write it.
std::string quoted(const std::string &name);

}  // namespace generate
