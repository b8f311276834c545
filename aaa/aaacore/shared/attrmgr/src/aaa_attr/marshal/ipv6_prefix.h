// Values that hold an IPv6 prefix, RFC 3162 section 2.3:
//
//   prefix := reserved:u8 length:u8 address:u8[16]     length in bits, at most 128
#pragma once

#include <cstdint>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/result/error.h"

namespace attrmgr {

// aaa_attr_decode_ipv6_prefix. *prefix_length is 0 on failure.
Error decode_ipv6_prefix(std::uint8_t *value, std::uint8_t *address, std::uint8_t *prefix_length);

}  // namespace attrmgr
