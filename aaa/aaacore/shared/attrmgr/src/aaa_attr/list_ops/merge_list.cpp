// Splicing: the source's blocks become the end of the destination's chain.
#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_platform.h>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "platform/handle_table.h"

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_merge_list(aaa_attr_list_handle destination, aaa_attr_list_handle source) noexcept {
  auto [to, to_error] = resolve(destination);
  if (to_error) return to_error.code;
  auto [from, from_error] = resolve(source);
  if (from_error) return from_error.code;
  if (to == from) return AAA_ATTR_ERR_BAD_ARG;
  const std::uint32_t blocks = std::uint32_t{to.block_count()} + from.block_count();
  if (blocks > kBlockCountMax) return AAA_ATTR_ERR_NO_MEMORY;

  BlockView to_last = last_block(to);
  const BlockView from_last = last_block(from);
  to_last.set_next(from);
  to_last.clear_flags(kBlockLast);
  to.set_block_count(static_cast<std::uint16_t>(blocks));
  // A cursor over the source may still remove records, which are the destination's now, and would note it in the
  // source.
  note(to, kMayNeedPacking | (from.own_word() & kMayHoldTypeZero));
  if (!noted(from, kTailsAreClear)) rule_out(to, kTailsAreClear);
  set_tail(to, from_last);
  // The former head is a block like any other now.
  from.clear_flags(kBlockHead);
  from.set_block_count(1);
  rule_out(from, kListBits | kTailHint);
  id_delete(source, handle_table());
  return 0;
}
