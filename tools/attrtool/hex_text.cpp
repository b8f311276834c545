#include "hex_text.h"

#include <algorithm>
#include <optional>

namespace attrtool {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::string_view kBlanks = " \t\r";
constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kBytesALine = 16;  // where nothing else ends the bytes of a line

int digit_of(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool is_hex(std::string_view word) {
  return !word.empty() && std::all_of(word.begin(), word.end(), [](char c) { return digit_of(c) >= 0; });
}

std::uint64_t number_of(std::string_view digits) {
  std::uint64_t number = 0;
  for (const char c : digits) number = number << 4 | static_cast<std::uint64_t>(digit_of(c));
  return number;
}

void append_bytes(std::string_view digits, Bytes *to) {
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
    to->push_back(static_cast<std::uint8_t>(number_of(digits.substr(i, 2))));
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == kNone ? std::string_view() : text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

std::string_view word_of(std::string_view text) { return text.substr(0, text.find_first_of(kBlanks)); }

// ---- Lines that begin with an offset ----

struct DumpLine {
  std::uint64_t offset;
  Bytes bytes;
};

// Whole bytes in groups of the same form until something else comes; empty when a group is no bytes.
Bytes groups_of(std::string_view text) {
  Bytes bytes;
  for (text = trimmed(text); !text.empty() && bytes.size() < kBytesALine;) {
    const std::string_view word = word_of(text);
    if (!is_hex(word) || word.size() % 2 != 0) break;
    append_bytes(word, &bytes);
    text.remove_prefix(word.size());
    const std::size_t gap = std::min(text.find_first_not_of(kBlanks), text.size());
    text.remove_prefix(gap);
    if (gap > 2) break;  // the column of characters comes after a wider gap than bytes do
  }
  return bytes;
}

// Words of two bytes in the order of this host, as hexdump prints them unasked.
std::optional<Bytes> words_of(std::string_view text) {
  constexpr std::size_t kWord = 4;
  Bytes bytes;
  for (text = trimmed(text); !text.empty();) {
    const std::string_view word = word_of(text);
    if (!is_hex(word) || word.size() != kWord) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(number_of(word.substr(2))));
    bytes.push_back(static_cast<std::uint8_t>(number_of(word.substr(0, 2))));
    text = trimmed(text.substr(word.size()));
  }
  return bytes;
}

std::optional<DumpLine> dump_line(std::string_view text) {
  constexpr std::size_t kShortest = 4, kLongest = 16;
  constexpr std::size_t kOfHexdump = 7;  // digits of an offset before words of this host
  text = trimmed(text);
  if (text.starts_with("0x")) text.remove_prefix(2);
  const std::string_view digits = text.substr(0, text.find_first_of(": \t\r"));
  if (!is_hex(digits) || digits.size() < kShortest || digits.size() > kLongest) return std::nullopt;
  DumpLine line{number_of(digits), {}};
  text.remove_prefix(digits.size());
  if (text.starts_with(':')) {
    // Two blanks end the bytes; what comes after them may look like more.
    const std::string_view rest = trimmed(text.substr(1));
    line.bytes = groups_of(rest.substr(0, rest.find("  ")));
    return line.bytes.empty() ? std::nullopt : std::optional(line);
  }
  const std::string_view rest = trimmed(text);
  if (rest.empty()) return line;  // the last line of hexdump: where the bytes end
  if (digits.size() == kOfHexdump)
    if (std::optional<Bytes> words = words_of(rest)) return DumpLine{line.offset, std::move(*words)};
  if (word_of(rest).size() != 2) return std::nullopt;
  line.bytes = groups_of(rest.substr(0, rest.find('|')));
  return line.bytes.empty() ? std::nullopt : std::optional(line);
}

// What a log puts before the dump ends in ": ".
std::optional<DumpLine> logged_line(std::string_view text) {
  if (std::optional<DumpLine> line = dump_line(text)) return line;
  for (std::size_t at = text.find(": "); at != kNone; at = text.find(": ", at + 1))
    if (std::optional<DumpLine> line = dump_line(text.substr(at + 2)); line && !line->bytes.empty()) return line;
  return std::nullopt;
}

// ---- Digits alone ----

std::optional<Bytes> plain_line(std::string_view text) {
  Bytes bytes;
  while (!(text = trimmed(text)).empty()) {
    const std::string_view word = text.substr(0, text.find_first_of(" \t\r,:;"));
    const std::string_view digits = word.substr(word.starts_with("0x") || word.starts_with("\\x") ? 2 : 0);
    if (word.empty() || !is_hex(digits) || digits.size() % 2 != 0) return std::nullopt;
    append_bytes(digits, &bytes);
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return bytes;
}

// ---- The whole text ----

std::string hexadecimal(std::uint64_t number) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  do text.insert(text.begin(), kDigits[number & 0xF]);
  while ((number >>= 4) != 0);
  return "0x" + text;
}

class Reader {
 public:
  HexText read(std::string_view text) {
    const bool dump = has_offsets(text);
    while (!text.empty() && made_.error.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      text.remove_prefix(std::min(line.size() + 1, text.size()));
      ++made_.line;
      if (dump) {
        take_dump(line);
      } else {
        take_plain(line);
      }
    }
    if (made_.error.empty() && made_.bytes.empty()) fail("expected hexadecimal digits, found none");
    return std::move(made_);
  }

 private:
  static bool has_offsets(std::string_view text) {
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      if (const auto dump = logged_line(line); dump && !dump->bytes.empty()) return true;
      text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return false;
  }

  void fail(const std::string &error) { made_.error = error; }

  void take_dump(std::string_view text) {
    if (trimmed(text) == "*") {
      repeats_ = !made_.bytes.empty();
      return;
    }
    std::optional<DumpLine> line = logged_line(text);
    if (!line) return;
    if (!begun_) base_ = line->offset;
    begun_ = true;
    const std::uint64_t expected = base_ + made_.bytes.size();
    if (line->offset < expected && line->bytes.empty() && expected - line->offset == 1) {
      made_.bytes.pop_back();  // hexdump fills the last word
    } else if (repeats_ && line->offset > expected) {
      repeat(line->offset - expected);
    } else if (line->offset != expected && line->offset == base_) {
      return fail("a second dump begins; give one alone");
    } else if (line->offset != expected) {
      return fail("expected offset " + hexadecimal(expected) + ", where the line before ends, found " +
                  hexadecimal(line->offset));
    }
    repeats_ = false;
    made_.bytes.insert(made_.bytes.end(), line->bytes.begin(), line->bytes.end());
    last_ = line->bytes.size();
  }

  void repeat(std::uint64_t count) {
    constexpr std::uint64_t kMost = std::uint64_t{1} << 30;
    if (last_ == 0 || count % last_ != 0 || count > kMost)
      return fail("the lines that \"*\" stands for do not end at this offset");
    for (; count > 0; --count) made_.bytes.push_back(made_.bytes[made_.bytes.size() - last_]);
  }

  void take_plain(std::string_view text) {
    const std::optional<Bytes> bytes = plain_line(text);
    if (!bytes) return fail("expected pairs of hexadecimal digits, or lines of hexdump -C, xxd or tcpdump -X");
    made_.bytes.insert(made_.bytes.end(), bytes->begin(), bytes->end());
  }

  HexText made_;
  std::uint64_t base_ = 0;  // the first offset
  std::size_t last_ = 0;    // bytes of the line before
  bool begun_ = false, repeats_ = false;
};

}  // namespace

HexText bytes_of_hex(std::string_view text) { return Reader().read(text); }

}  // namespace attrtool
