// Writes the names of the dictionary as gperf's input, for the lower bound of looking a name up.
#include <attrmgr/aaa_attr_dict.h>

#include <iostream>
#include <set>
#include <string>

int main() {
  std::cout << "%language=C++\n%define class-name PerfectHash\n%define lookup-function-name find\n"
               "%compare-strncmp\n%readonly-tables\n%struct-type\n"
               "struct PerfectHashEntry { const char *name; unsigned type; };\n%%\n";
  std::set<std::string> seen;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::string name = aaa_attr_get_name_from_type(type);
    if (seen.insert(name).second) std::cout << '"' << name << "\", " << type << '\n';
  }
}
