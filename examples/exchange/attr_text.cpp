#include "attr_text.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "values.h"

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// ---- The note in brackets ----

std::uint8_t named_number(const aaa_attr_value_table &table, std::string_view text) {
  for (std::uint64_t value = 0; value < table.count; ++value)
    if (text == table.names[value]) return static_cast<std::uint8_t>(value);
  if (const auto number = number_from_text(text, 255)) return static_cast<std::uint8_t>(*number);
  throw unexpected("a name of the dictionary or a number from 0 to 255", text);
}

std::uint16_t short_number(std::string_view text) { return static_cast<std::uint16_t>(required_number(text, 65535)); }

void read_note_word(std::string_view word, attrmgr::meta *meta) {
  const std::size_t equals = std::min(word.find('='), word.size());
  const std::string_view key = word.substr(0, equals + 1);  // with its '=', if there is one
  const std::string_view value = word.substr(key.size());
  if (word == "mandatory") {
    meta->flags = AAA_ATTR_META_MANDATORY;
  } else if (key == "service=") {
    meta->service = named_number(value_service, value);
  } else if (key == "protocol=") {
    meta->protocol = named_number(value_protocol, value);
  } else if (key == "tag=") {
    meta->tag = short_number(value);
  } else if (key == "client=") {
    meta->client = short_number(value);
  } else {
    throw unexpected("service=, protocol=, tag=, client= or mandatory in the brackets", word);
  }
}

attrmgr::meta meta_from_note(std::string_view note) {
  attrmgr::meta meta;
  while (!(note = trim(note)).empty()) {
    const std::string_view word = note.substr(0, note.find_first_of(kBlanks));
    read_note_word(word, &meta);
    note.remove_prefix(word.size());
  }
  return meta;
}

// ---- One line ----

struct Line {
  std::string name;
  std::optional<attrmgr::meta> meta;
  std::string_view value;
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
    line.meta = meta_from_note(text.substr(1, close - 1));
    text = trim(text.substr(close + 1));
  }
  if (!text.starts_with('=')) throw unexpected("'=' after " + quoted(line.name), text);
  line.value = trim(text.substr(1));
  return line;
}

std::uint32_t type_of(const std::string &name) {
  if (const std::uint32_t type = aaa_attr_get_type_from_name(name.c_str())) return type;
  if (const auto type = number_from_text(name, AAA_ATTR_TYPE_COUNT - 1); type && *type != 0)
    return static_cast<std::uint32_t>(*type);
  throw unexpected("an attribute name or a type number from 1 to " + std::to_string(AAA_ATTR_TYPE_COUNT - 1), name);
}

void check_added(const attrmgr::result<void> &added) {
  if (added.code() == AAA_ATTR_ERR_BAD_ARG) throw BadText("the value is too long: an attribute must fit 65,535 bytes");
  if (!added) throw BadText(std::string("the attribute cannot be added: ") + added.message());
}

// ---- The whole text ----

class ListBuilder {
 public:
  void take_line(std::string_view text) {
    ++line_number_;
    text = trim(text);
    if (text.find('\0') != std::string_view::npos) throw BadText("expected text, found a zero byte");
    if (text.empty() || text.starts_with('#')) return;
    if (text.starts_with('}')) {
      close_group(text);
    } else {
      add(split(text));
    }
  }

  attrmgr::list finish() {
    if (groups_.empty()) return std::move(list_);
    throw BadText("expected '}' for the group opened on line " + std::to_string(groups_.back().opened) +
                  ", found the end of the file");
  }

  unsigned line_number() const { return line_number_; }

 private:
  struct Group {
    attrmgr::list_ref list;
    unsigned opened;
  };

  void add(const Line &line) {
    const std::uint32_t type = type_of(line.name);
    const bool grouped = aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED;
    if (grouped && line.value != "{") throw unexpected("'{', since " + quoted(line.name) + " is a group", line.value);
    if (!grouped && line.value == "{") throw BadText(quoted(line.name) + " is no group: expected a value, found '{'");
    if (grouped) return open_group(type, line);
    const Bytes value = value_from_text(type, line.value);
    const auto bytes = std::as_bytes(std::span(value));
    check_added(line.meta ? innermost().try_add_bytes(type, bytes, *line.meta)
                          : innermost().try_add_bytes(type, bytes));
  }

  // The sub-list belongs to the list around it from the start, so that nothing is lost when a later line is bad.
  void open_group(std::uint32_t type, const Line &line) {
    if (groups_.size() == AAA_ATTR_NESTING_MAX)
      throw BadText("groups nest too deep: no receiver takes more than " + std::to_string(AAA_ATTR_NESTING_MAX));
    attrmgr::list_ref around = innermost();
    groups_.push_back(
        {line.meta ? around.add_group_by_number(type, *line.meta) : around.add_group_by_number(type), line_number_});
  }

  void close_group(std::string_view text) {
    if (text != "}") throw unexpected("nothing after '}'", trim(text.substr(1)));
    if (groups_.empty()) throw BadText("found '}', but no group is open");
    groups_.pop_back();
  }

  attrmgr::list_ref innermost() { return groups_.empty() ? attrmgr::list_ref(list_) : groups_.back().list; }

  attrmgr::list list_;
  std::vector<Group> groups_;
  unsigned line_number_ = 0;
};

}  // namespace

std::variant<attrmgr::list, BadLine> list_from_text(std::istream &text) {
  ListBuilder builder;
  try {
    for (std::string line; std::getline(text, line);) builder.take_line(line);
    return builder.finish();
  } catch (const BadText &bad) {
    return BadLine{builder.line_number(), bad.what()};
  }
}
