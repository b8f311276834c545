// The typed constants of the C++ interface, and the value names that it checks while it compiles.
#include <attrmgr/aaa_attr_dict.h>

#include <cstdio>
#include <cstdlib>

#include "files.h"
#include "identifiers.h"

namespace generate {
namespace {

// The class of cpp/formats.hpp that holds the rules of a type's values.
std::string format_class(const Type &type) {
  switch (aaa_attr_get_format_from_type(type.number)) {
    case AAA_ATTR_FMT_STRING:
      return "text";
    case AAA_ATTR_FMT_BINARY:
      return "binary";
    case AAA_ATTR_FMT_ULONG:
      return "number";
    case AAA_ATTR_FMT_ULONGLONG:
      return "number64";
    case AAA_ATTR_FMT_GROUPED:
      return "group";
    case AAA_ATTR_FMT_ENUM:
      return "enumeration<" + enumeration_of(type) + ">";
    case AAA_ATTR_FMT_IPV4:
      return "ipv4";
    case AAA_ATTR_FMT_IPV6:
      return "ipv6";
    case AAA_ATTR_FMT_ADDRESS:
      return "ip";
    case AAA_ATTR_FMT_UTC:
      return "utc";
    case AAA_ATTR_FMT_BOOLEAN:
      return "boolean";
    default:
      std::fprintf(stderr, "%s: no class of cpp/formats.hpp has its format\n", quoted(type.name).c_str());
      std::exit(1);
  }
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
  std::fputs(
      R"(// attributes.hpp: the attribute types of the dictionary as typed constants. The constant tells what a value of the
// attribute is made of; formats.hpp has the rules.
//
// Written from the dictionary by scripts/dictionary: do not edit. docs/dictionary.md has the same as a table to read.
#pragma once

#include <attrmgr/aaa_attr_names.h>
#include <attrmgr/cpp/formats.hpp>

// clang-format off

namespace attrmgr::attr {

)",
      stdout);
  for (const Type &type : types())
    if (type.number != 0)
      std::printf("inline constexpr attribute_type<%u, format::%s> %s;\n", type.number, format_class(type).c_str(),
                  type.cpp.c_str());
  std::fputs("\n}  // namespace attrmgr::attr\n\n// clang-format on\n", stdout);
}

void write_cpp_value_names() {
  std::fputs(
      R"(// value_names.hpp: the attribute type of each enumeration, and the names of its values in the order of their numbers:
// a name in the text of a program is checked while it compiles.
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
