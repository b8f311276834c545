#include <attrmgr/attrmgr.hpp>

#include <charconv>
#include <cstring>
#include <ctime>
#include <limits>

#include "nearest.h"
#include "values.h"

namespace attrtext {
namespace {

template <class Number>
std::optional<Number> whole_number(std::string_view digits, int base = 10) {
  Number number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

template <class Number>
Bytes bytes_of(Number number) {
  Bytes bytes(sizeof number);
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

// ---- Text ----

// The character that the escape at the front of `rest` stands for; takes the escape off.
char take_escape(std::string_view &rest) {
  const char kind = rest.size() > 1 ? rest[1] : '\0';
  const std::string_view escape = rest.substr(0, kind == 'x' ? 4 : 2);
  rest.remove_prefix(escape.size());
  if (kind == '"' || kind == '\\') return kind;
  if (kind == 'n') return '\n';
  if (kind == 't') return '\t';
  if (kind == 'x') {
    const std::optional<Bytes> byte = hex_bytes(escape.substr(2));
    if (byte && byte->size() == 1) return static_cast<char>(byte->front());
  }
  throw unexpected(R"(one of the escapes \" \\ \n \t \xNN)", escape);
}

// The text between the quotes.
std::string unquote(std::string_view text) {
  std::string plain;
  std::string_view rest = text.substr(1);
  while (!rest.empty() && rest.front() != '"') {
    if (rest.front() == '\\') {
      plain += take_escape(rest);
    } else {
      plain += rest.front();
      rest.remove_prefix(1);
    }
  }
  if (rest.empty()) throw unexpected("a closing quote at the end of the line", text);
  if (rest.size() > 1) throw unexpected("nothing after the closing quote", rest.substr(1));
  return plain;
}

// The text with its quotes and escapes taken off, if it has any.
std::string without_quotes(std::string_view text) { return text.starts_with('"') ? unquote(text) : std::string(text); }

// ---- Numbers ----

template <class Number>
Bytes number_value(std::string_view text) {
  return bytes_of(static_cast<Number>(required_number(text, std::numeric_limits<Number>::max())));
}

Bytes enum_value(std::uint32_t type, std::string_view name, std::string_view place) {
  std::uint32_t value = 0;
  const bool whole = name.find('\0') == std::string_view::npos;
  if (whole && aaa_attr_get_value_from_enum_name(type, std::string(name).c_str(), &value) == 0) return bytes_of(value);
  if (const auto number = number_from_text(name, std::numeric_limits<std::uint32_t>::max()))
    return bytes_of(static_cast<std::uint32_t>(*number));
  throw BadText(
      "expected a number or a value name" + such_as(nearest_values(type, name)) + ", found " + in_quotes(name), place);
}

Bytes boolean_value(std::string_view text) {
  if (text != "true" && text != "false") throw unexpected("true or false", text);
  return bytes_of<std::uint8_t>(text == "true");
}

// ---- Addresses ----

Bytes address_value(std::string_view text, bool v4, bool v6, const char *expected) {
  const attrmgr::address parsed = attrmgr::address::parse(text);
  if (!(parsed.is_v4() && v4) && !(parsed.is_v6() && v6)) throw unexpected(expected, text);
  return {parsed.data(), parsed.data() + parsed.size()};
}

Bytes prefix_value(std::string_view text) {
  const std::size_t slash = text.find('/');
  const attrmgr::address ipv6 = attrmgr::address::parse(text.substr(0, slash));
  const auto length = number_from_text(text.substr(slash + 1), 128);
  if (!ipv6.is_v6() || !length) throw unexpected("an IPv6 prefix such as 2001:db8::/56", text);
  Bytes value(AAA_IPV6_PREFIX_SIZE);
  aaa_attr_encode_ipv6_prefix(ipv6.data(), static_cast<std::int32_t>(*length), value.data());

  // Decoding clears what lies beyond the prefix length; there must be nothing to clear.
  std::uint8_t cleared[AAA_IPV6_ADDRESS_SIZE];
  std::uint8_t bits = 0;
  aaa_attr_decode_ipv6_prefix(value.data(), cleared, &bits);
  if (std::memcmp(cleared, ipv6.data(), sizeof cleared) != 0)
    throw unexpected("zero bits after the prefix length", text);
  return value;
}

Bytes binary_value(std::uint32_t type, std::string_view text) {
  const bool takes_prefix = type == AAA_ATTR_TYPE_PREFIX || type == AAA_ATTR_TYPE_DELEGATED_PREFIX;
  if (takes_prefix && text.find('/') != std::string_view::npos) return prefix_value(text);
  if (const auto bytes = hex_bytes(text)) return *bytes;
  throw unexpected("pairs of hexadecimal digits", text);
}

// ---- Times ----

std::optional<std::int64_t> date_and_time(const std::string &text) {
  constexpr char kRfc3339[] = "%Y-%m-%dT%H:%M:%SZ";
  std::tm fields = {};
  if (strptime(text.c_str(), kRfc3339, &fields) == nullptr) return std::nullopt;
  const std::time_t seconds = timegm(&fields);
  // strptime lets much pass, 31 April as well: only a time that is written the same again is taken.
  char again[32] = {};
  if (gmtime_r(&seconds, &fields) != nullptr) std::strftime(again, sizeof again, kRfc3339, &fields);
  return text == again ? std::optional<std::int64_t>(seconds) : std::nullopt;
}

Bytes time_value(std::string_view text) {
  if (const auto seconds = whole_number<std::int64_t>(text)) return bytes_of(*seconds);
  if (const auto seconds = date_and_time(std::string(text))) return bytes_of(*seconds);
  throw unexpected("a time such as 2026-11-22T09:30:00Z or a number of seconds", text);
}

// ---- Any format ----

// What is between < and >.
Bytes stored_bytes(std::string_view text) {
  if (text == kOpaqueValue)
    throw BadText("the value is a secret that was left out here: expected the value itself", text);
  if (text == "<>") return {};
  const bool closed = text.ends_with('>');
  const auto bytes = hex_bytes(text.substr(1, text.size() - (closed ? 2 : 1)));
  if (closed && bytes) return *bytes;
  throw unexpected("pairs of hexadecimal digits between < and >, or quotes around a text that begins with <", text);
}

}  // namespace

std::optional<Bytes> hex_bytes(std::string_view text) {
  std::string digits(text);
  std::erase_if(digits, [](char c) { return c == ' ' || c == '\t' || c == ':'; });
  Bytes bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const auto byte = whole_number<std::uint8_t>(std::string_view(digits).substr(i, 2), 16);
    if (!byte || i + 1 == digits.size()) return std::nullopt;
    bytes.push_back(*byte);
  }
  return bytes.empty() ? std::nullopt : std::optional(bytes);
}

std::optional<std::uint64_t> number_from_text(std::string_view text, std::uint64_t max) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  const auto number = whole_number<std::uint64_t>(text.substr(hexadecimal ? 2 : 0), hexadecimal ? 16 : 10);
  return number && *number <= max ? number : std::nullopt;
}

std::uint64_t required_number(std::string_view text, std::uint64_t max) {
  if (const auto number = number_from_text(text, max)) return *number;
  throw unexpected("a number from 0 to " + std::to_string(max), text);
}

Bytes value_from_plain(std::uint32_t type, std::string_view plain) {
  switch (aaa_attr_get_format_from_type(type)) {
    case AAA_ATTR_FMT_STRING:
    case AAA_ATTR_FMT_STRING_ATTR:
      return {plain.begin(), plain.end()};
    case AAA_ATTR_FMT_ULONG:
      return number_value<std::uint32_t>(plain);
    case AAA_ATTR_FMT_ULONGLONG:
      return number_value<std::uint64_t>(plain);
    case AAA_ATTR_FMT_ENUM:
      return enum_value(type, plain, plain);
    case AAA_ATTR_FMT_IPV4:
      return address_value(plain, true, false, "an IPv4 address");
    case AAA_ATTR_FMT_IPV6:
      return address_value(plain, false, true, "an IPv6 address");
    case AAA_ATTR_FMT_ADDRESS:
      return address_value(plain, true, true, "an IPv4 or IPv6 address");
    case AAA_ATTR_FMT_UTC:
      return time_value(plain);
    case AAA_ATTR_FMT_BOOLEAN:
      return boolean_value(plain);
    default:
      return binary_value(type, plain);
  }
}

Bytes value_from_text(std::uint32_t type, std::string_view text) {
  if (text.empty()) throw BadText("expected a value after '='", text);
  if (text.starts_with('<')) return stored_bytes(text);
  switch (aaa_attr_get_format_from_type(type)) {
    case AAA_ATTR_FMT_STRING:
    case AAA_ATTR_FMT_STRING_ATTR: {
      const std::string plain = without_quotes(text);
      if (plain.empty()) throw BadText("expected at least one character between the quotes", text);
      return {plain.begin(), plain.end()};
    }
    case AAA_ATTR_FMT_ENUM:
      return enum_value(type, without_quotes(text), text);
    default:
      return value_from_plain(type, text);
  }
}

}  // namespace attrtext
