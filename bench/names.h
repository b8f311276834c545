// The names of the dictionary for those who have stricter rules for names: the same when they are defined and when they
// are looked up.
#pragma once

#include <attrmgr/aaa_attr_dict.h>

#include <cctype>
#include <cstdint>
#include <set>
#include <string>

namespace bench {

inline bool is_alphanumeric(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

// "Acct-Session-Id" as "Acct_Session_Id".
inline std::string with_underscores(std::string name) {
  for (char &c : name)
    if (!is_alphanumeric(c)) c = '_';
  return name;
}

// "Acct-Session-Id" as "acctSessionId".
inline std::string in_camel_case(const std::string &name) {
  std::string made;
  bool word_begins = false;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (is_alphanumeric(c)) made += static_cast<char>(word_begins ? std::toupper(byte) : std::tolower(byte));
    word_begins = !is_alphanumeric(c);
  }
  return made;
}

// Calls write(name, type) for every type; its name is spelled as spell() does. One that another type has already, but
// for the case of letters, is told apart by the type.
template <class Spell, class Write>
void for_each_name(Spell spell, Write write) {
  std::set<std::string> seen;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    std::string name = spell(aaa_attr_get_name_from_type(type));
    std::string folded = name;
    for (char &c : folded) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (!seen.insert(folded).second) name += std::to_string(type);
    write(name, type);
  }
}

}  // namespace bench
