// A list on the standard output.
#include <cinttypes>
#include <cstdio>

#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/shown.h"

namespace attrmgr {
namespace {

void print_attribute(RecordView record, int number) {
  TextLine<kLineSize> line;
  aaa_attr_to_string(record, line, RenderMode::kList);
  std::fprintf(stdout, "%d:  %s\n", number, line.text());
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_print(aaa_attr_list_handle list) noexcept {
  const auto [head, error] = resolve(list);
  if (error) {
    std::fprintf(stdout, "\nBad List %" PRIx64, list);
    return;
  }
  std::fprintf(stdout, "\nAttribute list: %" PRIx64 "\n", list);
  int number = 0;
  for (const RecordView record : Attributes(head)) {
    if (!is_shown(record)) continue;
    print_attribute(record, ++number);
    if (!holds_handle(record)) continue;
    const aaa_attr_list_handle sub_list = owned_list(record);
    std::fprintf(stdout, "Grouped attribute: %" PRIx64 "\n", sub_list);
    aaa_attr_list_print(sub_list);
    std::fprintf(stdout, "End of group list: %" PRIx64 "\n", sub_list);
  }
}
