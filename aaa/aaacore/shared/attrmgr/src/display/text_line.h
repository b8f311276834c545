// Bounded text: what is put in beyond the room is dropped, and the text is always NUL-terminated. Like a formatter, it
// goes on counting, so that full() tells whether something was cut.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace attrmgr {

class TextWriter {
 public:
  // size counts the NUL and is at least 1.
  TextWriter(char *text, std::size_t size) : text_(text), size_(size) { text_[0] = '\0'; }

  const char *text() const { return text_; }
  std::size_t length() const { return full() ? size_ - 1 : wanted_; }
  // The room left, the NUL's included; 0 once the text has reached its end.
  std::size_t room() const { return full() ? 0 : size_ - wanted_; }
  bool full() const { return wanted_ >= size_; }

  TextWriter &put(std::string_view piece) {
    if (!full()) {
      const std::size_t fits = piece.size() < room() ? piece.size() : room() - 1;
      std::memcpy(text_ + wanted_, piece.data(), fits);
      text_[wanted_ + fits] = '\0';
    }
    wanted_ += piece.size();
    return *this;
  }

  TextWriter &put(char c) { return put(std::string_view(&c, 1)); }

  TextWriter &put_decimal(std::uint64_t number) { return put_number(number, 10); }
  TextWriter &put_signed(std::int64_t number) {
    if (number >= 0) return put_decimal(static_cast<std::uint64_t>(number));
    return put('-').put_decimal(static_cast<std::uint64_t>(-(number + 1)) + 1);
  }
  TextWriter &put_hex(std::uint64_t number) { return put_number(number, 16); }

  // Two lowercase hexadecimal digits.
  TextWriter &put_hex_byte(std::uint8_t byte) {
    constexpr char kDigits[] = "0123456789abcdef";
    const char digits[] = {kDigits[byte >> 4], kDigits[byte & 0xF]};
    return put(std::string_view(digits, sizeof digits));
  }

  // The piece in a column of at least `width`: blanks behind it, or before it.
  TextWriter &put_left(std::string_view piece, std::size_t width) { return put(piece).pad(piece, width); }
  TextWriter &put_right(std::string_view piece, std::size_t width) { return pad(piece, width).put(piece); }

 private:
  TextWriter &put_number(std::uint64_t number, int base) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number, base);
    return put(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
  }

  TextWriter &pad(std::string_view piece, std::size_t width) {
    constexpr std::string_view kBlanks = "                ";
    if (piece.size() >= width) return *this;
    return put(std::string_view(kBlanks.data(), std::min(kBlanks.size(), width - piece.size())));
  }

  char *text_;
  std::size_t size_;
  std::size_t wanted_ = 0;
};

// A text of its own, at most N - 1 characters.
template <std::size_t N>
class TextLine : public TextWriter {
 public:
  // cppcheck-suppress uninitMemberVar ; the writer begins it with a NUL
  TextLine() : TextWriter(storage_, N) {}
  TextLine(const TextLine &) = delete;
  TextLine &operator=(const TextLine &) = delete;
  char *data() { return storage_; }

 private:
  char storage_[N];
};

// The lengths of the displays' lines, NUL included.
inline constexpr std::size_t kLineSize = 256;
inline constexpr std::size_t kNumberedLineSize = 512;

}  // namespace attrmgr
