#include "output.h"

#include <algorithm>

#include "text/bad_text.h"
#include "text/nearest.h"

namespace attrtool {

std::string painted(bool colours, Tone tone, const std::string &text) {
  constexpr const char *kCodes[] = {"1", "36", "2", "32", "31", "33"};
  if (!colours) return text;
  return std::string("\x1b[") + kCodes[static_cast<std::size_t>(tone)] + "m" + text + "\x1b[0m";
}

std::string wrapped(std::string_view text, std::size_t indent, std::size_t at) {
  std::string lines;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    const bool first = lines.empty();
    if (!first && at + 1 + word.size() > kLineWidth) {
      (lines += '\n').append(indent, ' ');
      at = indent;
    } else if (!first) {
      lines += ' ';
      ++at;
    }
    lines += word;
    at += word.size();
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return lines;
}

std::string nearest_text(std::string_view wanted, const std::vector<std::string_view> &names) {
  std::vector<std::string> quoted;
  for (const std::string_view name : attrtext::nearest(wanted, names)) quoted.push_back(attrtext::in_quotes(name));
  return quoted.empty() ? "" : "; the nearest: " + joined(quoted);
}

std::string joined(const std::vector<std::string> &words, const char *between) {
  std::string text;
  for (const std::string &word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

}  // namespace attrtool
