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
//   any           <01 02>: the bytes as they are stored, for a value that is not of its format
//
// docs/text-format.md has the whole grammar.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bad_text.h"

namespace attrtext {

using Bytes = std::vector<std::uint8_t>;
using ByteSpan = std::span<const std::byte>;

// Stands for a secret that a writer was told to keep. A reader cannot read it.
inline constexpr std::string_view kOpaqueValue = "<opaque value>";

// ---- Reading. The value as aaa_attr_add takes it for an attribute of the type, any but a Grouped one. Throw BadText.

// A value as a line of text has it.
Bytes value_from_text(std::uint32_t type, std::string_view text);

// The same without quotes and escapes: a text stands for itself.
Bytes value_from_plain(std::uint32_t type, std::string_view plain);

// Pairs of hexadecimal digits.
std::optional<Bytes> hex_bytes(std::string_view text);

// The number that the text is, if it is one up to max. The second form throws.
std::optional<std::uint64_t> number_from_text(std::string_view text, std::uint64_t max);
std::uint64_t required_number(std::string_view text, std::uint64_t max);

// ---- Writing

// The value such that value_from_plain gives its bytes again; nothing where they are not of the type's format, and
// always for a text.
std::optional<std::string> plain_from_value(std::uint32_t type, ByteSpan value);

// The value such that value_from_text gives its bytes again.
void append_value(std::uint32_t type, ByteSpan value, std::string *to);

// Pairs of small hexadecimal digits with that between them.
void append_hex(ByteSpan bytes, std::string_view between, std::string *to);

}  // namespace attrtext
