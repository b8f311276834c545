// A cursor from the pool that goes back on every path.
#pragma once

#include <utility>

#include <attrmgr/aaa_cursor.h>

#include "platform/cursor_pool.h"

namespace attrmgr {

// aaa_cursor_alloc: *out may be a cursor even when the handle is refused.
[[nodiscard]] aaa_attr_cerrno take_list_cursor(aaa_attr_list_handle list, aaa_cursor **out);

class PooledCursor {
 public:
  explicit PooledCursor(aaa_attr_list_handle list) : code_(take_list_cursor(list, &cursor_)) {}
  ~PooledCursor() { return_cursor(cursor_); }
  PooledCursor(const PooledCursor &) = delete;
  PooledCursor &operator=(const PooledCursor &) = delete;

  aaa_attr_cerrno code() const { return code_; }
  aaa_cursor *get() const { return cursor_; }
  aaa_cursor *release() { return std::exchange(cursor_, nullptr); }

 private:
  aaa_cursor *cursor_ = nullptr;
  aaa_attr_cerrno code_;
};

}  // namespace attrmgr
