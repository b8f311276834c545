// A list through a caller's output function, in the full and in the brief form.
#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/show_list.h"

namespace attrmgr {
namespace {

class LineByLine {
 public:
  LineByLine(aaa_attr_output_fn output, std::uint64_t context, RenderMode mode)
      : output_(output), context_(context), mode_(mode) {}

  void bad_list(aaa_attr_list_handle list) const { hand_list("Bad List: ", list, brief()); }

  void begin(aaa_attr_list_handle list) const {
    hand_list(brief() ? " Attribute List: 0x" : "Attribute List: 0x", list, false);
  }

  void attribute(RecordView record, std::uint64_t number) const {
    TextLine<kNumberedLineSize> line;
    line.put("\n").put_decimal(number).put(":  ");
    put_line<kLineSize>(line, [this, record](TextWriter &text) { aaa_attr_to_string(record, text, mode()); });
    output_(line.data(), context_);
  }

  void begin_nested(aaa_attr_list_handle list) {
    hand_list("Grouped Attribute: ", list, brief());
    ++depth_;
  }
  void end_nested(aaa_attr_list_handle) { --depth_; }
  static bool full() { return false; }

 private:
  // The lists nested in a brief display are displayed in full.
  RenderMode mode() const { return depth_ == 0 ? mode_ : RenderMode::kList; }
  bool brief() const { return mode() == RenderMode::kListBrief; }

  // A line that names a list, in hexadecimal or, as the brief form has it, in decimal.
  void hand_list(const char *title, aaa_attr_list_handle list, bool decimal) const {
    TextLine<kLineSize> line;
    line.put(std::string_view(title));
    decimal ? line.put_decimal(list) : line.put_hex(list);
    output_(line.data(), context_);
  }

  aaa_attr_output_fn output_;
  std::uint64_t context_;
  RenderMode mode_;
  unsigned depth_ = 0;
};

void display(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context, RenderMode mode) {
  if (output == nullptr) return;
  LineByLine lines(output, context, mode);
  show_list(list, lines);
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_display(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  display(list, output, context, RenderMode::kList);
}

void aaa_attr_list_display_brief(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  display(list, output, context, RenderMode::kListBrief);
}
