// A code address in words that lead to the source.
#pragma once

#include <string>
#include <vector>

namespace attrmgr::checked {

// Where a call stands, given the address that it returns to: "server.c:120 in handle_request (server+0x12f3)" with
// debug information and addr2line at hand, else "handle_request+0x43 (server+0x12f3)" or "server+0x12f3". Where the
// compiler put the function in line, the places that it stands in follow, innermost first.
std::vector<std::string> places_of_call(const void *return_address, bool with_lines);

}  // namespace attrmgr::checked
