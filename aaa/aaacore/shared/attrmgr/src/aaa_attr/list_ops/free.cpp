// Sub-lists are not freed by recursion: a peer decides how deep lists nest, and must not decide how much stack is used.
// Instead the chain of every sub-list is appended to the chain of blocks that is to be freed, which grows while it is
// walked, and only then the blocks are freed. A list that two records name is appended, and freed, once.
#include "aaa_attr/list_ops/free.h"

#include <cstdio>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_platform.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"
#include "platform/handle_table.h"

namespace attrmgr {
namespace {

// The head of a list that may be freed; null for a handle that names none. The handle is looked up twice, as a check
// and as a cursor would, and a table that changes its mind in between is reported on the standard error stream.
BlockView head_to_free(aaa_attr_list_handle list) {
  if (resolve(list).error) return {};
  const auto [head, error] = resolve(list);
  if (error) std::fprintf(stderr, "\nCursor init failed in aaa_attr_list_free - ret %d", static_cast<int>(error.code));
  return head;
}

// The magic of a list that is queued to be freed: another record that names it must not find a list there.
constexpr std::uint16_t kQueuedMagic = 0;

// Chains the sub-lists of the block's live records after tail and withdraws their handles. Returns the new tail.
BlockView queue_sub_lists(BlockView block, BlockView tail) {
  for (const RecordView record : BlockRecords(block)) {
    const aaa_attr_list_handle sub_list = owned_list(record);
    if (sub_list == 0) continue;
    BlockView head = head_to_free(sub_list);
    // A block without the head flag was spliced into another list, which frees it.
    if (!head || !head.has(kBlockHead)) continue;
    id_delete(sub_list, handle_table());
    head.set_magic(kQueuedMagic);
    tail.set_next(head);
    tail = last_block(head);
  }
  return tail;
}

void queue_all_sub_lists(BlockView first) {
  BlockView tail = first;
  while (const BlockView next = tail.next()) tail = next;
  for (const BlockView block : Blocks(first))
    if (block.has(kBlockHoldsGrouped)) tail = queue_sub_lists(block, tail);
}

// Frees the blocks of a chain up to the first one that has any of the flags, and returns that; null for none.
BlockView free_chain(BlockView block, std::uint8_t up_to = 0) {
  while (block && !block.has(up_to)) {
    const BlockView next = block.next();
    free_block(block);
    block = next;
  }
  return block;
}

}  // namespace

void free_list(aaa_attr_list_handle list) {
  BlockView head = head_to_free(list);
  if (!head) return;
  const BlockView first = head.has(kBlockHoldsGrouped) ? head : free_chain(head.next(), kBlockHoldsGrouped);
  if (first) {
    head.set_magic(kQueuedMagic);
    queue_all_sub_lists(first);
    free_chain(first == head ? head.next() : first);
  }
  free_block(head);
  id_delete(list, handle_table());
}

void free_without_sub_lists(aaa_attr_list_handle list, BlockView head) {
  free_chain(head);
  id_delete(list, handle_table());
}

}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_list_free(aaa_attr_list_handle list) noexcept { free_list(list); }
