#include "aaa_attr/store/handle_check.h"

#include <attrmgr/aaa_platform.h>

#include "aaa_attr/frame/client.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {
namespace {

// What a handle table says of a handle: valid, stale, or anything else for one that is bad.
constexpr std::uint32_t kStatusValid = 0;
constexpr std::uint32_t kStatusStale = 2;

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

aaa_attr_cerrno check_whole_list(aaa_attr_list_handle list) {
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  for (const BlockView block : Blocks(head)) {
    if (block.magic() == kFreedMagic) return AAA_ATTR_ERR_STALE_HANDLE;
    if (block.magic() != kBlockMagic) return AAA_ATTR_ERR_BAD_LIST;
  }
  return 0;
}

}  // namespace attrmgr
