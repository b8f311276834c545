// attrtool dict: what the dictionary knows.
#include <attrmgr/attrmgr.h>

#include <iostream>

#include "dict_search.h"
#include "explain_json.h"
#include "output.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr std::size_t kLabelWidth = 14;

// ---- A table ----

void write_table(const std::vector<const TypeFacts *> &types, bool colours) {
  constexpr std::size_t kNumber = 5, kName = 28, kFormat = 15;
  std::size_t name_width = 0;
  for (const TypeFacts *facts : types) name_width = std::max(name_width, std::string_view(facts->name()).size() + 2);
  name_width = std::min(name_width, kName);
  const std::string head = padded("type", kNumber) + padded("name", name_width) + padded("format", kFormat) + "notes";
  std::cout << painted(colours, Tone::kFaint, head) << '\n';
  for (const TypeFacts *facts : types) {
    std::vector<std::string> notes = flags_of(*facts);
    if (*facts->elsewhere != '\0') notes.emplace_back(facts->elsewhere);
    std::string line = padded(std::to_string(facts->type), kNumber);
    std::string name = facts->name();
    // A name that does not fit its column has the rest on a line of its own.
    const bool is_long = name.size() + 1 > name_width;
    std::cout << line << painted(colours, Tone::kName, name);
    std::size_t at = line.size() + name.size();
    const std::size_t format_at = kNumber + name_width;
    std::cout << (is_long ? std::string("\n").append(format_at, ' ') : std::string(format_at - at, ' '));
    std::string format = facts->format_name();
    if (!notes.empty()) format = padded(format, kFormat);
    std::cout << format << wrapped(joined(notes), format_at + kFormat, format_at + kFormat) << '\n';
  }
}

// ---- One type in full ----

void write_line(const char *label, const std::string &text, bool colours) {
  std::cout << "  " << painted(colours, Tone::kFaint, padded(label, kLabelWidth - 2))
            << wrapped(text.empty() ? "none" : text, kLabelWidth, kLabelWidth) << '\n';
}

std::string classes_text(const TypeFacts &facts) {
  std::vector<std::string> bits;
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1)
    if ((facts.classes & bit) != 0) bits.push_back(in_hexadecimal(bit));
  return bits.size() < 2 ? joined(bits) : in_hexadecimal(facts.classes) + " (" + joined(bits) + ")";
}

std::string services_text(const TypeFacts &facts) {
  if (!has_bitmap(facts)) return "no bitmap: not looked at";
  std::vector<std::string> grants;
  for (std::uint32_t service = 1; service < AAA_AUTHOR_SERVICES; ++service)
    if (std::string grant = grant_text(facts, service); !grant.empty()) grants.push_back(std::move(grant));
  return joined(grants);
}

void write_values(const TypeFacts &facts, bool colours) {
  if (facts.format() != AAA_ATTR_FMT_ENUM) return;
  std::size_t width = 0;
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(facts.type, value); ++value)
    width = std::max(width, std::string_view(name).size() + 2);
  std::cout << "  " << painted(colours, Tone::kFaint, "values") << '\n';
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(facts.type, value); ++value) {
    const std::string constant = constant_of_value(facts.type, value);
    const std::string number = std::to_string(value);
    std::string line = std::string(number.size() < 6 ? 6 - number.size() : 0, ' ') + number + "  ";
    const bool fits = line.size() + width + constant.size() <= kLineWidth;
    const std::string after =
        !fits && !constant.empty() ? std::string("\n").append(line.size() + 2, ' ') + constant : constant;
    line += constant.empty() ? std::string(name) : fits ? padded(name, width) : std::string(name);
    std::cout << line << painted(colours, Tone::kFaint, after) << '\n';
  }
}

void write_full(const TypeFacts &facts, bool colours) {
  std::cout << facts.type << "  " << painted(colours, Tone::kTitle, facts.name()) << '\n';
  write_line("constant", facts.constant, colours);
  write_line("format", facts.format_name(), colours);
  write_line("flags", joined(flags_of(facts)), colours);
  write_line("classes", classes_text(facts), colours);
  write_line("elsewhere", facts.elsewhere, colours);
  write_line("services", services_text(facts), colours);
  write_values(facts, colours);
}

// ---- JSON ----

using Json = nlohmann::ordered_json;

Json services_json(const TypeFacts &facts) {
  Json services = Json::array();
  for (std::uint32_t service = 1; service < AAA_AUTHOR_SERVICES; ++service) {
    Json protocols = Json::array();
    for (std::uint32_t protocol = 0; protocol < AAA_AUTHOR_PROTOCOLS; ++protocol)
      if (is_granted(facts, service, protocol)) protocols.push_back(name_protocol[protocol]);
    if (!protocols.empty())
      services.push_back({{"service", name_service[service]}, {"protocols", std::move(protocols)}});
  }
  return services;
}

Json type_json(const TypeFacts &facts) {
  Json json = {{"type", facts.type},          {"name", facts.name()},
               {"constant", facts.constant},  {"format", facts.format_name()},
               {"flags", flags_of(facts)},    {"classes", facts.classes},
               {"elsewhere", facts.elsewhere}};
  if (has_bitmap(facts)) json["services"] = services_json(facts);
  if (facts.format() != AAA_ATTR_FMT_ENUM) return json;
  Json values = Json::array();
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(facts.type, value); ++value)
    values.push_back({{"value", value}, {"name", name}, {"constant", constant_of_value(facts.type, value)}});
  json["values"] = std::move(values);
  return json;
}

}  // namespace

int run(const Dict &asked) {
  const Found found = search(asked.words);
  if (asked.json) {
    Json types = Json::array();
    for (const auto *list : {&found.exact, &found.others})
      for (const TypeFacts *facts : *list) types.push_back(type_json(*facts));
    std::cout << json_line({{"version", kJsonVersion}, {"types", std::move(types)}}, 2) << '\n';
    return kYes;
  }
  for (const TypeFacts *facts : found.exact) write_full(*facts, asked.colours);
  if (!found.exact.empty() && !found.others.empty()) std::cout << "\nOthers that it is part of:\n";
  if (found.exact.empty() && found.others.size() == 1) {
    write_full(*found.others.front(), asked.colours);
  } else if (!found.others.empty()) {
    write_table(found.others, asked.colours);
  }
  return kYes;
}

}  // namespace attrtool
