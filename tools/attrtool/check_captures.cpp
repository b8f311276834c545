#include "check_captures.h"

#include <algorithm>
#include <ostream>

#include "explain_json.h"
#include "explain_words.h"

namespace attrtool {
namespace {

// Counts fields as they come, without a word about them: ten thousand captures should not wait for sentences.
class Counter {
 public:
  explicit Counter(Checked *checked) : checked_(*checked) {}

  static void take(const aaa_attr_field *field, void *counter) { static_cast<Counter *>(counter)->take(*field); }

 private:
  void take(const aaa_attr_field &field) {
    for (std::size_t i = 0; i < checked_.verdicts.size(); ++i) {
      const std::uint32_t refused_at = checked_.verdicts[i].fault.offset;
      if (refused_at >= field.offset && refused_at - field.offset < field.size)
        checked_.places[i] = name_of_field(field.kind);
    }
    constexpr std::uint64_t kBlockHead = 0x01, kRemoved = 0x02;
    Counts &counts = checked_.counts;
    switch (field.kind) {
      case AAA_ATTR_FIELD_MAGIC:
        ++counts.blocks;
        break;
      case AAA_ATTR_FIELD_BLOCK_FLAGS:
        if ((field.number & kBlockHead) != 0) ++counts.lists;
        break;
      case AAA_ATTR_FIELD_TOTAL:
        ++counts.lists;
        break;
      case AAA_ATTR_FIELD_TYPE:
        ++counts.records;
        break;
      case AAA_ATTR_FIELD_RECORD_FLAGS:
        if ((field.number & kRemoved) != 0) ++counts.removed;
        break;
      default:
        break;
    }
  }

  Checked &checked_;
};

}  // namespace

Checked check(std::string name, const Capture &capture, bool strict) {
  Checked checked;
  checked.name = std::move(name);
  checked.form = name_of(capture.form());
  checked.size = capture.bytes().size();
  checked.verdicts = verdicts_of(capture);
  checked.places.assign(checked.verdicts.size(), "the end");
  checked.refusal = refusal_of(checked.verdicts, strict);
  Counter counter(&checked);
  read_fields(capture, Counter::take, &counter);
  return checked;
}

void write_text(const Checked &checked, std::ostream &out) {
  out << printable(checked.name) << ": ";
  if (checked.refusal == nullptr) {
    out << summary_text(checked.form, checked.size, checked.counts) << '\n';
    return;
  }
  const Verdict &refusal = *checked.refusal;
  if (!refusal.decides) out << refusal.words << ", ";
  out << "refused at " << fault_text(refusal.fault, checked.place_of(refusal)) << " (" << checked.form << ", "
      << counted(checked.size, "byte") << ")\n";
}

void write_json(const Checked &checked, std::ostream &out) {
  nlohmann::ordered_json readers = nlohmann::ordered_json::array();
  for (const Verdict &verdict : checked.verdicts) readers.push_back(verdict_json(verdict, checked.place_of(verdict)));
  const nlohmann::ordered_json json = {
      {"version", kJsonVersion},      {"file", checked.name}, {"good", checked.refusal == nullptr},
      {"form", checked.form},         {"size", checked.size}, {"counts", counts_json(checked.counts)},
      {"readers", std::move(readers)}};
  out << json_line(json, -1) << '\n';
}

// ---- Many captures ----

void Tally::add(const Checked &checked) {
  bytes_ += checked.size;
  if (checked.refusal == nullptr) {
    ++good_;
  } else {
    ++refused_;
    ++broken_[checked.refusal->fault.rule];
  }
}

std::vector<std::pair<std::uint32_t, std::size_t>> Tally::by_frequency() const {
  std::vector<std::pair<std::uint32_t, std::size_t>> rules(broken_.begin(), broken_.end());
  std::stable_sort(rules.begin(), rules.end(), [](const auto &a, const auto &b) { return a.second > b.second; });
  return rules;
}

void Tally::write_text(std::ostream &out) const {
  out << counted(all(), "capture") << ", " << counted(bytes_, "byte") << ": " << good_ << " good, " << refused_
      << " refused";
  if (unreadable_ > 0) out << ", " << unreadable_ << " could not be read";
  out << '\n';
  for (const auto &[rule, times] : by_frequency()) out << "  " << times << "  " << aaa_attr_rule_text(rule) << '\n';
}

void Tally::write_json(std::ostream &out) const {
  nlohmann::ordered_json rules = nlohmann::ordered_json::array();
  for (const auto &[rule, times] : by_frequency())
    rules.push_back({{"rule", rule}, {"sentence", aaa_attr_rule_text(rule)}, {"times", times}});
  const nlohmann::ordered_json json = {
      {"version", kJsonVersion}, {"captures", all()},         {"bytes", bytes_},          {"good", good_},
      {"refused", refused_},     {"unreadable", unreadable_}, {"rules", std::move(rules)}};
  out << json_line(json, -1) << '\n';
}

}  // namespace attrtool
