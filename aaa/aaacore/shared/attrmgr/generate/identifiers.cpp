#include "identifiers.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "dictionary/type_table.h"

namespace generate {
namespace {

template <class Convert>
std::string converted(std::string text, Convert convert) {
  for (char &c : text) c = static_cast<char>(convert(static_cast<unsigned char>(c)));
  return text;
}

std::string upper(const std::string &text) {
  return converted(text, [](int c) { return std::toupper(c); });
}

std::string lower(const std::string &text) {
  return converted(text, [](int c) { return std::tolower(c); });
}

// Letters and digits, everything between them an underscore.
std::string identifier(const std::string &name) {
  std::string made;
  for (const char c : name) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      made += c;
    } else if (!made.empty() && made.back() != '_') {
      made += '_';
    }
  }
  while (!made.empty() && made.back() == '_') made.pop_back();
  return upper(made);
}

bool is_placeholder(const std::string &name, std::uint32_t number) {
  const std::string digits = std::to_string(number);
  return name == digits || name == "noval" + digits;
}

// Names of the dictionary that are keywords of C++.
std::string without_keyword(const std::string &name) {
  static const std::set<std::string> keywords = {"class", "or"};
  return keywords.contains(name) ? name + "_" : name;
}

// A format's name as a part of an identifier.
std::string format_word(std::uint32_t format) { return identifier(aaa_attr_get_format_string(format)); }

std::string suffix_of(const std::vector<Type> &lower_types, const attrmgr::TypeRow &row) {
  std::string plain = identifier(std::string(row.name));
  unsigned sharing = 1;
  bool same_format = false;
  for (const Type &type : lower_types)
    if (identifier(type.name) == plain) {
      ++sharing;
      same_format = same_format || aaa_attr_get_format_from_type(type.number) == row.format;
    }
  if (sharing == 1) return plain;
  return plain + '_' + (same_format ? std::to_string(sharing) : format_word(row.format));
}

std::vector<Value> values_of(const attrmgr::TypeRow &row, const std::string &suffix) {
  std::vector<Value> values;
  std::set<std::string> taken;
  for (std::uint32_t number = 0; row.values != nullptr && number < row.values->count; ++number) {
    const std::string name = row.values->names[number];
    std::string constant;
    if (!is_placeholder(name, number)) {
      constant = "AAA_" + suffix + '_' + identifier(name);
      if (!taken.insert(constant).second) constant += '_' + std::to_string(number);
    }
    values.push_back({number, name, constant});
  }
  return values;
}

std::vector<Type> make_types() {
  std::vector<Type> types;
  for (const attrmgr::TypeRow &row : attrmgr::kTypes) {
    const std::string suffix = suffix_of(types, row);
    types.push_back({row.type, std::string(row.name), suffix, without_keyword(lower(suffix)), values_of(row, suffix)});
  }
  return types;
}

// No two constants may have one name, and none that of a macro of aaa_attr_dict.h.
void require_distinct(const std::vector<Type> &types) {
  std::set<std::string> taken = {"AAA_ATTR_TYPE_COUNT", "AAA_ATTR_TYPE_OPAQUE", "AAA_ATTR_TYPE_NO_AUTHOR"};
  const auto take = [&taken](const std::string &constant, const std::string &name) {
    if (taken.insert(constant).second) return;
    std::fprintf(stderr, "\"%s\" would become %s, which is taken\n", name.c_str(), constant.c_str());
    std::exit(1);
  };
  for (const Type &type : types) {
    take(constant_of(type), type.name);
    for (const Value &value : type.values)
      if (!value.constant.empty()) take(value.constant, value.name);
  }
}

}  // namespace

const std::vector<Type> &types() {
  static const std::vector<Type> made = [] {
    std::vector<Type> types = make_types();
    require_distinct(types);
    return types;
  }();
  return made;
}

std::string constant_of(const Type &type) { return "AAA_ATTR_TYPE_" + type.suffix; }
std::string enumeration_of(const Type &type) { return "aaa_" + lower(type.suffix); }

std::string quoted(const std::string &name) {
  std::string text = "\"";
  for (const char c : name) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + '"';
}

}  // namespace generate
