// Fields in words: their names, and what their numbers and values mean.
#pragma once

#include "explain_model.h"

namespace attrtool {

const char *name_of_field(std::uint32_t kind);

// What a field's number means, for all kinds but values.
std::string meaning_of(const aaa_attr_field &field);

// A value as it is stored, in host terms: "bob" in quotes, 10.0.0.1, Stop (2). Control bytes are escaped.
// flat: a text ends in a NUL that is not part of it.
std::string value_text(std::uint32_t type, ByteSpan value, bool flat);

// "username (197, String)".
std::string type_text(std::uint32_t type);

// Whether displays do not show the values of the type, or leave the whole attribute out.
bool is_opaque(std::uint32_t type);
bool is_left_out(std::uint32_t type);

// "3 lists", "1 list".
std::string counted(std::uint64_t number, const char *what);

// "flat buffer, 185 bytes: 3 lists, 4 blocks, 6 records (1 removed)".
std::string summary_text(const std::string &form, std::size_t size, const Counts &counts);

// With a capital letter in front.
std::string capital(std::string text);

// Text of which no byte drives a terminal: what is no printable ASCII is escaped.
std::string printable(std::string_view text);

// Bytes as text between quotes, cut to a number of bytes: what is no printable ASCII is escaped, and no byte drives a
// terminal or a browser.
std::string quoted(ByteSpan bytes, std::size_t longest);

}  // namespace attrtool
