#include "explain_words.h"

#include <attrmgr/attrmgr.hpp>

#include <bitset>
#include <cctype>
#include <cstring>

#include "text/values.h"

namespace attrtool {
namespace {

constexpr std::size_t kTextLongest = 200;
constexpr std::size_t kHexLongest = 32;

std::string in_hex(std::uint64_t number) {
  char text[24];
  std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(number));
  return text;
}

// The words of a set of flags; bits that have none as a number.
std::string flags_text(std::uint64_t flags, std::initializer_list<std::pair<std::uint64_t, const char *>> words) {
  std::string text;
  const auto add = [&text](const std::string &word) { text += (text.empty() ? "" : ", ") + word; };
  for (const auto &[bit, word] : words)
    if ((flags & bit) != 0) {
      add(word);
      flags &= ~bit;
    }
  if (flags != 0) add(in_hex(flags));
  return text.empty() ? "none" : text;
}

std::string block_flags_text(std::uint64_t flags) {
  return flags_text(flags, {{0x01, "head"},
                            {0x02, "last"},
                            {0x04, "holds grouped"},
                            {0x08, "reserved"},
                            {0x20, "24-byte header"},
                            {0x10, "foreign 16-byte header"}});
}

std::string record_flags_text(std::uint64_t flags) {
  constexpr unsigned kClientShift = 2;
  constexpr std::uint64_t kClientMask = 0x1FC;
  std::string text = flags_text(flags & ~kClientMask, {{1, "meta"}, {2, "removed"}});
  const std::uint64_t client = (flags & kClientMask) >> kClientShift;
  if (client == 0) return text;
  return (text == "none" ? "" : text + ", ") + "producer client type " + std::to_string(client);
}

std::string named(const aaa_attr_value_table &table, std::uint64_t number) {
  const std::string text = std::to_string(number);
  return number < table.count ? text + " " + table.names[number] : text;
}

std::string bytes_text(ByteSpan value) {
  return value.empty() ? "no bytes" : counted(value.size(), "byte") + ": " + quoted(value, kHexLongest);
}

std::string string_text(ByteSpan value, bool ends_in_nul) {
  if (!ends_in_nul) return quoted(value, kTextLongest);
  if (value.empty()) return "no bytes";
  if (value.back() != 0) return quoted(value, kTextLongest) + ", no NUL at its end";
  return quoted(value.first(value.size() - 1), kTextLongest);
}

// The number with its name, which alone would not tell the bytes.
std::string enum_text(std::uint32_t type, ByteSpan value) {
  std::uint32_t number;
  if (value.size() != sizeof number) return bytes_text(value);
  std::memcpy(&number, value.data(), sizeof number);
  const std::string digits = std::to_string(number);
  const char *name = aaa_attr_get_enum_name_from_type(type, number);
  return name != nullptr ? std::string(name) + " (" + digits + ")" : digits;
}

bool display_hides(std::uint32_t type) {
  constexpr char kValue[AAA_IPV6_PREFIX_SIZE] = {};
  attrmgr::list list;
  for (const std::uint32_t length : {18u, 16u, 8u, 4u, 1u})
    if (aaa_attr_add(list.handle(), type, kValue, length, nullptr) == 0) break;
  return attrmgr::to_string(list).find("<opaque value>") != std::string::npos;
}

}  // namespace

const char *name_of_field(std::uint32_t kind) {
  switch (static_cast<aaa_attr_field_kind>(kind)) {
    case AAA_ATTR_FIELD_MARKER:
      return "marker";
    case AAA_ATTR_FIELD_MAGIC:
      return "magic";
    case AAA_ATTR_FIELD_VERSION:
      return "version";
    case AAA_ATTR_FIELD_BLOCK_FLAGS:
      return "block flags";
    case AAA_ATTR_FIELD_BLOCK_COUNT:
      return "block count";
    case AAA_ATTR_FIELD_RECORD_COUNT:
      return "record count";
    case AAA_ATTR_FIELD_FREE_BYTES:
      return "free bytes";
    case AAA_ATTR_FIELD_USED_BYTES:
      return "used bytes";
    case AAA_ATTR_FIELD_RESERVED:
      return "reserved";
    case AAA_ATTR_FIELD_NEXT:
      return "next";
    case AAA_ATTR_FIELD_TYPE:
      return "type";
    case AAA_ATTR_FIELD_RECORD_FLAGS:
      return "record flags";
    case AAA_ATTR_FIELD_LENGTH:
      return "length";
    case AAA_ATTR_FIELD_SERVICE:
      return "service";
    case AAA_ATTR_FIELD_PROTOCOL:
      return "protocol";
    case AAA_ATTR_FIELD_TAG:
      return "tag";
    case AAA_ATTR_FIELD_META_FLAGS:
      return "meta flags";
    case AAA_ATTR_FIELD_CLIENT:
      return "client";
    case AAA_ATTR_FIELD_VALUE:
      return "value";
    case AAA_ATTR_FIELD_TOTAL:
      return "total";
    case AAA_ATTR_FIELD_META_LENGTH:
      return "meta length";
    case AAA_ATTR_FIELD_UNREAD:
      return "not read";
  }
  return "field";
}

std::string type_text(std::uint32_t type) {
  const std::string number = std::to_string(type);
  if (type == 0 || type >= AAA_ATTR_TYPE_COUNT) return "type " + number + ", none of the dictionary";
  return std::string(aaa_attr_get_name_from_type(type)) + " (" + number + ", " +
         aaa_attr_get_format_string(aaa_attr_get_format_from_type(type)) + ")";
}

std::string meaning_of(const aaa_attr_field &field) {
  std::string number = std::to_string(field.number);
  if (field.missing > 0) return "cut short, " + std::to_string(field.missing) + " of its bytes missing";
  switch (static_cast<aaa_attr_field_kind>(field.kind)) {
    case AAA_ATTR_FIELD_MARKER:
      return number + (field.number == AAA_MARSHAL_TLV      ? ": TLV"
                       : field.number == AAA_MARSHAL_BUFFER ? ": flat"
                       : field.number == 0                  ? ": flat to the decoder, nothing to others"
                                                            : ": no form that is known");
    case AAA_ATTR_FIELD_MAGIC:
    case AAA_ATTR_FIELD_RESERVED:
      return in_hex(field.number);
    case AAA_ATTR_FIELD_NEXT:
      return field.number == 0 ? "0: the last block" : in_hex(field.number) + ": there is another block";
    case AAA_ATTR_FIELD_BLOCK_FLAGS:
      return block_flags_text(field.number);
    case AAA_ATTR_FIELD_RECORD_FLAGS:
      return record_flags_text(field.number);
    case AAA_ATTR_FIELD_META_FLAGS:
      return flags_text(field.number, {{AAA_ATTR_META_MANDATORY, "mandatory"}});
    case AAA_ATTR_FIELD_TYPE:
      return field.number == 0 || field.number >= AAA_ATTR_TYPE_COUNT
                 ? number
                 : number + " " + aaa_attr_get_name_from_type(field.type);
    case AAA_ATTR_FIELD_SERVICE:
      return named(value_service, field.number);
    case AAA_ATTR_FIELD_PROTOCOL:
      return named(value_protocol, field.number);
    case AAA_ATTR_FIELD_META_LENGTH:
      return number + (field.number == 0 ? ": no meta" : ": a meta of 8 bytes follows");
    case AAA_ATTR_FIELD_TOTAL:
      return number + " bytes, with these 4";
    case AAA_ATTR_FIELD_UNREAD:
      return counted(field.size, "byte");
    default:
      return number;
  }
}

std::string value_text(std::uint32_t type, ByteSpan value, bool flat) {
  switch (aaa_attr_get_format_from_type(type)) {
    case AAA_ATTR_FMT_STRING:
    case AAA_ATTR_FMT_STRING_ATTR:
      return string_text(value, flat);
    case AAA_ATTR_FMT_ENUM:
      return enum_text(type, value);
    case AAA_ATTR_FMT_GROUPED:
      return value.size() == sizeof(std::uint64_t) ? "the sender's handle" : bytes_text(value);
    default:
      return attrtext::plain_from_value(type, std::as_bytes(value)).value_or(bytes_text(value));
  }
}

std::string counted(std::uint64_t number, const char *what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::string summary_text(const std::string &form, std::size_t size, const Counts &counts) {
  std::string text = form + ", " + counted(size, "byte");
  if (counts.lists == 0) return text;
  text += ": " + counted(counts.lists, "list");
  if (counts.blocks > 0) text += ", " + counted(counts.blocks, "block");
  text += ", " + counted(counts.records, "record");
  return counts.removed > 0 ? text + " (" + std::to_string(counts.removed) + " removed)" : text;
}

std::string capital(std::string text) {
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string printable(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F) {
      safe += c;
    } else {
      char escape[5];
      std::snprintf(escape, sizeof escape, "\\x%02x", byte);
      safe += escape;
    }
  }
  return safe;
}

std::string quoted(ByteSpan bytes, std::size_t longest) {
  std::string text;
  for (const std::uint8_t byte : bytes.first(std::min(bytes.size(), longest))) {
    if (byte == '"' || byte == '\\') text += '\\';
    text += static_cast<char>(byte);
  }
  return '"' + printable(text) + (bytes.size() > longest ? "\"..." : "\"");
}

// The displays of the library decide what is shown. What they do not show of one value of a type, they show of none.
bool is_opaque(std::uint32_t type) {
  static const auto opaque = [] {
    std::bitset<AAA_ATTR_TYPE_COUNT> types;
    for (std::uint32_t i = 1; i < types.size(); ++i) types[i] = display_hides(i);
    return types;
  }();
  return type < opaque.size() && opaque[type];
}

bool is_left_out(std::uint32_t type) { return aaa_attr_is_attr_type_li(type) != 0; }

}  // namespace attrtool
