#include "json_writer.h"

#include <ostream>

#include "meta_flags.h"
#include "printable.h"
#include "values.h"

namespace attrtext {
namespace {

// The largest number up to which every integer has a double of its own, which is all that many readers keep.
constexpr std::uint64_t kNumberMax = std::uint64_t{1} << 53;

void append_utf16(std::uint32_t unit, std::string *to) {
  constexpr char kDigits[] = "0123456789abcdef";
  *to += "\\u";
  for (const unsigned shift : {12u, 8u, 4u, 0u}) *to += kDigits[unit >> shift & 0xF];
}

// The escape of a character of UTF-8.
void append_escape(std::string_view character, std::string *to) {
  constexpr std::uint8_t kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::uint32_t point = static_cast<std::uint8_t>(character[0]) & kLeadBits[character.size()];
  for (const char next : character.substr(1)) point = point << 6 | (static_cast<std::uint8_t>(next) & 0x3F);
  if (point < 0x10000) return append_utf16(point, to);
  append_utf16(0xD800 + ((point - 0x10000) >> 10), to);
  append_utf16(0xDC00 + ((point - 0x10000) & 0x3FF), to);
}

bool is_utf8(std::string_view text) {
  while (const std::size_t length = utf8_length(text)) text.remove_prefix(length);
  return text.empty();
}

// A number with its sign, as JSON has it: a string where a double might not be that number.
void append_number(const std::string &digits, std::string *to) {
  const bool negative = digits.starts_with('-');
  const auto size = number_from_text(std::string_view(digits).substr(negative ? 1 : 0), kNumberMax);
  const char *quote = size ? "" : "\"";
  *to += quote;
  *to += digits;
  *to += quote;
}

bool is_number(std::string_view plain) {
  return !plain.empty() &&
         plain.find_first_not_of("0123456789", plain.front() == '-' ? 1 : 0) == std::string_view::npos;
}

void append_member(std::string_view key, std::string *to) {
  *to += to->ends_with('{') ? "\"" : ", \"";
  *to += key;
  *to += "\": ";
}

class AttributeWriter {
 public:
  AttributeWriter(const Secrets &secrets, std::ostream &out) : secrets_(secrets), out_(out) {}

  // The attributes as an array whose elements are indented.
  void write_array(attrmgr::list_view list, std::size_t indent) {
    out_ << '[';
    const char *between = "\n";
    for (const attrmgr::attribute attribute : list) {
      if (secrets_.hides(attribute.type())) continue;
      out_ << between << std::string(indent, ' ');
      write(attribute, indent);
      between = ",\n";
    }
    out_ << ']';
  }

  void write(const attrmgr::attribute &attribute, std::size_t indent) {
    const std::uint32_t type = attribute.type();
    text_.assign(1, '{');
    append_member("type", &text_);
    text_ += std::to_string(type);
    if (type < AAA_ATTR_TYPE_COUNT) {
      append_member("name", &text_);
      append_json_string(attribute.name(), &text_);
    }
    if (const auto meta = attribute.meta()) append_meta(*meta);
    if (const std::uint32_t producer = attribute.producer_client_type(); producer != 0) {
      append_member("producer", &text_);
      text_ += std::to_string(producer);
    }
    if (attribute.has_group()) {
      append_member("attributes", &text_);
      put();
      write_array(attribute.value<attrmgr::list_view>(), indent + 2);
      text_.clear();
    } else {
      append_value(type, attribute.bytes());
    }
    text_ += '}';
    put();
  }

 private:
  void put() { out_.write(text_.data(), static_cast<std::streamsize>(text_.size())); }

  void append_name(std::string_view key, const aaa_attr_value_table &table, std::uint8_t number) {
    if (number == 0) return;
    append_member(key, &text_);
    if (number < table.count) {
      append_json_string(table.names[number], &text_);
    } else {
      text_ += std::to_string(number);
    }
  }

  void append_count(std::string_view key, unsigned number) {
    if (number == 0) return;
    append_member(key, &text_);
    text_ += std::to_string(number);
  }

  // Zeros are left out.
  void append_meta(const attrmgr::meta &meta) {
    append_member("meta", &text_);
    text_ += '{';
    append_name("service", value_service, meta.service);
    append_name("protocol", value_protocol, meta.protocol);
    append_count("tag", meta.tag);
    if ((meta.flags & AAA_ATTR_META_MANDATORY) != 0) {
      append_member("mandatory", &text_);
      text_ += "true";
    }
    append_count("flags", written_flags(meta.flags) & ~kWrittenMandatory);
    append_count("client", meta.client);
    text_ += '}';
  }

  void append_value(std::uint32_t type, ByteSpan value) {
    if (secrets_.hides_value(type)) {
      append_member("hidden", &text_);
      text_ += "true";
      return;
    }
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    const std::string_view stored(reinterpret_cast<const char *>(value.data()), value.size());
    const bool text = format == AAA_ATTR_FMT_STRING || format == AAA_ATTR_FMT_STRING_ATTR;
    if (text && is_utf8(stored)) {
      append_member("value", &text_);
      append_json_string(stored, &text_);
    } else if (const auto plain = plain_from_value(type, value)) {
      append_member("value", &text_);
      append_plain(format, *plain);
    } else {
      append_member("bytes", &text_);
      text_ += '"';
      append_hex(value, "", &text_);
      text_ += '"';
    }
  }

  void append_plain(std::uint32_t format, const std::string &plain) {
    const bool is_name = format == AAA_ATTR_FMT_ENUM && !is_number(plain);
    if (format == AAA_ATTR_FMT_BOOLEAN) {
      text_ += plain;
    } else if (is_number(plain) && !is_name) {
      append_number(plain, &text_);
    } else {
      append_json_string(plain, &text_);
    }
  }

  const Secrets &secrets_;
  std::ostream &out_;
  std::string text_;
};

}  // namespace

void write_json(attrmgr::list_view list, const Secrets &secrets, const JsonOrigin *origin, std::ostream &out) {
  std::string head = "{\"version\": " + std::to_string(kJsonVersion);
  if (origin != nullptr) {
    append_member("form", &head);
    append_json_string(origin->form, &head);
    append_member("size", &head);
    head += std::to_string(origin->size);
  }
  append_member("attributes", &head);
  out << head;
  AttributeWriter(secrets, out).write_array(list, 2);
  out << "}\n";
}

void write_json_attribute(const attrmgr::attribute &attribute, const Secrets &secrets, std::size_t indent,
                          std::ostream &out) {
  AttributeWriter(secrets, out).write(attribute, indent);
}

void append_json_string(std::string_view text, std::string *to) {
  *to += '"';
  while (!text.empty()) {
    const std::size_t length = utf8_length(text);
    const std::string_view character = text.substr(0, length == 0 ? 1 : length);
    if (length == 0) {
      *to += "\\ufffd";
    } else if (text.front() == '"' || text.front() == '\\') {
      *to += {'\\', text.front()};
    } else if (printable_length(text) == 0) {
      append_escape(character, to);
    } else {
      *to += character;
    }
    text.remove_prefix(character.size());
  }
  *to += '"';
}

}  // namespace attrtext
