// Bytes as logs and dump programs print them. A line is
//
//   00000010  01 cd ab 01 21 01 00 02  00 f8 01 48 00 00 00 00  |....!......H....|     hexdump -C
//   00000010: 01cd ab01 2101 0002 00f8 0148 0000 0000  ....!......H....                xxd
//         0x0010:  01cd ab01 2101 0002 00f8 0148 0000 0000  ....!......H....           tcpdump -X, -x
//   0000010 cd01 01ab 0121 0200 f800 4801 0000 0000                                    hexdump, words of this host
//   01 cd ab 01 21   01:cd:ab   0x01, 0xcd   01cdab01                                  digits alone
//
// Offsets must go on where the line before ended; "*" stands for repetitions of it, up to the next offset. What comes
// before ": " on a line of a log is passed over, and so are lines without an offset where others have one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace attrtool {

struct HexText {
  std::vector<std::uint8_t> bytes;
  std::size_t line = 0;  // of the error
  std::string error;     // why the text is none; empty when it is
};

HexText bytes_of_hex(std::string_view text);

}  // namespace attrtool
