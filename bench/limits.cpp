// The limits: what the same workloads take when nothing is checked, nothing is a call and everything is known. Blocks
// of 512 bytes from malloc, records written with plain stores, bytes moved by memcpy, and the plain scan, in which a
// record is found by adding up the lengths before it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "workloads.h"
#ifdef BENCH_HAVE_GPERF
#include "perfect_hash.h"
#endif

namespace {

constexpr std::size_t kBlockSize = 512;

struct Block {
  std::uint16_t magic;
  std::uint16_t flags;
  std::uint16_t blocks;
  std::uint16_t records;
  std::uint16_t free;
  std::uint16_t used;
  std::uint32_t reserved;
  Block *next;
};

struct Record {
  std::uint16_t type;
  std::uint16_t flags;
  std::uint32_t length;
};

Block *new_block() {
  auto *block = static_cast<Block *>(std::malloc(kBlockSize));
  *block = {0xABCD, 0x2301, 1, 0, kBlockSize - sizeof(Block), sizeof(Block), 0, nullptr};
  return block;
}

std::byte *bytes_of(Block *block) { return reinterpret_cast<std::byte *>(block); }

template <class T>
T load(const std::byte *at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

// Whether a record in the block has the type.
bool scan(const std::byte *block, std::uint16_t type) {
  const std::byte *at = block + sizeof(Block);
  for (unsigned left = load<std::uint16_t>(block + offsetof(Block, records)); left > 0; --left) {
    if (load<std::uint16_t>(at) == type) return true;
    at += sizeof(Record) + load<std::uint32_t>(at + offsetof(Record, length));
  }
  return false;
}

class Limits {
 public:
  struct List {
    Block *head = nullptr;
    mutable std::vector<std::byte> flat = {};  // all blocks in a row, made when it is first encoded
  };

  static const char *name() { return "limit"; }

  static List build(const bench::Attributes &attributes) {
    Block *head = new_block();
    Block *block = head;
    for (const bench::Attribute &attribute : attributes) {
      const auto length = static_cast<std::uint32_t>(attribute.value.size() + (attribute.kind == bench::Kind::kText));
      const std::size_t size = sizeof(Record) + length;
      if (size > block->free) {
        block->next = new_block();
        block = block->next;
        ++head->blocks;
      }
      const Record record{static_cast<std::uint16_t>(attribute.type), 0, length};
      std::byte *at = bytes_of(block) + block->used;
      std::memcpy(at, &record, sizeof record);
      std::memcpy(at + sizeof record, attribute.value.data(), length);
      block->free = static_cast<std::uint16_t>(block->free - size);
      block->used = static_cast<std::uint16_t>(block->used + size);
      ++block->records;
    }
    return {head};
  }

  static void destroy(List &list) {
    for (Block *block = list.head; block != nullptr;) {
      Block *next = block->next;
      std::free(block);
      block = next;
    }
  }

  static bool find(const List &list, std::uint32_t type) {
    for (Block *block = list.head; block != nullptr; block = block->next)
      if (scan(bytes_of(block), static_cast<std::uint16_t>(type))) return true;
    return false;
  }

  static std::size_t encode(const List &list, std::byte *buffer, std::size_t) {
    if (list.flat.empty())
      for (Block *block = list.head; block != nullptr; block = block->next)
        list.flat.insert(list.flat.end(), bytes_of(block), bytes_of(block) + block->used);
    std::memcpy(buffer, list.flat.data(), list.flat.size());
    return list.flat.size();
  }

  // Blocks allocated and copied, and each scanned once.
  static List decode(const std::byte *bytes, std::size_t size) {
    Block *head = nullptr;
    Block **link = &head;
    for (std::size_t done = 0; done < size;) {
      Block header;
      std::memcpy(&header, bytes + done, sizeof header);
      auto *block = static_cast<Block *>(std::malloc(kBlockSize));
      std::memcpy(static_cast<void *>(block), bytes + done, header.used);
      block->next = nullptr;
      benchmark::DoNotOptimize(scan(bytes_of(block), bench::kMissingType));
      *link = block;
      link = &block->next;
      done += header.used;
    }
    return {head};
  }

  static bool read(const std::byte *bytes, std::size_t size, std::uint32_t type) {
    for (std::size_t done = 0; done < size;) {
      if (scan(bytes + done, static_cast<std::uint16_t>(type))) return true;
      Block header;
      std::memcpy(&header, bytes + done, sizeof header);
      done += header.used;
    }
    return false;
  }

  static List copy(const List &list) {
    Block *head = nullptr;
    Block **link = &head;
    for (Block *block = list.head; block != nullptr; block = block->next) {
      *link = static_cast<Block *>(std::malloc(kBlockSize));
      std::memcpy(static_cast<void *>(*link), block, block->used);
      link = &(*link)->next;
    }
    *link = nullptr;
    return {head};
  }

#ifdef BENCH_HAVE_GPERF
  static std::uint32_t number_of(const std::string &name) {
    const PerfectHashEntry *found = PerfectHash::find(name.c_str(), std::strlen(name.c_str()));
    return found != nullptr ? found->type : 0;
  }
#endif
};

}  // namespace

BENCH_MAIN(Limits)
