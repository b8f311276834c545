// The page: what the readers answer, a map of the bytes, and the table of fields that it takes its words from.
#include <cstdio>
#include <map>
#include <ostream>

#include "explain_page.h"
#include "explain_words.h"
#include "explain_writers.h"

namespace attrtool {
namespace {

constexpr std::uint32_t kBytesARow = 16;

// Text as it may stand in an element or an attribute. Bytes that are not printable ASCII are escaped first.
std::string escaped(std::string_view text) {
  std::string safe;
  for (const char c : printable(text)) {
    if (c == '&') {
      safe += "&amp;";
    } else if (c == '<') {
      safe += "&lt;";
    } else if (c == '>') {
      safe += "&gt;";
    } else if (c == '"') {
      safe += "&quot;";
    } else {
      safe += c;
    }
  }
  return safe;
}

// Of a run of bytes, "b", or a row of the table of fields, "f".
std::string id_of(const char *kind, std::size_t field) { return kind + std::to_string(field); }

// A blank, the name, and the value in quotes.
std::string attribute(const char *name, std::string_view value) {
  return std::string(" ") + name + "=\"" + escaped(value) + "\"";
}

const char *class_of(SectionKind kind, const std::string &field) {
  switch (kind) {
    case SectionKind::kMarker:
      return "marker";
    case SectionKind::kBlock:
    case SectionKind::kList:
      return "header";
    case SectionKind::kUnread:
      return "unread";
    case SectionKind::kRecord:
      break;
  }
  if (field == "value") return "value";
  const bool in_header = field == "type" || field == "record flags" || field == "length" || field == "meta length";
  return in_header ? "record" : "meta";
}

class PageWriter {
 public:
  PageWriter(const Explanation &explanation, const std::string &name, std::ostream &out)
      : explanation_(explanation), name_(escaped(name)), out_(out) {
    for (const Section &section : explanation.sections)
      for (const Field &field : section.fields) fields_.push_back({&section, &field});
  }

  void write() {
    out_ << kPageHead << "<title>" << name_ << ", byte by byte</title>\n<style>" << kPageStyle
         << "</style>\n</head>\n<body>\n";
    write_header();
    out_ << "<main>\n";
    write_map();
    write_fields();
    out_ << "</main>\n<footer>Written by attrtool explain.</footer>\n<script>" << kPageScript
         << "</script>\n</body>\n</html>\n";
  }

 private:
  struct Place {
    const Section *section;
    const Field *field;
  };

  // The number of the field that a byte is part of; that of the last one for the buffer's end.
  std::size_t field_of(std::uint32_t offset) const {
    std::size_t found = 0;
    for (std::size_t i = 0; i < fields_.size(); ++i)
      if (fields_[i].field->offset <= offset && fields_[i].field->size > 0) found = i;
    return found;
  }

  bool is_refused(std::uint32_t offset) const {
    for (const Verdict &verdict : explanation_.verdicts)
      if (!verdict.accepted() && verdict.fault.offset == offset) return true;
    return false;
  }

  // Why readers stop at the field, a sentence for each rule.
  std::string why(const Field &field) const {
    std::map<std::uint32_t, std::string> readers;
    const auto end = static_cast<std::uint32_t>(explanation_.bytes.size());
    const bool is_last = fields_.back().field == &field;
    for (const Verdict &verdict : explanation_.verdicts) {
      const std::uint32_t at = verdict.fault.offset;
      const bool here = at >= field.offset && at - field.offset < field.size;
      if (verdict.accepted() || !(here || (is_last && at == end))) continue;
      std::string &words = readers[verdict.fault.rule];
      if (words.empty()) words = here ? "Refused (" : "Refused at the end of the buffer (";
      words += (words.back() == '(' ? "" : ", ") + std::string(verdict.words);
    }
    std::string text;
    for (const auto &[rule, words] : readers)
      text += (text.empty() ? "" : " ") + words + "): " + aaa_attr_rule_text(rule) + ".";
    return text;
  }

  void write_header() {
    const Explanation &all = explanation_;
    out_ << "<header>\n<h1>" << name_ << "</h1>\n<p" << attribute("class", "summary") << ">"
         << escaped(summary_text(all.form, all.bytes.size(), all.counts)) << "</p>\n<ul"
         << attribute("class", "verdicts") << ">\n";
    for (const Verdict &verdict : explanation_.verdicts) write_verdict(verdict);
    out_ << "</ul>\n</header>\n";
  }

  void write_verdict(const Verdict &verdict) {
    const bool yes = verdict.accepted();
    out_ << "<li" << attribute("class", yes ? "yes" : "no") << ">" << capital(verdict.words) << ": <strong>"
         << (yes ? "accepted" : "refused") << "</strong>";
    if (!yes) {
      const std::size_t at = field_of(verdict.fault.offset);
      out_ << " at <a" << attribute("href", id_of("#f", at)) << attribute("data-f", std::to_string(at)) << ">byte "
           << verdict.fault.offset << " (" << escaped(place_name(explanation_.field_at(verdict.fault.offset)))
           << ")</a>: " << escaped(aaa_attr_rule_text(verdict.fault.rule));
    }
    out_ << "</li>\n";
  }

  void write_map() {
    out_ << kMapHead;
    const auto end = static_cast<std::uint32_t>(explanation_.bytes.size());
    std::size_t field = 0;
    for (std::uint32_t row = 0; row < end; row += kBytesARow) write_row(row, std::min(row + kBytesARow, end), &field);
    out_ << kMapFoot;
  }

  // Bytes in hexadecimal, and the same as text; a run for each field. field: that of the row's first byte.
  void write_row(std::uint32_t begin, std::uint32_t end, std::size_t *field) {
    std::string hex, text;
    for (std::uint32_t at = begin; at < end;) {
      while (fields_[*field].field->offset + fields_[*field].field->size <= at) ++*field;
      const Field &current = *fields_[*field].field;
      const std::uint32_t run_end = std::min(end, current.offset + current.size);
      write_run(*field, at, run_end, &hex, &text);
      at = run_end;
      if (at < end) hex += ' ';
    }
    out_ << "<div" << attribute("class", "row") << attribute("role", "none") << "><span" << attribute("class", "at")
         << kUnspoken << ">" << begin << "</span><span" << attribute("class", "hex") << attribute("role", "none") << ">"
         << hex << "</span><span" << attribute("class", "text") << kUnspoken << ">" << text << "</span></div>\n";
  }

  void write_run(std::size_t number, std::uint32_t begin, std::uint32_t end, std::string *hex,
                 std::string *text) const {
    const auto &[section, field] = fields_[number];
    const std::string look = std::string(class_of(section->kind, field->name)) + (field->hidden ? " hidden" : "");
    const std::string opening = "<span" + attribute("class", look) + attribute("data-f", std::to_string(number));
    *hex += opening + (begin == field->offset ? option_attributes(number) : std::string(kUnspoken)) + ">";
    *text += opening + ">";
    for (std::uint32_t at = begin; at < end; ++at) {
      const std::string byte = hex_text(explanation_, *field, at, 1);
      *hex += at > begin ? " " : "";
      *hex += is_refused(at) ? "<b" + attribute("class", "bad") + ">" + byte + "</b>" : byte;
      const std::uint8_t shown = explanation_.bytes[at];
      const bool unseen = field->hidden || shown < 0x20 || shown >= 0x7F;
      *text += unseen ? "." : escaped(std::string(1, static_cast<char>(shown)));
    }
    *hex += "</span>";
    *text += "</span>";
  }

  // Of a field's first run, which stands for all of it: what one gets to by keys, and what is read out.
  std::string option_attributes(std::size_t number) const {
    const auto &[section, field] = fields_[number];
    const std::string sentence = why(*field);
    const std::string label = section->title + ", " + field->name + ", " + where(*field) + ": " + field->meaning;
    return attribute("id", id_of("b", number)) + attribute("role", "option") + attribute("aria-selected", "false") +
           attribute("tabindex", "-1") + attribute("aria-label", sentence.empty() ? label : label + ". " + sentence);
  }

  static std::string where(const Field &field) {
    const std::string first = std::to_string(field.offset);
    if (field.size == 0) return "no bytes, at " + first;
    if (field.size == 1) return "byte " + first;
    return "bytes " + first + " to " + std::to_string(field.offset + field.size - 1);
  }

  void write_fields() {
    out_ << kFieldsHead;
    std::size_t number = 0;
    for (const Section &section : explanation_.sections) {
      const unsigned indent = std::min(section.depth, kDeepestIndent);
      out_ << "<div" << attribute("class", "part") << attribute("data-depth", std::to_string(section.depth))
           << attribute("style", "--depth:" + std::to_string(indent)) << ">\n<h3>" << escaped(section.title)
           << "</h3>\n<table>\n";
      for (const Field &field : section.fields) write_field(field, number++);
      out_ << "</table>\n</div>\n";
    }
    out_ << "</section>\n";
  }

  void write_field(const Field &field, std::size_t number) {
    const std::string sentence = why(field);
    const std::uint32_t shown = std::min(field.size, kBytesInTable);
    out_ << "<tr" << attribute("id", id_of("f", number)) << attribute("data-f", std::to_string(number))
         << attribute("data-at", std::to_string(field.offset)) << attribute("data-where", where(field));
    if (!sentence.empty()) out_ << attribute("class", "refused") << attribute("data-why", sentence);
    out_ << "><td" << attribute("class", "o") << ">" << field.offset << "</td><th" << attribute("scope", "row") << ">"
         << escaped(field.name) << "</th><td" << attribute("class", "m") << ">" << escaped(field.meaning) << "</td><td"
         << attribute("class", "x") << ">" << hex_text(explanation_, field, field.offset, shown)
         << (field.size > shown ? " &hellip;" : "") << "</td></tr>\n";
  }

  static constexpr const char *kUnspoken = " aria-hidden='true'";
  static constexpr unsigned kDeepestIndent = 6;
  static constexpr std::uint32_t kBytesInTable = 8;

  const Explanation &explanation_;
  std::string name_;
  std::ostream &out_;
  std::vector<Place> fields_;
};

}  // namespace

void write_page(const Explanation &explanation, const std::string &name, std::ostream &out) {
  PageWriter(explanation, name, out).write();
}

}  // namespace attrtool
