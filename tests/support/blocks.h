// A list's blocks as they lie in memory, found through the handle table that is in use.
#pragma once

#include <cstdio>

#include "support/lists.h"

struct Block {
  explicit Block(std::uint8_t *bytes) : bytes_(bytes) {}
  // The list's first one.
  explicit Block(aaa_attr_list_handle list) {
    std::uint32_t status;
    bytes_ = static_cast<std::uint8_t *>(id_to_ptr(list, &status, 1));
  }
  std::uint8_t *at(std::size_t offset) const { return bytes_ + offset; }
  template <class T = std::uint16_t>
  T get(std::size_t offset) const {
    T value;
    std::memcpy(&value, at(offset), sizeof value);
    return value;
  }
  void put(std::size_t offset, std::uint16_t value) const { std::memcpy(at(offset), &value, sizeof value); }

  std::uint16_t used() const { return get(10); }
  // As a little-endian host has them.
  unsigned flags() const {
    return kBigEndianHost ? byte_order::moved_bits(*at(3), byte_order::kBlockFlagPlaces, true) : *at(3);
  }
  Block next() const {
    return Block(reinterpret_cast<std::uint8_t *>(static_cast<std::uintptr_t>(get<std::uint64_t>(16))));
  }
  Bytes bytes() const { return Bytes(at(0), at(used())); }

  std::uint8_t *bytes_;
};

inline std::vector<Block> blocks_of(aaa_attr_list_handle list) {
  std::vector<Block> blocks;
  for (Block block(list); block.at(0) != nullptr; block = block.next()) blocks.push_back(block);
  return blocks;
}

// "flags blocks records used+free" of each block, flags in hexadecimal.
inline std::string shape(aaa_attr_list_handle list) {
  std::string text;
  for (const Block block : blocks_of(list)) {
    char line[64];
    std::snprintf(line, sizeof line, "%s%02x %u %u %u+%u", text.empty() ? "" : " | ", block.flags(), block.get(4),
                  block.get(6), block.used(), block.get(8));
    text += line;
  }
  return text;
}
