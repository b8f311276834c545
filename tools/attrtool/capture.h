// Captures: the bytes of a file or of the standard input, and the order that they are in.
#pragma once

#include <string>
#include <vector>

#include "explain_model.h"

namespace attrtool {

// Reads the file into bytes, whose memory is used again; "-" is the standard input. Throws Failure.
void read_capture(const std::string &path, std::vector<std::uint8_t> *bytes);

// Whether the buffer is a flat one in network form: the first block's magic number tells.
ByteOrder byte_order_of(ByteSpan bytes);

}  // namespace attrtool
