// Copying a list copies its blocks, removed records included, and then gives every Grouped record of the copy a copy of
// its sub-list.
#include "aaa_attr/list_ops/copy.h"

#include <cstring>

#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

Error copy_block(BlockView from, BlockView to) {
  const std::size_t size = to.size();
  const std::size_t used = from.used();
  if (from.version() != to.version() || used > size) return AAA_ATTR_ERR_BAD_LIST;
  std::memcpy(to.bytes(), from.bytes(), used);
  to.set_free_bytes(static_cast<std::uint16_t>(size - used));
  rule_out(to, kListBits | kTailHint);
  to.set_next(BlockView());
  return 0;
}

// Copies what belongs to the source alone. *flags: those of all blocks together.
Error copy_blocks(BlockView source, BlockView copy, std::uint8_t *flags) {
  BlockView from = source;
  BlockView to = copy;
  Error error = copy_block(from, to);
  *flags = from.flags();
  while (!error && (from = from.next())) {
    *flags |= from.flags();
    to = aaa_attr_list_add_block(BlockView(), to, from.used());
    error = to ? copy_block(from, to) : AAA_ATTR_ERR_NO_MEMORY;
  }
  note(copy, source.own_word() & (kMayNeedPacking | kMayHoldTypeZero));
  if (!error) set_tail(copy, to);
  return error;
}

// Gives the Grouped records of a block copies of their sub-lists. After a failure the handles that were copied with the
// blocks become 0, so that releasing the copy leaves the source's sub-lists alone.
Error copy_sub_lists(BlockView block, const void *owner, Error error) {
  for (const RecordView record : BlockRecords(block)) {
    if (!holds_handle(record)) continue;
    aaa_attr_list_handle sub_copy = 0;
    if (!error) error = copy_list(owned_list(record), owner, &sub_copy);
    set_owned_list(record, sub_copy);
  }
  return error;
}

Error copy_all_sub_lists(BlockView copy, const void *owner, Error error) {
  for (const BlockView block : Blocks(copy))
    if (block.has(kBlockHoldsGrouped)) error = copy_sub_lists(block, owner, error);
  return error;
}

}  // namespace

Error copy_list(aaa_attr_list_handle source, const void *owner, aaa_attr_list_handle *copy) {
  const auto [from, refused] = resolve(source);
  if (refused) return refused;
  List made;
  if (const Error error = create_checked_list(owner, &made)) return error;
  std::uint8_t flags;
  Error error = copy_blocks(from, made.head, &flags);
  if ((flags & kBlockHoldsGrouped) != 0) error = copy_all_sub_lists(made.head, owner, error);
  if (error) {
    free_list(made.handle);
    return error;
  }
  *copy = made.handle;
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_copy(aaa_attr_list_handle source, aaa_attr_list_handle *copy) noexcept {
  return copy != nullptr ? copy_list(source, ATTRMGR_CALLER, copy).code : AAA_ATTR_ERR_BAD_ARG;
}
