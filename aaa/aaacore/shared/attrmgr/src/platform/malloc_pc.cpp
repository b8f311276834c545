// malloc_pc stores the owner after the bytes that the caller asked for. The memory is thus an ordinary allocation,
// which free releases, and the owner can be found again by anyone who knows the size.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <attrmgr/aaa_platform.h>

#include "platform/replaceable.h"

ATTRMGR_REPLACEABLE void *malloc_pc(std::size_t size, const void *owner) {
  if (size > SIZE_MAX - sizeof owner) return nullptr;
  char *allocation = static_cast<char *>(std::malloc(size + sizeof owner));
  if (allocation != nullptr) std::memcpy(allocation + size, &owner, sizeof owner);
  return allocation;
}

const void *malloc_pc_owner(const void *allocation, std::size_t size) noexcept {
  if (allocation == nullptr) return nullptr;
  const void *owner;
  std::memcpy(&owner, static_cast<const char *>(allocation) + size, sizeof owner);
  return owner;
}
