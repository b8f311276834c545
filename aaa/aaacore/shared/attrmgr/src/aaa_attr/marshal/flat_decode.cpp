#include "aaa_attr/marshal/flat_decode.h"

#include <cstring>

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/store/type_zero.h"
#include "aaa_attr/store/unwritten.h"
#include "aaa_attr/walk/flat_reader.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

class FlatDecoder {
 public:
  FlatDecoder(const std::byte *bytes, std::uint32_t length, const List &list, const void *owner)
      : reader_(bytes, length, FlatRules::kDecodable), outer_(list), owner_(owner) {}

  aaa_attr_cerrno decode() {
    while (reader_.next()) {
      BlockView to;
      if (const aaa_attr_cerrno code = make_block(&to)) return code;
      copy_block(to);
      if (reader_.has_type_zero()) note_type_zero();
      Level &level = levels_[reader_.depth()].value;
      level.last = to;
      level.records = RecordScan(to);
      set_tail(level.head, to);
    }
    return reader_.complete() ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
  }

 private:
  // A list under construction.
  struct Level {
    BlockView head;
    BlockView last;
    RecordScan records;  // of the last block, up to the Grouped record that was given its sub-list
  };

  // The block that receives what the reader stands on.
  aaa_attr_cerrno make_block(BlockView *to) {
    if (!reader_.starts_list()) {
      const std::size_t record_bytes = reader_.block().used() - reader_.header_size();
      const BlockView last = levels_[reader_.depth()].value.last;
      *to = aaa_attr_list_add_block(BlockView(), last, kHeaderSize + record_bytes);
      return *to ? 0 : AAA_ATTR_ERR_NO_MEMORY;
    }
    List made = outer_;
    if (reader_.depth() > 0) {
      if (const aaa_attr_cerrno code = create_checked_list(owner_, &made)) return code;
      hand_over(made.handle, levels_[reader_.depth() - 1].value.records);
    }
    levels_[reader_.depth()].write({made.head, made.head, {}});
    *to = made.head;
    return 0;
  }

  // Gives a sub-list to the next live Grouped record; the reader counted them.
  static void hand_over(aaa_attr_list_handle sub_list, RecordScan &records) {
    while (records.next()) {
      const RecordView record = records.record();
      if (record.deleted() || format_of(record.type()) != AAA_ATTR_FMT_GROUPED) continue;
      store(record.value(), sub_list);
      return;
    }
  }

  // Copies the block's records behind a header of this process. The sender's handles never get further than here.
  void copy_block(BlockView to) {
    const BlockView from = reader_.block();
    const std::size_t size = to.size();
    const std::size_t record_bytes = from.used() - reader_.header_size();
    std::memcpy(to.bytes(), from.bytes(), kSharedHeaderSize);
    std::memcpy(to.records(), from.bytes() + reader_.header_size(), record_bytes);
    if (from.foreign()) {
      to.clear_flags(kBlockLayoutMask);
      to.add_flags(kBlockLayoutNative);
    }
    to.set_used(static_cast<std::uint16_t>(kHeaderSize + record_bytes));
    to.set_free_bytes(static_cast<std::uint16_t>(size - to.used()));
    if (!reader_.has_grouped()) return;
    for (RecordScan scan(to); scan.next();) forget_handle(scan.record());
  }

  static void forget_handle(RecordView record) {
    if (format_of(record.type()) == AAA_ATTR_FMT_GROUPED) std::memset(record.value(), 0, record.length());
  }

  FlatReader<HostForm> reader_;
  const List outer_;
  const void *owner_;
  Unwritten<Level> levels_[AAA_ATTR_NESTING_MAX + 1];
};

}  // namespace

aaa_attr_cerrno aaa_attr_buffer_blocks_to_list(const std::byte *bytes, std::uint32_t length, const List &list,
                                               const void *owner) {
  return length == 0 ? 0 : FlatDecoder(bytes, length, list, owner).decode();
}

}  // namespace attrmgr
