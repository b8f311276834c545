// What goes to a person: colours, columns, lines of 80 characters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace attrtool {

inline constexpr std::size_t kLineWidth = 80;

enum class Tone { kTitle, kName, kFaint, kAdded, kRemoved, kChanged };

// The text in a colour, if there are any.
std::string painted(bool colours, Tone tone, const std::string &text);

// The words, lines of 80 columns that begin at `indent`; the first goes on where `at` characters stand already.
std::string wrapped(std::string_view text, std::size_t indent, std::size_t at);

// "; the nearest: "a", "b"", for a sentence that says that a name is none; empty where none is near.
std::string nearest_text(std::string_view wanted, const std::vector<std::string_view> &names);

// "a, b, c"
std::string joined(const std::vector<std::string> &words, const char *between = ", ");

// With blanks to the width; a longer one stays.
std::string padded(std::string text, std::size_t width);

}  // namespace attrtool
