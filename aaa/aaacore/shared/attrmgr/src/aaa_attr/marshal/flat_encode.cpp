// Writing flat buffers: the marker byte, then each block's used bytes as they stand. A list is measured before: its
// size is asked for alone, too, and a buffer that is too small is to stay as it is.
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

constexpr std::uint64_t kSizeMax = std::numeric_limits<std::uint32_t>::max();

// Writes a buffer of exactly the size that was measured; a list that has changed since is refused, not written past the
// end.
class FlatWriter {
 public:
  FlatWriter(void *buffer, std::uint32_t size) : writer_(static_cast<std::byte *>(buffer), size) {
    *writer_.take(kMarkerSize) = std::byte{AAA_MARSHAL_BUFFER};
  }

  Error operator()(BlockView block) {
    const std::size_t used = block.used();
    std::byte *const to = writer_.take(used);
    if (to == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
    std::memcpy(to, block.bytes(), used);
    BlockView(to).set_own_word(0);  // what this process remembers of the list
    return 0;
  }

  Error finish() const { return writer_.left() == 0 ? 0 : AAA_ATTR_ERR_BAD_FORMAT; }

 private:
  ByteWriter writer_;
};

// Writes what write_blocks(writer) gives it if there is a buffer for that many bytes. *size says how many they are.
template <class WriteBlocks>
Error encode_measured(std::uint64_t bytes, void *buffer, std::uint32_t *size, WriteBlocks write_blocks) {
  const std::uint32_t given = *size;
  *size = bytes <= kSizeMax ? static_cast<std::uint32_t>(bytes) : 0;
  if (bytes > kSizeMax || buffer == nullptr || given < bytes) return AAA_ATTR_ERR_BAD_FORMAT;
  FlatWriter writer(buffer, *size);
  Error error = write_blocks(writer);
  if (!error) error = writer.finish();
  if (error) *size = 0;
  return error;
}

// ---- A list without sub-lists: its blocks in a row ----

struct Chain {
  std::uint64_t size = kMarkerSize;  // of the buffer, if it has nothing but the chain
  bool may_own_lists = false;

  explicit Chain(BlockView head) {
    for (const BlockView block : Blocks(head)) {
      size += block.used();
      may_own_lists |= block.has(kBlockHoldsGrouped);
    }
  }
};

Error write_chain(BlockView head, FlatWriter &writer) {
  for (const BlockView block : Blocks(head))
    if (const Error error = writer(block)) return error;
  return 0;
}

// ---- A list with sub-lists ----

// The blocks of a list with its sub-lists in the order in which they lie in the buffer, and how long they are together.
class FlatBlocks {
 public:
  Error operator()(BlockView block) {
    size_ += block.used();
    if (num_blocks_ < kRemembered) blocks_[num_blocks_].write(block);
    ++num_blocks_;
    return 0;
  }

  // Of the whole buffer.
  std::uint64_t size() const { return size_; }

  // Those of most lists are remembered; longer lists are walked again.
  Error write(aaa_attr_list_handle list, FlatWriter &writer) const {
    if (num_blocks_ > kRemembered) return for_each_flat_block(list, writer);
    for (std::size_t i = 0; i < num_blocks_; ++i)
      if (const Error error = writer(blocks_[i].value)) return error;
    return 0;
  }

 private:
  static constexpr std::size_t kRemembered = 64;

  std::uint64_t size_ = kMarkerSize;
  std::size_t num_blocks_ = 0;
  Unwritten<BlockView> blocks_[kRemembered];
};

// Not in line: lists without sub-lists need no place for the blocks.
[[gnu::noinline]] Error encode_nested(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  FlatBlocks blocks;
  if (for_each_flat_block(list, blocks)) {
    *size = 0;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  return encode_measured(blocks.size(), buffer, size, [&](FlatWriter &writer) { return blocks.write(list, writer); });
}

[[gnu::noinline]] Error measure_nested(aaa_attr_list_handle list, std::uint64_t *size) {
  FlatBlocks blocks;
  const Error error = for_each_flat_block(list, blocks);
  *size = blocks.size();
  return error;
}

// ---- Both ----

Error measure(aaa_attr_list_handle list, std::uint32_t *size) {
  const auto [head, refused] = resolve(list);
  if (refused) return refused;
  Chain chain(head);
  if (chain.may_own_lists)
    if (const Error error = measure_nested(list, &chain.size)) return error;
  if (chain.size > kSizeMax) return AAA_ATTR_ERR_BAD_FORMAT;
  *size = static_cast<std::uint32_t>(chain.size);
  return 0;
}

// head is the list's, or null where the handle names none.
Error encode(aaa_attr_list_handle list, BlockView head, void *buffer, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (!head) {
    *size = 0;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  const Chain chain(head);
  if (chain.may_own_lists) return encode_nested(list, buffer, size);
  return encode_measured(chain.size, buffer, size, [head](FlatWriter &writer) { return write_chain(head, writer); });
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
  return encode(list, resolve(list).head, buffer, size).code;
}

aaa_attr_cerrno aaa_attr_list_to_buffer_v1(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) noexcept {
  const auto [head, error] = resolve(list);
  if (error) {
    std::fputs("Coalesce on attribute list failed\n", stderr);
    return error.code;
  }
  coalesce(head);
  return encode(list, head, buffer, size).code;
}
