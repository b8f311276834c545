// The walk over the records of one block: the one place that compares a record with what is left of its block.
// Everything that looks at records, in lists and in buffers, steps through here.
#pragma once

#include "aaa_attr/store/views.h"

namespace attrmgr {

template <class Form, class Byte = std::byte>
class BasicRecordScan {
 public:
  BasicRecordScan() = default;
  explicit BasicRecordScan(BasicBlock<Form, Byte> block, std::size_t header_size = kHeaderSize)
      : BasicRecordScan(block.bytes() + header_size, block.bytes() + block.used(), block.record_count()) {}
  // A block whose used bytes end in its header has no records.
  BasicRecordScan(Byte *at, Byte *end, std::uint16_t left) : at_(at), end_(end < at ? at : end), left_(left) {}

  // Goes to the next record, removed ones included. False when none is left or the next would pass the used bytes.
  bool next() {
    if (left_ == 0 || remaining() < kRecordHeaderSize) return false;
    const BasicRecord<Form, Byte> candidate(at_);
    const std::uint64_t size = candidate.size_in_walk();
    if (size > remaining()) return false;
    record_ = candidate;
    at_ += size;
    --left_;
    return true;
  }

  // Goes on, as next() does, to the next record that has the type or type 0, where a client's walk ends.
  bool next_of(std::uint16_t type) {
    while (next())
      if (record_.type() == type || record_.type() == 0) return true;
    return false;
  }

  BasicRecord<Form, Byte> record() const { return record_; }
  const std::byte *after() const { return at_; }  // the byte after the record

  // After next() gave false: the records were as many as counted and filled the used bytes exactly.
  bool exact() const { return left_ == 0 && at_ == end_; }
  // After next() gave false: there were as many records as counted, whatever comes after them.
  bool all_found() const { return left_ == 0; }
  // After next() gave false: it was at a record that would pass the used bytes.
  bool overrun() const { return left_ > 0 && at_ != end_; }

 private:
  std::size_t remaining() const { return static_cast<std::size_t>(end_ - at_); }

  Byte *at_ = nullptr;
  Byte *end_ = nullptr;
  BasicRecord<Form, Byte> record_;
  std::uint16_t left_ = 0;
};

using RecordScan = BasicRecordScan<HostForm>;
using ConstRecordScan = BasicRecordScan<HostForm, const std::byte>;

}  // namespace attrmgr
