#include "explain_secrets.h"

#include <algorithm>

#include "explain_words.h"

namespace attrtool {
namespace {

// Numbers in the order that the record may be in.
struct Reading {
  ByteSpan bytes;
  bool big_endian;

  std::uint64_t number(std::size_t at, std::size_t size) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) value = value << 8 | bytes[big_endian ? at + i : at + size - 1 - i];
    return value;
  }
};

bool is_secret(std::uint64_t type) {
  return type < AAA_ATTR_TYPE_COUNT &&
         (is_opaque(static_cast<std::uint32_t>(type)) || is_left_out(static_cast<std::uint32_t>(type)));
}

// No record of a block is longer. A length that passes the bytes is that of a value which is cut short.
constexpr std::uint64_t kLengthMax = 0xFFFF;

// Where the record ends that may begin at a byte, if it is a secret's; 0 if none does.
std::size_t end_of_flat(const Reading &read, std::size_t at) {
  constexpr std::size_t kHeader = 8, kMeta = 8;
  const std::uint64_t has_meta = read.big_endian ? 0x8000 : 1;
  if (read.bytes.size() - at < kHeader || !is_secret(read.number(at, 2)) || read.number(at + 4, 4) > kLengthMax)
    return 0;
  return at + kHeader + ((read.number(at + 2, 2) & has_meta) != 0 ? kMeta : 0) + read.number(at + 4, 4);
}

std::size_t end_of_tlv(const Reading &read, std::size_t at) {
  constexpr std::size_t kTypes = 8, kMeta = 8, kLength = 4;
  if (read.bytes.size() - at < kTypes + kLength || !is_secret(read.number(at, 4))) return 0;
  const std::size_t length_at = at + kTypes + (read.number(at + 4, 4) != 0 ? kMeta : 0);
  if (read.bytes.size() - at < length_at - at + kLength) return read.bytes.size();
  const std::uint64_t length = read.number(length_at, kLength);
  return length <= kLengthMax ? length_at + kLength + length : 0;
}

}  // namespace

std::vector<Stretch> stretches_of(ByteSpan bytes) {
  std::vector<Stretch> stretches;
  const auto add = [&stretches](std::size_t begin, std::size_t end, bool secret) {
    if (begin == end) return;
    if (!stretches.empty() && stretches.back().secret == secret) {
      stretches.back().size += static_cast<std::uint32_t>(end - begin);
    } else {
      stretches.push_back({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end - begin), secret});
    }
  };
  std::size_t hidden_to = 0;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    for (const bool big_endian : {false, true})
      for (const std::size_t end : {end_of_flat({bytes, big_endian}, at), end_of_tlv({bytes, big_endian}, at)})
        hidden_to = std::max(hidden_to, std::min(end, bytes.size()));
    add(at, at + 1, at < hidden_to);
  }
  return stretches;
}

}  // namespace attrtool
