// Network form: how the fields of a translated flat buffer read. Integers are big-endian; a flag field is laid out from
// its most significant bit down, as a big-endian host lays out the same bit-fields; a field of several bits keeps its
// value. A view over NetworkForm reads and writes it in host terms.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "aaa_attr/store/views.h"

namespace attrmgr {

inline std::uint16_t big_endian(std::uint16_t value) {
  return std::endian::native == std::endian::big ? value : __builtin_bswap16(value);
}

inline std::uint32_t big_endian(std::uint32_t value) {
  return std::endian::native == std::endian::big ? value : __builtin_bswap32(value);
}

// Takes the bit-fields of `widths`, allocated from bit 0 up, to the same fields allocated from the top bit down.
template <class T, std::size_t N>
constexpr T from_top_down(T host, const unsigned (&widths)[N]) {
  constexpr unsigned kBits = 8 * sizeof(T);
  std::uint32_t network = 0;
  unsigned low = 0;
  for (const unsigned width : widths) {
    const std::uint32_t field = (std::uint32_t{host} >> low) & ((std::uint32_t{1} << width) - 1);
    low += width;
    network |= field << (kBits - low);
  }
  return static_cast<T>(network);
}

// The fields, and in reverse order those of the way back.
inline constexpr unsigned kBlockFlagWidths[] = {1, 1, 1,
                                                1, 2, 2};  // head, last, holds grouped, reserved, layout, spare
inline constexpr unsigned kBlockFlagWidthsBack[] = {2, 2, 1, 1, 1, 1};
inline constexpr unsigned kRecordFlagWidths[] = {1, 1, 7, 7};  // has meta, deleted, producer client type, spare
inline constexpr unsigned kRecordFlagWidthsBack[] = {7, 7, 1, 1};
inline constexpr unsigned kMetaFlagWidths[] = {1, 15};  // mandatory, the rest
inline constexpr unsigned kMetaFlagWidthsBack[] = {15, 1};

static_assert(from_top_down<std::uint8_t>(0x23, kBlockFlagWidths) == 0xC8);
static_assert(from_top_down<std::uint8_t>(0xC8, kBlockFlagWidthsBack) == 0x23);
static_assert(from_top_down<std::uint16_t>(0x0015, kRecordFlagWidths) == 0x8280);
static_assert(from_top_down<std::uint16_t>(0x8280, kRecordFlagWidthsBack) == 0x0015);
static_assert(from_top_down<std::uint16_t>(0x0001, kMetaFlagWidths) == 0x8000);

struct NetworkForm {
  template <class T>
  static T get(const std::byte *at) {
    return big_endian(load<T>(at));
  }
  template <class T>
  static void put(std::byte *at, T value) {
    store(at, big_endian(value));
  }

  static std::uint8_t block_flags(const std::byte *at) {
    return from_top_down(load<std::uint8_t>(at), kBlockFlagWidthsBack);
  }
  static void put_block_flags(std::byte *at, std::uint8_t flags) { store(at, from_top_down(flags, kBlockFlagWidths)); }
  static std::uint16_t record_flags(const std::byte *at) {
    return from_top_down(get<std::uint16_t>(at), kRecordFlagWidthsBack);
  }
  static void put_record_flags(std::byte *at, std::uint16_t flags) { put(at, from_top_down(flags, kRecordFlagWidths)); }
  static std::uint16_t meta_flags(const std::byte *at) {
    return from_top_down(get<std::uint16_t>(at), kMetaFlagWidthsBack);
  }
  static void put_meta_flags(std::byte *at, std::uint16_t flags) { put(at, from_top_down(flags, kMetaFlagWidths)); }
};

}  // namespace attrmgr
