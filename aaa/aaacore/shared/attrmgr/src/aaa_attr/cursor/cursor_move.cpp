// Moving a cursor.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/walk/cursor_step.h"

namespace attrmgr {
namespace {

std::uint32_t next_type(aaa_cursor *cursor) {
  const RecordView record = step(cursor);
  return record ? record.type() : 0;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

std::uint32_t aaa_cursor_get_next(aaa_cursor *cursor) noexcept { return cursor != nullptr ? next_type(cursor) : 0; }

int aaa_cursor_move_by_type(aaa_cursor *cursor, std::uint32_t type) noexcept {
  if (cursor == nullptr) return 0;
  std::uint32_t reached;
  do {
    reached = next_type(cursor);
  } while (reached != 0 && reached != type);
  return reached == type;
}
