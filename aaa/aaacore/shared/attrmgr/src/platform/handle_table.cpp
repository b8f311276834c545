// The library's own handle table: a handle is the address of the list's first block. A process can bring one that
// really maps handles: replaceable.h.
#include <cstdint>

#include <attrmgr/aaa_platform.h>

#include "platform/handle_table.h"
#include "platform/replaceable.h"

ATTRMGR_REPLACEABLE std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return 1; }

ATTRMGR_REPLACEABLE std::uint64_t id_get(void *first_block, std::uint16_t) {
  return reinterpret_cast<std::uintptr_t>(first_block);
}

ATTRMGR_REPLACEABLE void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  if (status != nullptr) *status = 0;
  return attrmgr::as_address(handle);
}

namespace attrmgr {
namespace {

// The definition above under a second name, which cannot be replaced.
extern "C" [[gnu::alias("id_to_ptr")]] void *own_id_to_ptr(std::uint64_t, std::uint32_t *, std::uint16_t);

}  // namespace

IdToPtr *const kOwnIdToPtr = own_id_to_ptr;

std::uint16_t handle_table_number = 0;

}  // namespace attrmgr

ATTRMGR_REPLACEABLE void id_delete(std::uint64_t, std::uint16_t) {}
