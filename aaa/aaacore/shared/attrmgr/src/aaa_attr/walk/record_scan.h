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
    const auto at = reinterpret_cast<std::uintptr_t>(at_);
    const auto end = reinterpret_cast<std::uintptr_t>(end_);
    if (left_ == 0 || at > end - kRecordHeaderSize) return false;
    const BasicRecord<Form> candidate(at_);
    const std::uint64_t size = size_of(candidate);
    if (at + size > end) return false;
    record_ = candidate;
    at_ += size;
    --left_;
    return true;
  }

  // Goes on, as next() does, to the next record that has the type or type 0, where a client's walk ends.
  bool next_of(std::uint16_t type) {
    const auto other_bits = static_cast<std::uint16_t>(~type);
    auto at = reinterpret_cast<std::uintptr_t>(at_);  // a number: it may pass the end before it is compared with it
    const auto last = reinterpret_cast<std::uintptr_t>(end_) - kRecordHeaderSize;
    for (; left_ > 0 && at <= last; --left_) {
      const BasicRecord<Form> record(reinterpret_cast<std::byte *>(at));
      // No bit that the wanted type has not: the type itself, 0, or seldom another one.
      if ((record.type() & other_bits) == 0 && (record.type() == type || record.type() == 0)) {
        at_ = record.bytes();
        return next();
      }
      at += size_of(record);
    }
    at_ = reinterpret_cast<std::byte *>(at);
    return false;
  }

  BasicRecord<Form> record() const { return record_; }
  const std::byte *behind() const { return at_; }  // the byte behind the record

  // After next() gave false: the records were as many as counted and filled the used bytes exactly.
  bool exact() const { return left_ == 0 && at_ == end_; }
  // After next() gave false: it was at a record that would pass the used bytes.
  bool overrun() const { return left_ > 0 && at_ != end_; }

 private:
  // record.size(), the fast way. A walk takes as long as the way from one record's place to the next one's, and the
  // longest part of that is waiting for the length. A branch that is guessed right waits for nothing: two records of
  // three are a number or an address without meta. The empty instructions keep the compiler from making the branches
  // selections, which wait for both sides.
  static std::uint64_t size_of(BasicRecord<Form> record) {
    constexpr std::uint32_t kUsualLength = 4;
    if ((record.flags() | (record.length() ^ kUsualLength)) == 0) {
      asm volatile("");
      return kRecordHeaderSize + kUsualLength;
    }
    const std::uint64_t size = kRecordHeaderSize + std::uint64_t{record.length()};
    if (record.has_meta()) [[unlikely]] {
      asm volatile("");
      return size + kMetaSize;
    }
    return size;
  }

  std::byte *at_ = nullptr;
  std::byte *end_ = nullptr;
  BasicRecord<Form> record_;
  std::uint16_t left_ = 0;
};

using RecordScan = BasicRecordScan<HostForm>;

}  // namespace attrmgr
