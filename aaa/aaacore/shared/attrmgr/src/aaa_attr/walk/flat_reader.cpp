#include "aaa_attr/walk/flat_reader.h"

#include "aaa_attr/store/network_form.h"
#include "aaa_attr/store/sub_list.h"

namespace attrmgr {

template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::next() {
  if (damaged_) return false;
  for (;;) {
    while (levels_[depth_].lists_left == 0 && levels_[depth_].blocks_left == 0) {
      if (depth_ == 0) {
        complete_ = true;
        return false;
      }
      --depth_;
    }
    starts_list_ = levels_[depth_].lists_left > 0;
    if (!check_header()) return false;
    if (!starts_list_) break;
    if (!enter_list()) return false;
    if (levels_[depth_].blocks_left > 0) break;
  }
  return check_fit() && check_records() && leave_block();
}

// What comes first in both layouts.
template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::check_header() {
  if (remaining_ < kSharedHeaderSize) return false;
  block_ = BasicBlock<Form>(at_);
  return kRules == FlatRules::kTrusted || block_.magic() == kBlockMagic;
}

template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::enter_list() {
  // The translation takes a block that is no head for a list of its own, and a buffer whose head counts no blocks for
  // one without any.
  const bool head = block_.has(kBlockHead);
  const std::uint16_t blocks = head ? block_.block_count() : 1;
  if (!head && kRules != FlatRules::kWhole) return false;
  if (blocks == 0 && (depth_ > 0 || kRules != FlatRules::kWhole)) return false;
  if (depth_ > AAA_ATTR_NESTING_MAX) return false;
  --levels_[depth_].lists_left;
  ++depth_;
  levels_[depth_] = {blocks, block_.foreign(), 0};
  return true;
}

// The block lies within the bytes, and its records would within a list's.
template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::check_fit() const {
  if (kRules == FlatRules::kWhole && block_.foreign() != levels_[depth_].foreign) return false;
  if (kRules == FlatRules::kValid && block_.foreign()) return false;
  const std::size_t used = block_.used();
  if (used < header_size() || used > remaining_) return false;
  const std::size_t room = starts_list_ ? kBlockSize : kBlockSizeMax;
  return kRules < FlatRules::kDecodable || used - header_size() + kHeaderSize <= room;
}

template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::check_records() {
  const bool holds_grouped = block_.has(kBlockHoldsGrouped);
  if constexpr (kRules == FlatRules::kTrusted) {
    // A block that claims no Grouped records need not be looked at. Of a damaged one, the records before the damage can
    // be read, but nothing after it can be found.
    findings_ = holds_grouped ? look_over() : Findings{true, false, false, 0, 0};
    damaged_ = !findings_.sound;
    return true;
  }
  findings_ = look_over();
  if (kRules < FlatRules::kDecodable) return findings_.sound;
  return findings_.sound && (findings_.live_grouped == 0 || holds_grouped) && (starts_list_ || !block_.has(kBlockHead));
}

// Counts the block off, and the lists that follow it.
template <class Form, FlatRules kRules>
bool FlatReader<Form, kRules>::leave_block() {
  Level &level = levels_[depth_];
  --level.blocks_left;
  level.lists_left = block_.has(kBlockHoldsGrouped) ? findings_.live_grouped : std::uint16_t{0};
  if (kRules >= FlatRules::kDecodable && level.blocks_left == 0 && !block_.has(kBlockLast)) return false;
  if (kRules == FlatRules::kValid && static_cast<bool>(block_.next()) != (level.blocks_left > 0)) return false;
  at_ += block_.used();
  remaining_ -= block_.used();
  return true;
}

// Types and lengths come in no order that a processor could foresee: what the usual record asks for is summed up, not
// branched on. Records that are removed, or of one of the few types with more to them, are looked at closer.
template <class Form, FlatRules kRules>
typename FlatReader<Form, kRules>::Findings FlatReader<Form, kRules>::look_over() const {
  constexpr bool kChecksValues = kRules >= FlatRules::kDecodable;
  Findings found{};
  std::uint32_t broken = 0;
  BasicRecordScan<Form> scan = records();
  while (scan.next()) {
    const BasicRecord<Form> record = scan.record();
    const std::uint8_t traits = traits_of(record.type());
    if (record.deleted()) [[unlikely]] {
      found.any_removed = true;
      found.type_traits |= traits;
      continue;
    }
    if ((traits & ~kEndsInNul) != 0) [[unlikely]] {
      found.type_traits |= traits;
      found.any_live_zero |= (traits & kEndsWalk) != 0;
      if ((traits & kOwnsSubList) != 0) {
        ++found.live_grouped;
        if (kChecksValues) broken |= record.length() != kHandleSize;
      }
    }
    if (kChecksValues) {
      const auto ends_otherwise = static_cast<std::uint32_t>(scan.behind()[-1] != std::byte{0});
      const auto is_empty = static_cast<std::uint32_t>(record.length() == 0);
      broken |= traits & (ends_otherwise | is_empty);
    }
  }
  static_assert(kEndsInNul == 1);
  found.sound = (broken & 1) == 0 && (kRules == FlatRules::kTrusted ? !scan.overrun() : scan.exact());
  return found;
}

template <class Form, FlatRules kRules>
std::uint32_t FlatReader<Form, kRules>::list_bits() const {
  const bool claims_grouped = block_.has(kBlockHoldsGrouped) && !has_grouped();
  const bool empty = !starts_list_ && block_.record_count() == 0;
  const bool to_pack = findings_.any_removed || claims_grouped || empty || block_.has(kBlockReserved);
  return (to_pack ? kMayNeedPacking : 0) | (findings_.any_live_zero ? kMayHoldTypeZero : 0);
}

template class FlatReader<HostForm, FlatRules::kTrusted>;
template class FlatReader<HostForm, FlatRules::kWhole>;
template class FlatReader<NetworkForm, FlatRules::kWhole>;
template class FlatReader<HostForm, FlatRules::kDecodable>;
template class FlatReader<HostForm, FlatRules::kValid>;

}  // namespace attrmgr
