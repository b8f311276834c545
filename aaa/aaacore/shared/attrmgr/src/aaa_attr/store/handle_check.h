// The one way from a list handle to the list's first block.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"
#include "platform/handle_table.h"

namespace attrmgr {

struct Resolved {
  BlockView head;
  aaa_attr_cerrno code;
};

// The head, where the handle is its address and it is sound: what nearly every call finds. Else null.
inline BlockView head_at(aaa_attr_list_handle list) {
  if (list == 0 || !handles_are_addresses()) return {};
  const BlockView head(reinterpret_cast<std::byte *>(list));
  return head.magic() == kBlockMagic ? head : BlockView();
}

// The answer of the handle table in use.
[[nodiscard]] Resolved look_up(aaa_attr_list_handle list);

// Gives 0 and the head, or AAA_ATTR_ERR_BAD_LIST or AAA_ATTR_ERR_STALE_HANDLE.
[[nodiscard]] inline Resolved resolve(aaa_attr_list_handle list) {
  const BlockView head = head_at(list);
  return head ? Resolved{head, 0} : look_up(list);
}

// The same; *head is written on success only.
[[nodiscard]] inline aaa_attr_cerrno resolve(aaa_attr_list_handle list, BlockView *head) {
  const Resolved resolved = resolve(list);
  if (resolved.code == 0) *head = resolved.head;
  return resolved.code;
}

// Whether a handle names the list that begins with the head, and whether two handles name one list, which may have more
// than one in a process's own table. What a handle points at is not looked at: it need not be a list at all.
[[nodiscard]] bool names_list_at(aaa_attr_list_handle list, BlockView head);
[[nodiscard]] bool name_one_list(aaa_attr_list_handle a, aaa_attr_list_handle b);

// resolve, and every further block carries the list magic too. No head without the code 0.
[[nodiscard]] Resolved resolve_whole(aaa_attr_list_handle list);

}  // namespace attrmgr
