#include "explain_json.h"
#include <ostream>

#include "explain_words.h"
#include "explain_writers.h"

namespace attrtool {
namespace {

using Json = nlohmann::ordered_json;

const char *kind_of(SectionKind kind) {
  switch (kind) {
    case SectionKind::kMarker:
      return "marker";
    case SectionKind::kBlock:
      return "block";
    case SectionKind::kRecord:
      return "record";
    case SectionKind::kList:
      return "list";
    case SectionKind::kUnread:
      return "unread";
  }
  return "";
}

Json field_json(const Explanation &explanation, const Field &field) {
  Json json = {{"name", field.name}, {"offset", field.offset}, {"size", field.size}};
  if (field.missing > 0) json["missing"] = field.missing;
  json["bytes"] = field.hidden ? Json() : Json(hex_text(explanation, field, field.offset, field.size, ""));
  json["meaning"] = field.meaning;
  return json;
}

Json section_json(const Explanation &explanation, const Section &section) {
  Json fields = Json::array();
  for (const Field &field : section.fields) fields.push_back(field_json(explanation, field));
  return {{"kind", kind_of(section.kind)},
          {"depth", section.depth},
          {"title", section.title},
          {"offset", section.offset()},
          {"size", section.end() - section.offset()},
          {"fields", std::move(fields)}};
}

}  // namespace

std::string json_line(const nlohmann::ordered_json &json, int indent) {
  return json.dump(indent, ' ', true, Json::error_handler_t::replace);
}

nlohmann::ordered_json counts_json(const Counts &counts) {
  return {{"lists", counts.lists}, {"blocks", counts.blocks}, {"records", counts.records}, {"removed", counts.removed}};
}

nlohmann::ordered_json verdict_json(const Verdict &verdict, const std::string &field) {
  Json json = {{"reader", verdict.reader}, {"accepted", verdict.accepted()}};
  if (verdict.accepted()) return json;
  json["code"] = aaa_attr_cerrno_name(verdict.code);
  json["rule"] = verdict.fault.rule;
  json["sentence"] = aaa_attr_rule_text(verdict.fault.rule);
  json["offset"] = verdict.fault.offset;
  json["field"] = field;
  return json;
}

void write_json(const Explanation &explanation, const std::string &name, std::ostream &out) {
  Json readers = Json::array(), sections = Json::array();
  for (const Verdict &verdict : explanation.verdicts)
    readers.push_back(verdict_json(verdict, place_name(explanation.field_at(verdict.fault.offset))));
  for (const Section &section : explanation.sections) sections.push_back(section_json(explanation, section));
  const Json json = {{"version", kJsonVersion},
                     {"file", name},
                     {"form", explanation.form},
                     {"size", explanation.bytes.size()},
                     {"counts", counts_json(explanation.counts)},
                     {"accepted", refusal_of(explanation.verdicts) == nullptr},
                     {"readers", std::move(readers)},
                     {"sections", std::move(sections)}};
  out << json_line(json, 2) << '\n';
}

}  // namespace attrtool
