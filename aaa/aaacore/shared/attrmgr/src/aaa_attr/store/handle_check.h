// The one way from a list handle to the list's first block.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/views.h"
#include "platform/handle_table.h"

namespace attrmgr {

// The head, or AAA_ATTR_ERR_BAD_LIST or AAA_ATTR_ERR_STALE_HANDLE and a null one:
//
//   const auto [head, error] = resolve(list);
//   if (error) return error;
struct [[nodiscard]] Resolved {
  BlockView head;
  Error error;
};

// The head where the handle is its address and it is sound, which is what nearly every call finds; else null.
inline BlockView head_at(aaa_attr_list_handle list) {
  if (list == 0 || !handles_are_addresses()) return {};
  const BlockView head(static_cast<std::byte *>(as_address(list)));
  return head && head.magic() == kBlockMagic ? head : BlockView();
}

// The answer of the handle table in use.
Resolved look_up(aaa_attr_list_handle list);

inline Resolved resolve(aaa_attr_list_handle list) {
  const BlockView head = head_at(list);
  return head ? Resolved{head, 0} : look_up(list);
}

// The same, and every further block carries the list magic too.
Resolved resolve_whole(aaa_attr_list_handle list);

// Whether a handle names the list that begins with the head, and whether two handles name one list, which may have more
// than one in a process's own table. What a handle points at is not looked at: it need not be a list at all.
[[nodiscard]] bool names_list_at(aaa_attr_list_handle list, BlockView head);
[[nodiscard]] bool name_one_list(aaa_attr_list_handle a, aaa_attr_list_handle b);

}  // namespace attrmgr
