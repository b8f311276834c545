// Buffers in the three ways in which their bytes can lie. Tests write down those of a little-endian host; what this
// host would have in their place, and what both have in network form, is found field by field and bit by bit.
#pragma once

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include "support/bytes.h"

inline constexpr bool kBigEndianHost = std::endian::native == std::endian::big;

namespace byte_order {

// Little-endian bit i of a field of flags is big-endian bit places[i].
inline constexpr int kBlockFlagPlaces[] = {7, 6, 5, 4, 2, 3, 0, 1};
inline constexpr int kRecordFlagPlaces[] = {15, 14, 7, 8, 9, 10, 11, 12, 13, 0, 1, 2, 3, 4, 5, 6};
inline constexpr int kMetaFlagPlaces[] = {15, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

template <std::size_t N>
unsigned moved_bits(unsigned flags, const int (&places)[N], bool back = false) {
  unsigned moved = 0;
  for (std::size_t i = 0; i < N; ++i) {
    const auto from = back ? static_cast<std::size_t>(places[i]) : i,
               to = back ? i : static_cast<std::size_t>(places[i]);
    moved |= (flags >> from & 1) << to;
  }
  return moved;
}

// Whether values of the format are numbers in the byte order of the host.
inline bool is_number(std::uint32_t format) {
  return format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM || format == AAA_ATTR_FMT_ULONGLONG ||
         format == AAA_ATTR_FMT_UTC;
}

// Turns the fields of a buffer that a little-endian host made to big-endian order. A buffer lies block after block and
// record after record, nested or not, so no more is needed than the lengths; what they do not reach stays as it is.
class Turn {
 public:
  enum Way {
    kToNetworkForm,   // what the translation turns
    kAllNumbers,      // 64-bit values, too
    kToBigEndianHost  // and what means something to the sender alone
  };

  Turn(Bytes *little, Way way) : bytes_(*little), way_(way) {
    if (bytes_.empty()) return;
    if (bytes_[0] == AAA_MARSHAL_TLV) {
      tlv();
    } else {
      flat();
    }
  }

 private:
  std::size_t left(std::size_t at) const { return at < end_ ? end_ - at : 0; }

  // The number that stands there, which is turned.
  std::uint32_t turn(std::size_t at, unsigned size) {
    std::uint32_t number = 0;
    for (unsigned i = 0; i < size && i < 4; ++i) number |= std::uint32_t{bytes_[at + i]} << 8 * i;
    std::reverse(bytes_.begin() + static_cast<std::ptrdiff_t>(at),
                 bytes_.begin() + static_cast<std::ptrdiff_t>(at + size));
    return number;
  }
  template <std::size_t N>
  unsigned turn_flags(std::size_t at, const int (&places)[N]) {
    const unsigned flags = turn(at, N / 8), moved = moved_bits(flags, places);
    if (N == 16) bytes_[at] = static_cast<std::uint8_t>(moved >> 8);
    bytes_[at + N / 8 - 1] = static_cast<std::uint8_t>(moved);
    return flags;
  }

  void meta(std::size_t at) {
    turn(at + 2, 2);
    turn_flags(at + 4, kMetaFlagPlaces);
    turn(at + 6, 2);
  }

  void value(std::size_t at, std::uint32_t format, std::uint32_t length) {
    const bool is_wide = format == AAA_ATTR_FMT_ULONGLONG || format == AAA_ATTR_FMT_UTC;
    if (is_number(format) && length == (is_wide ? 8 : 4) && !(is_wide && way_ == kToNetworkForm)) turn(at, length);
  }

  void flat() {
    std::size_t next = 1;
    for (end_ = bytes_.size(); left(next) >= 12; end_ = bytes_.size()) {
      const std::size_t block = next;
      const bool foreign = (turn_flags(block + 3, kBlockFlagPlaces) & 0x30) == 0x10;
      const std::uint32_t magic = turn(block, 2);
      for (const unsigned field : {4u, 6u, 8u}) turn(block + field, 2);
      const std::uint32_t used = turn(block + 10, 2), header = foreign ? 16 : 24;
      if (magic != 0xABCD || left(block) < header) return;
      if (way_ == kToBigEndianHost) turn(block + 12, 4);
      if (way_ == kToBigEndianHost && !foreign) turn(block + 16, 8);
      next = block + used;
      end_ = std::min(next, end_);
      records(block + header);
      if (used < header) return;
    }
  }

  void records(std::size_t at) {
    while (left(at) >= 8) {
      const std::uint32_t format = aaa_attr_get_format_from_type(turn(at, 2)), length = turn(at + 4, 4);
      const bool has_meta = (turn_flags(at + 2, kRecordFlagPlaces) & 1) != 0;
      at += 8;
      if (has_meta && left(at) >= 8) meta(at);
      if (has_meta) at += 8;
      if (left(at) < length) return;
      value(at, format, length);
      at += length;
    }
  }

  void tlv() {
    end_ = bytes_.size();
    std::size_t at = 5;
    if (left(1) >= 4) turn(1, 4);
    while (left(at) >= 12) {
      const std::uint32_t format = aaa_attr_get_format_from_type(turn(at, 4));
      const bool has_meta = turn(at + 4, 4) != 0;
      at += 8;
      if (has_meta && left(at) >= 8) meta(at);
      if (has_meta) at += 8;
      if (left(at) < 4) return;
      const std::uint32_t length = turn(at, 4);
      at += 4;
      if (format == AAA_ATTR_FMT_GROUPED) continue;  // the records of its list are next
      if (left(at) < length) return;
      value(at, format, length);
      at += length;
    }
  }

  Bytes &bytes_;
  Way way_;
  std::size_t end_ = 0;
};

inline Bytes turned(Bytes little, Turn::Way way) {
  Turn(&little, way);
  return little;
}

}  // namespace byte_order

// The buffer in network form: the same on every host, but for the bytes that are the sender's.
inline Bytes network_form(const Bytes &little) { return byte_order::turned(little, byte_order::Turn::kToNetworkForm); }

// The buffer that this host would have made, and the one that a host of the other byte order would have.
inline Bytes host_form(const Bytes &little) {
  return kBigEndianHost ? byte_order::turned(little, byte_order::Turn::kToBigEndianHost) : little;
}
inline Bytes other_hosts_form(const Bytes &little) {
  return kBigEndianHost ? little : byte_order::turned(little, byte_order::Turn::kToBigEndianHost);
}

// A number's bytes as they lie on this host, and what number bytes are here.
template <class T>
Bytes in_host_order(T number) {
  Bytes bytes(sizeof number);
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}
template <class T>
T number_in(std::string_view bytes) {
  T number = 0;
  std::memcpy(&number, bytes.data(), std::min(sizeof number, bytes.size()));
  return number;
}

// The flags of a meta: as this host has them, by those of a little-endian one; and back.
inline std::uint16_t host_meta_flags(unsigned little) {
  return static_cast<std::uint16_t>(kBigEndianHost ? byte_order::moved_bits(little, byte_order::kMetaFlagPlaces)
                                                   : little);
}
inline unsigned little_meta_flags(unsigned host) {
  return kBigEndianHost ? byte_order::moved_bits(host, byte_order::kMetaFlagPlaces, true) : host;
}
