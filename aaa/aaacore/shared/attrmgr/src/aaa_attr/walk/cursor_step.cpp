#include "aaa_attr/walk/cursor_step.h"

#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/flat_reader.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {
namespace {

void end_walk(aaa_cursor *cursor) {
  cursor->left = 0;
  cursor->record = nullptr;
}

std::uint16_t live_grouped_records(BlockView block) {
  std::uint16_t grouped = 0;
  for (RecordScan scan(block); scan.next();)
    if (!scan.record().deleted() && is_grouped(scan.record())) ++grouped;
  return grouped;
}

// In a buffer the list goes on after the nested lists of the block, if `next` says that it goes on at all. Null when it
// does not, when the nested lists do not hold together, or when the block claims to end in its own header: the walk
// would come back to that block for ever.
BlockView next_block_in_buffer(BlockView block) {
  if (!block.has_next() || block.used() < kHeaderSize) return {};
  if (!block.has(kBlockHoldsGrouped)) return BlockView(block.end());
  TrustedReader nested(block.end(), kUnknownLength, live_grouped_records(block));
  return nested.read_to_end() ? BlockView(block.end() + (nested.after() - block.end())) : BlockView();
}

bool enter_next_block(aaa_cursor *cursor) {
  const BlockView block = block_of(*cursor);
  const BlockView next = in_buffer(*cursor) ? next_block_in_buffer(block) : block.next();
  if (!next) return false;
  enter(cursor, next);
  return true;
}

bool passes_filter(const aaa_cursor &cursor, RecordView record) {
  if (cursor.filter_service == 0 && cursor.filter_protocol == 0) return true;
  if (!record.has_meta()) return false;
  return record.meta().service() == cursor.filter_service && record.meta().protocol() == cursor.filter_protocol;
}

}  // namespace

void enter(aaa_cursor *cursor, BlockView block) {
  cursor->block = reinterpret_cast<aaa_attr_block *>(block.bytes());
  cursor->record = reinterpret_cast<aaa_attr_record *>(block.records());
  cursor->left = block.record_count();
  cursor->flags |= AAA_CURSOR_BEFORE_FIRST;
}

RecordView step(aaa_cursor *cursor) {
  if (!record_of(*cursor)) return {};
  for (;;) {
    while (cursor->left == 0)
      if (!enter_next_block(cursor)) return {};
    const BlockView block = block_of(*cursor);
    const bool first = (cursor->flags & AAA_CURSOR_BEFORE_FIRST) != 0;
    std::byte *at = first ? block.records() : record_of(*cursor).bytes() + record_of(*cursor).size();
    RecordScan scan(at, block.end(), cursor->left);
    if (!scan.next()) {
      end_walk(cursor);
      return {};
    }
    cursor->record = reinterpret_cast<aaa_attr_record *>(at);
    cursor->flags &= static_cast<std::uint16_t>(~AAA_CURSOR_BEFORE_FIRST);
    --cursor->left;
    const RecordView record = scan.record();
    if (!record.deleted() && passes_filter(*cursor, record)) return record;
  }
}

}  // namespace attrmgr
