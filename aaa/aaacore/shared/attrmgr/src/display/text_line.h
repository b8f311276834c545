// Bounded text: what is put in beyond the room is dropped, and the text is always NUL-terminated.
#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace attrmgr {

class TextWriter {
 public:
  // size counts the NUL and is at least 1.
  TextWriter(char *text, std::size_t size) : begin_(text), at_(text), end_(text + size - 1) { *at_ = '\0'; }

  const char *text() const { return begin_; }
  std::string_view view() const { return {begin_, length()}; }
  std::size_t length() const { return static_cast<std::size_t>(at_ - begin_); }
  // The room left, the NUL's included; 0 once something was dropped.
  std::size_t room() const { return cut_ ? 0 : left() + 1; }
  bool full() const { return cut_; }

  TextWriter &put(std::string_view piece) {
    if (piece.size() > left()) return put_what_fits(piece);
    std::memcpy(at_, piece.data(), piece.size());
    return advance(piece.size());
  }

  // A literal: its size is known, and copying it needs no call.
  template <std::size_t N>
  TextWriter &put(const char (&literal)[N]) {
    return put(std::string_view(literal, N - 1));
  }

  TextWriter &put(char c) { return put(std::string_view(&c, 1)); }

  template <std::unsigned_integral Number>
  TextWriter &put_decimal(Number number) {
    return put_number(number, 10);
  }
  template <std::unsigned_integral Number>
  TextWriter &put_hex(Number number) {
    return put_number(number, 16);
  }
  TextWriter &put_signed(std::int64_t number) {
    if (number >= 0) return put_decimal(static_cast<std::uint64_t>(number));
    return put('-').put_decimal(static_cast<std::uint64_t>(-(number + 1)) + 1);
  }

  // A writer on the next size bytes after the text; take() then makes what it wrote part of this text.
  TextWriter rest(std::size_t size) { return {at_, size}; }
  void take(const TextWriter &written) { advance(written.length()); }

  // Two lowercase hexadecimal digits.
  TextWriter &put_hex_byte(std::uint8_t byte) {
    constexpr char kDigits[] = "0123456789abcdef";
    const char digits[] = {kDigits[byte >> 4], kDigits[byte & 0xF]};
    return put(std::string_view(digits, sizeof digits));
  }

  // The piece in a column of at least `width`, at most as wide as kBlanks: filled up with blanks after it, or before
  // it.
  TextWriter &put_left(std::string_view piece, std::size_t width) { return put(piece).pad(piece.size(), width); }
  TextWriter &put_right(std::string_view piece, std::size_t width) { return pad(piece.size(), width).put(piece); }

 private:
  static constexpr std::string_view kBlanks = "                ";
  static constexpr std::size_t kDigitsMax = 20;

  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  TextWriter &advance(std::size_t size) {
    at_ += size;
    *at_ = '\0';
    return *this;
  }

  TextWriter &put_what_fits(std::string_view piece) {
    cut_ = true;
    const std::size_t fits = left();
    std::memcpy(at_, piece.data(), fits);
    return advance(fits);
  }

  // Digits are written in place where any number would find room.
  template <class Number>
  TextWriter &put_number(Number number, int base) {
    if (left() >= kDigitsMax) return advance(static_cast<std::size_t>(write(at_, number, base) - at_));
    char digits[kDigitsMax];
    return put(std::string_view(digits, static_cast<std::size_t>(write(digits, number, base) - digits)));
  }

  template <class Number>
  static char *write(char *digits, Number number, int base) {
    return std::to_chars(digits, digits + kDigitsMax, number, base).ptr;
  }

  TextWriter &pad(std::size_t size, std::size_t width) {
    if (size >= width) return *this;
    const std::size_t blanks = width - size;
    if (kBlanks.size() > left()) return put(std::string_view(kBlanks.data(), blanks));
    std::memcpy(at_, kBlanks.data(), kBlanks.size());
    return advance(blanks);
  }

  char *begin_;
  char *at_;
  char *end_;  // the last place: the NUL's, when all others are taken
  bool cut_ = false;
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

// Puts what write(line) writes into a line of N: in place where a whole one finds room, so that it need not be copied.
template <std::size_t N, class Write>
void put_line(TextWriter &text, Write write) {
  if (text.room() >= N) {
    TextWriter line = text.rest(N);
    write(line);
    text.take(line);
  } else {
    TextLine<N> line;
    write(line);
    text.put(line.view());
  }
}

// The lengths of the displays' lines, NUL included.
inline constexpr std::size_t kLineSize = 256;
inline constexpr std::size_t kNumberedLineSize = 512;

}  // namespace attrmgr
