// A list into a caller's buffer.
#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/show_list.h"

namespace attrmgr {
namespace {

// The part of the caller's buffer that is still free.
class Space {
 public:
  Space(char *buffer, std::size_t size) : at_(buffer), left_(size) {}

  static void begin(aaa_attr_list_handle) {}

  void bad_list(aaa_attr_list_handle list) {
    write([list](TextWriter &text) { text.put("\nBad List ").put_hex(list); });
  }

  void attribute(RecordView record, std::uint64_t number) {
    write([record, number](TextWriter &text) {
      text.put("\n").put_decimal(number).put(":  ");
      put_line<kLineSize>(text, [record](TextWriter &line) { aaa_attr_to_string(record, line, RenderMode::kList); });
      text.put("\n");
    });
  }

  void begin_nested(aaa_attr_list_handle list) {
    write([list](TextWriter &text) { text.put("\nGrouped attribute: ").put_hex(list).put("\n"); });
  }
  static void end_nested(aaa_attr_list_handle) {}
  bool full() const { return left_ == 0; }

 private:
  // Hands out a writer over the space. A text that does not fit stands cut short and uses the space up.
  template <class Write>
  void write(Write write_text) {
    if (full()) return;
    TextWriter writer(at_, left_);
    write_text(writer);
    at_ += writer.length();
    left_ = writer.room();
  }

  char *at_;
  std::size_t left_;
};

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_print_to_output_buffer(aaa_attr_list_handle list, char *buffer, std::int32_t size) noexcept {
  if (buffer == nullptr || size < 1) return;
  Space space(buffer, static_cast<std::size_t>(size));
  show_list(list, space);
}
