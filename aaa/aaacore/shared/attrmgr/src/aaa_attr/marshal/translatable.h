// Whether a flat buffer can be translated to the other byte order: it holds together, and its values have the lengths
// of their formats, so that the same bytes are numbers there and back.
#pragma once

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/flat_reader.h"
#include "dictionary/type_table.h"

namespace attrmgr {

inline bool is_number(std::uint32_t format) { return format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM; }

template <class Form, class Fault = Unnamed>
class TranslatableReader {
 public:
  TranslatableReader(const std::byte *bytes, std::uint64_t length) : reader_(bytes, length) {}

  // Reads all blocks, and tells whether none breaks the rules.
  bool read_to_end() {
    while (reader_.next())
      for (auto scan = reader_.records(); scan.next();)
        if (const aaa_attr_rule broken = length_rule(scan.record())) {
          fault_.note(broken, scan.record().bytes() + kRecordLengthAt);
          return false;
        }
    if (!reader_.complete()) fault_ = reader_.fault();
    return reader_.complete();
  }

  const Fault &fault() const { return fault_; }
  const std::byte *after() const { return reader_.after(); }

 private:
  // The rule that the value breaks by its length.
  static aaa_attr_rule length_rule(BasicRecord<Form, const std::byte> record) {
    constexpr std::uint32_t kNumberSize = 4;
    const std::uint32_t format = format_of(record.type());
    if (is_number(format)) return record.length() == kNumberSize ? AAA_ATTR_RULE_NONE : AAA_ATTR_RULE_NUMBER_LENGTH;
    if (format == AAA_ATTR_FMT_BOOLEAN) return record.length() == 1 ? AAA_ATTR_RULE_NONE : AAA_ATTR_RULE_BOOLEAN_LENGTH;
    if (is_grouped(record)) return record.length() == kHandleSize ? AAA_ATTR_RULE_NONE : AAA_ATTR_RULE_HANDLE_LENGTH;
    return AAA_ATTR_RULE_NONE;
  }

  FlatReader<Form, FlatRules::kWhole, Fault> reader_;
  [[no_unique_address]] Fault fault_;
};

}  // namespace attrmgr
