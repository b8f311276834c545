// Values as a person writes them, and the bytes that a list stores. The format of the attribute's type decides how a
// value is written:
//
//   String        the text as it stands, or in double quotes with the escapes \" \\ \n \t \xNN
//   Ulong         a number up to 2^32 - 1, decimal or 0x hexadecimal; Ulonglong the same up to 2^64 - 1
//   Enum          the name of the value, in quotes or not, or its number
//   IPv4, IPv6    an address; Address takes either kind
//   Boolean       true or false
//   UTC           2026-11-22T09:30:00Z, or seconds since 1970
//   Binary        pairs of hexadecimal digits, blanks and colons between them at will; the two types that hold an IPv6
//                 prefix also take 2001:db8::/56
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// Text that cannot be used; what() tells its writer why.
class BadText : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The reason "expected ..., found ...".
BadText unexpected(const std::string &expected, std::string_view found);

// The text in double quotes, cut where it is long.
std::string quoted(std::string_view text);

// The number that the text is, if it is one up to max. The second form throws BadText if not.
std::optional<std::uint64_t> number_from_text(std::string_view text, std::uint64_t max);
std::uint64_t required_number(std::string_view text, std::uint64_t max);

// The value as aaa_attr_add takes it for an attribute of the type, any but a Grouped one. Throws BadText.
Bytes value_from_text(std::uint32_t type, std::string_view text);
