#include "aaa_attr/walk/flat_reader.h"

#include "aaa_attr/store/sub_list.h"

namespace attrmgr {

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::next() {
  if (damaged_) return false;
  do {
    if (!look_for_block() || !begins_here()) return false;
    if (starts_list_ && !enters_list()) return false;
  } while (levels_[depth_].blocks_left == 0);
  if (!has_layout() || !has_extent() || !agrees_with_list() || !goes_on_as_told() || !has_sound_records()) return false;
  leave_block();
  return true;
}

// False when there is none left.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::look_for_block() {
  while (levels_[depth_].lists_left == 0 && levels_[depth_].blocks_left == 0) {
    if (depth_ == 0) {
      complete_ = true;
      return false;
    }
    --depth_;
  }
  starts_list_ = levels_[depth_].lists_left > 0;
  return true;
}

// What comes first in both layouts lies within the bytes, and is that of a block.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::begins_here() {
  if (remaining_ < kSharedHeaderSize) {
    if (remaining_ > 0) return refuse(AAA_ATTR_RULE_BLOCK_HEADER, at_);
    if (!starts_list_) return refuse(AAA_ATTR_RULE_COUNTED_BLOCK, at_);
    return refuse(depth_ == 0 ? AAA_ATTR_RULE_FIRST_BLOCK : AAA_ATTR_RULE_OWNED_LIST, at_);
  }
  block_ = Block(at_);
  if constexpr (asks(FlatRules::kWhole))
    if (block_.magic() != kBlockMagic) return refuse_field(AAA_ATTR_RULE_MAGIC, kBlockMagicAt);
  return true;
}

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::enters_list() {
  // The translation takes a block that is no head for a list of its own, and a buffer whose head counts no blocks for
  // one without any.
  const bool head = block_.has(kBlockHead);
  const std::uint16_t blocks = head ? block_.block_count() : 1;
  if (!head && kRules != FlatRules::kWhole) return refuse_field(AAA_ATTR_RULE_HEAD_FLAG, kBlockFlagsAt);
  if (blocks == 0 && (depth_ > 0 || kRules != FlatRules::kWhole))
    return refuse_field(AAA_ATTR_RULE_BLOCK_COUNT, kBlockCountAt);
  if (depth_ > AAA_ATTR_NESTING_MAX) return refuse(AAA_ATTR_RULE_NESTING, at_);
  --levels_[depth_].lists_left;
  ++depth_;
  levels_[depth_] = {blocks, block_.foreign(), 0};
  return true;
}

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::has_layout() {
  if constexpr (kRules == FlatRules::kWhole)
    if (block_.foreign() != levels_[depth_].foreign) return refuse_field(AAA_ATTR_RULE_ONE_LAYOUT, kBlockFlagsAt);
  if constexpr (asks(FlatRules::kValid))
    if (block_.foreign()) return refuse_field(AAA_ATTR_RULE_NATIVE_LAYOUT, kBlockFlagsAt);
  return true;
}

// The block lies within the bytes.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::has_extent() {
  if (block_.used() < header_size()) return refuse_field(AAA_ATTR_RULE_USED_MIN, kUsedBytesAt);
  if (block_.used() > remaining_) return refuse_field(AAA_ATTR_RULE_USED_MAX, kUsedBytesAt);
  return true;
}

// Its records would fit one of a list's blocks, and its flags say where in the list it is.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::agrees_with_list() {
  if constexpr (asks(FlatRules::kDecodable)) {
    const std::size_t room = starts_list_ ? kBlockSize : kBlockSizeMax;
    if (block_.used() - header_size() > room - kHeaderSize) return refuse_field(AAA_ATTR_RULE_BLOCK_ROOM, kUsedBytesAt);
    if (!starts_list_ && block_.has(kBlockHead)) return refuse_field(AAA_ATTR_RULE_ONE_HEAD, kBlockFlagsAt);
    if (is_last_of_list() && !block_.has(kBlockLast)) return refuse_field(AAA_ATTR_RULE_LAST_FLAG, kBlockFlagsAt);
  }
  return true;
}

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::goes_on_as_told() {
  if constexpr (asks(FlatRules::kValid))
    if (block_.has_next() == is_last_of_list()) return refuse_field(AAA_ATTR_RULE_NEXT, kNextAt);
  return true;
}

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::has_sound_records() {
  const bool holds_grouped = block_.has(kBlockHoldsGrouped);
  if constexpr (kRules == FlatRules::kTrusted) {
    // A block that claims no Grouped records need not be looked at. Of a damaged one, the records before the damage can
    // be read, but nothing after it can be found.
    findings_ = holds_grouped ? look_over() : Findings{true, false, false, 0, 0};
    damaged_ = !findings_.sound;
  } else {
    findings_ = look_over();
    if (!findings_.sound) return refuse_records();
    if constexpr (asks(FlatRules::kDecodable))
      if (findings_.live_grouped > 0 && !holds_grouped) return refuse_field(AAA_ATTR_RULE_GROUPED_FLAG, kBlockFlagsAt);
  }
  return true;
}

// Counts the block off, and the lists that follow it.
template <class Form, FlatRules kRules, class Fault>
void FlatReader<Form, kRules, Fault>::leave_block() {
  Level &level = levels_[depth_];
  --level.blocks_left;
  level.lists_left = block_.has(kBlockHoldsGrouped) ? findings_.live_grouped : std::uint16_t{0};
  at_ += block_.used();
  remaining_ -= block_.used();
}

// ---- The records of a block ----

// 1 where a stored text does not end in NUL, else 0.
template <class Form, FlatRules kRules, class Fault>
std::uint32_t FlatReader<Form, kRules, Fault>::lacks_nul(Record record, const std::byte *end) {
  return static_cast<std::uint32_t>(end[-1] != std::byte{0}) | static_cast<std::uint32_t>(record.length() == 0);
}

// Types and lengths come in no order that a processor could foresee: what the usual record asks for is summed up, not
// branched on. Records that are removed, or of one of the few types with more to them, are looked at closer.
template <class Form, FlatRules kRules, class Fault>
typename FlatReader<Form, kRules, Fault>::Findings FlatReader<Form, kRules, Fault>::look_over() const {
  constexpr bool kChecksValues = asks(FlatRules::kDecodable);
  Findings found{};
  std::uint32_t broken = 0;
  Scan scan = records();
  while (scan.next()) {
    const Record record = scan.record();
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
    if (kChecksValues) broken |= traits & lacks_nul(record, scan.after());
  }
  static_assert(kEndsInNul == 1);
  found.sound = (broken & 1) == 0 && (kRules == FlatRules::kTrusted ? !scan.overrun() : scan.exact());
  return found;
}

// Goes over the records once more, one by one, for the first that is not sound. Only for the call that names the fault.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::refuse_records() {
  if constexpr (Fault::kNames) {
    Scan scan = records();
    while (scan.next())
      if (!holds_value(scan.record(), scan.after())) return false;
    if (scan.overrun()) return refuse_cut_record(Record(scan.after()));
    return refuse_field(AAA_ATTR_RULE_RECORD_COUNT, kRecordCountAt);
  }
  return false;
}

// The record passes the used bytes: which of its fields is it?
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::refuse_cut_record(Record record) requires Fault::kNames {
  const auto left = static_cast<std::size_t>(block_.end() - record.bytes());
  if (left < kRecordHeaderSize) return refuse(AAA_ATTR_RULE_RECORD_HEADER, record.bytes());
  if (left < record.value_at()) return refuse(AAA_ATTR_RULE_RECORD_META, record.bytes() + kRecordFlagsAt);
  return refuse(AAA_ATTR_RULE_RECORD_LENGTH, record.bytes() + kRecordLengthAt);
}

// What readers rely on in the value of a live record.
template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::holds_value(Record record, const std::byte *end) requires Fault::kNames {
  if constexpr (asks(FlatRules::kDecodable)) {
    const std::uint8_t traits = record.deleted() ? std::uint8_t{0} : traits_of(record.type());
    if ((traits & kOwnsSubList) != 0 && record.length() != kHandleSize)
      return refuse(AAA_ATTR_RULE_HANDLE_LENGTH, record.bytes() + kRecordLengthAt);
    if ((traits & lacks_nul(record, end)) != 0) {
      if (record.length() == 0) return refuse(AAA_ATTR_RULE_TEXT_LENGTH, record.bytes() + kRecordLengthAt);
      return refuse(AAA_ATTR_RULE_TEXT_END, end - 1);
    }
  }
  return true;
}

template <class Form, FlatRules kRules, class Fault>
bool FlatReader<Form, kRules, Fault>::refuse(aaa_attr_rule rule, const std::byte *at) {
  fault_.note(rule, at);
  return false;
}

template <class Form, FlatRules kRules, class Fault>
std::uint32_t FlatReader<Form, kRules, Fault>::list_bits() const {
  const bool claims_grouped = block_.has(kBlockHoldsGrouped) && !has_grouped();
  const bool empty = !starts_list_ && block_.record_count() == 0;
  const bool to_pack = findings_.any_removed || claims_grouped || empty || block_.has(kBlockReserved);
  return (to_pack ? kMayNeedPacking : 0) | (findings_.any_live_zero ? kMayHoldTypeZero : 0);
}

template class FlatReader<HostForm, FlatRules::kTrusted>;
template class FlatReader<LittleEndianForm, FlatRules::kWhole>;
template class FlatReader<BigEndianForm, FlatRules::kWhole>;
template class FlatReader<HostForm, FlatRules::kDecodable>;
template class FlatReader<HostForm, FlatRules::kValid>;

// Those that say why.
template class FlatReader<LittleEndianForm, FlatRules::kWhole, Named>;
template class FlatReader<BigEndianForm, FlatRules::kWhole, Named>;
template class FlatReader<HostForm, FlatRules::kDecodable, Named>;
template class FlatReader<HostForm, FlatRules::kValid, Named>;

}  // namespace attrmgr
