// Writes the dictionary as a Python module for the debugger views: a debugger has a core file only, in which nothing
// can be called, and the library's own tables have no exported names.
#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_values.h>

#include <cstdint>
#include <cstdio>

namespace {

constexpr std::uint32_t OPAQUE = AAA_ATTR_TYPE_OPAQUE;

void write_type(const char *name, std::uint32_t format, std::uint32_t flags) {
  std::printf("    (\"%s\", %u, %s),\n", name, format, (flags & OPAQUE) != 0 ? "True" : "False");
}

void write_values(const aaa_attr_value_table &values) {
  std::printf("[");
  for (std::uint32_t value = 0; value < values.count; ++value) {
    const char *name = values.names[value];
    std::printf(name != nullptr ? "\"%s\", " : "None, ", name);
  }
  std::printf("]");
}

}  // namespace

int main() {
  std::puts("\"\"\"The dictionary: written by write_dictionary.cpp when the library is built.\"\"\"\n");
  std::puts("# Of each type, in number order: name, format, and whether the value is a secret.\nTYPES = [");
#define ATTR(type, name, format, flags, class_mask) write_type(name, AAA_ATTR_FMT_##format, flags);
#define ENUM(type, name, table, flags, class_mask) write_type(name, AAA_ATTR_FMT_ENUM, flags);
#include "dictionary/attr_types.def"
#undef ATTR
#undef ENUM
  std::puts("]\n\n# The value names of Enum types.\nVALUES = {");
#define ATTR(type, name, format, flags, class_mask)
#define ENUM(type, name, table, flags, class_mask) \
  std::printf("    %d: ", type);                   \
  write_values(value_##table);                     \
  std::puts(",");
#include "dictionary/attr_types.def"
#undef ATTR
#undef ENUM
  std::printf("}\n\nSERVICES = ");
  write_values(value_service);
  std::printf("\nPROTOCOLS = ");
  write_values(value_protocol);
  std::puts("");
  return 0;
}
