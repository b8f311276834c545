// The walk over the records of one block: the one place that compares a record with the end of its block. Everything
// that looks at records, in lists and in buffers, steps through here.
#pragma once

#include "aaa_attr/store/views.h"

namespace attrmgr {

template <class Form>
class BasicRecordScan {
 public:
  BasicRecordScan() = default;
  explicit BasicRecordScan(BasicBlock<Form> block, std::size_t header_size = kHeaderSize)
      : BasicRecordScan(block.bytes() + header_size, block.bytes() + block.used(), block.record_count()) {}
  BasicRecordScan(std::byte *at, std::byte *end, std::uint16_t left) : at_(at), end_(end), left_(left) {}

  // Goes to the next record, removed ones included. False when none is left or the next would pass the used bytes.
  bool next() {
    if (left_ == 0) return false;
    const BasicRecord<Form> candidate(at_);
    const std::ptrdiff_t room = end_ - at_;
    if (room < static_cast<std::ptrdiff_t>(kRecordHeaderSize)) return false;
    const std::uint64_t size = candidate.size();
    if (size > static_cast<std::uint64_t>(room)) return false;
    record_ = candidate;
    at_ += size;
    --left_;
    return true;
  }

  BasicRecord<Form> record() const { return record_; }

  // After next() gave false: the records were as many as counted and filled the used bytes exactly.
  bool exact() const { return left_ == 0 && at_ == end_; }
  // After next() gave false: it was at a record that would pass the used bytes.
  bool overrun() const { return left_ > 0 && at_ != end_; }

 private:
  std::byte *at_ = nullptr;
  std::byte *end_ = nullptr;
  BasicRecord<Form> record_;
  std::uint16_t left_ = 0;
};

using RecordScan = BasicRecordScan<HostForm>;

}  // namespace attrmgr
