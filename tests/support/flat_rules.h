// The rules for flat buffers once more, as docs/layout.md has them: a plain reader that descends list by list and
// shares nothing with the library but the dictionary. The library is held against what it finds.
#pragma once

#include <attrmgr/attrmgr.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace flat_rules {

struct Record {
  std::uint32_t type, format, length;
  std::size_t at, value_at;
  bool has_meta, removed;
  std::size_t sub_list;  // of a live Grouped record: its number among the lists
};

// Whose rules: those of the decoder and of the check for reading in place, or those of the translation.
enum class For { kReading, kTranslation };

class Reading {
 public:
  // Reads the buffer behind its marker.
  Reading(const std::uint8_t *bytes, std::size_t size, For purpose = For::kReading)
      : bytes_(bytes), size_(size), translation_(purpose == For::kTranslation) {
    const std::size_t outer = new_list();
    read_in_place_ = size > 1;
    decodable_ = (size == 1 && !translation_) || list(0, outer);
  }

  bool decodable() const { return decodable_; }
  bool valid() const { return decodable_ && read_in_place_; }
  bool translatable() const { return decodable_; }

  // All records in the order in which they lie, and those of each list; list 0 is the outer one.
  const std::vector<Record> &records() const { return records_; }
  std::vector<Record> records_of(std::size_t list) const {
    std::vector<Record> found;
    for (const std::size_t number : lists_[list]) found.push_back(records_[number]);
    return found;
  }

 private:
  static constexpr std::size_t kHeadRoom = 488;  // for records, in a block of 512 bytes
  static constexpr std::size_t kRoom = 65'511;
  enum : unsigned { kHead = 1, kLast = 2, kGroups = 4, kLayout = 0x30, kForeign = 0x10 };

  std::uint64_t number(std::size_t at, unsigned width) const {
    std::uint64_t value = 0;
    for (unsigned i = 0; i < width; ++i) value |= std::uint64_t{bytes_[at + i]} << 8 * i;
    return value;
  }

  std::size_t new_list() {
    lists_.emplace_back();
    return lists_.size() - 1;
  }

  bool list(unsigned depth, std::size_t list_number) {
    if (depth > AAA_ATTR_NESTING_MAX) return false;
    std::uint64_t blocks = 1;
    std::size_t first_header = 0;
    for (std::uint64_t i = 0; i < blocks; ++i) {
      if (size_ - at_ < 12) return false;
      const unsigned flags = bytes_[at_ + 3];
      const bool first = i == 0, head = (flags & kHead) != 0;
      const std::size_t header = (flags & kLayout) == kForeign ? 16 : 24;
      if (number(at_, 2) != 0xABCD) return false;
      if (first && (head || !translation_)) blocks = number(at_ + 4, 2);  // else a list of one block
      if (blocks == 0) return translation_ && depth == 0;                 // there is nothing to translate
      if (first) first_header = header;
      if (translation_ && header != first_header) return false;
      const std::size_t used = number(at_ + 10, 2);
      if (used < header || used > size_ - at_) return false;
      const bool last = i + 1 == blocks;
      const bool chained = first == head && (!last || (flags & kLast) != 0);
      if (!translation_ && (!chained || used - header > (first ? kHeadRoom : kRoom))) return false;
      if (header == 16 || (number(at_ + 16, 8) == 0) != last) read_in_place_ = false;

      std::vector<std::size_t> nested;
      const std::size_t end = at_ + used;
      if (!block_records(list_number, at_ + header, end, (flags & kGroups) != 0, &nested)) return false;
      at_ = end;
      for (const std::size_t sub_list : nested)
        if (!list(depth + 1, sub_list)) return false;
    }
    return true;
  }

  static bool has_its_length(const Record &record) {
    switch (record.format) {
      case AAA_ATTR_FMT_ULONG:
      case AAA_ATTR_FMT_ENUM:
        return record.length == 4;
      case AAA_ATTR_FMT_BOOLEAN:
        return record.length == 1;
      default:
        return record.format != AAA_ATTR_FMT_GROUPED || record.length == 8;
    }
  }

  bool keeps_promises(const Record &record, bool holds_grouped) const {
    if (record.removed) return true;
    if (record.format == AAA_ATTR_FMT_GROUPED) return holds_grouped && record.length == 8;
    const bool text = record.format == AAA_ATTR_FMT_STRING || record.format == AAA_ATTR_FMT_STRING_ATTR;
    return !text || (record.length > 0 && bytes_[record.value_at + record.length - 1] == 0);
  }

  bool block_records(std::size_t list_number, std::size_t at, std::size_t end, bool holds_grouped,
                     std::vector<std::size_t> *nested) {
    for (std::uint64_t left = number(at_ + 6, 2); left > 0; --left) {
      if (end - at < 8) return false;
      Record record = {};
      record.at = at;
      record.type = static_cast<std::uint32_t>(number(at, 2));
      record.format = aaa_attr_get_format_from_type(record.type);
      record.has_meta = (bytes_[at + 2] & 1) != 0;
      record.removed = (bytes_[at + 2] & 2) != 0;
      record.length = static_cast<std::uint32_t>(number(at + 4, 4));
      const std::size_t value_after = record.has_meta ? 16 : 8;
      if (end - at < value_after || end - at - value_after < record.length) return false;
      record.value_at = at + value_after;
      at = record.value_at + record.length;
      if (!(translation_ ? has_its_length(record) : keeps_promises(record, holds_grouped))) return false;
      if (record.format == AAA_ATTR_FMT_GROUPED && !record.removed && holds_grouped)
        nested->push_back(record.sub_list = new_list());
      lists_[list_number].push_back(records_.size());
      records_.push_back(record);
    }
    return at == end;
  }

  const std::uint8_t *bytes_;
  std::size_t size_, at_ = 1;
  bool translation_;
  bool decodable_ = false, read_in_place_;
  std::vector<Record> records_;
  std::vector<std::vector<std::size_t>> lists_;
};

}  // namespace flat_rules
