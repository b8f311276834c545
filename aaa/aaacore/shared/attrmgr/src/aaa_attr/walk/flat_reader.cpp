#include "aaa_attr/walk/flat_reader.h"

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/store/network_form.h"
#include "dictionary/format_rules.h"
#include "dictionary/type_table.h"

namespace attrmgr {
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
  // A trusted block that claims no Grouped records need not be looked at.
  const bool holds_grouped = block_.has(kBlockHoldsGrouped);
  survey_ = decodable ? survey<true>() : whole || holds_grouped ? survey<false>() : Survey{true, false, false, 0};
  if (!survey_.sound) {
    if (whole) return false;
    damaged_ = true;  // the records before the damage can be read
  }
  if (decodable && survey_.live_grouped > 0 && !holds_grouped) return false;

  if (starts_list_) {
    if (!enter_list()) return false;
  } else if (decodable && block_.has(kBlockHead)) {
    return false;
  }
  Level &level = levels_[depth_];
  --level.blocks_left;
  level.lists_left = holds_grouped ? survey_.live_grouped : std::uint16_t{0};
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

template <class Form>
template <bool kHoldToPromises>
typename FlatReader<Form>::Survey FlatReader<Form>::survey() const {
  Survey found{};
  std::uint32_t broken = 0;
  BasicRecordScan<Form> scan = records();
  while (scan.next()) {
    const BasicRecord<Form> record = scan.record();
    const Promise promise = promise_of(record.type());
    if (promise == Promise::kNothing) continue;
    if (promise == Promise::kSubList) [[unlikely]] {
      found.any_grouped = true;
      if (record.deleted()) continue;
      ++found.live_grouped;
      if (kHoldToPromises) broken |= record.length() != kHandleSize;
    } else if (promise == Promise::kEnd) {
      found.any_type_zero |= !record.deleted();
    } else if (kHoldToPromises && !record.deleted()) {
      broken |= record.length() == 0 || scan.behind()[-1] != std::byte{0};
    }
  }
  found.sound = broken == 0 && (rules_ == FlatRules::kTrusted ? !scan.overrun() : scan.exact());
  return found;
}

template class FlatReader<HostForm>;
template class FlatReader<NetworkForm>;

}  // namespace attrmgr
