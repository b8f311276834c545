// attrmgr_generate c|attributes|value_names|page|facts: writes one of the files that follow from the dictionary's
// tables. scripts/dictionary puts them in their places, and the build compares; facts are for the build of attrtool.
#include <cstdio>
#include <cstring>

#include "files.h"

int main(int argc, char **argv) {
  const struct {
    const char *name;
    void (*write)();
  } files[] = {{"c", generate::write_c_constants},
               {"attributes", generate::write_cpp_attributes},
               {"value_names", generate::write_cpp_value_names},
               {"page", generate::write_page},
               {"facts", generate::write_facts}};
  for (const auto &file : files)
    if (argc == 2 && std::strcmp(argv[1], file.name) == 0) {
      file.write();
      return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
    }
  std::fputs("usage: attrmgr_generate c|attributes|value_names|page|facts\n", stderr);
  return 2;
}
