// Finding types of the dictionary by what is known of them.
#pragma once

#include <string>
#include <vector>

#include "dictionary.h"

namespace attrtool {

struct Found {
  std::vector<const TypeFacts *> exact;   // that all the words together name
  std::vector<const TypeFacts *> others;  // that every word suits
};

// Words as they were typed; none suits every type. Throws Refusal with the nearest names where nothing is found.
Found search(const std::vector<std::string> &words);

// The protocols with which the type may be used for a service: "ppp (ip, ipv6)"; "ppp" for all of them, empty for none.
std::string grant_text(const TypeFacts &facts, std::uint32_t service);

}  // namespace attrtool
