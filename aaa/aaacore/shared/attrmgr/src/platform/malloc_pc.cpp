// malloc_pc keeps the owner in the last bytes of the allocation, behind what the caller asked for: the memory is then
// an ordinary allocation that free releases, and the owner is found again through the allocation's own size.
#include <malloc.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <attrmgr/aaa_platform.h>

namespace {

char *owner_slot(void *allocation) {
  return static_cast<char *>(allocation) + malloc_usable_size(allocation) - sizeof(const void *);
}

}  // namespace

void *malloc_pc(std::size_t size, const void *owner) {
  if (size > SIZE_MAX - sizeof owner) return nullptr;
  void *allocation = std::malloc(size + sizeof owner);
  if (allocation != nullptr) std::memcpy(owner_slot(allocation), &owner, sizeof owner);
  return allocation;
}

const void *malloc_pc_owner(const void *allocation) {
  if (allocation == nullptr) return nullptr;
  const void *owner;
  std::memcpy(&owner, owner_slot(const_cast<void *>(allocation)), sizeof owner);
  return owner;
}
