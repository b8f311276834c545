// What state a list is in: valid or not, empty or not, how many records.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/walk/cursor_step.h"
#include "aaa_attr/walk/list_walk.h"

using namespace attrmgr;

int is_aaa_attr_list_valid(aaa_attr_list_handle list, aaa_attr_cerrno *code) {
  if (code == nullptr) return 0;
  *code = resolve_whole(list).code;
  return *code == 0;
}

aaa_attr_cerrno is_aaa_attr_list_empty(aaa_attr_list_handle list, int *empty) {
  if (empty == nullptr || resolve_whole(list).code != 0) return AAA_ATTR_ERR_BAD_LIST;
  const PooledCursor cursor(list);
  if (cursor.code() != 0) return cursor.code();
  *empty = aaa_cursor_get_next(cursor.get()) == 0;
  return 0;
}

std::uint32_t aaa_attr_list_attr_count(aaa_attr_list_handle list) {
  BlockView head;
  if (resolve(list, &head) != 0) return 0;
  std::uint32_t records = 0;
  for (const BlockView block : Blocks(head)) records += block.record_count();
  return records;
}
