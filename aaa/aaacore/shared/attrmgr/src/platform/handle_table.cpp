// The library's own handle table: a handle is the address of the list's first block. Called through the dynamic
// symbols, and weak for static links, so that a process can bring a table that really maps handles.
#include <cstdint>

#include <attrmgr/aaa_platform.h>

#include "platform/handle_table.h"

[[gnu::weak]] std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return 1; }

[[gnu::weak]] std::uint64_t id_get(void *first_block, std::uint16_t) {
  return reinterpret_cast<std::uintptr_t>(first_block);
}

[[gnu::weak]] void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  if (status != nullptr) *status = 0;
  return reinterpret_cast<void *>(static_cast<std::uintptr_t>(handle));
}

namespace attrmgr {
namespace {

// The definition above, whatever the process makes of its name.
extern "C" [[gnu::alias("id_to_ptr")]] void *own_id_to_ptr(std::uint64_t, std::uint32_t *, std::uint16_t);

}  // namespace

IdToPtr *const kOwnIdToPtr = own_id_to_ptr;

std::uint16_t handle_table_number = 0;

}  // namespace attrmgr

[[gnu::weak]] void id_delete(std::uint64_t, std::uint16_t) {}
