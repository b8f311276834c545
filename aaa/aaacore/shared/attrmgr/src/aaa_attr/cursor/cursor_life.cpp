// Taking, resetting and returning cursors.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/cursor_step.h"
#include "platform/cursor_pool.h"

namespace attrmgr {

aaa_attr_cerrno take_list_cursor(aaa_attr_list_handle list, aaa_cursor **out) {
  aaa_cursor *cursor = take_cursor();
  *out = cursor;
  if (cursor == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  cursor->handle = list;
  enter(cursor, head);
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_cursor_alloc(aaa_attr_list_handle list, aaa_cursor **cursor) {
  return cursor != nullptr ? take_list_cursor(list, cursor) : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_cursor_alloc_filtered(aaa_attr_list_handle list, aaa_cursor **cursor, std::uint32_t service,
                                          std::uint32_t protocol) {
  if (cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = take_list_cursor(list, cursor)) return code;
  (*cursor)->filter_service = service;
  (*cursor)->filter_protocol = protocol;
  return 0;
}

aaa_attr_cerrno aaa_cursor_alloc_from_buffer(const void *buffer, aaa_cursor **out) {
  if (buffer == nullptr || out == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  aaa_cursor *cursor = take_cursor();
  *out = cursor;
  if (cursor == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
  cursor->handle = reinterpret_cast<std::uintptr_t>(buffer);
  cursor->flags = AAA_CURSOR_BUFFER;
  // The cursor's editing calls write into the buffer, on the client's word only.
  enter(cursor, BlockView(const_cast<std::byte *>(static_cast<const std::byte *>(buffer)) + 1));
  return 0;
}

aaa_attr_cerrno aaa_cursor_grouped_alloc(const aaa_cursor *cursor, aaa_cursor **sub_cursor) {
  if (sub_cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  *sub_cursor = nullptr;
  const RecordView record = current_record(cursor);
  if (!record) return AAA_ATTR_ERR_NOT_FOUND;
  if (!is_grouped(record) || record.length() != kHandleSize || in_buffer(*cursor)) return AAA_ATTR_ERR_BAD_ARG;
  PooledCursor taken(sub_list_of(record));
  if (taken.code() == 0) *sub_cursor = taken.release();
  return taken.code();
}

aaa_attr_cerrno aaa_cursor_reset(aaa_cursor *cursor) {
  if (cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  // The handle is a buffer's address then, and the buffer's bytes are not to be taken for a list's.
  if (in_buffer(*cursor)) return AAA_ATTR_ERR_BAD_LIST;
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(cursor->handle, &head)) return code;
  cursor->flags = 0;
  enter(cursor, head);
  return 0;
}

aaa_attr_cerrno aaa_cursor_free(aaa_cursor *cursor) {
  return_cursor(cursor);
  return 0;
}
