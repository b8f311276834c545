#include "lists_in_use.h"

#include <attrmgr/aaa_platform.h>

#include <cstddef>
#include <unordered_set>

#include "aaa_attr/walk/record_scan.h"
#include "caller.h"
#include "dictionary.h"
#include "memory.h"
#include "slot_table.h"

// Of the library, which need not be there.
#pragma weak malloc_pc

namespace attrmgr::checked {
namespace {

constexpr std::size_t kNamesShown = 4;

// Reads what a list holds into the entry for it.
class ListReader {
 public:
  ListReader(ListInUse *list, std::unordered_set<std::uint64_t> *sub_lists) : list_(*list), sub_lists_(*sub_lists) {}

  void read(std::uint64_t block) {
    for (std::size_t blocks = 0; block != 0 && !list_.damaged; ++blocks) block = read_block(block, blocks);
    if (named_ > kNamesShown) list_.names += ", " + std::to_string(named_ - kNamesShown) + " more";
  }

 private:
  // Returns the address of the next block. The block is copied before it is looked at: it may change meanwhile.
  std::uint64_t read_block(std::uint64_t address, std::size_t blocks_before) {
    list_.damaged = true;
    if (blocks_before == kBlockCountMax || !read_memory(address, bytes_, kHeaderSize)) return 0;
    const ConstBlockView block(bytes_);
    if (block.magic() != kBlockMagic || block.used() < kHeaderSize || !read_memory(address, bytes_, block.used()))
      return 0;
    ConstRecordScan scan(block);
    while (scan.next())
      if (!scan.record().deleted()) count(scan.record());
    list_.damaged = !scan.all_found();
    return list_.damaged ? 0 : load<std::uint64_t>(bytes_ + kNextAt);
  }

  void count(ConstRecordView record) {
    ++list_.attributes;
    const AttributeType *type = attribute_type(record.type());
    if (type != nullptr && type->grouped && record.length() == kHandleSize)
      sub_lists_.insert(load<std::uint64_t>(record.value()));
    if (type != nullptr && type->secret) return;
    if (++named_ > kNamesShown) return;
    if (named_ > 1) list_.names += ", ";
    list_.names += type != nullptr ? type->name : "type " + std::to_string(record.type());
  }

  ListInUse &list_;
  std::unordered_set<std::uint64_t> &sub_lists_;
  std::size_t named_ = 0;
  std::byte bytes_[kBlockSizeMax];
};

// What malloc_pc noted after a list's first block; only the library's own notes it there.
const void *owner_of(const void *head) {
  const void *owner = nullptr;
  if (malloc_pc == nullptr || !in_library(reinterpret_cast<const void *>(malloc_pc))) return nullptr;
  return read_memory(reinterpret_cast<std::uint64_t>(head) + kBlockSize, &owner, sizeof owner) ? owner : nullptr;
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
    ListReader(&lists.back(), &sub_lists).read(reinterpret_cast<std::uint64_t>(head));
  });
  for (ListInUse &list : lists) list.sub_list = sub_lists.contains(list.handle);
  return lists;
}

}  // namespace attrmgr::checked
