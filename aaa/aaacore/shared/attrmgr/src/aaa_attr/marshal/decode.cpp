// Received buffers become lists, by their marker.
#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/marshal/flat_decode.h"
#include "aaa_attr/marshal/tlv_decode.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {
namespace {

Error decode(const std::byte *buffer, std::uint32_t length, const List &list, const void *owner) {
  const std::byte *const content = buffer + kMarkerSize;
  const std::uint32_t content_length = length - kMarkerSize;
  switch (std::to_integer<int>(buffer[0])) {
    case 0:
    case AAA_MARSHAL_BUFFER:
      return aaa_attr_buffer_blocks_to_list(content, content_length, list, owner);
    case AAA_MARSHAL_TLV:
      return aaa_attr_tlv_buffer_to_list(content, content_length, list.head, owner);
    default:
      return AAA_ATTR_ERR_BAD_ARG;
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_buffer_to_list(const void *buffer, std::uint32_t length, aaa_attr_list_handle *list) noexcept {
  if (buffer == nullptr || length == 0 || list == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const void *owner = ATTRMGR_CALLER;
  List made;
  if (const Error error = create_checked_list(owner, &made)) return error.code;
  const Error error = decode(static_cast<const std::byte *>(buffer), length, made, owner);
  if (error) free_list(made.handle);
  *list = !error ? made.handle : 0;
  return error.code;
}
