// A mutator for flat forms: every other mutation is followed by a repair of the structure (magic, lengths, counts,
// flags), so that the fuzzer gets past the first checks and spends its time on what comes after them.
#pragma once

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t max_size);

namespace flat_mutator {

class Repair {
 public:
  Repair(std::uint8_t *data, std::size_t size) : at_(data), left_(size) {}

  void list(unsigned depth) {
    std::uint16_t blocks = 1;
    for (std::uint16_t i = 0; i < blocks && left_ >= kHeader; ++i) {
      std::uint8_t *header = at_;
      put16(header, 0xABCD);
      if (i == 0) blocks = static_cast<std::uint16_t>(std::clamp<unsigned>(get16(header + 4), 1, 4));
      const unsigned groups = records(header);
      const bool last = i + 1 == blocks;
      header[3] = static_cast<std::uint8_t>((i == 0 ? 1 : 0) | (last ? 2 : 0) | (groups > 0 ? 4 : 0) | 0x20);
      if (i == 0) put16(header + 4, blocks);
      std::memset(header + 16, last ? 0 : 1, 8);
      for (unsigned group = 0; group < groups && depth < 130; ++group) list(depth + 1);
    }
  }

 private:
  static constexpr std::size_t kHeader = 24;
  static constexpr std::size_t kRecord = 8;

  static std::uint16_t get16(const std::uint8_t *at) { return static_cast<std::uint16_t>(at[0] | at[1] << 8); }
  static void put16(std::uint8_t *at, unsigned value) {
    at[0] = static_cast<std::uint8_t>(value);
    at[1] = static_cast<std::uint8_t>(value >> 8);
  }

  // Makes the block's records fit its used bytes exactly; returns how many nested lists must follow.
  unsigned records(std::uint8_t *header) {
    const std::size_t limit =
        std::min<std::size_t>({left_, std::size_t{512}, std::max<std::size_t>(get16(header + 10), kHeader)});
    std::size_t used = kHeader;
    unsigned count = 0;
    unsigned groups = 0;
    while (limit - used >= kRecord) {
      std::uint8_t *record = header + used;
      const std::size_t value_at = kRecord + ((record[2] & 1) != 0 ? 8 : 0);
      const std::uint32_t format = aaa_attr_get_format_from_type(get16(record));
      std::size_t length = format == AAA_ATTR_FMT_GROUPED ? 8 : get16(record + 4) % 64;
      if (format == AAA_ATTR_FMT_STRING) length = std::max<std::size_t>(length, 1);
      if (format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM) length = 4;
      if (format == AAA_ATTR_FMT_BOOLEAN) length = 1;
      if (limit - used < value_at + length) break;
      put16(record + 4, static_cast<unsigned>(length));
      put16(record + 6, 0);
      if (format == AAA_ATTR_FMT_STRING) record[value_at + length - 1] = 0;
      if (format == AAA_ATTR_FMT_GROUPED && (record[2] & 2) == 0) ++groups;
      used += value_at + length;
      ++count;
    }
    put16(header + 6, count);
    put16(header + 10, static_cast<unsigned>(used));
    at_ += used;
    left_ -= used;
    return groups;
  }

  std::uint8_t *at_;
  std::size_t left_;
};

}  // namespace flat_mutator

// Inputs that begin in network order are left as they are.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size,
                                               unsigned seed) {
  const std::size_t mutated = LLVMFuzzerMutate(data, size, max_size);
  const bool network = mutated > 0 && data[0] == 0xAB;
  if (seed % 2 == 0 && !network) flat_mutator::Repair(data, mutated).list(0);
  return mutated;
}
