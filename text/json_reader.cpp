#include "json_reader.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "attribute_draft.h"
#include "json_writer.h"
#include "meta_flags.h"
#include "printable.h"
#include "values.h"

namespace attrtext {
namespace {

// ---- The text, and how far the parser has read it

class Position {
 public:
  explicit Position(std::string_view text) : text_(text) {}

  // What the parser has read since it was asked before, without what separates values. A number it knows to be over
  // from the character after it, which is left for the next token.
  std::string_view token() {
    const std::size_t first = std::min(text_.find_first_not_of(" \t\r\n,:", before_), read_);
    std::string_view read = text_.substr(first, read_ - first);
    if (is_number(read)) read = read.substr(0, read.find_first_of(" \t\r\n,}]"));
    before_ = first + read.size();
    return read;
  }

  std::string_view at(std::size_t offset) const { return text_.substr(std::min(offset, text_.size())); }

 private:
  friend class Input;

  static bool is_number(std::string_view token) {
    return !token.empty() && (token.front() == '-' || (token.front() >= '0' && token.front() <= '9'));
  }

  std::string_view text_;
  std::size_t before_ = 0;  // where the last token ended
  std::size_t read_ = 0;
};

// An input iterator that tells the position how far it has come.
class Input {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char *;
  using reference = const char &;

  Input(Position &position, std::size_t at) : position_(&position), at_(at) {}
  reference operator*() const { return position_->text_[at_]; }
  Input &operator++() {
    position_->read_ = ++at_;
    return *this;
  }
  friend bool operator==(const Input &one, const Input &other) { return one.at_ == other.at_; }

 private:
  Position *position_;
  std::size_t at_;
};

// ---- What has been read of an object

// A value that is no array and no object.
struct Scalar {
  enum Kind { kNull, kBoolean, kInteger, kReal, kString } kind;
  std::string text;  // a string's characters, or the digits
  std::string_view place{};
};

BadText unexpected_value(const std::string &expected, const Scalar &found) {
  return {"expected " + expected + ", found " + in_quotes(found.text), found.place};
}

struct Attribute {
  std::string_view place;
  std::vector<std::string> seen{};  // its members
  AttributeDraft draft{};
  std::string_view type_place{};
  std::optional<Scalar> name{}, value{}, bytes{};
  std::optional<attrmgr::list> group{};
};

// Runs the function; what it says of a copy of a token is said of the token.
template <class Function>
auto at_place(std::string_view place, Function function) {
  try {
    return function();
  } catch (const BadText &bad) {
    throw BadText(bad.what(), place);
  }
}

std::uint64_t whole_number(const Scalar &scalar, std::uint64_t max) {
  const auto number = scalar.kind == Scalar::kInteger ? number_from_text(scalar.text, max) : std::nullopt;
  if (!number) throw unexpected_value("a number from 0 to " + std::to_string(max), scalar);
  return *number;
}

std::uint8_t named_number(const aaa_attr_value_table &table, const Scalar &scalar) {
  if (scalar.kind != Scalar::kInteger && scalar.kind != Scalar::kString)
    throw unexpected_value("a name of the dictionary or a number from 0 to 255", scalar);
  if (scalar.kind == Scalar::kInteger) return static_cast<std::uint8_t>(whole_number(scalar, 255));
  return at_place(scalar.place, [&] { return number_of_name(table, scalar.text); });
}

// ---- Members of a meta, an attribute, the whole

void read_meta_member(const std::string &key, const Scalar &scalar, attrmgr::meta *meta) {
  const auto short_number = [&] { return static_cast<std::uint16_t>(whole_number(scalar, 65535)); };
  if (key == "service") {
    meta->service = named_number(value_service, scalar);
  } else if (key == "protocol") {
    meta->protocol = named_number(value_protocol, scalar);
  } else if (key == "tag") {
    meta->tag = short_number();
  } else if (key == "flags") {
    meta->flags |= flags_written(short_number());
  } else if (key == "client") {
    meta->client = short_number();
  } else if (scalar.kind != Scalar::kBoolean) {
    throw unexpected_value("true or false", scalar);
  } else if (scalar.text == "true") {
    meta->flags |= AAA_ATTR_META_MANDATORY;
  }
}

void read_member(const std::string &key, Scalar scalar, Attribute *attribute) {
  if (key == "type") {
    attribute->type_place = scalar.place;
    attribute->draft.type = static_cast<std::uint32_t>(whole_number(scalar, AAA_ATTR_TYPE_COUNT - 1));
    if (attribute->draft.type == 0) throw unexpected_value("a type number from 1 on", scalar);
  } else if (key == "name" && scalar.kind == Scalar::kString) {
    attribute->name = std::move(scalar);
  } else if (key == "producer") {
    attribute->draft.producer = static_cast<std::uint32_t>(whole_number(scalar, kProducerMax));
  } else if (key == "value") {
    attribute->value = std::move(scalar);
  } else if (key == "bytes" && scalar.kind == Scalar::kString) {
    attribute->bytes = std::move(scalar);
  } else if (key == "hidden") {
    throw BadText(R"(the value is a secret that was left out here: expected "value" or "bytes")", scalar.place);
  } else {
    throw unexpected_value(key == "name" || key == "bytes" ? "a string" : "an array or an object for \"" + key + '"',
                           scalar);
  }
}

Bytes bytes_of_number(std::uint32_t type, const Scalar &scalar) {
  const std::uint32_t format = aaa_attr_get_format_from_type(type);
  if (format == AAA_ATTR_FMT_ENUM) {
    const auto value = static_cast<std::uint32_t>(whole_number(scalar, UINT32_MAX));
    const auto *first = reinterpret_cast<const std::uint8_t *>(&value);
    return {first, first + sizeof value};
  }
  if (format != AAA_ATTR_FMT_ULONG && format != AAA_ATTR_FMT_ULONGLONG && format != AAA_ATTR_FMT_UTC)
    throw unexpected_value(std::string("a string for format ") + aaa_attr_get_format_string(format), scalar);
  return value_from_plain(type, scalar.text);
}

Bytes bytes_of_value(std::uint32_t type, const Scalar &scalar) {
  switch (scalar.kind) {
    case Scalar::kString:
      return value_from_plain(type, scalar.text);
    case Scalar::kInteger:
      return bytes_of_number(type, scalar);
    case Scalar::kBoolean:
      if (aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_BOOLEAN) return value_from_plain(type, scalar.text);
      break;
    default:
      break;
  }
  throw unexpected_value(
      std::string("a value of format ") + aaa_attr_get_format_string(aaa_attr_get_format_from_type(type)), scalar);
}

Bytes bytes_of_hex(const Scalar &scalar) {
  if (scalar.text.empty()) return {};
  if (auto bytes = hex_bytes(scalar.text)) return *std::move(bytes);
  throw unexpected_value("pairs of hexadecimal digits", scalar);
}

// The type that number and name agree on.
void settle_type(Attribute *attribute) {
  const std::optional<Scalar> &name = attribute->name;
  if (!name && attribute->draft.type == 0)
    throw BadText(R"(expected "type" or "name" in the object)", attribute->place);
  if (!name) return;
  if (attribute->draft.type == 0) {
    attribute->draft.type = at_place(name->place, [&] { return type_from_name(name->text); });
  } else if (const char *known = aaa_attr_get_name_from_type(attribute->draft.type); name->text != known) {
    throw unexpected_value("the name of type " + std::to_string(attribute->draft.type) + ", " + in_quotes(known),
                           *name);
  }
}

void add_finished(attrmgr::list_ref list, Attribute attribute) {
  settle_type(&attribute);
  const std::uint32_t type = attribute.draft.type;
  const bool grouped = aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED;
  const int values = (attribute.value ? 1 : 0) + (attribute.bytes ? 1 : 0) + (attribute.group ? 1 : 0);
  if (values != 1 || grouped != attribute.group.has_value())
    throw BadText(std::string("expected ") +
                      (grouped ? R"("attributes", since )" : R"(either "value" or "bytes" for )") +
                      in_quotes(aaa_attr_get_name_from_type(type)) + (grouped ? " is a group" : ""),
                  attribute.place);
  if (grouped) {
    add_group(list, attribute.draft, *std::move(attribute.group), attribute.place);
    return;
  }
  const Scalar &given = attribute.value ? *attribute.value : *attribute.bytes;
  const Bytes bytes =
      at_place(given.place, [&] { return attribute.value ? bytes_of_value(type, given) : bytes_of_hex(given); });
  add(list, attribute.draft, bytes, given.place);
}

// ---- The whole text

// Is told of the parser's tokens. An attribute is added when its object ends, whatever the order of its members.
class Builder : public nlohmann::json_sax<nlohmann::json> {
 public:
  explicit Builder(std::string_view text) : position_(text) {}

  Position &position() { return position_; }

  attrmgr::list finish() {
    if (!has_version_) throw BadText(R"(expected "version": 1 in the object)", position_.at(0));
    if (!has_attributes_) throw BadText(R"(expected "attributes" in the object)", position_.at(0));
    return std::move(list_);
  }

  bool null() override { return take({Scalar::kNull, "null"}); }
  bool boolean(bool value) override { return take({Scalar::kBoolean, value ? "true" : "false"}); }
  bool number_integer(number_integer_t value) override { return take({Scalar::kInteger, std::to_string(value)}); }
  bool number_unsigned(number_unsigned_t value) override { return take({Scalar::kInteger, std::to_string(value)}); }
  bool number_float(number_float_t, const std::string &text) override { return take({Scalar::kReal, text}); }
  bool string(std::string &value) override { return take({Scalar::kString, std::move(value)}); }
  bool binary(nlohmann::json::binary_t &) override { return false; }  // JSON has none

  bool start_object(std::size_t) override {
    const std::string_view place = position_.token();
    if (levels_.empty()) {
      levels_.push_back(Level::kTop);
    } else if (levels_.back() == Level::kArray) {
      levels_.push_back(Level::kAttribute);
      attributes_.push_back({.place = place});
    } else if (levels_.back() == Level::kAttribute && key_ == "meta") {
      levels_.push_back(Level::kMeta);
      attributes_.back().draft.meta.emplace();
      meta_seen_.clear();
    } else {
      throw unexpected(expected_for_key(), place);
    }
    return true;
  }

  bool start_array(std::size_t) override {
    const std::string_view place = position_.token();
    if (levels_.empty() || key_ != "attributes" ||
        (levels_.back() != Level::kTop && levels_.back() != Level::kAttribute))
      throw unexpected(expected_for_key(), place);
    if (levels_.back() == Level::kAttribute) {
      check_nesting(attributes_.size() - 1, place);
      attributes_.back().group.emplace();
    } else {
      has_attributes_ = true;
    }
    levels_.push_back(Level::kArray);
    return true;
  }

  bool key(std::string &name) override {
    const std::string_view place = position_.token();
    std::vector<std::string> &seen = levels_.back() == Level::kTop         ? top_seen_
                                     : levels_.back() == Level::kAttribute ? attributes_.back().seen
                                                                           : meta_seen_;
    check_member(name, place);
    if (std::find(seen.begin(), seen.end(), name) != seen.end()) throw BadText("the member stands here twice", place);
    seen.push_back(name);
    key_ = std::move(name);
    return true;
  }

  bool end_object() override {
    position_.token();
    const Level ended = levels_.back();
    levels_.pop_back();
    if (ended != Level::kAttribute) return true;
    Attribute attribute = std::move(attributes_.back());
    attributes_.pop_back();
    add_finished(innermost(), std::move(attribute));
    return true;
  }

  bool end_array() override {
    position_.token();
    levels_.pop_back();
    return true;
  }

  bool parse_error(std::size_t offset, const std::string &, const nlohmann::detail::exception &error) override {
    const std::string_view what = error.what();  // "[...] parse error at line 1, column 2: syntax error ..."
    const std::size_t reason = what.find(": ");
    throw BadText("this is no JSON: " + printable(reason == std::string_view::npos ? what : what.substr(reason + 2)),
                  position_.at(offset == 0 ? 0 : offset - 1));
  }

 private:
  enum class Level { kTop, kArray, kAttribute, kMeta };

  bool take(Scalar scalar) {
    scalar.place = position_.token();
    if (levels_.empty() || levels_.back() == Level::kArray) throw unexpected_value("an object", scalar);
    if (levels_.back() == Level::kMeta) {
      read_meta_member(key_, scalar, &*attributes_.back().draft.meta);
    } else if (levels_.back() == Level::kAttribute) {
      read_member(key_, std::move(scalar), &attributes_.back());
    } else if (key_ == "attributes") {
      throw unexpected_value("an array", scalar);
    } else if (key_ == "version") {
      if (scalar.kind != Scalar::kInteger || scalar.text != std::to_string(kJsonVersion))
        throw unexpected_value("version 1", scalar);
      has_version_ = true;
    }
    return true;
  }

  // What the member whose value begins now should have.
  std::string expected_for_key() const {
    if (levels_.empty()) return R"(an object with "version" and "attributes")";
    if (levels_.back() == Level::kArray) return "an object";
    if (levels_.back() == Level::kAttribute && key_ == "meta") return "an object";
    return key_ == "attributes" ? "an array" : "no array and no object for \"" + key_ + '"';
  }

  void check_member(const std::string &name, std::string_view place) const {
    static const std::vector<std::string> top = {"$schema", "version", "form", "size", "attributes"};
    static const std::vector<std::string> of_attribute = {"type",  "name",  "meta",       "producer",
                                                          "value", "bytes", "attributes", "hidden"};
    static const std::vector<std::string> of_meta = {"service", "protocol", "tag", "mandatory", "flags", "client"};
    const std::vector<std::string> &known = levels_.back() == Level::kTop         ? top
                                            : levels_.back() == Level::kAttribute ? of_attribute
                                                                                  : of_meta;
    if (std::find(known.begin(), known.end(), name) != known.end()) return;
    std::string names;
    for (const std::string &each : known) names += (names.empty() ? "" : ", ") + each;
    throw unexpected("one of the members " + names, place);
  }

  attrmgr::list_ref innermost() {
    return attributes_.empty() ? attrmgr::list_ref(list_) : attrmgr::list_ref(*attributes_.back().group);
  }

  Position position_;
  attrmgr::list list_;
  std::vector<Level> levels_;          // what is open
  std::vector<Attribute> attributes_;  // those of the levels
  std::vector<std::string> top_seen_, meta_seen_;
  std::string key_;
  bool has_version_ = false, has_attributes_ = false;
};

}  // namespace

std::variant<attrmgr::list, BadPlace> list_from_json(std::string_view text) {
  try {
    Builder builder(text);
    nlohmann::json::sax_parse(Input(builder.position(), 0), Input(builder.position(), text.size()), &builder);
    return builder.finish();
  } catch (const BadText &bad) {
    return bad_place(text, bad);
  }
}

}  // namespace attrtext
