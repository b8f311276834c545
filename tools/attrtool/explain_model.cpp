#include "explain_model.h"

#include <algorithm>
#include <deque>

#include "explain_secrets.h"
#include "explain_words.h"
#include "tlv_order.h"

namespace attrtool {
namespace {

constexpr std::uint64_t kBlockHead = 0x01, kHoldsGrouped = 0x04, kRemoved = 0x02;

// Makes sections of fields as the library tells of them, and keeps track of which list is whose.
class Builder {
 public:
  Builder(Explanation *made, const Capture &capture, bool show_secrets)
      : made_(*made), capture_(capture), show_secrets_(show_secrets), tlv_(capture.form().layout == Layout::kTlv) {}

  static void take(const aaa_attr_field *field, void *builder) { static_cast<Builder *>(builder)->take(*field); }

 private:
  // A list that is being read.
  struct Level {
    std::string name;
    std::uint64_t blocks = 1, seen = 0;
    bool hidden = false;              // it is what an attribute that is left out holds
    std::deque<std::size_t> waiting;  // sections of the block's Grouped records whose lists are still to come
  };

  void take(const aaa_attr_field &field) {
    switch (field.kind) {
      case AAA_ATTR_FIELD_MARKER:
        begin(SectionKind::kMarker, field, "Marker");
        break;
      case AAA_ATTR_FIELD_MAGIC:
        begin_block(field);
        break;
      case AAA_ATTR_FIELD_TOTAL:
        begin_list(field);
        begin(SectionKind::kList, field, capital(levels_.back().name));
        break;
      case AAA_ATTR_FIELD_TYPE:
        begin_record(field);
        break;
      case AAA_ATTR_FIELD_UNREAD:
        return take_unread(field);
      default:
        break;
    }
    note_structure(field);
    made_.sections.back().fields.push_back(words_of(field));
  }

  void begin(SectionKind kind, const aaa_attr_field &field, std::string title) {
    made_.sections.push_back({kind, field.depth, std::move(title), {}});
    left_out_ = field.depth < levels_.size() && levels_[field.depth].hidden;
  }

  // A list at the field's depth, that of the next Grouped record that waits for one.
  void begin_list(const aaa_attr_field &field) {
    levels_.resize(field.depth + 1);
    Level &level = levels_[field.depth] = {};
    level.name = "the outer list";
    ++made_.counts.lists;
    if (field.depth == 0) return;
    std::deque<std::size_t> &waiting = levels_[field.depth - 1].waiting;
    if (waiting.empty()) return;
    Section &owner = made_.sections[waiting.front()];
    waiting.pop_front();
    level.hidden = owner.title == kLeftOut || levels_[field.depth - 1].hidden;
    level.name = level.hidden ? "a list that is not shown" : "the list of " + owner.title;
    if (!tlv_) owner.fields.back().meaning += "; its list begins at byte " + std::to_string(field.offset);
  }

  void begin_block(const aaa_attr_field &field) {
    const bool goes_on = field.depth < levels_.size() && levels_[field.depth].seen < levels_[field.depth].blocks;
    if (!goes_on) begin_list(field);
    levels_.resize(field.depth + 1);
    Level &level = levels_.back();
    level.waiting.clear();
    ++level.seen;
    ++made_.counts.blocks;
    begin(SectionKind::kBlock, field, "Block " + std::to_string(level.seen) + " of " + level.name);
  }

  void begin_record(const aaa_attr_field &field) {
    ++made_.counts.records;
    begin(SectionKind::kRecord, field, "");
    left_out_ = left_out_ || (is_left_out(field.type) && !show_secrets_);
    made_.sections.back().title = left_out_ ? kLeftOut : type_text(field.type);
    record_flags_ = 0;
  }

  // What the field says of the buffer's structure.
  void note_structure(const aaa_attr_field &field) {
    if (field.missing > 0) return;
    Section &section = made_.sections.back();
    switch (field.kind) {
      case AAA_ATTR_FIELD_BLOCK_FLAGS:
        block_flags_ = field.number;
        break;
      case AAA_ATTR_FIELD_BLOCK_COUNT:
        if (levels_.back().seen > 1) break;
        levels_.back().blocks = (block_flags_ & kBlockHead) != 0 ? field.number : 1;
        if (levels_.back().blocks > 1) section.title += ", which has " + counted(levels_.back().blocks, "block");
        break;
      case AAA_ATTR_FIELD_RECORD_COUNT:
        section.title += ": " + counted(field.number, "record");
        break;
      case AAA_ATTR_FIELD_RECORD_FLAGS:
        record_flags_ = field.number;
        if ((record_flags_ & kRemoved) == 0) break;
        ++made_.counts.removed;
        section.title += ", removed";
        break;
      case AAA_ATTR_FIELD_VALUE:
      case AAA_ATTR_FIELD_META_LENGTH:
        if (owns_list(field)) levels_.back().waiting.push_back(made_.sections.size() - 1);
        break;
      default:
        break;
    }
  }

  // In a TLV buffer the record has its list in place of a value, right after the meta.
  bool owns_list(const aaa_attr_field &field) const {
    if (aaa_attr_get_format_from_type(field.type) != AAA_ATTR_FMT_GROUPED) return false;
    if (tlv_) return field.kind == AAA_ATTR_FIELD_META_LENGTH;
    return field.kind == AAA_ATTR_FIELD_VALUE && (record_flags_ & kRemoved) == 0 && (block_flags_ & kHoldsGrouped) != 0;
  }

  Field words_of(const aaa_attr_field &field) const {
    Field words = {field.offset, field.size, field.missing, name_of_field(field.kind), "", false};
    const bool is_value = field.kind == AAA_ATTR_FIELD_VALUE;
    const bool structural = field.kind == AAA_ATTR_FIELD_LENGTH || field.kind == AAA_ATTR_FIELD_RECORD_FLAGS ||
                            field.kind == AAA_ATTR_FIELD_META_LENGTH || field.kind == AAA_ATTR_FIELD_TOTAL;
    if (left_out_ && !structural) {
      words.hidden = true;
      words.meaning = "<not shown>";
    } else if (is_value && !show_secrets_ && is_opaque(field.type)) {
      words.hidden = true;
      words.meaning = "<opaque value>";
    } else {
      words.meaning = is_value ? value_of(field) : meaning_of(field);
    }
    if (is_value && field.missing > 0) words.meaning += ", " + counted(field.missing, "byte") + " missing";
    return words;
  }

  std::string value_of(const aaa_attr_field &field) const {
    const ByteSpan value = capture_.readable().subspan(field.offset, field.size);
    const std::uint32_t format = aaa_attr_get_format_from_type(field.type);
    const bool is_number = format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM;
    if (field.missing > 0) return quoted(value, kShownOfCutValue);
    if (!capture_.in_network_form() || !is_number) return value_text(field.type, value, !tlv_);
    const std::vector<std::uint8_t> turned(value.rbegin(), value.rend());
    return value_text(field.type, turned, true);
  }

  void take_unread(const aaa_attr_field &field) {
    begin(SectionKind::kUnread, field, "Not read");
    const ByteSpan bytes = made_.bytes.subspan(field.offset, field.size);
    std::vector<Field> &fields = made_.sections.back().fields;
    for (const Stretch &stretch : show_secrets_ ? std::vector<Stretch>{{0, field.size, false}} : stretches_of(bytes)) {
      Field words = {field.offset + stretch.offset, stretch.size, 0, name_of_field(field.kind), "", stretch.secret};
      words.meaning = counted(stretch.size, "byte") + (stretch.secret ? ", which may be a secret" : "");
      fields.push_back(std::move(words));
    }
  }

  static constexpr const char *kLeftOut = "An attribute that is not shown";
  static constexpr std::size_t kShownOfCutValue = 64;

  Explanation &made_;
  const Capture &capture_;
  bool show_secrets_, tlv_;
  std::vector<Level> levels_;
  bool left_out_ = false;
  std::uint64_t block_flags_ = 0, record_flags_ = 0;
};

Verdict verdict(const char *reader, const char *words, ByteSpan bytes, aaa_attr_reader which, bool decides = false) {
  Verdict verdict = {reader, words, 0, {}, decides};
  verdict.code = aaa_attr_buffer_fault(bytes.data(), static_cast<std::uint32_t>(bytes.size()), which, &verdict.fault);
  return verdict;
}

}  // namespace

Capture::Capture(ByteSpan bytes) : bytes_(bytes), form_(form_of(bytes)) {
  if (form_.layout != Layout::kTlv || !form_.other_order) return;
  turned_.assign(bytes.begin(), bytes.end());
  turn_tlv(turned_, TlvOrder::kToHost);
}

const Field *Explanation::field_at(std::uint32_t offset) const {
  for (const Section &section : sections)
    for (const Field &field : section.fields)
      if (offset >= field.offset && offset - field.offset < field.size) return &field;
  return nullptr;
}

const Verdict *refusal_of(const std::vector<Verdict> &verdicts, bool strict) {
  const auto refused = std::find_if(verdicts.begin(), verdicts.end(), [strict](const Verdict &verdict) {
    return (strict || verdict.decides) && !verdict.accepted();
  });
  return refused != verdicts.end() ? &*refused : nullptr;
}

std::vector<Verdict> verdicts_of(const Capture &capture) {
  const ByteSpan bytes = capture.readable();
  if (!capture.in_network_form()) {
    std::vector<Verdict> verdicts = {verdict("list", "as a list", bytes, AAA_ATTR_READER_LIST, true)};
    if (bytes[0] != AAA_MARSHAL_BUFFER) return verdicts;
    verdicts.push_back(verdict("in_place", "in place", bytes, AAA_ATTR_READER_IN_PLACE));
    verdicts.push_back(verdict("to_network", "to network form", bytes, AAA_ATTR_READER_HTON));
    return verdicts;
  }
  std::vector<Verdict> verdicts = {verdict("to_host", "to host form", bytes, AAA_ATTR_READER_NTOH, true)};
  std::vector<std::uint8_t> host(bytes.begin(), bytes.end());
  if (!verdicts[0].accepted() || to_host_order(capture.form(), host) != 0) return verdicts;
  verdicts.push_back(verdict("list", "then as a list", host, AAA_ATTR_READER_LIST, true));
  verdicts.push_back(verdict("in_place", "then in place", host, AAA_ATTR_READER_IN_PLACE));
  return verdicts;
}

void read_fields(const Capture &capture, aaa_attr_field_callback take, void *context) {
  const ByteSpan bytes = capture.readable();
  aaa_attr_buffer_fields(bytes.data(), static_cast<std::uint32_t>(bytes.size()), capture.leading_reader(), take,
                         context, nullptr);
}

Explanation explain(const Capture &capture, bool show_secrets) {
  Explanation made;
  made.bytes = capture.bytes();
  made.form = name_of(capture.form());
  made.verdicts = verdicts_of(capture);
  Builder builder(&made, capture, show_secrets);
  read_fields(capture, Builder::take, &builder);
  return made;
}

std::string place_name(const Field *field) { return field != nullptr ? field->name : "the end"; }

std::string fault_text(const aaa_attr_fault &fault, const std::string &place) {
  return "byte " + std::to_string(fault.offset) + " (" + place + "): " + aaa_attr_rule_text(fault.rule);
}

}  // namespace attrtool
