// Why a buffer is refused: the readers of the calls that refuse it, asked to name what is broken.
#pragma once

#include <attrmgr/aaa_attr_fault.h>
#include <attrmgr/aaa_attr_marshal.h>

#include <cstddef>
#include <cstdint>

#include "aaa_attr/result/error.h"

namespace attrmgr {

// aaa_attr_buffer_fault; fault is given.
Error find_fault(const std::byte *buffer, std::uint32_t length, aaa_attr_reader reader, aaa_attr_fault *fault);

}  // namespace attrmgr
