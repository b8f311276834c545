#include "aaa_attr/list_ops/coalesce.h"

#include <cstring>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/blocks.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {
namespace {

// Records that follow each other without a removed one between them; they move with one copy.
struct Run {
  std::byte *begin;
  std::byte *end;

  // Moves the run down to `to` and returns the byte after it there.
  std::byte *move_to(std::byte *to) const {
    const auto size = static_cast<std::size_t>(end - begin);
    if (to != begin) std::memmove(to, begin, size);
    return to + size;
  }
};

// Zeroes what comes after the block's records.
void clear_tail(BlockView block) { std::memset(block.end(), 0, block.free_bytes()); }

void pack(BlockView block) {
  const std::size_t size = block.size();
  std::byte *to = block.records();
  Run run{to, to};
  std::uint16_t live = 0;
  bool grouped = false;
  for (RecordScan scan(block); scan.next();) {
    const RecordView record = scan.record();
    std::byte *after = record.bytes() + record.size();
    if (!record.deleted()) {
      ++live;
      grouped |= is_grouped(record);
      run.end = after;
    } else {
      to = run.move_to(to);
      run = {after, after};
    }
  }
  to = run.move_to(to);

  const auto used = static_cast<std::size_t>(to - block.bytes());
  block.clear_flags(kBlockHoldsGrouped | kBlockReserved);
  if (grouped) block.add_flags(kBlockHoldsGrouped);
  block.set_record_count(live);
  block.set_used(static_cast<std::uint16_t>(used));
  block.set_free_bytes(static_cast<std::uint16_t>(size - used));
  clear_tail(block);
}

void pack_all(BlockView head) {
  BlockView kept = head;
  for (BlockView block = head; block;) {
    const BlockView next = block.next();
    pack(block);
    if (block != head && block.record_count() == 0) {
      kept.set_next(next);
      if (!next) kept.add_flags(kBlockLast);
      head.set_block_count(static_cast<std::uint16_t>(head.block_count() - 1));
      free_block(block);
    } else {
      kept = block;
    }
    block = next;
  }
  set_tail(head, kept);
}

}  // namespace

void pack_and_clear(BlockView head) {
  if (head.block_count() == 0) return;
  if (noted(head, kMayNeedPacking)) {
    pack_all(head);
  } else if (!noted(head, kTailsAreClear)) {
    for (const BlockView block : Blocks(head)) clear_tail(block);
  }
  rule_out(head, kMayNeedPacking);
  note(head, kTailsAreClear);
}

}  // namespace attrmgr
