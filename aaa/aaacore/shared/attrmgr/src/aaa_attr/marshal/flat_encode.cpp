// Writing flat buffers: the marker byte, then each block's used bytes as they stand.
#include <cstdio>
#include <cstring>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/list_ops/coalesce.h"
#include "aaa_attr/marshal/byte_writer.h"
#include "aaa_attr/marshal/flat_order.h"
#include "aaa_attr/store/unwritten.h"

namespace attrmgr {
namespace {

// The blocks of a list with its sub-lists in the order in which they lie in the buffer, and how long they are together.
class FlatBlocks {
 public:
  Error operator()(BlockView block) {
    size_ += block.used();
    if (size_ > std::numeric_limits<std::uint32_t>::max()) return AAA_ATTR_ERR_BAD_FORMAT;
    if (num_blocks_ < kRemembered) blocks_[num_blocks_].write(block);
    ++num_blocks_;
    return 0;
  }

  // Of the whole buffer.
  std::uint32_t size() const { return static_cast<std::uint32_t>(size_); }

  // Calls visit(block) for each block once more. The blocks of most lists are remembered; longer lists are walked
  // again.
  template <class Visit>
  Error revisit(aaa_attr_list_handle list, Visit &visit) const {
    if (num_blocks_ > kRemembered) return for_each_flat_block(list, visit);
    for (std::size_t i = 0; i < num_blocks_; ++i)
      if (const Error error = visit(blocks_[i].value)) return error;
    return 0;
  }

 private:
  static constexpr std::size_t kRemembered = 64;

  std::uint64_t size_ = kMarkerSize;
  std::size_t num_blocks_ = 0;
  Unwritten<BlockView> blocks_[kRemembered];
};

// Writes a buffer of exactly the size that was measured; a list that has changed since is refused, not written past the
// end.
Error write(aaa_attr_list_handle list, const FlatBlocks &blocks, std::byte *buffer) {
  buffer[0] = std::byte{AAA_MARSHAL_BUFFER};
  ByteWriter writer(buffer + kMarkerSize, blocks.size() - kMarkerSize);
  auto copy_used = [&writer](BlockView block) -> Error {
    const std::size_t used = block.used();
    std::byte *const to = writer.take(used);
    if (to == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
    std::memcpy(to, block.bytes(), used);
    BlockView(to).set_own_word(0);  // what this process remembers of the list
    return 0;
  };
  if (const Error error = blocks.revisit(list, copy_used)) return error;
  return writer.left() == 0 ? 0 : AAA_ATTR_ERR_BAD_FORMAT;
}

Error measure(aaa_attr_list_handle list, std::uint32_t *size) {
  FlatBlocks blocks;
  const Error error = for_each_flat_block(list, blocks);
  if (!error) *size = blocks.size();
  return error;
}

Error encode(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  FlatBlocks blocks;
  if (for_each_flat_block(list, blocks)) {
    *size = 0;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  if (buffer == nullptr || *size < blocks.size()) {
    *size = blocks.size();
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  const Error error = write(list, blocks, static_cast<std::byte *>(buffer));
  *size = !error ? blocks.size() : 0;
  return error;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_buffer_len(aaa_attr_list_handle list, std::uint32_t *size) noexcept {
  return size != nullptr ? measure(list, size).code : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_attr_list_buffer_coalesce_and_get_len(aaa_attr_list_handle list, std::uint32_t *size) noexcept {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const Error error = aaa_attr_list_coalesce(list)) return error.code;
  return measure(list, size).code;
}

aaa_attr_cerrno aaa_attr_list_to_buffer(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) noexcept {
  return encode(list, buffer, size).code;
}

aaa_attr_cerrno aaa_attr_list_to_buffer_v1(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) noexcept {
  if (const Error error = aaa_attr_list_coalesce(list)) {
    std::fputs("Coalesce on attribute list failed\n", stderr);
    return error.code;
  }
  return encode(list, buffer, size).code;
}
