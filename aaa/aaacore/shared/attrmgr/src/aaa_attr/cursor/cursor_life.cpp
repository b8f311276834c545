// Taking, resetting and returning cursors.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/cursor_step.h"
#include "platform/cursor_pool.h"

namespace attrmgr {

Error take_list_cursor(aaa_attr_list_handle list, aaa_cursor **out) {
  aaa_cursor *cursor = take_cursor();
  *out = cursor;
  if (cursor == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
  const auto [head, error] = resolve(list);
  if (error) return error;
  cursor->handle = list;
  enter(cursor, head);
  return 0;
}

Error take_buffer_cursor(const std::byte *first_block, aaa_cursor **out) {
  aaa_cursor *cursor = take_cursor();
  *out = cursor;
  if (cursor == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
  cursor->handle = reinterpret_cast<std::uintptr_t>(first_block) - kMarkerSize;
  cursor->flags = AAA_CURSOR_BUFFER;
  // The interface takes a constant buffer, but aaa_cursor_remove and its like write into it when the client asks for
  // it.
  enter(cursor, BlockView(const_cast<std::byte *>(first_block)));
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_cursor_alloc(aaa_attr_list_handle list, aaa_cursor **cursor) noexcept {
  return cursor != nullptr ? take_list_cursor(list, cursor).code : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_cursor_alloc_filtered(aaa_attr_list_handle list, aaa_cursor **cursor, std::uint32_t service,
                                          std::uint32_t protocol) noexcept {
  if (cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const Error error = take_list_cursor(list, cursor)) return error.code;
  (*cursor)->filter_service = service;
  (*cursor)->filter_protocol = protocol;
  return 0;
}

aaa_attr_cerrno aaa_cursor_alloc_from_buffer(const void *buffer, aaa_cursor **cursor) noexcept {
  if (buffer == nullptr || cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  return take_buffer_cursor(static_cast<const std::byte *>(buffer) + kMarkerSize, cursor).code;
}

aaa_attr_cerrno aaa_cursor_grouped_alloc(const aaa_cursor *cursor, aaa_cursor **sub_cursor) noexcept {
  if (sub_cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  *sub_cursor = nullptr;
  const RecordView record = current_record(cursor);
  if (!record) return AAA_ATTR_ERR_NOT_FOUND;
  if (!holds_handle(record) || in_buffer(*cursor)) return AAA_ATTR_ERR_BAD_ARG;
  PooledCursor taken(owned_list(record));
  if (!taken.error()) *sub_cursor = taken.release();
  return taken.error().code;
}

aaa_attr_cerrno aaa_cursor_reset(aaa_cursor *cursor) noexcept {
  if (cursor == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  // Here the handle is the address of a buffer: resolving it would take the buffer's bytes for a list.
  if (in_buffer(*cursor)) return AAA_ATTR_ERR_BAD_LIST;
  const auto [head, error] = resolve(cursor->handle);
  if (error) return error.code;
  cursor->flags = 0;
  enter(cursor, head);
  return 0;
}

aaa_attr_cerrno aaa_cursor_free(aaa_cursor *cursor) noexcept {
  return_cursor(cursor);
  return 0;
}
