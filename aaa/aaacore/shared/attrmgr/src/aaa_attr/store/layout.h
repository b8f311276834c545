// The packed layout of lists: every offset, width, flag bit and magic number, named here and nowhere else.
//
//   list   := block+                       a chain; the first block is the head
//   block  := header record*               `used` bytes in all; `free` more follow in memory
//   header := magic:u16 version:u8 flags:u8 block_count:u16 record_count:u16 free:u16 used:u16 reserved:u32 next:u64
//   record := type:u16 flags:u16 length:u32 meta:u8[8]? value:u8[length]
//             meta is present iff flags has kRecordHasMeta; records are packed, never aligned
//
// The same bytes, `used` of each block, are the flat form of a list in a buffer. There a block may also have the
// foreign header, which ends with next:u32 after `used`. Where the flat form is in network order, the views of
// views.h read it through another Form.
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

// Block flags.
inline constexpr std::uint8_t kBlockHead = 0x01;
inline constexpr std::uint8_t kBlockLast = 0x02;
inline constexpr std::uint8_t kBlockHoldsGrouped = 0x04;
inline constexpr std::uint8_t kBlockReserved = 0x08;
inline constexpr std::uint8_t kBlockLayoutMask = 0x30;
inline constexpr std::uint8_t kBlockLayoutForeign = 0x10;
inline constexpr std::uint8_t kBlockLayoutNative = 0x20;

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

// Record flags.
inline constexpr std::uint16_t kRecordHasMeta = 0x0001;
inline constexpr std::uint16_t kRecordDeleted = 0x0002;
inline constexpr unsigned kClientTypeShift = 2;
inline constexpr std::uint16_t kClientTypeMax = 0x7F;  // as wide as the field
inline constexpr std::uint16_t kClientTypeMask = kClientTypeMax << kClientTypeShift;

// Attribute meta.
inline constexpr std::size_t kMetaServiceAt = 0;
inline constexpr std::size_t kMetaProtocolAt = 1;
inline constexpr std::size_t kMetaTagAt = 2;
inline constexpr std::size_t kMetaFlagsAt = 4;
inline constexpr std::size_t kMetaClientAt = 6;
inline constexpr std::size_t kMetaSize = 8;

// A Grouped value.
inline constexpr std::size_t kHandleSize = 8;

}  // namespace attrmgr
