#include "aaa_attr/store/handle_check.h"

#include <attrmgr/aaa_platform.h>

#include "aaa_attr/store/list_blocks.h"
#include "platform/handle_table.h"

namespace attrmgr {
namespace {

// What a handle table says of a handle: valid, stale, or anything else for one that is bad.
constexpr std::uint32_t kStatusValid = 0;
constexpr std::uint32_t kStatusStale = 2;

// The address that a handle stands for; null for none.
void *address_named_by(aaa_attr_list_handle list) {
  if (list == 0) return nullptr;
  if (handles_are_addresses()) return as_address(list);
  std::uint32_t status = kStatusValid;
  void *address = id_to_ptr(list, &status, handle_table());
  return status == kStatusValid ? address : nullptr;
}

}  // namespace

Resolved look_up(aaa_attr_list_handle list) {
  if (list == 0) return {{}, AAA_ATTR_ERR_BAD_LIST};
  std::uint32_t status = kStatusValid;
  const BlockView head(static_cast<std::byte *>(id_to_ptr(list, &status, handle_table())));
  if (!head || status == kStatusStale) return {{}, AAA_ATTR_ERR_STALE_HANDLE};
  const std::uint16_t magic = head.magic();
  if (magic == kFreedMagic) return {{}, AAA_ATTR_ERR_STALE_HANDLE};
  if (status != kStatusValid || magic != kBlockMagic) return {{}, AAA_ATTR_ERR_BAD_LIST};
  return {head, 0};
}

Resolved resolve_whole(aaa_attr_list_handle list) {
  const Resolved resolved = resolve(list);
  if (resolved.error) return resolved;
  for (BlockView block = resolved.head.next(); block; block = block.next()) {
    if (block.magic() == kFreedMagic) return {{}, AAA_ATTR_ERR_STALE_HANDLE};
    if (block.magic() != kBlockMagic) return {{}, AAA_ATTR_ERR_BAD_LIST};
  }
  return resolved;
}

bool names_list_at(aaa_attr_list_handle list, BlockView head) { return head && address_named_by(list) == head.bytes(); }

bool name_one_list(aaa_attr_list_handle a, aaa_attr_list_handle b) {
  return a == b || names_list_at(a, BlockView(static_cast<std::byte *>(address_named_by(b))));
}

}  // namespace attrmgr
