#include "aaa_attr/walk/flat_reader.h"

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/store/network_form.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

// What a decoded list promises its readers of a live value: a String ends in NUL, a Grouped value has the size of a
// handle and its block says that it is there.
template <class Form>
bool keeps_promises(BasicRecord<Form> record, std::uint32_t format, bool holds_grouped) {
  switch (format) {
    case AAA_ATTR_FMT_STRING:
    case AAA_ATTR_FMT_STRING_ATTR:
      return record.length() > 0 && record.value()[record.length() - 1] == std::byte{0};
    case AAA_ATTR_FMT_GROUPED:
      return holds_grouped && record.length() == kHandleSize;
    default:
      return true;
  }
}

}  // namespace

template <class Form>
FlatReader<Form>::FlatReader(const void *bytes, std::uint64_t length, FlatRules rules, std::uint16_t num_lists)
    // Views are mutable, but a reader only reads: who writes has a buffer of its own to pass.
    : at_(const_cast<std::byte *>(static_cast<const std::byte *>(bytes))), remaining_(length), rules_(rules) {
  levels_[0] = {0, num_lists};
}

template <class Form>
bool FlatReader<Form>::next() {
  if (damaged_) return false;
  while (levels_[depth_].lists_left == 0 && levels_[depth_].blocks_left == 0) {
    if (depth_ == 0) {
      complete_ = true;
      return false;
    }
    --depth_;
  }
  starts_list_ = levels_[depth_].lists_left > 0;
  return enter_block();
}

template <class Form>
bool FlatReader<Form>::enter_block() {
  if (remaining_ < kSharedHeaderSize) return false;
  block_ = BasicBlock<Form>(at_);
  const bool whole = rules_ >= FlatRules::kWhole;
  if (whole && block_.magic() != kBlockMagic) return false;
  if (rules_ == FlatRules::kValid && block_.foreign()) return false;
  header_size_ = whole ? block_.header_size() : kHeaderSize;
  const std::size_t used = block_.used();
  if (used < header_size_ || used > remaining_) return false;

  const bool decodable = rules_ >= FlatRules::kDecodable;
  const std::size_t room = starts_list_ ? kBlockSize : kBlockSizeMax;
  if (decodable && used - header_size_ + kHeaderSize > room) return false;
  std::uint16_t nested = 0;
  if (!count_nested(&nested)) {
    if (whole) return false;
    damaged_ = true;  // the records before the damage can be read
  }

  if (starts_list_) {
    if (!enter_list()) return false;
  } else if (decodable && block_.has(kBlockHead)) {
    return false;
  }
  Level &level = levels_[depth_];
  --level.blocks_left;
  level.lists_left = nested;
  if (decodable && level.blocks_left == 0 && !block_.has(kBlockLast)) return false;
  if (rules_ == FlatRules::kValid && static_cast<bool>(block_.next()) != (level.blocks_left > 0)) return false;
  at_ += used;
  remaining_ -= used;
  return true;
}

template <class Form>
bool FlatReader<Form>::enter_list() {
  // The translation takes a block that is no head for a list of its own.
  const bool head = block_.has(kBlockHead);
  const std::uint16_t blocks = head ? block_.block_count() : 1;
  if (blocks == 0 || (!head && rules_ != FlatRules::kWhole)) return false;
  if (depth_ > AAA_ATTR_NESTING_MAX) return false;
  --levels_[depth_].lists_left;
  ++depth_;
  levels_[depth_].blocks_left = blocks;
  return true;
}

// Goes over the block's records: *nested becomes the number of lists that lie behind the block. A trusted block that
// claims no Grouped records need not be looked at.
template <class Form>
bool FlatReader<Form>::count_nested(std::uint16_t *nested) const {
  const bool holds_grouped = block_.has(kBlockHoldsGrouped);
  if (rules_ == FlatRules::kTrusted && !holds_grouped) return true;
  BasicRecordScan<Form> scan = records();
  std::uint16_t grouped = 0;
  while (scan.next()) {
    const BasicRecord<Form> record = scan.record();
    if (record.deleted()) continue;
    const std::uint32_t format = format_of(record.type());
    if (rules_ >= FlatRules::kDecodable && !keeps_promises(record, format, holds_grouped)) return false;
    if (format == AAA_ATTR_FMT_GROUPED) ++grouped;
  }
  *nested = holds_grouped ? grouped : 0;
  return rules_ == FlatRules::kTrusted ? !scan.overrun() : scan.exact();
}

template class FlatReader<HostForm>;
template class FlatReader<NetworkForm>;

}  // namespace attrmgr
