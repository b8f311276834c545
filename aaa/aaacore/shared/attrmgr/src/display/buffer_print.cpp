// A flat buffer on the standard output, read where it lies.
#include <cinttypes>
#include <cstdio>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/flat_reader.h"
#include "dictionary/li_set.h"
#include "display/render.h"

namespace attrmgr {
namespace {

void print_attribute(RecordView record, int number) {
  TextLine<kLineSize> line;
  aaa_attr_to_string(record, line, RenderMode::kBuffer);
  std::printf("\n%d:  %s", number, line.text());
}

// The nested lists after the block that a cursor stands in, taken one by one: the k-th belongs to the k-th live Grouped
// record of the block.
class NestedLists {
 public:
  // The next list, or null where none holds together.
  const std::byte *take(BlockView block) {
    if (block != block_) {
      block_ = block;
      next_ = block.has(kBlockHoldsGrouped) ? block.end() : nullptr;
    }
    if (next_ == nullptr) return nullptr;
    TrustedReader reader(next_);
    const bool whole = reader.read_to_end();
    const std::byte *taken = whole ? next_ : nullptr;
    next_ = whole ? reader.after() : nullptr;
    return taken;
  }

 private:
  BlockView block_;
  const std::byte *next_ = nullptr;
};

// A list is named by the byte before its first block: the marker of the outer one.
void print_list(const std::byte *first_block) {
  PooledCursor cursor(first_block);
  if (cursor.error()) return;
  std::printf("\nAttribute list: %" PRIuPTR, reinterpret_cast<std::uintptr_t>(first_block) - kMarkerSize);
  NestedLists nested;
  int number = 0;
  while (const RecordView record = cursor.next()) {
    if (hidden_from_display(record.type())) continue;
    print_attribute(record, ++number);
    if (!holds_handle(record)) continue;
    // The sender's handle: something to tell it by, and never followed.
    std::printf("\nGrouped attribute: %" PRIu32, static_cast<std::uint32_t>(owned_list(record)));
    if (const std::byte *list = nested.take(cursor.block())) print_list(list);
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_buffer_print(const void *buffer) noexcept {
  if (buffer != nullptr) print_list(static_cast<const std::byte *>(buffer) + kMarkerSize);
}
