// The constants for C and C++: an enumeration of the types, and one of the values of each Enum type. Enumerations and
// no macros, for debuggers show their names and compilers complain of a case that a switch forgot.
#include <attrmgr/aaa_attr_dict.h>

#include <cstdio>

#include "files.h"
#include "identifiers.h"
#include "rfc_names.h"

namespace generate {
namespace {

constexpr char kHead[] =
    R"(/* aaa_attr_names.h: a constant for every attribute type, and one for every value of the Enum types.

   Written from the dictionary by scripts/dictionary: do not edit. docs/dictionary.md has the same as a table to read.

     AAA_ATTR_TYPE_USERNAME        the type "username"
     AAA_ACCT_STATUS_TYPE_STOP     the value "Stop" of the type "Acct-Status-Type"

   Where two types would get the same constant, the lower one has it; the other has its format after it, or a number.
   Values are unsigned 32-bit numbers, to be handed to aaa_attr_add as such:

     const uint32_t status = AAA_ACCT_STATUS_TYPE_STOP;
     aaa_attr_add(list, AAA_ATTR_TYPE_ACCT_STATUS_TYPE, &status, sizeof status, NULL);

   A number of a value table that means nothing has no constant. */
#ifndef ATTRMGR_AAA_ATTR_NAMES_H
#define ATTRMGR_AAA_ATTR_NAMES_H

#include <stdint.h>

/* clang-format off */

/* C++ may name the type of the numbers: then every number is a value, also one that no constant has. */
#ifdef __cplusplus
#define AAA_ATTR_UINT32 : uint32_t
#else
#define AAA_ATTR_UINT32
#endif

/* ---- Types ---- */

)";

constexpr char kTail[] = R"(
#undef AAA_ATTR_UINT32

/* clang-format on */

#endif
)";

constexpr int kConstantWidth = 58;

void open(const std::string &name) { std::printf("typedef enum %s AAA_ATTR_UINT32 {\n", name.c_str()); }

void close(const std::string &name) { std::printf("} %s;\n", name.c_str()); }

void put(const std::string &constant, std::uint32_t number, const std::string &comment) {
  std::printf("  %-*s = %3u, /* %s */\n", kConstantWidth, constant.c_str(), number, comment.c_str());
}

}  // namespace

void write_c_constants() {
  std::fputs(kHead, stdout);
  open("aaa_attr_type");
  for (const Type &type : types()) {
    std::string comment = quoted(type.name) + ", ";
    comment += aaa_attr_get_format_string(aaa_attr_get_format_from_type(type.number));
    if (const std::string known_as = elsewhere(type); !known_as.empty()) comment += "; " + known_as;
    put(constant_of(type), type.number, comment);
  }
  close("aaa_attr_type");

  std::puts("\n/* ---- Values ---- */");
  for (const Type &type : types()) {
    if (type.values.empty()) continue;
    std::printf("\n/* %u %s */\n", type.number, quoted(type.name).c_str());
    open(enumeration_of(type));
    for (const Value &value : type.values)
      if (!value.constant.empty()) put(value.constant, value.number, quoted(value.name));
    close(enumeration_of(type));
  }
  std::fputs(kTail, stdout);
}

}  // namespace generate
