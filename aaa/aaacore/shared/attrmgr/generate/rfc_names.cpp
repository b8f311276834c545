#include "rfc_names.h"

#include <attrmgr/aaa_attr_dict.h>

#include <cstdio>
#include <cstdlib>

namespace generate {
namespace {

struct RfcName {
  const char *our_name;
  const char *name;
  const char *note;
  std::uint32_t type;
  unsigned rfc;
  unsigned number;
};

constexpr RfcName kRfcNames[] = {
#define RFC(type, our_name, rfc, name, number, note) {our_name, name, note, type, rfc, number},
#include "rfc_names.def"
#undef RFC
};

constexpr bool rfc_rows_name_their_types() {
  for (const RfcName &row : kRfcNames) {
    if (row.type >= AAA_ATTR_TYPE_COUNT) return false;
    for (const RfcName &other : kRfcNames)
      if (&row != &other && row.type == other.type) return false;
  }
  return true;
}
static_assert(rfc_rows_name_their_types(), "rfc_names.def: a number is no type, or stands there twice");

}  // namespace

std::string elsewhere(const Type &type) {
  for (const RfcName &row : kRfcNames) {
    if (row.type != type.number) continue;
    if (type.name != row.our_name) {
      std::fprintf(stderr, "rfc_names.def: type %u is %s, not \"%s\"\n", row.type, quoted(type.name).c_str(),
                   row.our_name);
      std::exit(1);
    }
    return "RFC " + std::to_string(row.rfc) + " " + row.name + " (" + std::to_string(row.number) + ")" +
           (*row.note != '\0' ? std::string("; ") + row.note : "");
  }
  return "";
}

}  // namespace generate
