// The typed constants of the C++ interface, and the value names that it checks while it compiles.
#include <attrmgr/aaa_attr_dict.h>

#include <cstdio>
#include <cstdlib>

#include "files.h"
#include "identifiers.h"

namespace generate {
namespace {

// The formats that types of the dictionary have, by the names of their classes in cpp/formats.hpp. Enum types have a
// class each.
struct FormatClass {
  std::uint32_t format;
  const char *name;
};
constexpr FormatClass kFormatClasses[] = {
    {AAA_ATTR_FMT_STRING, "text"},        {AAA_ATTR_FMT_BINARY, "binary"}, {AAA_ATTR_FMT_ULONG, "number"},
    {AAA_ATTR_FMT_ULONGLONG, "number64"}, {AAA_ATTR_FMT_GROUPED, "group"}, {AAA_ATTR_FMT_IPV4, "ipv4"},
    {AAA_ATTR_FMT_IPV6, "ipv6"},          {AAA_ATTR_FMT_ADDRESS, "ip"},    {AAA_ATTR_FMT_UTC, "utc"},
    {AAA_ATTR_FMT_BOOLEAN, "boolean"},
};

bool is_known(std::uint32_t format) {
  for (const FormatClass &known : kFormatClasses)
    if (known.format == format) return true;
  return format == AAA_ATTR_FMT_ENUM;
}

bool is_of(const Type &type, std::uint32_t format) {
  return type.number != 0 && aaa_attr_get_format_from_type(type.number) == format;
}

void put_attributes_of(const FormatClass &format) {
  std::printf("\nenum %s_attribute : std::uint32_t {\n", format.name);
  for (const Type &type : types())
    if (is_of(type, format.format)) std::printf("  %s = %u,\n", type.cpp.c_str(), type.number);
  std::puts("};");
}

void put_names(const Type &type) {
  constexpr std::size_t kLineEnd = 118;
  const std::string enumeration = enumeration_of(type);
  std::printf("\ntemplate <>\ninline constexpr std::uint32_t type_of<%s> = %u;\n", enumeration.c_str(), type.number);
  std::printf("template <>\ninline constexpr const char *names<%s>[] = {", enumeration.c_str());
  std::size_t column = kLineEnd;
  for (const Value &value : type.values) {
    const std::string text = quoted(value.name) + ",";
    const bool fits = column + text.size() < kLineEnd;
    std::printf("%s%s", fits ? " " : "\n    ", text.c_str());
    column = (fits ? column + 1 : 4) + text.size();
  }
  std::puts("\n};");
}

}  // namespace

void write_cpp_attributes() {
  for (const Type &type : types())
    if (!is_known(aaa_attr_get_format_from_type(type.number))) {
      std::fprintf(stderr, "%s: no class of cpp/formats.hpp has its format\n", quoted(type.name).c_str());
      std::exit(1);
    }
  std::fputs(
      R"(// attributes.hpp: the attribute types of the dictionary as typed constants. As a number a constant is the number of the
// type; its own type tells the format, and so what a value of the attribute is: formats.hpp has the rules.
//
// Written from the dictionary by scripts/dictionary: do not edit. docs/dictionary.md has the same as a table to read.
#pragma once

#include <attrmgr/aaa_attr_names.h>
#include <attrmgr/cpp/formats.hpp>

// clang-format off

namespace attrmgr::attr {
)",
      stdout);
  for (const FormatClass &format : kFormatClasses) put_attributes_of(format);
  std::puts("\n// Each of these holds values of its own enumeration.");
  for (const Type &type : types())
    if (is_of(type, AAA_ATTR_FMT_ENUM))
      std::printf("enum %s_attribute : std::uint32_t { %s = %u };\n", type.cpp.c_str(), type.cpp.c_str(), type.number);
  std::puts("\n}  // namespace attrmgr::attr\n\nnamespace attrmgr::detail {\n");
  for (const FormatClass &format : kFormatClasses)
    std::printf("template <> struct format_named_by<attr::%s_attribute> { using type = format::%s; };\n", format.name,
                format.name);
  for (const Type &type : types())
    if (is_of(type, AAA_ATTR_FMT_ENUM))
      std::printf("template <> struct format_named_by<attr::%s_attribute> { using type = format::enumeration<%s>; };\n",
                  type.cpp.c_str(), enumeration_of(type).c_str());
  std::puts("\n}  // namespace attrmgr::detail\n\n// clang-format on");
}

void write_cpp_value_names() {
  std::fputs(
      R"(// value_names.hpp: the attribute type of each enumeration, and the names of its values in the order of their numbers: a
// name in the text of a program is checked while it compiles.
//
// Written from the dictionary by scripts/dictionary: do not edit.
#pragma once

#include <attrmgr/aaa_attr_names.h>

#include <cstdint>

// clang-format off

namespace attrmgr::detail {

// The attribute type whose values an enumeration has, 0 for any other type; and the names of its values.
template <class Enumeration>
inline constexpr std::uint32_t type_of = 0;
template <class Enumeration>
inline constexpr const char *names[] = {""};
)",
      stdout);
  for (const Type &type : types())
    if (!type.values.empty()) put_names(type);
  std::fputs("\n}  // namespace attrmgr::detail\n\n// clang-format on\n", stdout);
}

}  // namespace generate
