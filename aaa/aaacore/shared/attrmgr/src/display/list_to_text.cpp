// A list into a caller's buffer.
#include <cstring>

#include <attrmgr/aaa_attr_display.h>

#include "display/render.h"
#include "display/shown.h"

namespace attrmgr {
namespace {

// The part of the caller's buffer that is still free.
class Space {
 public:
  Space(char *buffer, std::size_t size) : at_(buffer), left_(size) {}

  bool left() const { return left_ > 0; }

  // Hands out a writer over the space. A text that does not fit stands cut short and uses the space up.
  template <class Write>
  void write(Write write_text) {
    if (left_ == 0) return;
    TextWriter writer(at_, left_);
    write_text(writer);
    at_ += writer.length();
    left_ = writer.room();
  }

 private:
  char *at_;
  std::size_t left_;
};

void write_list(aaa_attr_list_handle list, Space &space) {
  const auto [head, error] = resolve(list);
  if (error) {
    space.write([list](TextWriter &text) { text.put("\nBad List ").put_hex(list); });
    return;
  }
  std::uint64_t number = 0;
  for (const RecordView record : Attributes(head)) {
    if (!space.left()) return;
    if (!is_shown(record)) continue;
    ++number;
    space.write([record, number](TextWriter &text) {
      text.put("\n").put_decimal(number).put(":  ");
      put_line<kLineSize>(text, [record](TextWriter &line) { aaa_attr_to_string(record, line, RenderMode::kList); });
      text.put("\n");
    });
    if (!holds_handle(record) || !space.left()) continue;
    const aaa_attr_list_handle sub_list = owned_list(record);
    space.write([sub_list](TextWriter &text) { text.put("\nGrouped attribute: ").put_hex(sub_list).put("\n"); });
    write_list(sub_list, space);
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_print_to_output_buffer(aaa_attr_list_handle list, char *buffer, std::int32_t size) noexcept {
  if (buffer == nullptr || size < 1) return;
  Space space(buffer, static_cast<std::size_t>(size));
  write_list(list, space);
}
