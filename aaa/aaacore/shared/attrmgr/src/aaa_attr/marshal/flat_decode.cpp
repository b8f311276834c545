#include "aaa_attr/marshal/flat_decode.h"

#include <cstring>

#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/store/unwritten.h"
#include "aaa_attr/walk/flat_reader.h"

namespace attrmgr {
namespace {

class FlatDecoder {
 public:
  FlatDecoder(const std::byte *bytes, std::uint32_t length, const List &list, const void *owner)
      : reader_(bytes, length), outer_(list), owner_(owner) {}

  Error decode() {
    while (reader_.next()) {
      BlockView to;
      if (const Error error = make_block(&to)) return error;
      copy_block(to);
      Level &level = levels_[reader_.depth()].value;
      level.last = to;
      if (reader_.has_grouped()) level.records = RecordScan(to);
      if (reader_.holds_secret()) note(to, kMayHoldSecret);
      note(level.head, reader_.list_bits());
      if (to != level.head) set_tail(level.head, to);
    }
    return reader_.complete() ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
  }

 private:
  // A list under construction.
  struct Level {
    BlockView head;
    BlockView last;
    RecordScan records;  // of the last block that has Grouped ones, up to the one that was given its sub-list
  };

  // The block that receives what the reader stands on.
  Error make_block(BlockView *to) {
    if (!reader_.starts_list()) {
      const std::size_t record_bytes = reader_.block().used() - reader_.header_size();
      const BlockView last = levels_[reader_.depth()].value.last;
      *to = aaa_attr_list_add_block(BlockView(), last, kHeaderSize + record_bytes);
      return *to ? 0 : AAA_ATTR_ERR_NO_MEMORY;
    }
    List made = outer_;
    if (reader_.depth() > 0) {
      if (const Error error = create_checked_list(owner_, &made)) return error;
      give_sub_list(made.handle, levels_[reader_.depth() - 1].value.records);
    }
    levels_[reader_.depth()].write({made.head, made.head, {}});
    *to = made.head;
    return 0;
  }

  // Gives a sub-list to the next live Grouped record; the reader counted them.
  static void give_sub_list(aaa_attr_list_handle sub_list, RecordScan &records) {
    while (records.next()) {
      const RecordView record = records.record();
      if (record.deleted() || !is_grouped(record)) continue;
      set_owned_list(record, sub_list);
      return;
    }
  }

  // Copies the block; what of the header is this process's own stays. The sender's handles never get further than here.
  void copy_block(BlockView to) {
    const ConstBlockView from = reader_.block();
    const std::size_t size = to.size();
    const std::size_t record_bytes = from.used() - reader_.header_size();
    const std::size_t used = kHeaderSize + record_bytes;
    std::memcpy(to.bytes(), from.bytes(), kSharedHeaderSize);
    std::memcpy(to.records(), from.bytes() + reader_.header_size(), record_bytes);
    if (from.foreign()) {
      to.clear_flags(kBlockLayoutMask);
      to.add_flags(kBlockLayoutNative);
    }
    to.set_used(static_cast<std::uint16_t>(used));
    to.set_free_bytes(static_cast<std::uint16_t>(size - used));
    if (!reader_.has_grouped()) return;
    for (RecordScan scan(to); scan.next();) forget_handle(scan.record());
  }

  FlatReader<HostForm, FlatRules::kDecodable> reader_;
  const List outer_;
  const void *owner_;
  Unwritten<Level> levels_[AAA_ATTR_NESTING_MAX + 1];
};

}  // namespace

Error aaa_attr_buffer_blocks_to_list(const std::byte *bytes, std::uint32_t length, const List &list,
                                     const void *owner) {
  return length == 0 ? 0 : FlatDecoder(bytes, length, list, owner).decode();
}

}  // namespace attrmgr
