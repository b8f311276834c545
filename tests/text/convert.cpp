// convert text|json: reads a list in that form from the standard input and writes the other form. Status 1 with the
// place of what is refused. What schema_test.py asks the readers and writers with.
#include <iostream>
#include <iterator>

#include "forms.h"

int main(int argc, char **argv) {
  const std::string form = argc == 2 ? argv[1] : "";
  if (form != "text" && form != "json") return 2;
  const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
  const Read read = form == "text" ? attrtext::list_from_text(text) : attrtext::list_from_json(text);
  if (const std::string error = error_of(read); !error.empty()) {
    std::cerr << error << '\n';
    return 1;
  }
  const auto &list = std::get<attrmgr::list>(read);
  std::cout << (form == "text" ? json_of(list) : text_of(list)) << std::flush;
  return 0;
}
