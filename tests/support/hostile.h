// Buffers made by hand: goldens, the pieces to make others from, and bytes to damage them with.
#pragma once

#include <algorithm>
#include <sstream>

#include "support/lists.h"

namespace golden {

inline constexpr char kOneUlong[] =
    "01  cdab0123 0100 0100 dc01 2400 00000000 0000000000000000  0200 0000 04000000 05000000";  // 2 = 5

// The same list as a sender with the 16-byte header writes it.
inline constexpr char kForeign[] = "01  cdab0113 0100 0100 e401 1c00 00000000  0200 0000 04000000 05000000";

// Every kind of structure: two blocks, a nested list after each, meta, a removed record, a producer client type.
inline constexpr char kNested[] = R"(
  01  cdab0125 0200 0300 b801 4800 00000000 f0debc0a007f0000                           #   1 head, holds grouped
    c500 0100 04000000 0102341201001000 626f6200   bc01 0000 08000000 1111111122222222 #  25 username "bob"; 45 Grouped
    0200 0200 04000000 09000000                                                        #  61 2 = 9, removed
      cdab0123 0100 0100 dc01 2400 00000000 0000000000000000                           #  73 the nested list
      0200 0000 04000000 05000000                                                      #  97 2 = 5
    cdab0126 0100 0200 cc01 3400 00000000 0000000000000000                             # 109 last, holds grouped
    bd01 1400 08000000 3333333344444444   0200 0000 04000000 07000000                  # 133 Grouped, client type 5; 149
      cdab0123 0100 0000 e801 1800 00000000 0000000000000000                           # 161 its list is empty
)";
inline constexpr char kNestedOutline[] = "197[1,2,4660,1,16]=626f62 444={2=05000000} 445@5={} 2=07000000";

inline constexpr char kTlvNested[] = R"(
  02  53000000  c5000000 08000000 0102341201001000 03000000 626f62   #  5 username "bob", meta
      bc010000 00000000 20000000                                     # 28 Grouped
        02000000 00000000 04000000 05000000                          # 40 2 = 5
        bd010000 00000000 04000000                                   # 56 Grouped, empty
      02000000 00000000 04000000 07000000                            # 68 2 = 7
)";
inline constexpr char kTlvNestedOutline[] = "197[1,2,4660,1,16]=626f62 444={2=05000000 445={}} 2=07000000";

}  // namespace golden

// A handle that names something, but no list.
alignas(16) inline constexpr std::uint64_t kNoListBytes[2] = {};
inline const aaa_attr_list_handle kNoList = reinterpret_cast<std::uintptr_t>(kNoListBytes);

inline Bytes join(std::initializer_list<Bytes> parts) {
  Bytes whole;
  for (const Bytes &part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

inline std::uint32_t size_of(const Bytes &buffer) { return static_cast<std::uint32_t>(buffer.size()); }

// The first bytes, allocated to size, so that the address sanitizer sees the first byte read past their end.
inline Bytes head_of(const Bytes &buffer, std::size_t size) {
  return Bytes(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(size));
}

// Buffers are put together, and patched, as those of a little-endian host; flat(), tlv_of() and golden_buffer() give
// what this host would have.

// The low bytes of a number, least significant first.
inline Bytes little(std::uint64_t number, unsigned size) {
  Bytes bytes;
  for (unsigned i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(number >> 8 * i));
  return bytes;
}

// A record; the meta, if any, is the head of the value.
inline Bytes record(std::uint32_t type, std::string_view value, unsigned flags = 0) {
  const std::size_t length = value.size() - (flags & 1 ? 8 : 0);
  return join({little(type, 2), little(flags, 2), little(length, 4), Bytes(value.begin(), value.end())});
}

enum BlockFlags : unsigned { kHead = 1, kLast = 2, kGroups = 4, kForeignHeader = 0x10, kHeader = 0x20 };

// A block around records; flags without a header layout mean the 24-byte header.
inline Bytes block(unsigned flags, unsigned num_blocks, std::initializer_list<Bytes> records) {
  if ((flags & 0x30) == 0) flags |= kHeader;
  const Bytes packed = join(records);
  const bool foreign = (flags & 0x30) == kForeignHeader;
  const std::size_t used = (foreign ? 16 : 24) + packed.size();
  return join({hex("cd ab 01"), little(flags, 1), little(num_blocks, 2), little(records.size(), 2), little(0, 2),
               little(used, 2), foreign ? Bytes() : Bytes(4), little(flags & kLast ? 0 : 1, foreign ? 4 : 8), packed});
}

inline Bytes flat(std::initializer_list<Bytes> blocks) { return host_form(join({{AAA_MARSHAL_BUFFER}, join(blocks)})); }
inline Bytes tlv_of(const Bytes &records) {
  return host_form(join({{AAA_MARSHAL_TLV}, little(records.size() + 4, 4), records}));
}

// The buffer with bytes written over it: "offset=hexadecimal ...".
inline Bytes patched(Bytes buffer, std::string_view patches) {
  std::istringstream in{std::string(patches)};
  for (std::string patch; in >> patch;) {
    std::size_t at = static_cast<std::size_t>(std::stoi(patch));
    for (const std::uint8_t byte : hex(patch.substr(patch.find('=') + 1))) buffer.at(at++) = byte;
  }
  return buffer;
}

// One of the buffers above, with bytes written over it before it is turned to the host's order.
inline Bytes golden_buffer(std::string_view golden, std::string_view patches = "") {
  return host_form(patched(hex(golden), patches));
}
