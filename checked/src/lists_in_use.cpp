#include "lists_in_use.h"

#include <attrmgr/aaa_platform.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <unordered_set>

#include "caller.h"
#include "dictionary.h"
#include "memory.h"
#include "slot_table.h"

// Of the library, which need not be there.
#pragma weak malloc_pc

namespace attrmgr::checked {
namespace {

// Offsets, sizes and flags of docs/layout.md.
constexpr std::uint16_t kBlockMagic = 0xABCD;
constexpr std::size_t kRecordCountAt = 6;
constexpr std::size_t kUsedAt = 10;
constexpr std::size_t kNextAt = 16;
constexpr std::size_t kBlockHeader = 24;
constexpr std::size_t kHeadSize = 512;
constexpr std::size_t kBlockMax = 0xFFFF;
constexpr std::size_t kBlocksMax = 0xFFFF;
constexpr std::uint16_t kHasMeta = 0x0001;
constexpr std::uint16_t kRemoved = 0x0002;
constexpr std::size_t kRecordHeader = 8;
constexpr std::size_t kMeta = 8;

constexpr std::size_t kNamesShown = 4;

template <class T>
T load(const std::byte *at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

struct Record {
  std::uint16_t type;
  std::uint16_t flags;
  std::uint32_t length;
  const std::byte *value;
};

class Survey {
 public:
  Survey(ListInUse *list, std::unordered_set<std::uint64_t> *sub_lists) : list_(*list), sub_lists_(*sub_lists) {}

  void read(std::uint64_t block) {
    for (std::size_t blocks = 0; block != 0 && !list_.damaged; ++blocks) block = read_block(block, blocks);
    if (named_ > kNamesShown) list_.names += ", " + std::to_string(named_ - kNamesShown) + " more";
  }

 private:
  // Returns the address of the next block.
  std::uint64_t read_block(std::uint64_t address, std::size_t blocks_before) {
    list_.damaged = true;
    if (blocks_before == kBlocksMax || !read_memory(address, bytes_, kBlockHeader)) return 0;
    const auto used = load<std::uint16_t>(bytes_ + kUsedAt);
    if (load<std::uint16_t>(bytes_) != kBlockMagic || used < kBlockHeader || !read_memory(address, bytes_, used))
      return 0;
    list_.damaged = false;
    const std::byte *at = bytes_ + kBlockHeader;
    const std::byte *const end = bytes_ + used;
    for (unsigned left = load<std::uint16_t>(bytes_ + kRecordCountAt); left > 0; --left) {
      Record record;
      if (!read_record(&at, end, &record)) {
        list_.damaged = true;
        return 0;
      }
      if ((record.flags & kRemoved) == 0) count(record);
    }
    return load<std::uint64_t>(bytes_ + kNextAt);
  }

  static bool read_record(const std::byte **at, const std::byte *end, Record *record) {
    const auto left = static_cast<std::size_t>(end - *at);
    if (left < kRecordHeader) return false;
    *record = {load<std::uint16_t>(*at), load<std::uint16_t>(*at + 2), load<std::uint32_t>(*at + 4), nullptr};
    const std::size_t value_at = kRecordHeader + ((record->flags & kHasMeta) != 0 ? kMeta : 0);
    if (left < value_at || left - value_at < record->length) return false;
    record->value = *at + value_at;
    *at = record->value + record->length;
    return true;
  }

  void count(const Record &record) {
    ++list_.attributes;
    const AttributeType *type = attribute_type(record.type);
    if (type != nullptr && type->grouped && record.length == sizeof(std::uint64_t))
      sub_lists_.insert(load<std::uint64_t>(record.value));
    if (type != nullptr && type->secret) return;
    if (++named_ > kNamesShown) return;
    if (named_ > 1) list_.names += ", ";
    list_.names += type != nullptr ? type->name : "type " + std::to_string(record.type);
  }

  ListInUse &list_;
  std::unordered_set<std::uint64_t> &sub_lists_;
  std::size_t named_ = 0;
  std::byte bytes_[kBlockMax];
};

// What malloc_pc noted after a list's first block; only the library's own notes it there.
const void *owner_of(const void *head) {
  const void *owner = nullptr;
  if (malloc_pc == nullptr || !in_library(reinterpret_cast<const void *>(malloc_pc))) return nullptr;
  return read_memory(reinterpret_cast<std::uint64_t>(head) + kHeadSize, &owner, sizeof owner) ? owner : nullptr;
}

std::vector<const void *> calls_of(std::uint64_t handle, const void *head) {
  std::vector<const void *> calls;
  if (const CallStack *stack = history_at(slot_of(handle)).made_by.load(std::memory_order_acquire))
    for (const std::atomic<const void *> &call : stack->calls)
      if (const void *address = call.load(std::memory_order_relaxed)) calls.push_back(address);
  if (calls.empty()) calls.push_back(owner_of(head));
  return calls;
}

}  // namespace

std::vector<ListInUse> lists_in_use() {
  std::vector<ListInUse> lists;
  std::unordered_set<std::uint64_t> sub_lists;
  for_each_live([&](std::uint64_t handle, const void *head) {
    lists.push_back({handle, calls_of(handle, head), 0, {}, false, false});
    Survey(&lists.back(), &sub_lists).read(reinterpret_cast<std::uint64_t>(head));
  });
  for (ListInUse &list : lists) list.sub_list = sub_lists.contains(list.handle);
  return lists;
}

}  // namespace attrmgr::checked
