// The TLV buffer, all integers in the sender's byte order:
//
//   buffer := marker:u8 body
//   body   := total:u32 record*                 total counts itself and the records
//   record := type:u32 meta_length:u32 meta:u8[8]? content
//             meta is present iff meta_length is not 0
//   content := length:u32 value:u8[length]      a String without its NUL
//            | body                             of a Grouped type: the sub-list
#pragma once

#include <cstdint>

#include "aaa_attr/store/layout.h"

namespace attrmgr {

inline constexpr std::uint32_t kTlvTotalSize = 4;
inline constexpr std::uint32_t kTlvTypeAt = 0;
inline constexpr std::uint32_t kTlvMetaLengthAt = 4;
inline constexpr std::uint32_t kTlvRecordHeaderSize = 8;
inline constexpr std::uint32_t kTlvLengthSize = 4;
inline constexpr std::uint32_t kTlvRecordSizeMin = kTlvRecordHeaderSize + kTlvLengthSize;

}  // namespace attrmgr
