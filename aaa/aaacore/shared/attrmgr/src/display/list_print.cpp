// A list on the standard output.
#include <cinttypes>
#include <cstdio>

#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/show_list.h"

namespace attrmgr {
namespace {

struct Print {
  static void bad_list(aaa_attr_list_handle list) { std::printf("\nBad List %" PRIx64, list); }

  static void begin(aaa_attr_list_handle list) { std::printf("\nAttribute list: %" PRIx64 "\n", list); }

  static void attribute(RecordView record, std::uint64_t number) {
    TextLine<kLineSize> line;
    aaa_attr_to_string(record, line, RenderMode::kList);
    std::printf("%" PRIu64 ":  %s\n", number, line.text());
  }

  static void begin_nested(aaa_attr_list_handle list) { std::printf("Grouped attribute: %" PRIx64 "\n", list); }
  static void end_nested(aaa_attr_list_handle list) { std::printf("End of group list: %" PRIx64 "\n", list); }
  static bool full() { return false; }
};

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_print(aaa_attr_list_handle list) noexcept {
  Print print;
  show_list(list, print);
}
