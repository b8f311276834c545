// The one reader of TLV buffers: it goes from record to record of a list and its nested lists, in the order in which
// they lie, and checks them on the way. It needs no recursion and no memory but a pointer a level.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/marshal/tlv_format.h"
#include "aaa_attr/result/error.h"
#include "aaa_attr/store/new_record.h"
#include "aaa_attr/store/views.h"
#include "aaa_attr/walk/fault.h"

namespace attrmgr {

// What becomes of a list whose total passes what contains it. Who shows what there is reads it up to there.
enum class LongTotal { kRefused, kCut };

template <class Fault = Unnamed, LongTotal kLongTotal = LongTotal::kRefused>
class TlvReader {
 public:
  // Reads the body that begins at bytes and lies within length bytes.
  TlvReader(const std::byte *bytes, std::uint64_t length) : at_(bytes) {
    ends_[0] = bytes + length;
    if (left() < kTlvTotalSize) {
      refuse(AAA_ATTR_RULE_TLV_TOTAL, AAA_ATTR_ERR_BAD_LENGTH, at_);
    } else {
      enter_body();
    }
  }

  // Goes to the next record. False after the last one, and at one that breaks the rules.
  bool next() {
    while (depth_ > 0 && left() == 0) --depth_;
    if (depth_ == 0) return false;
    return read_type_and_meta() && (opens_list_ ? enter_body() : read_value());
  }

  // Reads all records that are left, and tells whether none breaks the rules.
  bool read_to_end() {
    while (next()) {
    }
    return !error_;
  }

  // After next() gave false: 0 if it was after the last record, else the code of the rule that was broken.
  Error error() const { return error_; }
  const Fault &fault() const { return fault_; }

  // The record, fit to be added, and what it will be; the value of one that opens a list is the caller's to make.
  const NewAttribute &attribute() const { return attribute_; }
  const NewRecord &measured() const { return measured_; }
  bool opens_list() const { return opens_list_; }
  unsigned depth() const {
    return depth_ - (opens_list_ ? 2 : 1);
  }                                               // of the list that the record is in; 0 for the outer one
  const std::byte *after() const { return at_; }  // the byte after what was read so far

 private:
  // The bytes that remain of the list, or, before the outer one, of the buffer.
  std::uint64_t left() const { return static_cast<std::uint64_t>(ends_[depth_] - at_); }

  std::uint32_t take_number() {
    const auto number = load<std::uint32_t>(at_);
    at_ += sizeof number;
    return number;
  }

  // Only where a total lies within what remains.
  bool enter_body() {
    if (depth_ > AAA_ATTR_NESTING_MAX) return refuse(AAA_ATTR_RULE_NESTING, AAA_ATTR_ERR_BAD_LENGTH, at_);
    std::uint64_t total = load<std::uint32_t>(at_);
    if (kLongTotal == LongTotal::kCut && total > left()) total = left();
    if (total < kTlvTotalSize) return refuse(AAA_ATTR_RULE_TLV_TOTAL_MIN, AAA_ATTR_ERR_BAD_LENGTH, at_);
    if (total > left()) return refuse(AAA_ATTR_RULE_TLV_TOTAL_MAX, AAA_ATTR_ERR_BAD_LENGTH, at_);
    ends_[++depth_] = at_ + total;
    at_ += kTlvTotalSize;
    return true;
  }

  // Leaves a length, or the total of a nested list, within what remains.
  bool read_type_and_meta() {
    if (left() < kTlvRecordSizeMin) return refuse(AAA_ATTR_RULE_TLV_RECORD, AAA_ATTR_ERR_BAD_LENGTH, at_);
    const std::byte *const record = at_;
    attribute_.type = take_number();
    if (attribute_.type == 0 || attribute_.type >= AAA_ATTR_TYPE_COUNT)
      return refuse(AAA_ATTR_RULE_TLV_TYPE, AAA_ATTR_ERR_NOT_FOUND, record);
    opens_list_ = (kTypeTraits[attribute_.type] & kOwnsSubList) != 0;
    attribute_.meta = nullptr;
    if (take_number() == 0) return true;
    if (left() < kMetaSize + kTlvLengthSize)
      return refuse(AAA_ATTR_RULE_TLV_META, AAA_ATTR_ERR_BAD_LENGTH, record + kTlvMetaLengthAt);
    attribute_.meta = at_;
    at_ += kMetaSize;
    return true;
  }

  bool read_value() {
    const std::byte *const length = at_;
    attribute_.length = take_number();
    if (attribute_.length > left()) return refuse(AAA_ATTR_RULE_TLV_LENGTH, AAA_ATTR_ERR_BAD_LENGTH, length);
    attribute_.value = at_;
    if (attribute_.length == 0) return refuse(AAA_ATTR_RULE_TLV_EMPTY, AAA_ATTR_ERR_BAD_ARG, length);
    measured_ = measure(attribute_);
    if (const Error error = check_length(attribute_, measured_)) {
      const bool suits = kFormatRules.suits(measured_.format, attribute_.length);
      return refuse(suits ? AAA_ATTR_RULE_TLV_ROOM : AAA_ATTR_RULE_TLV_FORMAT, error, length);
    }
    at_ += attribute_.length;
    return true;
  }

  bool refuse(aaa_attr_rule rule, Error error, const std::byte *at) {
    fault_.note(rule, at);
    fault_.note_list(ends_[depth_], depth_);
    error_ = error;
    depth_ = 0;  // there is no way on
    return false;
  }

  const std::byte *at_;
  NewAttribute attribute_{};
  NewRecord measured_{};
  bool opens_list_ = false;
  Error error_;
  unsigned depth_ = 0;  // of the list that is read, 1 for the outer one; level 0 stands for the buffer
  [[no_unique_address]] Fault fault_;
  const std::byte *ends_[AAA_ATTR_NESTING_MAX + 2];  // of the lists; written as they are entered
};

}  // namespace attrmgr
