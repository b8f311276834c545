// The exported cursor's walk: a record scan whose state lives in the 40 bytes of aaa_cursor.
#pragma once

#include <cstddef>
#include <type_traits>

#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/store/views.h"

namespace attrmgr {

static_assert(sizeof(aaa_cursor) == 40 && std::is_standard_layout_v<aaa_cursor>);
static_assert(offsetof(aaa_cursor, handle) == 8 && offsetof(aaa_cursor, record) == 16);
static_assert(offsetof(aaa_cursor, left) == 24 && offsetof(aaa_cursor, filter_service) == 28);
static_assert(offsetof(aaa_cursor, filter_protocol) == 32 && offsetof(aaa_cursor, flags) == 36);

inline BlockView block_of(const aaa_cursor &cursor) { return BlockView(reinterpret_cast<std::byte *>(cursor.block)); }

inline RecordView record_of(const aaa_cursor &cursor) {
  return RecordView(reinterpret_cast<std::byte *>(cursor.record));
}

// The current record; null when the cursor is null or has none.
inline RecordView current_record(const aaa_cursor *cursor) {
  const bool none = cursor == nullptr || (cursor->flags & AAA_CURSOR_BEFORE_FIRST) != 0;
  return none ? RecordView() : record_of(*cursor);
}

inline bool in_buffer(const aaa_cursor &cursor) { return (cursor.flags & AAA_CURSOR_BUFFER) != 0; }

// Stands before the first record of the block; filter and mode stay.
void enter(aaa_cursor *cursor, BlockView block);

// Goes to the next live record that the filter lets through. Null at the end; a record that would pass its block ends
// the walk for good.
RecordView step(aaa_cursor *cursor);

// The same; null as well at a record of type 0, where a client's walk ends.
inline RecordView step_to_attribute(aaa_cursor *cursor) {
  const RecordView record = step(cursor);
  return record && record.type() != 0 ? record : RecordView();
}

}  // namespace attrmgr
