// The names that somebody may have meant who mistyped one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace attrtext {

// How many characters have to be put in, taken out, replaced or exchanged with their neighbour to make one text of the
// other. Capitals and small letters are the same, and so are blanks, hyphens and underscores. Where there are more than
// the limit it is some number above that.
std::size_t distance(std::string_view one, std::string_view other, std::size_t limit = 64);

// Of the names, up to three that are nearest to the text, the nearest first; none that has little to do with it.
std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view> &names);

// The same of the names of all attribute types, and of the values of an Enum type.
std::vector<std::string_view> nearest_types(std::string_view text);
std::vector<std::string_view> nearest_values(std::uint32_t type, std::string_view text);

// " such as "username" or "user-data"", for a sentence that says what was expected; empty for no names.
std::string such_as(const std::vector<std::string_view> &names);

}  // namespace attrtext
