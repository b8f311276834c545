// The rules for flat buffers once more, as docs/layout.md has them: a plain reader that descends list by list and
// shares nothing with the library but the dictionary. The library is held against what it finds.
#pragma once

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <bit>
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

// Whose rules: those of the decoder, of the check for reading in place, or of the translation from host form.
using For = aaa_attr_reader;

class Reading {
 public:
  // Reads the buffer after its marker.
  Reading(const std::uint8_t *bytes, std::size_t size, For purpose)
      : bytes_(bytes),
        size_(size),
        translation_(purpose == AAA_ATTR_READER_HTON),
        in_place_(purpose == AAA_ATTR_READER_IN_PLACE) {
    const std::size_t outer = new_list();
    accepted_ = (size == 1 && purpose == AAA_ATTR_READER_LIST) || list(0, outer);
  }

  bool accepted() const { return accepted_; }
  // The rule that is broken first and where; without one, where the outer list ends.
  aaa_attr_fault fault() const {
    return accepted_ ? aaa_attr_fault{AAA_ATTR_RULE_NONE, static_cast<std::uint32_t>(at_)} : fault_;
  }

  // All records in the order in which they lie, and those of each list; list 0 is the outer one.
  const std::vector<Record> &records() const { return records_; }
  std::vector<Record> records_of(std::size_t list) const {
    std::vector<Record> found;
    for (const std::size_t number : lists_[list]) found.push_back(records_[number]);
    return found;
  }

 private:
  static constexpr bool kTop = std::endian::native == std::endian::big;  // flags begin there, and numbers
  static constexpr std::size_t kHeadRoom = 488;                          // for records, in a block of 512 bytes
  static constexpr std::size_t kRoom = 65'511;
  enum : unsigned { kHead = 1, kLast = 2, kGroups = 4, kLayout = 0x30, kForeign = 0x10 };

  std::uint64_t number(std::size_t at, unsigned width) const {
    std::uint64_t value = 0;
    for (unsigned i = 0; i < width; ++i) value |= std::uint64_t{bytes_[at + i]} << 8 * (kTop ? width - 1 - i : i);
    return value;
  }
  unsigned block_flags(std::size_t block) const {
    const unsigned flags = bytes_[block + 3];
    return kTop ? (flags >> 7 & kHead) | (flags >> 5 & kLast) | (flags >> 3 & kGroups) | (flags << 2 & kLayout) : flags;
  }
  bool record_flag(std::size_t record, unsigned bit) const {
    return (number(record + 2, 2) >> (kTop ? 15 - bit : bit) & 1) != 0;
  }

  std::size_t new_list() {
    lists_.emplace_back();
    return lists_.size() - 1;
  }

  bool broken(aaa_attr_rule rule, std::size_t at) {
    fault_ = {static_cast<std::uint32_t>(rule), static_cast<std::uint32_t>(at)};
    return false;
  }

  bool list(unsigned depth, std::size_t list_number) {
    std::uint64_t blocks = 1;
    std::size_t first_header = 0;
    for (std::uint64_t i = 0; i < blocks; ++i) {
      const std::size_t block = at_;
      const bool first = i == 0;
      if (size_ == block && !first) return broken(AAA_ATTR_RULE_COUNTED_BLOCK, block);
      if (size_ == block) return broken(depth > 0 ? AAA_ATTR_RULE_OWNED_LIST : AAA_ATTR_RULE_FIRST_BLOCK, block);
      if (size_ - block < 12) return broken(AAA_ATTR_RULE_BLOCK_HEADER, block);
      if (number(block, 2) != 0xABCD) return broken(AAA_ATTR_RULE_MAGIC, block);
      const unsigned flags = block_flags(block);
      const bool head = (flags & kHead) != 0;
      const std::size_t header = (flags & kLayout) == kForeign ? 16 : 24;
      if (first && !head && !translation_) return broken(AAA_ATTR_RULE_HEAD_FLAG, block + 3);
      if (first && head) blocks = number(block + 4, 2);  // to the translation, a first block that is none is alone
      if (blocks == 0 && translation_ && depth == 0) return true;  // there is nothing to translate
      if (blocks == 0) return broken(AAA_ATTR_RULE_BLOCK_COUNT, block + 4);
      if (first && depth > AAA_ATTR_NESTING_MAX) return broken(AAA_ATTR_RULE_NESTING, block);
      if (first) first_header = header;
      if (translation_ && header != first_header) return broken(AAA_ATTR_RULE_ONE_LAYOUT, block + 3);
      if (in_place_ && header == 16) return broken(AAA_ATTR_RULE_NATIVE_LAYOUT, block + 3);
      const auto used = static_cast<std::size_t>(number(block + 10, 2));
      if (used < header) return broken(AAA_ATTR_RULE_USED_MIN, block + 10);
      if (used > size_ - block) return broken(AAA_ATTR_RULE_USED_MAX, block + 10);
      const bool last = i + 1 == blocks;
      if (!translation_) {
        if (used - header > (first ? kHeadRoom : kRoom)) return broken(AAA_ATTR_RULE_BLOCK_ROOM, block + 10);
        if (!first && head) return broken(AAA_ATTR_RULE_ONE_HEAD, block + 3);
        if (last && (flags & kLast) == 0) return broken(AAA_ATTR_RULE_LAST_FLAG, block + 3);
      }
      if (in_place_ && (number(block + 16, 8) == 0) != last) return broken(AAA_ATTR_RULE_NEXT, block + 16);

      std::vector<std::size_t> nested;
      if (!block_records(list_number, block, header, block + used, &nested)) return false;
      at_ = block + used;
      for (const std::size_t sub_list : nested)
        if (!list(depth + 1, sub_list)) return false;
    }
    return true;
  }

  bool has_its_length(const Record &record) {
    const bool is_number = record.format == AAA_ATTR_FMT_ULONG || record.format == AAA_ATTR_FMT_ENUM;
    if (is_number && record.length != 4) return broken(AAA_ATTR_RULE_NUMBER_LENGTH, record.at + 4);
    if (record.format == AAA_ATTR_FMT_BOOLEAN && record.length != 1)
      return broken(AAA_ATTR_RULE_BOOLEAN_LENGTH, record.at + 4);
    if (record.format == AAA_ATTR_FMT_GROUPED && record.length != 8)
      return broken(AAA_ATTR_RULE_HANDLE_LENGTH, record.at + 4);
    return true;
  }

  bool is_as_readers_rely_on(const Record &record) {
    if (record.removed) return true;
    if (record.format == AAA_ATTR_FMT_GROUPED && record.length != 8)
      return broken(AAA_ATTR_RULE_HANDLE_LENGTH, record.at + 4);
    if (record.format != AAA_ATTR_FMT_STRING && record.format != AAA_ATTR_FMT_STRING_ATTR) return true;
    if (record.length == 0) return broken(AAA_ATTR_RULE_TEXT_LENGTH, record.at + 4);
    const std::size_t end = record.value_at + record.length - 1;
    return bytes_[end] == 0 || broken(AAA_ATTR_RULE_TEXT_END, end);
  }

  bool block_records(std::size_t list_number, std::size_t block, std::size_t header, std::size_t end,
                     std::vector<std::size_t> *nested) {
    const bool holds_grouped = (block_flags(block) & kGroups) != 0;
    bool has_grouped = false;
    std::vector<Record> found;
    std::size_t at = block + header;
    for (std::uint64_t left = number(block + 6, 2); left > 0; --left) {
      if (end == at) return broken(AAA_ATTR_RULE_RECORD_COUNT, block + 6);
      if (end - at < 8) return broken(AAA_ATTR_RULE_RECORD_HEADER, at);
      Record record = {};
      record.at = at;
      record.type = static_cast<std::uint32_t>(number(at, 2));
      record.format = aaa_attr_get_format_from_type(record.type);
      record.has_meta = record_flag(at, 0);
      record.removed = record_flag(at, 1);
      record.length = static_cast<std::uint32_t>(number(at + 4, 4));
      const std::size_t value_after = record.has_meta ? 16 : 8;
      if (end - at < value_after) return broken(AAA_ATTR_RULE_RECORD_META, at + 2);
      if (end - at - value_after < record.length) return broken(AAA_ATTR_RULE_RECORD_LENGTH, at + 4);
      record.value_at = at + value_after;
      at = record.value_at + record.length;
      if (!translation_ && !is_as_readers_rely_on(record)) return false;
      if (record.format == AAA_ATTR_FMT_GROUPED && !record.removed) {
        has_grouped = true;
        if (holds_grouped) nested->push_back(record.sub_list = new_list());
      }
      lists_[list_number].push_back(records_.size());
      records_.push_back(record);
      found.push_back(record);
    }
    if (at != end) return broken(AAA_ATTR_RULE_RECORD_COUNT, block + 6);
    if (!translation_) return holds_grouped || !has_grouped || broken(AAA_ATTR_RULE_GROUPED_FLAG, block + 3);
    // The translation looks at lengths when it knows that the block holds together.
    return std::all_of(found.begin(), found.end(), [this](const Record &record) { return has_its_length(record); });
  }

  const std::uint8_t *bytes_;
  std::size_t size_, at_ = 1;
  bool translation_, in_place_, accepted_;
  aaa_attr_fault fault_{};
  std::vector<Record> records_;
  std::vector<std::vector<std::size_t>> lists_;
};

}  // namespace flat_rules
