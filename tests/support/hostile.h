// Buffers made by hand: goldens, the pieces to make others from, and the ways to damage them.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <sstream>

#include "support/lists.h"

namespace golden {

inline constexpr char kEmpty[] = "01  cd ab 01 23  01 00  00 00  e8 01  18 00  00 00 00 00  00 00 00 00 00 00 00 00";

inline constexpr char kOneUlong[] = R"(
  01  cd ab 01 23  01 00  01 00  dc 01  24 00  00 00 00 00  00 00 00 00 00 00 00 00
  02 00  00 00  04 00 00 00  05 00 00 00                                               # 2 = 5
)";

// The same list as a sender with the 16-byte header writes it.
inline constexpr char kForeign[] = R"(
  01  cd ab 01 13  01 00  01 00  e4 01  1c 00  00 00 00 00
  02 00  00 00  04 00 00 00  05 00 00 00
)";

// Every kind of structure: two blocks, a nested list behind each, meta, a removed record, a producer client type.
inline constexpr char kNested[] = R"(
  01
  cd ab 01 25  02 00  03 00  b8 01  48 00  00 00 00 00  f0 de bc 0a 00 7f 00 00        #   1 head, holds grouped
  c5 00  01 00  04 00 00 00  01 02 34 12 01 00 10 00  62 6f 62 00                      #  25 username "bob", meta
  bc 01  00 00  08 00 00 00  11 11 11 11 22 22 22 22                                   #  45 Grouped
  02 00  02 00  04 00 00 00  09 00 00 00                                               #  61 2 = 9, removed
    cd ab 01 23  01 00  01 00  dc 01  24 00  00 00 00 00  00 00 00 00 00 00 00 00      #  73 the nested list
    02 00  00 00  04 00 00 00  05 00 00 00                                             #  97 2 = 5
  cd ab 01 26  01 00  02 00  cc 01  34 00  00 00 00 00  00 00 00 00 00 00 00 00        # 109 last, holds grouped
  bd 01  14 00  08 00 00 00  33 33 33 33 44 44 44 44                                   # 133 Grouped, client type 5
  02 00  00 00  04 00 00 00  07 00 00 00                                               # 149 2 = 7
    cd ab 01 23  01 00  00 00  e8 01  18 00  00 00 00 00  00 00 00 00 00 00 00 00      # 161 its list is empty
)";
inline constexpr char kNestedOutline[] = "197[1,2,4660,1,16]=626f62 444={2=05000000} 445@5={} 2=07000000";

inline constexpr char kTlvNested[] = R"(
  02  53 00 00 00
  c5 00 00 00  08 00 00 00  01 02 34 12 01 00 10 00  03 00 00 00  62 6f 62             #  5 username "bob", meta
  bc 01 00 00  00 00 00 00  20 00 00 00                                                # 28 Grouped
    02 00 00 00  00 00 00 00  04 00 00 00  05 00 00 00                                 # 40 2 = 5
    bd 01 00 00  00 00 00 00  04 00 00 00                                              # 56 Grouped, empty
  02 00 00 00  00 00 00 00  04 00 00 00  07 00 00 00                                   # 68 2 = 7
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

// The low bytes of a number, least significant first.
inline Bytes little(std::uint64_t number, unsigned size) {
  Bytes bytes;
  for (unsigned i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(number >> 8 * i));
  return bytes;
}

inline Bytes raw(std::string_view bytes) { return Bytes(bytes.begin(), bytes.end()); }

// A record; the meta, if any, is the head of the value.
inline Bytes record(std::uint32_t type, std::string_view value, unsigned flags = 0) {
  const std::size_t meta_size = flags & 1 ? 8 : 0;
  return join({little(type, 2), little(flags, 2), little(value.size() - meta_size, 4), raw(value)});
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

inline Bytes flat(std::initializer_list<Bytes> blocks) { return join({Bytes{1}, join(blocks)}); }

// Lists nested in lists: `depth` levels below the outer one.
inline Bytes nested_flat(unsigned depth) {
  Bytes buffer = {1};
  const Bytes level = block(kHead | kLast | kGroups, 1, {record(type::kGrouped, "handle 1")});
  for (unsigned i = 0; i < depth; ++i) buffer = join({buffer, level});
  return join({buffer, block(kHead | kLast, 1, {})});
}

inline Bytes nested_tlv(unsigned depth) {
  Bytes body = little(4, 4);
  for (unsigned i = 0; i < depth; ++i) body = join({little(body.size() + 12, 4), little(type::kGrouped, 8), body});
  return join({Bytes{2}, body});
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

// Damage to golden::kNested, and who refuses it: D the decoder, V the check for reading in place, T the translation.
struct FlatDamage {
  const char *what;
  const char *patches;
  std::string_view refused_by;
};

inline constexpr FlatDamage kFlatDamages[] = {
    {"no magic", "1=00", "DVT"},
    {"no magic in a nested list", "73=00", "DVT"},
    {"used bytes below the header", "11=1700", "DVT"},
    {"used bytes above what remains", "171=1900", "DVT"},
    {"used bytes that cut the last record", "11=4700", "DVT"},
    {"used bytes behind the last record", "11=4900", "DVT"},
    {"a record more than there are", "7=0400", "DVT"},
    {"a record fewer than there are", "7=0200", "DVT"},
    {"a value that reaches into the next record", "29=05", "DVT"},
    {"a length near 2^32", "29=ffffffff", "DVT"},
    {"a length that wraps to a small record in 32 bits", "29=f4ffffff", "DVT"},
    {"a meta that is not there, in the last record", "151=01", "DVT"},
    {"a meta that is there but not said so", "27=00", "DVT"},
    {"a third block that is not there", "5=0300", "DVT"},
    {"a last block without the last flag, as the count has it", "5=0100", "DV"},
    {"no blocks", "5=0000", "DVT"},
    {"a first block that is no head", "4=24", "DV"},
    {"a nested list that does not begin with a head", "76=22", "DV"},
    {"a second head in the chain", "112=27", "DV"},
    {"a last block without the last flag", "112=24", "DV"},
    {"a nested last block without the last flag", "76=21", "DV"},
    {"a Grouped value of no bytes", "49=00 53=1e00000000000000 7=0400", "DVT"},
    {"a Grouped value of 20 bytes", "137=14 115=0100", "DVT"},
    {"a removed Grouped value of 4 bytes", "61=bc01", "T"},
    {"a Grouped record in a block that claims none", "4=21", "DV"},
    {"more live Grouped records than nested lists", "25=bc01000008000000 41=bc01000008000000 57=bc01000008000000",
     "DVT"},
    {"a text without its NUL", "44=21", "DV"},
    {"a text of no bytes", "133=c5000000 137=00 141=1e00000000000000 115=0300", "DV"},
    {"a Boolean of 4 bytes", "149=1900", "T"},
    {"an Enum of 12 bytes", "25=0300 27=00 29=0c", "T"},
    {"next of a block with a successor is 0", "17=0000000000000000", "V"},
    {"next of the last block is not 0", "132=01", "V"},
    {"the last flag on a block with a successor", "4=27", ""},
    {"free bytes", "9=ffff", ""},
    {"reserved bytes", "13=ffffffff", ""},
    {"a type above 622", "149=6f02", ""},
};

// Damage to golden::kTlvNested and the decoder's answer.
struct TlvDamage {
  const char *what;
  const char *patches;
  aaa_attr_cerrno code;
};

inline constexpr TlvDamage kTlvDamages[] = {
    {"a total that does not count itself", "1=03", AAA_ATTR_ERR_BAD_LENGTH},
    {"a total above what remains", "1=54", AAA_ATTR_ERR_BAD_LENGTH},
    {"a total near 2^32", "1=ffffffff", AAA_ATTR_ERR_BAD_LENGTH},
    {"a total that cuts the last value", "1=52", AAA_ATTR_ERR_BAD_LENGTH},
    {"5 bytes behind the last whole record", "1=48", AAA_ATTR_ERR_BAD_LENGTH},
    {"a total of no records", "1=04", 0},
    {"a total that leaves whole records out", "1=43", 0},
    {"type 0", "5=00", AAA_ATTR_ERR_NOT_FOUND},
    {"type 0 in a nested list", "40=00", AAA_ATTR_ERR_NOT_FOUND},
    {"a type whose low half is known", "5=c5000100", AAA_ATTR_ERR_NOT_FOUND},
    {"a meta length other than 8 stands for a meta of 8", "9=01", 0},
    {"a meta that takes the value length", "72=08", AAA_ATTR_ERR_BAD_LENGTH},
    {"a value length near 2^32", "76=ffffffff", AAA_ATTR_ERR_BAD_LENGTH},
    {"a value length that wraps a 32-bit position", "21=f0ffffff", AAA_ATTR_ERR_BAD_LENGTH},
    {"a Ulong of 3 bytes", "76=03", AAA_ATTR_ERR_BAD_ARG},
    {"a text of no bytes", "21=00", AAA_ATTR_ERR_BAD_ARG},
    {"a Boolean of 4 bytes", "68=19", AAA_ATTR_ERR_BAD_ARG},
    {"a nested total that passes the outer list", "36=31", AAA_ATTR_ERR_BAD_LENGTH},
    {"an empty list's total that passes its parent", "64=05", AAA_ATTR_ERR_BAD_LENGTH},
};
