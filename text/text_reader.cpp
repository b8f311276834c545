#include "text_reader.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "attribute_draft.h"
#include "meta_flags.h"
#include "values.h"

namespace attrtext {
namespace {

constexpr std::string_view kBlanks = " \t\r";

// A view of the same text also when nothing is left, so that messages know the place.
std::string_view trim(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  while (!text.empty() && kBlanks.find(text.back()) != std::string_view::npos) text.remove_suffix(1);
  return text;
}

// ---- The note in brackets ----

std::uint16_t short_number(std::string_view text) { return static_cast<std::uint16_t>(required_number(text, 65535)); }

void read_note_word(std::string_view word, attrmgr::meta *meta) {
  const std::size_t equals = std::min(word.find('='), word.size());
  const std::string_view key = word.substr(0, equals + 1);  // with its '=', if there is one
  const std::string_view value = word.substr(key.size());
  if (word == "mandatory") {
    meta->flags |= AAA_ATTR_META_MANDATORY;
  } else if (key == "service=") {
    meta->service = number_of_name(value_service, value);
  } else if (key == "protocol=") {
    meta->protocol = number_of_name(value_protocol, value);
  } else if (key == "tag=") {
    meta->tag = short_number(value);
  } else if (key == "flags=") {
    meta->flags |= flags_written(short_number(value));
  } else if (key == "client=") {
    meta->client = short_number(value);
  } else {
    throw unexpected("service=, protocol=, tag=, flags=, client=, producer= or mandatory in the brackets", word);
  }
}

// A note that tells of the producer alone gives no meta; an empty one gives a meta of zeros.
void read_note(std::string_view note, AttributeDraft *draft) {
  constexpr std::string_view kProducer = "producer=";
  attrmgr::meta meta;
  bool has_meta = trim(note).empty();
  while (!(note = trim(note)).empty()) {
    const std::string_view word = note.substr(0, note.find_first_of(kBlanks));
    if (word.starts_with(kProducer)) {
      draft->producer = static_cast<std::uint32_t>(required_number(word.substr(kProducer.size()), kProducerMax));
    } else {
      read_note_word(word, &meta);
      has_meta = true;
    }
    note.remove_prefix(word.size());
  }
  if (has_meta) draft->meta = meta;
}

// ---- One line ----

struct Line {
  AttributeDraft draft;
  std::string_view name, value;
};

Line split(std::string_view text) {
  Line line;
  const std::size_t name_end = std::min(text.find_first_of("[="), text.size());
  line.name = trim(text.substr(0, name_end));
  if (line.name.empty()) throw unexpected("an attribute name", text);
  text.remove_prefix(name_end);
  if (text.starts_with('[')) {
    const std::size_t close = text.find(']');
    if (close == std::string_view::npos) throw unexpected("']' after the note", text);
    read_note(text.substr(1, close - 1), &line.draft);
    text = trim(text.substr(close + 1));
  }
  if (!text.starts_with('=')) throw unexpected("'=' after " + in_quotes(line.name), text);
  line.value = trim(text.substr(1));
  line.draft.type = type_from_name(line.name);
  return line;
}

// ---- The whole text ----

class ListBuilder {
 public:
  void take_line(std::string_view text) {
    ++line_number_;
    text = trim(text);
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos)
      throw BadText("expected text, found a zero byte", text.substr(zero));
    if (text.empty() || text.starts_with('#')) return;
    if (text.starts_with('}')) {
      close_group(text);
    } else {
      add_line(split(text));
    }
  }

  // end: the end of the text.
  attrmgr::list finish(std::string_view end) {
    if (groups_.empty()) return std::move(list_);
    throw BadText("expected '}' for the group opened on line " + std::to_string(groups_.back().opened) +
                      ", found the end of the file",
                  end);
  }

 private:
  struct Group {
    attrmgr::list_ref list;
    std::size_t opened;
  };

  void add_line(const Line &line) {
    const bool grouped = aaa_attr_get_format_from_type(line.draft.type) == AAA_ATTR_FMT_GROUPED;
    if (grouped && line.value != "{")
      throw unexpected("'{', since " + in_quotes(line.name) + " is a group", line.value);
    if (!grouped && line.value == "{")
      throw BadText(in_quotes(line.name) + " is no group: expected a value, found '{'", line.value);
    if (grouped) return open_group(line);
    add(innermost(), line.draft, value_from_text(line.draft.type, line.value), line.value);
  }

  // The sub-list belongs to the list around it from the start, so that nothing is lost when a later line is bad.
  void open_group(const Line &line) {
    check_nesting(groups_.size(), line.name);
    groups_.push_back({add_group(innermost(), line.draft, attrmgr::list(), line.value), line_number_});
  }

  void close_group(std::string_view text) {
    if (text != "}") throw unexpected("nothing after '}'", trim(text.substr(1)));
    if (groups_.empty()) throw BadText("found '}', but no group is open", text);
    groups_.pop_back();
  }

  attrmgr::list_ref innermost() { return groups_.empty() ? attrmgr::list_ref(list_) : groups_.back().list; }

  attrmgr::list list_;
  std::vector<Group> groups_;
  std::size_t line_number_ = 0;
};

}  // namespace

std::variant<attrmgr::list, BadPlace> list_from_text(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  ListBuilder builder;
  try {
    std::string_view rest = text;
    if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
    while (!rest.empty()) {
      const std::string_view line = rest.substr(0, rest.find('\n'));
      builder.take_line(line);
      rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    return builder.finish(rest);
  } catch (const BadText &bad) {
    return bad_place(text, bad);
  }
}

}  // namespace attrtext
