// Moving a cursor and changing what it stands on.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/list_ops/add.h"
#include "aaa_attr/store/client_types.h"
#include "aaa_attr/store/sub_list.h"
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

void aaa_cursor_remove(aaa_cursor *cursor) {
  RecordView record = current_record(cursor);
  if (!record) return;
  if (in_buffer(*cursor)) {
    // A removed Grouped record owns no nested list: the one in the buffer would become part of the outer list.
    if (!is_grouped(record)) record.mark_deleted();
    return;
  }
  record.mark_deleted();
  BlockView head;
  if (resolve(cursor->handle, &head) == 0) note(head, kMayNeedPacking);
}

aaa_attr_cerrno aaa_cursor_set_producer_client_type(aaa_cursor *cursor, std::uint32_t client_type) {
  RecordView record = current_record(cursor);
  if (!record || !is_valid_client_type(client_type)) return AAA_ATTR_ERR_BAD_ARG;
  record.set_client_type(client_type);
  return 0;
}

aaa_attr_cerrno aaa_cursor_list_add_attr(aaa_attr_list_handle list, const aaa_cursor *cursor) {
  const RecordView record = current_record(cursor);
  if (!record) return AAA_ATTR_ERR_BAD_ARG;
  if (in_buffer(*cursor) && is_grouped(record)) return AAA_ATTR_ERR_BAD_ARG;
  return add_attribute(list, attribute_of(record));
}
