// What state a list is in: valid or not, empty or not, how many records.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/walk/blocks.h"

using namespace attrmgr;

int is_aaa_attr_list_valid(aaa_attr_list_handle list, aaa_attr_cerrno *code) noexcept {
  if (code == nullptr) return 0;
  *code = resolve_whole(list).error.code;
  return *code == 0;
}

aaa_attr_cerrno is_aaa_attr_list_empty(aaa_attr_list_handle list, int *empty) noexcept {
  if (empty == nullptr || resolve_whole(list).error) return AAA_ATTR_ERR_BAD_LIST;
  PooledCursor cursor(list);
  if (cursor.error()) return cursor.error().code;
  *empty = !cursor.next();
  return 0;
}

std::uint32_t aaa_attr_list_attr_count(aaa_attr_list_handle list) noexcept {
  const auto [head, error] = resolve(list);
  return error ? 0 : count_records(head);
}
