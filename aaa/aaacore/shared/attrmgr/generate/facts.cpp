// What the dictionary knows and the public interface does not tell, for the tools: a macro call for each type, and one
// for each value that has a constant.
#include <cstdio>

#include "dictionary/type_table.h"
#include "files.h"
#include "identifiers.h"
#include "rfc_names.h"

namespace generate {

void write_facts() {
  std::puts("// TYPE(number, constant, flags, class, elsewhere)");
  for (const Type &type : types()) {
    const attrmgr::TypeRow &row = attrmgr::kTypes[type.number];
    std::printf("TYPE(%u, \"%s\", 0x%X, 0x%X, %s)\n", type.number, constant_of(type).c_str(), row.flags, row.class_mask,
                quoted(elsewhere(type)).c_str());
  }
  std::puts("// VALUE(type, number, constant)");
  for (const Type &type : types())
    for (const Value &value : type.values)
      if (!value.constant.empty())
        std::printf("VALUE(%u, %u, \"%s\")\n", type.number, value.number, value.constant.c_str());
}

}  // namespace generate
