// Moving a cursor.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/walk/cursor_step.h"

using namespace attrmgr;

std::uint32_t aaa_cursor_get_next(aaa_cursor *cursor) {
  if (cursor == nullptr) return 0;
  const RecordView record = step(cursor);
  return record ? record.type() : 0;
}

int aaa_cursor_move_by_type(aaa_cursor *cursor, std::uint32_t type) {
  if (cursor == nullptr) return 0;
  std::uint32_t reached;
  do {
    reached = aaa_cursor_get_next(cursor);
  } while (reached != 0 && reached != type);
  return reached == type;
}
