#include "aaa_attr/store/list_blocks.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <attrmgr/aaa_platform.h>

#include "aaa_attr/store/handle_check.h"
#include "platform/handle_table.h"

namespace attrmgr {
namespace {

inline void write_header(BlockView block, std::size_t size, std::uint8_t flags) {
  block.set_magic(kBlockMagic);
  block.set_version(kLayoutVersion);
  block.set_flags(flags);
  block.set_block_count(1);
  block.set_record_count(0);
  block.set_free_bytes(static_cast<std::uint16_t>(size - kHeaderSize));
  block.set_used(kHeaderSize);
  block.set_own_word(0);
  block.set_next(BlockView());
}

}  // namespace

Error create_list(const void *owner, List *list) {
  const BlockView head(static_cast<std::byte *>(malloc_pc(kBlockSize, owner)));
  if (!head) return AAA_ATTR_ERR_NO_MEMORY;
  write_header(head, kBlockSize, kBlockHead | kBlockLast | kBlockLayoutNative);
  const aaa_attr_list_handle handle = id_get(head.bytes(), handle_table());
  if (handle == 0) {
    free_block(head);
    return AAA_ATTR_ERR_NO_MEMORY;
  }
  *list = {handle, head};
  return 0;
}

Error create_checked_list(const void *owner, List *list) {
  List made;
  if (const Error error = create_list(owner, &made)) return error;
  if (const Error error = resolve(made.handle).error) {
    id_delete(made.handle, handle_table());
    free_block(made.head);
    return error;
  }
  *list = made;
  return 0;
}

BlockView aaa_attr_list_add_block(BlockView head, BlockView last, std::size_t size) {
  if (head && head.block_count() == kBlockCountMax) return {};
  size = std::max(size, kBlockSize);
  const BlockView block(static_cast<std::byte *>(std::malloc(size)));
  if (!block) return block;
  write_header(block, size, kBlockLast | kBlockLayoutNative);
  last.set_next(block);
  last.clear_flags(kBlockLast);
  if (head) {
    head.set_block_count(static_cast<std::uint16_t>(head.block_count() + 1));
    rule_out(head, kTailsAreClear);
    set_tail(head, block);
  }
  return block;
}

void set_tail(BlockView head, BlockView last) {
  const BlockView second = head.next();
  const std::int64_t distance = second ? address_of(last) - address_of(second) : 0;
  const auto hint = static_cast<std::int32_t>(distance);
  const bool fits = hint == distance && (static_cast<std::uint32_t>(hint) & ~kTailHint) == 0;
  head.set_own_word((head.own_word() & ~kTailHint) | (fits ? static_cast<std::uint32_t>(hint) : 0));
}

void free_block(BlockView block) {
  if (noted(block, kMayHoldSecret)) explicit_bzero(block.bytes(), block.size());
  std::free(block.bytes());
}

}  // namespace attrmgr

const std::uint16_t aaa_attr_chunk_size = attrmgr::kBlockSize;
