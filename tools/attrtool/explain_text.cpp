// The annotated dump: a line a field, with its offset and bytes; nested lists are indented.
#include <algorithm>
#include <iomanip>
#include <ostream>
#include <sstream>

#include "explain_words.h"
#include "explain_writers.h"

namespace attrtool {
namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kBytesALine = 8;
constexpr std::size_t kOffsetWidth = 7;                 // with the mark of a fault before it
constexpr std::size_t kHexWidth = 3 * kBytesALine + 1;  // and a gap
constexpr std::size_t kNameAt = kOffsetWidth + 2 + kHexWidth;
constexpr std::size_t kNameWidth = 14;
constexpr std::size_t kIndent = 2;
constexpr unsigned kDeepest = 4;  // from there on nesting is told by the titles alone

class TextWriter {
 public:
  TextWriter(const Explanation &explanation, bool colours, std::ostream &out)
      : explanation_(explanation), colours_(colours), out_(out) {}

  void write(const std::string &name) {
    out_ << bold(printable(name)) << '\n';
    const Explanation &all = explanation_;
    write_wrapped("  ", summary_text(all.form, all.bytes.size(), all.counts), 2, false);
    for (const Verdict &verdict : explanation_.verdicts) write_verdict(verdict);
    for (const Section &section : explanation_.sections) write_section(section);
    for (const Verdict *verdict : faults_at(static_cast<std::uint32_t>(explanation_.bytes.size())))
      write_fault(*verdict);
  }

 private:
  std::string styled(const char *code, const std::string &text) const {
    return colours_ ? std::string("\x1b[") + code + "m" + text + "\x1b[0m" : text;
  }
  std::string bold(const std::string &text) const { return styled("1", text); }
  std::string dim(const std::string &text) const { return styled("2", text); }
  std::string alarming(const std::string &text) const { return styled("1;31", text); }

  void write_verdict(const Verdict &verdict) const {
    std::ostringstream line;
    line << "  " << std::left << std::setw(18) << verdict.words;
    if (verdict.accepted()) {
      out_ << line.str() << styled("32", "accepted") << '\n';
      return;
    }
    const std::string place = place_name(explanation_.field_at(verdict.fault.offset));
    write_wrapped(line.str(), "refused at " + fault_text(verdict.fault, place), 20, true);
  }

  // Text after what is on the line already, wrapped at words; further lines begin at the column.
  void write_wrapped(const std::string &begun, const std::string &text, std::size_t column, bool alarm) const {
    std::string line = begun;
    std::istringstream words(text);
    std::string part;
    const auto flush = [&](bool last) {
      out_ << line << (alarm ? alarming(part) : part) << '\n';
      line = std::string(column, ' ');
      if (!last) part.clear();
    };
    for (std::string word; words >> word;) {
      if (!part.empty() && column + part.size() + 1 + word.size() > kWidth) flush(false);
      part += (part.empty() ? "" : " ") + word;
      while (column + part.size() > kWidth) {  // a word that is longer than the line
        const std::string rest = part.substr(kWidth - column);
        part.resize(kWidth - column);
        flush(false);
        part = rest;
      }
    }
    flush(true);
  }

  void write_section(const Section &section) const {
    const std::size_t indent = kIndent * std::min(section.depth, kDeepest);
    out_ << '\n';
    write_title(section.title, indent);
    for (const Field &field : section.fields) write_field(field, indent);
  }

  void write_title(const std::string &title, std::size_t indent) const {
    std::ostringstream wrapped;
    TextWriter(explanation_, false, wrapped).write_wrapped(std::string(indent, ' '), title, indent, false);
    std::istringstream lines(wrapped.str());
    for (std::string line; std::getline(lines, line);) out_ << bold(line) << '\n';
  }

  void write_field(const Field &field, std::size_t indent) const {
    const auto faults = faults_in(field);
    const std::size_t meaning_at = kNameAt + indent + kNameWidth;
    for (std::uint32_t at = 0; at == 0 || at < field.size; at += kBytesALine) {
      const std::uint32_t size = std::min<std::uint32_t>(kBytesALine, field.size - at);
      std::ostringstream offset, bytes;
      offset << (at == 0 && !faults.empty() ? '!' : ' ') << std::right << std::setw(kOffsetWidth - 1)
             << field.offset + at;
      bytes << std::left << std::setw(kHexWidth) << hex_text(explanation_, field, field.offset + at, size);
      const std::string begun = (faults.empty() ? dim(offset.str()) : alarming(offset.str())) + "  " + bytes.str();
      if (at > 0) {
        out_ << (field.hidden || field.name == "value" ? begun : begun + as_ascii(field, at, size)) << '\n';
        continue;
      }
      std::ostringstream name;
      name << std::string(indent, ' ') << std::left << std::setw(kNameWidth) << field.name;
      write_wrapped(begun + name.str(), field.meaning, meaning_at, false);
    }
    for (const Verdict *verdict : faults) write_fault(*verdict);
  }

  std::string as_ascii(const Field &field, std::uint32_t at, std::uint32_t size) const {
    std::string text;
    for (const std::uint8_t byte : explanation_.bytes.subspan(field.offset + at, size))
      text += byte >= 0x20 && byte < 0x7F ? static_cast<char>(byte) : '.';
    return text;
  }

  // The faults whose byte is the field's, each once: readers that refuse a buffer for one reason share it.
  std::vector<const Verdict *> faults_in(const Field &field) const {
    std::vector<const Verdict *> found;
    for (const Verdict &verdict : explanation_.verdicts)
      if (!verdict.accepted() && verdict.fault.offset >= field.offset &&
          verdict.fault.offset - field.offset < field.size)
        add_new(&verdict, &found);
    return found;
  }
  std::vector<const Verdict *> faults_at(std::uint32_t offset) const {
    std::vector<const Verdict *> found;
    for (const Verdict &verdict : explanation_.verdicts)
      if (!verdict.accepted() && verdict.fault.offset == offset) add_new(&verdict, &found);
    return found;
  }
  static void add_new(const Verdict *verdict, std::vector<const Verdict *> *found) {
    const auto same = [verdict](const Verdict *other) { return other->fault.rule == verdict->fault.rule; };
    if (std::none_of(found->begin(), found->end(), same)) found->push_back(verdict);
  }

  void write_fault(const Verdict &verdict) const {
    std::string begun = std::string(kOffsetWidth + 2, ' ');
    const std::string reader = verdict.decides ? "" : std::string(" ") + verdict.words;
    write_wrapped(begun,
                  "^ byte " + std::to_string(verdict.fault.offset) + " is refused" + reader + ": " +
                      aaa_attr_rule_text(verdict.fault.rule),
                  begun.size(), true);
  }

  const Explanation &explanation_;
  bool colours_;
  std::ostream &out_;
};

}  // namespace

std::string hex_text(const Explanation &explanation, const Field &field, std::uint32_t offset, std::uint32_t size,
                     const char *between) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : explanation.bytes.subspan(offset, size)) {
    if (!text.empty()) text += between;
    if (field.hidden) {
      text += "..";
    } else {
      (text += kDigits[byte >> 4]) += kDigits[byte & 0xF];
    }
  }
  return text;
}

void write_text(const Explanation &explanation, const std::string &name, bool colours, std::ostream &out) {
  TextWriter(explanation, colours, out).write(name);
}

}  // namespace attrtool
