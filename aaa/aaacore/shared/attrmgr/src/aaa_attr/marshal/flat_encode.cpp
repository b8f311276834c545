// Writing flat buffers: the marker byte, then each block's used bytes as they stand.
#include <cstdio>
#include <cstring>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/coalesce.h"
#include "aaa_attr/marshal/flat_order.h"

namespace {

using namespace attrmgr;

constexpr std::uint64_t kMarkerSize = 1;

// The size of the whole buffer.
aaa_attr_cerrno measure(aaa_attr_list_handle list, std::uint32_t *size) {
  std::uint64_t total = kMarkerSize;
  auto add_used = [&total](BlockView block) -> aaa_attr_cerrno {
    total += block.used();
    return total > std::numeric_limits<std::uint32_t>::max() ? AAA_ATTR_ERR_BAD_FORMAT : 0;
  };
  const aaa_attr_cerrno code = for_each_flat_block(list, add_used);
  if (code == 0) *size = static_cast<std::uint32_t>(total);
  return code;
}

// Writes a buffer of exactly `size` bytes; what changed since it was measured is refused, not written past the end.
aaa_attr_cerrno write(aaa_attr_list_handle list, std::byte *buffer, std::uint32_t size) {
  buffer[0] = std::byte{AAA_MARSHAL_BUFFER};
  std::byte *to = buffer + kMarkerSize;
  std::byte *const end = buffer + size;
  auto copy_used = [&to, end](BlockView block) -> aaa_attr_cerrno {
    const std::size_t used = block.used();
    if (used > static_cast<std::size_t>(end - to)) return AAA_ATTR_ERR_BAD_FORMAT;
    std::memcpy(to, block.bytes(), used);
    BlockView(to).set_reserved(0);
    to += used;
    return 0;
  };
  if (const aaa_attr_cerrno code = for_each_flat_block(list, copy_used)) return code;
  return to == end ? 0 : AAA_ATTR_ERR_BAD_FORMAT;
}

aaa_attr_cerrno encode(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  std::uint32_t needed;
  if (measure(list, &needed) != 0) {
    *size = 0;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  if (buffer == nullptr || *size < needed) {
    *size = needed;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  const aaa_attr_cerrno code = write(list, static_cast<std::byte *>(buffer), needed);
  *size = code == 0 ? needed : 0;
  return code;
}

}  // namespace

aaa_attr_cerrno aaa_attr_list_buffer_len(aaa_attr_list_handle list, std::uint32_t *size) {
  return size != nullptr ? measure(list, size) : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_attr_list_buffer_coalesce_and_get_len(aaa_attr_list_handle list, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = aaa_attr_list_coalesce(list)) return code;
  return measure(list, size);
}

aaa_attr_cerrno aaa_attr_list_to_buffer(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  return size != nullptr ? encode(list, buffer, size) : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_attr_list_to_buffer_v1(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = aaa_attr_list_coalesce(list)) {
    std::fputs("Coalesce on attribute list failed\n", stderr);
    return code;
  }
  return encode(list, buffer, size);
}
