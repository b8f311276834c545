// The forms that the fields of blocks, records and metas are in: the byte order of integers, and with it the layout of
// flag fields. This is the one place that knows the host's byte order.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "aaa_attr/store/layout.h"

namespace attrmgr {

template <class T>
inline T load(const std::byte *at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

template <class T>
inline void store(std::byte *at, T value) {
  std::memcpy(at, &value, sizeof value);
}

inline std::uint8_t turned(std::uint8_t value) { return value; }
inline std::uint16_t turned(std::uint16_t value) { return __builtin_bswap16(value); }
inline std::uint32_t turned(std::uint32_t value) { return __builtin_bswap32(value); }
inline std::uint64_t turned(std::uint64_t value) { return __builtin_bswap64(value); }

// The same flags with the parts of the field laid out from the other end; each part keeps its value.
template <class Field>
constexpr typename Field::Bits from_other_end(typename Field::Bits flags, bool from_top) {
  constexpr unsigned kBits = 8 * sizeof flags;
  std::uint32_t moved = 0;
  unsigned low = 0;
  for (const unsigned width : Field::kWidthOf) {
    const unsigned mirrored = kBits - low - width;
    const std::uint32_t part = std::uint32_t{flags} >> (from_top ? mirrored : low) & ((std::uint32_t{1} << width) - 1);
    moved |= part << (from_top ? low : mirrored);
    low += width;
  }
  return static_cast<typename Field::Bits>(moved);
}

static_assert(from_other_end<BlockFlags>(0x23, false) == 0xC8 && from_other_end<BlockFlags>(0xC8, true) == 0x23);
static_assert(from_other_end<RecordFlags>(0x0015, false) == 0x8280);
static_assert(from_other_end<RecordFlags>(0x8280, true) == 0x0015);
static_assert(from_other_end<MetaFlags>(0x0001, false) == 0x8000);

template <std::endian kOrder>
struct Form {
  static_assert(kOrder == std::endian::little || kOrder == std::endian::big);

  template <class T>
  static T get(const std::byte *at) {
    return in_order(load<T>(at));
  }
  template <class T>
  static void put(std::byte *at, T value) {
    store(at, in_order(value));
  }

  // The bits of a flag field, as layout.h names them.
  template <class Field>
  static typename Field::Bits get_flags(const std::byte *at) {
    const auto flags = get<typename Field::Bits>(at);
    return kFromTop ? from_other_end<Field>(flags, true) : flags;
  }
  template <class Field>
  static void put_flags(std::byte *at, typename Field::Bits flags) {
    put(at, kFromTop ? from_other_end<Field>(flags, false) : flags);
  }

 private:
  static constexpr bool kFromTop = kOrder == std::endian::big;

  template <class T>
  static T in_order(T value) {
    return kOrder == std::endian::native ? value : turned(value);
  }
};

using LittleEndianForm = Form<std::endian::little>;
using BigEndianForm = Form<std::endian::big>;

// Lists, and buffers as they are made; translated buffers. On a big-endian host they are one.
using HostForm = Form<std::endian::native>;
using NetworkForm = BigEndianForm;

}  // namespace attrmgr
