// A list through a caller's output function, in the full and in the brief form.
#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/shown.h"

namespace attrmgr {
namespace {

struct Output {
  aaa_attr_output_fn function;
  std::uint64_t context;

  template <std::size_t N>
  void hand(TextLine<N> &line) const {
    function(line.data(), context);
  }
};

void hand_attribute(const Output &output, RecordView record, std::uint64_t number, RenderMode mode) {
  TextLine<kNumberedLineSize> line;
  line.put("\n").put_decimal(number).put(":  ");
  put_line<kLineSize>(line, [record, mode](TextWriter &text) { aaa_attr_to_string(record, text, mode); });
  output.hand(line);
}

// A line that names a list, in hexadecimal or, as the brief form has it, in decimal.
void hand_list(const Output &output, const char *title, aaa_attr_list_handle list, bool decimal) {
  TextLine<kLineSize> line;
  line.put(std::string_view(title));
  decimal ? line.put_decimal(list) : line.put_hex(list);
  output.hand(line);
}

// The lists nested in a brief display are displayed in full.
void display(aaa_attr_list_handle list, const Output &output, RenderMode mode) {
  const bool brief = mode == RenderMode::kListBrief;
  const auto [head, error] = resolve(list);
  if (error) return hand_list(output, "Bad List: ", list, brief);
  hand_list(output, brief ? " Attribute List: 0x" : "Attribute List: 0x", list, false);
  std::uint64_t number = 0;
  for (const RecordView record : Attributes(head)) {
    if (!is_shown(record)) continue;
    hand_attribute(output, record, ++number, mode);
    if (!holds_handle(record)) continue;
    const aaa_attr_list_handle sub_list = owned_list(record);
    hand_list(output, "Grouped Attribute: ", sub_list, brief);
    display(sub_list, output, RenderMode::kList);
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_display(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  if (output != nullptr) display(list, {output, context}, RenderMode::kList);
}

void aaa_attr_list_display_brief(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  if (output != nullptr) display(list, {output, context}, RenderMode::kListBrief);
}
