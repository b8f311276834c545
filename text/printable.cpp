#include "printable.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace attrtext {
namespace {

// The ranges of RFC 3629, section 4: what the first byte tells of the number of bytes and of the second one.
struct Lead {
  std::uint8_t first, last, length, second_min, second_max;
};
constexpr Lead kLeads[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F},
    {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

// Controls, and characters that are not seen but change what is: direction marks, joiners, line separators, tags.
struct Range {
  std::uint32_t first, last;
};
constexpr Range kUnseen[] = {
    {0x80, 0x9F},     {0xAD, 0xAD},     {0x61C, 0x61C},   {0x180E, 0x180E}, {0x200B, 0x200F},
    {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}, {0xFFF0, 0xFFFB}, {0xE0000, 0xE0FFF},
};

std::uint8_t byte_at(std::string_view text, std::size_t i) { return static_cast<std::uint8_t>(text[i]); }

std::uint32_t code_point(std::string_view character) {
  constexpr std::uint8_t kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::uint32_t point = byte_at(character, 0) & kLeadBits[character.size()];
  for (std::size_t i = 1; i < character.size(); ++i) point = point << 6 | (byte_at(character, i) & 0x3F);
  return point;
}

void append_escape(std::string *text, char byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto value = static_cast<std::uint8_t>(byte);
  *text += {'\\', 'x', kDigits[value >> 4], kDigits[value & 15]};
}

}  // namespace

std::size_t utf8_length(std::string_view text) {
  if (text.empty()) return 0;
  const std::uint8_t first = byte_at(text, 0);
  if (first < 0x80) return 1;  // by far the most
  const auto *lead = std::find_if(std::begin(kLeads), std::end(kLeads),
                                  [first](const Lead &row) { return row.first <= first && first <= row.last; });
  if (lead == std::end(kLeads) || text.size() < lead->length) return 0;
  if (lead->length > 1 && (byte_at(text, 1) < lead->second_min || byte_at(text, 1) > lead->second_max)) return 0;
  for (std::size_t i = 2; i < lead->length; ++i)
    if ((byte_at(text, i) & 0xC0) != 0x80) return 0;
  return lead->length;
}

std::size_t printable_length(std::string_view text) {
  const std::size_t length = utf8_length(text);
  if (length == 0) return 0;
  if (length == 1) return text.front() >= ' ' && text.front() != '\x7F' ? 1 : 0;
  const std::uint32_t point = code_point(text.substr(0, length));
  for (const Range &range : kUnseen)
    if (range.first <= point && point <= range.last) return 0;
  return length;
}

std::string printable(std::string_view text) { return printable(text, {}); }

std::string printable(std::string_view text, std::string_view escaped) {
  std::string shown;
  shown.reserve(text.size());
  while (!text.empty()) {
    std::size_t length = printable_length(text);
    if (length == 0) {
      append_escape(&shown, text.front());
      length = 1;
    } else {
      if (escaped.find(text.front()) != std::string_view::npos) shown += '\\';
      shown.append(text.substr(0, length));
    }
    text.remove_prefix(length);
  }
  return shown;
}

}  // namespace attrtext
