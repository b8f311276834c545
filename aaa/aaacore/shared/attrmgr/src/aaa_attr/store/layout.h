// The packed layout of lists: every offset, width, flag bit and magic number, named here and nowhere else.
//
//   list   := block+                       a chain; the first block is the head
//   block  := header record*               `used` bytes in all; `free` more follow in memory
//   header := magic:u16 version:u8 flags:u8 block_count:u16 record_count:u16 free:u16 used:u16 reserved:u32 next:u64
//   record := type:u16 flags:u16 length:u32 meta:u8[8]? value:u8[length]
//             meta is present iff flags has kRecordHasMeta; records are packed, never aligned
//
// The same bytes, `used` of each block, are the flat form of a list in a buffer. There a block may also have the
// foreign header, which ends with next:u32 after `used`. Fields are in a form (form.h): that of the host, or network
// form.
#pragma once

#include <cstddef>
#include <cstdint>

namespace attrmgr {

inline constexpr std::uint32_t kMarkerSize = 1;  // what stands before the blocks in a buffer

inline constexpr std::uint16_t kBlockMagic = 0xABCD;
inline constexpr std::uint16_t kFreedMagic = 0xFFFF;
inline constexpr std::uint8_t kLayoutVersion = 1;

// Block header.
inline constexpr std::size_t kBlockMagicAt = 0;
inline constexpr std::size_t kBlockVersionAt = 2;
inline constexpr std::size_t kBlockFlagsAt = 3;
inline constexpr std::size_t kBlockCountAt = 4;
inline constexpr std::size_t kRecordCountAt = 6;
inline constexpr std::size_t kFreeBytesAt = 8;
inline constexpr std::size_t kUsedBytesAt = 10;
inline constexpr std::size_t kReservedAt = 12;
inline constexpr std::size_t kNextAt = 16;
inline constexpr std::size_t kHeaderSize = 24;

inline constexpr std::size_t kSharedHeaderSize = 12;  // up to `used` both headers agree
inline constexpr std::size_t kForeignHeaderSize = 16;

// A field of flags, by the widths of its parts in the order in which they are laid out: from bit 0 up where integers
// are little-endian, from the top bit down where they are big-endian, as compilers lay out bit-fields. The flags named
// below are bits of the former, which views take and give whatever the form.
template <class T, unsigned... kWidths>
struct FlagField {
  using Bits = T;
  static constexpr unsigned kWidthOf[sizeof...(kWidths)] = {kWidths...};
  static_assert((kWidths + ...) == 8 * sizeof(T));

  static constexpr unsigned shift(std::size_t part) {
    unsigned low = 0;
    for (std::size_t i = 0; i < part; ++i) low += kWidthOf[i];
    return low;
  }
  static constexpr T mask(std::size_t part) {
    return static_cast<T>(((std::uint32_t{1} << kWidthOf[part]) - 1) << shift(part));
  }
  static constexpr T value(std::size_t part, unsigned number) { return static_cast<T>(number << shift(part)); }
};

// Block flags: head, last, holds grouped, reserved, header layout, spare.
using BlockFlags = FlagField<std::uint8_t, 1, 1, 1, 1, 2, 2>;
inline constexpr std::uint8_t kBlockHead = BlockFlags::mask(0);
inline constexpr std::uint8_t kBlockLast = BlockFlags::mask(1);
inline constexpr std::uint8_t kBlockHoldsGrouped = BlockFlags::mask(2);
inline constexpr std::uint8_t kBlockReserved = BlockFlags::mask(3);
inline constexpr std::uint8_t kBlockLayoutMask = BlockFlags::mask(4);
inline constexpr std::uint8_t kBlockLayoutForeign = BlockFlags::value(4, 1);
inline constexpr std::uint8_t kBlockLayoutNative = BlockFlags::value(4, 2);

// The word at kReservedAt is the library's own, and 0 in every buffer and in a new block. Of any block:
inline constexpr std::uint32_t kMayHoldSecret = 0x2;  // the block has had a value of a type with the opaque flag
// Of a head, about its list. A `may` bit that is clear is a certainty, and one that is set is not:
inline constexpr std::uint32_t kMayNeedPacking = 0x1;   // coalescing may change more than the tails of blocks
inline constexpr std::uint32_t kMayHoldTypeZero = 0x4;  // a live record of type 0, which ends a client's walk
inline constexpr std::uint32_t kTailsAreClear = 0x8;    // after the last record of each block there are zeros
inline constexpr std::uint32_t kListBits = kMayNeedPacking | kMayHoldTypeZero | kTailsAreClear;
// The rest is a head's tail hint: the distance in bytes from the second block to the last one, a multiple of 16 as
// malloc aligns, or 0 for none.
inline constexpr std::uint32_t kTailHint = ~std::uint32_t{0xF};

// Block sizes.
inline constexpr std::size_t kBlockSize = 512;  // the head, and the least a chained block has
inline constexpr std::size_t kBlockSizeMax = 0xFFFF;
inline constexpr std::uint32_t kBlockCountMax = 0xFFFF;

// Record header.
inline constexpr std::size_t kRecordTypeAt = 0;
inline constexpr std::size_t kRecordFlagsAt = 2;
inline constexpr std::size_t kRecordLengthAt = 4;
inline constexpr std::size_t kRecordHeaderSize = 8;

inline constexpr std::uint32_t kRecordTypeMax = 0xFFFF;

// Record flags: has meta, deleted, producer client type, spare.
using RecordFlags = FlagField<std::uint16_t, 1, 1, 7, 7>;
inline constexpr std::uint16_t kRecordHasMeta = RecordFlags::mask(0);
inline constexpr std::uint16_t kRecordDeleted = RecordFlags::mask(1);
inline constexpr unsigned kClientTypeShift = RecordFlags::shift(2);
inline constexpr std::uint16_t kClientTypeMask = RecordFlags::mask(2);
inline constexpr std::uint16_t kClientTypeMax = kClientTypeMask >> kClientTypeShift;  // as wide as the part

// Attribute meta.
inline constexpr std::size_t kMetaServiceAt = 0;
inline constexpr std::size_t kMetaProtocolAt = 1;
inline constexpr std::size_t kMetaTagAt = 2;
inline constexpr std::size_t kMetaFlagsAt = 4;
inline constexpr std::size_t kMetaClientAt = 6;
inline constexpr std::size_t kMetaSize = 8;

// Meta flags: mandatory, and what callers like.
using MetaFlags = FlagField<std::uint16_t, 1, 15>;
inline constexpr std::uint16_t kMetaMandatory = MetaFlags::mask(0);

// A Grouped value.
inline constexpr std::size_t kHandleSize = 8;

}  // namespace attrmgr
