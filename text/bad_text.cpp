#include "bad_text.h"

#include <algorithm>

#include "printable.h"

namespace attrtext {

BadText unexpected(const std::string &expected, std::string_view found) {
  return {"expected " + expected + ", found " + (found.empty() ? "nothing" : in_quotes(found)), found};
}

std::string in_quotes(std::string_view text) {
  constexpr std::size_t kShown = 60;
  return '"' + printable(text.substr(0, kShown)) + (text.size() > kShown ? "...\"" : "\"");
}

std::string to_string(const BadPlace &bad) {
  return std::to_string(bad.line) + ':' + std::to_string(bad.column) + ": " + bad.reason;
}

BadPlace bad_place(std::string_view text, const BadText &bad) {
  const std::string_view before = text.substr(0, static_cast<std::size_t>(bad.place() - text.data()));
  const std::size_t line_end = before.rfind('\n');
  const std::string_view line = line_end == std::string_view::npos ? before : before.substr(line_end + 1);
  const auto goes_on = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  return {static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1,
          line.size() - static_cast<std::size_t>(std::count_if(line.begin(), line.end(), goes_on)) + 1, bad.what()};
}

}  // namespace attrtext
