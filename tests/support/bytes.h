// Bytes, and how tests write them down.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// Bytes from hexadecimal digits; blanks and line ends are passed over, '#' begins a comment that ends with the line.
inline Bytes hex(std::string_view digits) {
  Bytes bytes;
  int high = -1;
  bool comment = false;
  for (const char c : digits) {
    if (c == '#' || c == '\n') comment = c == '#';
    if (comment) continue;
    const std::size_t value = std::string_view("0123456789abcdef").find(static_cast<char>(c | 0x20));
    if (value == std::string_view::npos) continue;
    if (high < 0) {
      high = static_cast<int>(value);
    } else {
      bytes.push_back(static_cast<std::uint8_t>(high * 16 + static_cast<int>(value)));
      high = -1;
    }
  }
  return bytes;
}
