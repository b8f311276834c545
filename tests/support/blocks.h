// A list's blocks as they lie in memory. With the library's own handle table the handle is the first block's address.
#pragma once

#include <cstdio>

#include "support/lists.h"

class Block {
 public:
  explicit Block(std::uint64_t address) : at_(reinterpret_cast<std::uint8_t *>(address)) {}
  std::uint8_t *at(std::size_t offset) const { return at_ + offset; }
  template <class T = std::uint16_t>
  T get(std::size_t offset) const {
    T value;
    std::memcpy(&value, at_ + offset, sizeof value);
    return value;
  }
  void put(std::size_t offset, std::uint16_t value) const { std::memcpy(at_ + offset, &value, sizeof value); }

  std::uint8_t flags() const { return at_[3]; }
  std::uint16_t block_count() const { return get(4); }
  std::uint16_t record_count() const { return get(6); }
  std::uint16_t free() const { return get(8); }
  std::uint16_t used() const { return get(10); }
  std::uint64_t next() const { return get<std::uint64_t>(16); }
  Bytes bytes() const { return Bytes(at_, at_ + used()); }

 private:
  std::uint8_t *at_;
};

inline std::vector<Block> blocks_of(aaa_attr_list_handle list) {
  std::vector<Block> blocks;
  for (std::uint64_t at = list; at != 0; at = blocks.back().next()) blocks.emplace_back(at);
  return blocks;
}

// "flags blocks records used+free" of each block, flags in hexadecimal.
inline std::string shape(aaa_attr_list_handle list) {
  std::string text;
  for (const Block block : blocks_of(list)) {
    char line[64];
    std::snprintf(line, sizeof line, "%s%02x %u %u %u+%u", text.empty() ? "" : " | ", block.flags(),
                  block.block_count(), block.record_count(), block.used(), block.free());
    text += line;
  }
  return text;
}

// What is wrong with the blocks of a list that no one has damaged: "" for nothing.
inline std::string flaws(aaa_attr_list_handle list) {
  const std::vector<Block> blocks = blocks_of(list);
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const Block block = blocks[i];
    const bool first = i == 0;
    bool grouped = false;
    std::uint32_t records = 0;
    std::size_t at = 24;
    for (; at < block.used(); ++records) {
      grouped |= aaa_attr_get_format_from_type(block.get(at)) == AAA_ATTR_FMT_GROUPED;
      at += 8 + ((block.get(at + 2) & 1) != 0 ? 8 : 0) + block.get<std::uint32_t>(at + 4);
    }
    const int flags = 0x20 | (first ? 1 : 0) | (i + 1 == blocks.size() ? 2 : 0) | (grouped ? 4 : 0);
    const std::string where = "block " + std::to_string(i) + ": ";
    if (block.get(0) != 0xABCD || *block.at(2) != 1) return where + "magic or version";
    if (block.flags() != flags) return where + "flags";
    if (block.block_count() != (first ? blocks.size() : 1)) return where + "block count";
    if (at != block.used() || records != block.record_count()) return where + "records do not fill it";
    if (block.used() + block.free() < 512) return where + "size";
    if (!first && block.get<std::uint32_t>(12) != 0) return where + "reserved bytes";
  }
  return "";
}
