// Sub-lists are not freed by recursion: the chain of blocks being freed grows at its end by the chain of each sub-list
// that a block owns. However deep lists nest, the stack stays small and each block is looked at once.
#include "aaa_attr/list_ops/release.h"

#include <cstdio>
#include <cstdlib>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_platform.h>

#include "aaa_attr/frame/client.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

// The head of a list that may be freed; null for a handle that names none. The handle is looked up twice: a table that
// knows it first and not a moment later deserves a word.
BlockView head_to_release(aaa_attr_list_handle list) {
  BlockView head;
  if (resolve(list, &head) != 0) return {};
  if (const aaa_attr_cerrno code = resolve(list, &head)) {
    std::fprintf(stderr, "\nCursor init failed in aaa_attr_list_free - ret %d", static_cast<int>(code));
    return {};
  }
  return head;
}

// Chains the sub-lists of the block's live records behind tail and withdraws their handles. Returns the new tail.
BlockView queue_sub_lists(BlockView block, BlockView tail) {
  for (const RecordView record : BlockRecords(block)) {
    if (format_of(record.type()) != AAA_ATTR_FMT_GROUPED || record.length() != kHandleSize) continue;
    const auto sub_list = load<aaa_attr_list_handle>(record.value());
    const BlockView head = head_to_release(sub_list);
    if (!head) continue;
    id_delete(sub_list, handle_table());
    tail.set_next(head);
    tail = last_block(head);
  }
  return tail;
}

void release_chain(BlockView head, bool with_sub_lists) {
  BlockView tail = last_block(head);
  for (BlockView block = head; block;) {
    if (with_sub_lists && block.has(kBlockHoldsGrouped)) tail = queue_sub_lists(block, tail);
    const BlockView next = block.next();
    std::free(block.bytes());
    block = next;
  }
}

}  // namespace

void release_list(aaa_attr_list_handle list) {
  const BlockView head = head_to_release(list);
  if (!head) return;
  release_chain(head, true);
  id_delete(list, handle_table());
}

void release_without_sub_lists(aaa_attr_list_handle list, BlockView head) {
  release_chain(head, false);
  id_delete(list, handle_table());
}

}  // namespace attrmgr

void aaa_attr_list_free(aaa_attr_list_handle list) { attrmgr::release_list(list); }
