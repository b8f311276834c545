// A cursor from the pool that goes back on every path.
#pragma once

#include <utility>

#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/walk/cursor_step.h"
#include "platform/cursor_pool.h"

namespace attrmgr {

// aaa_cursor_alloc: *out may be a cursor even when the handle is refused.
Error take_list_cursor(aaa_attr_list_handle list, aaa_cursor **out);

// A cursor over the list of a flat buffer that begins at the block.
Error take_buffer_cursor(const std::byte *first_block, aaa_cursor **out);

class PooledCursor {
 public:
  explicit PooledCursor(aaa_attr_list_handle list) : error_(take_list_cursor(list, &cursor_)) {}
  explicit PooledCursor(const std::byte *first_block) : error_(take_buffer_cursor(first_block, &cursor_)) {}
  ~PooledCursor() { return_cursor(cursor_); }
  PooledCursor(const PooledCursor &) = delete;
  PooledCursor &operator=(const PooledCursor &) = delete;

  Error error() const { return error_; }
  // Goes to the next attribute, as a client's walk does; null at the end.
  RecordView next() { return step_to_attribute(cursor_); }
  BlockView block() const { return block_of(*cursor_); }
  aaa_cursor *release() { return std::exchange(cursor_, nullptr); }

 private:
  aaa_cursor *cursor_ = nullptr;
  Error error_;
};

}  // namespace attrmgr
