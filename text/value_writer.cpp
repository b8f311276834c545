#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

#include "printable.h"
#include "values.h"

namespace attrtext {
namespace {

template <class Number>
std::optional<Number> as_number(ByteSpan value) {
  Number number;
  if (value.size() != sizeof number) return std::nullopt;
  std::memcpy(&number, value.data(), sizeof number);
  return number;
}

template <class Number>
std::optional<std::string> number_text(ByteSpan value) {
  const auto number = as_number<Number>(value);
  return number ? std::optional(std::to_string(*number)) : std::nullopt;
}

// A name only where it names this value and not a lower one; a number only where no value has that for a name.
std::optional<std::string> enum_text(std::uint32_t type, ByteSpan value) {
  const auto number = as_number<std::uint32_t>(value);
  if (!number) return std::nullopt;
  std::uint32_t named = 0;
  if (const char *name = aaa_attr_get_enum_name_from_type(type, *number);
      name != nullptr && aaa_attr_get_value_from_enum_name(type, name, &named) == 0 && named == *number)
    return name;
  std::string digits = std::to_string(*number);
  const bool taken = aaa_attr_get_value_from_enum_name(type, digits.c_str(), &named) == 0 && named != *number;
  return taken ? std::nullopt : std::optional(std::move(digits));
}

std::optional<std::string> address_text(ByteSpan value) {
  attrmgr::address address;
  return address.assign(value.data(), value.size()) ? std::optional(to_string(address)) : std::nullopt;
}

std::optional<std::string> boolean_text(ByteSpan value) {
  if (value.size() != 1 || value[0] > std::byte{1}) return std::nullopt;
  return value[0] == std::byte{1} ? "true" : "false";
}

// The date of a time with a year of four digits.
std::optional<std::string> time_text(ByteSpan value) {
  constexpr std::int64_t kFirst = -30610224000;  // 1000-01-01
  constexpr std::int64_t kLast = 253402300799;   // 9999-12-31
  const auto seconds = as_number<std::int64_t>(value);
  if (!seconds) return std::nullopt;
  if (*seconds < kFirst || *seconds > kLast) return std::to_string(*seconds);
  const std::time_t time = *seconds;
  std::tm fields = {};
  char text[32] = {};
  if (gmtime_r(&time, &fields) == nullptr || std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &fields) == 0)
    return std::to_string(*seconds);
  return text;
}

// A prefix whose value has no bit that its text would not have.
std::optional<std::string> prefix_text(ByteSpan value) {
  std::uint8_t decoded[AAA_IPV6_PREFIX_SIZE], again[AAA_IPV6_PREFIX_SIZE], address[AAA_IPV6_ADDRESS_SIZE], bits = 0;
  if (value.size() != sizeof decoded) return std::nullopt;
  std::memcpy(decoded, value.data(), sizeof decoded);
  if (aaa_attr_decode_ipv6_prefix(decoded, address, &bits) != 0) return std::nullopt;
  aaa_attr_encode_ipv6_prefix(address, bits, again);
  if (std::memcmp(value.data(), again, sizeof again) != 0) return std::nullopt;
  char text[AAA_IPV6_TEXT_SIZE];
  return std::string(ipv6_address_to_string(address, text)) + '/' + std::to_string(bits);
}

bool is_blank(char c) { return c == ' ' || c == '\t'; }

// Whether a reader takes the text for a text as it stands, and a terminal shows it.
bool stands_for_itself(std::string_view text) {
  if (text.empty() || is_blank(text.front()) || is_blank(text.back())) return false;
  if (text.front() == '"' || text.front() == '<' || text.front() == '{') return false;
  while (!text.empty()) {
    const std::size_t length = printable_length(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

void append_text(std::string_view text, std::string *to) {
  if (stands_for_itself(text)) {
    *to += text;
  } else {
    *to += '"' + printable(text, "\"\\") + '"';
  }
}

bool is_text(std::uint32_t format) { return format == AAA_ATTR_FMT_STRING || format == AAA_ATTR_FMT_STRING_ATTR; }

// Formats of the dictionary whose values are any bytes.
bool is_binary(std::uint32_t type) { return aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_BINARY; }

}  // namespace

void append_hex(ByteSpan bytes, std::string_view between, std::string *to) {
  constexpr char kDigits[] = "0123456789abcdef";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<std::uint8_t>(bytes[i]);
    if (i > 0) *to += between;
    *to += {kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
}

std::optional<std::string> plain_from_value(std::uint32_t type, ByteSpan value) {
  const auto of_size = [value](std::size_t size) { return value.size() == size ? address_text(value) : std::nullopt; };
  switch (aaa_attr_get_format_from_type(type)) {
    case AAA_ATTR_FMT_ULONG:
      return number_text<std::uint32_t>(value);
    case AAA_ATTR_FMT_ULONGLONG:
      return number_text<std::uint64_t>(value);
    case AAA_ATTR_FMT_ENUM:
      return enum_text(type, value);
    case AAA_ATTR_FMT_IPV4:
      return of_size(sizeof(in_addr));
    case AAA_ATTR_FMT_IPV6:
      return of_size(sizeof(in6_addr));
    case AAA_ATTR_FMT_ADDRESS:
      return address_text(value);
    case AAA_ATTR_FMT_UTC:
      return time_text(value);
    case AAA_ATTR_FMT_BOOLEAN:
      return boolean_text(value);
    case AAA_ATTR_FMT_BINARY:
      return type == AAA_ATTR_TYPE_PREFIX || type == AAA_ATTR_TYPE_DELEGATED_PREFIX ? prefix_text(value) : std::nullopt;
    default:
      return std::nullopt;
  }
}

void append_value(std::uint32_t type, ByteSpan value, std::string *to) {
  const std::uint32_t format = aaa_attr_get_format_from_type(type);
  if (is_text(format) && !value.empty())
    return append_text({reinterpret_cast<const char *>(value.data()), value.size()}, to);
  if (const auto plain = plain_from_value(type, value)) {
    if (format == AAA_ATTR_FMT_ENUM) return append_text(*plain, to);
    *to += *plain;
    return;
  }
  const bool bare = is_binary(type) && !value.empty();
  if (!bare) *to += '<';
  append_hex(value, " ", to);
  if (!bare) *to += '>';
}

}  // namespace attrtext
