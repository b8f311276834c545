#include "dict_search.h"

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>

#include "failure.h"
#include "output.h"
#include "text/bad_text.h"

namespace attrtool {
namespace {

// Capitals and small letters are the same, and so are blanks, hyphens and underscores.
std::string folded(std::string_view text) {
  std::string made(text);
  for (char &c : made) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c == ' ' || c == '_') c = '-';
  }
  return made;
}

bool holds(std::string_view text, std::string_view part) {
  return folded(text).find(folded(part)) != std::string::npos;
}
bool same(std::string_view one, std::string_view other) { return folded(one) == folded(other); }

std::optional<std::uint32_t> number_of(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x");
  if (hexadecimal) text.remove_prefix(2);
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// "RFC 2865 User-Name (1); a note": the name alone.
std::string_view rfc_name(const TypeFacts &facts) {
  std::string_view text = facts.elsewhere;
  for (int words = 0; words < 2 && !text.empty(); ++words)
    text.remove_prefix(std::min(text.find(' ') + 1, text.size()));
  return text.substr(0, text.find(" ("));
}

std::optional<std::uint32_t> number_in(const aaa_attr_value_table &table, std::string_view name) {
  for (std::uint32_t number = 0; number < table.count; ++number)
    if (same(table.names[number], name)) return number;
  return std::nullopt;
}

// ---- What a word asks for ----

using Test = std::function<bool(const TypeFacts &)>;

bool has_flag(const TypeFacts &facts, std::string_view wanted) {
  const std::vector<std::string> flags = flags_of(facts);
  return std::any_of(flags.begin(), flags.end(), [&](const std::string &flag) { return same(flag, wanted); });
}

bool is_in_class(const TypeFacts &facts, std::string_view wanted) {
  const auto bits = number_of(wanted);
  return bits && (facts.classes & *bits) != 0;
}

bool has_value_named(const TypeFacts &facts, std::string_view part) {
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(facts.type, value); ++value)
    if (holds(name, part)) return true;
  return false;
}

// A word by itself: what most are looked for by.
bool suits(const TypeFacts &facts, const std::string &word) {
  if (const auto number = number_of(word); number && !word.starts_with("0x")) return facts.type == *number;
  return holds(facts.name(), word) || holds(facts.constant, word) || holds(rfc_name(facts), word) ||
         same(facts.format_name(), word) || has_flag(facts, word) ||
         (word.starts_with("0x") && is_in_class(facts, word));
}

std::uint32_t required_number(const aaa_attr_value_table &table, const std::string &name, const char *what) {
  if (const auto number = number_in(table, name)) return *number;
  const std::vector<std::string_view> names(table.names, table.names + table.count);
  throw Refusal(std::string("there is no ") + what + " " + attrtext::in_quotes(name) + nearest_text(name, names));
}

// The service and the protocol that are asked for, which must be granted together.
struct Use {
  std::optional<std::uint32_t> service, protocol;

  bool suits(const TypeFacts &facts) const {
    for (std::uint32_t s = service.value_or(1); s < (service ? *service + 1 : AAA_AUTHOR_SERVICES); ++s)
      for (std::uint32_t p = protocol.value_or(0); p < (protocol ? *protocol + 1 : AAA_AUTHOR_PROTOCOLS); ++p)
        if (is_granted(facts, s, p)) return true;
    return false;
  }
};

class Query {
 public:
  explicit Query(const std::vector<std::string> &words) {
    for (const std::string &word : words) take(word);
    if (use_.service || use_.protocol)
      tests_.emplace_back([use = use_](const TypeFacts &facts) { return use.suits(facts); });
  }

  bool suits(const TypeFacts &facts) const {
    return std::all_of(tests_.begin(), tests_.end(), [&](const Test &test) { return test(facts); });
  }

 private:
  void take(const std::string &word) {
    const std::size_t equals = word.find('=');
    if (equals != std::string::npos) return take_key(word.substr(0, equals), word.substr(equals + 1));
    const auto types = all_types();
    const auto any = [&](const Test &test) { return std::any_of(types.begin(), types.end(), test); };
    const Test plain = [word](const TypeFacts &facts) { return attrtool::suits(facts, word); };
    if (any(plain)) return tests_.push_back(plain);
    // A word that is part of no name may be a service, a protocol, or a value.
    const auto service = number_in(value_service, word), protocol = number_in(value_protocol, word);
    if (service || protocol) return (service ? use_.service : use_.protocol) = service ? service : protocol, void();
    tests_.emplace_back([word](const TypeFacts &facts) { return has_value_named(facts, word); });
  }

  void take_key(const std::string &key, const std::string &value) {
    if (key == "service") {
      use_.service = required_number(value_service, value, "service");
    } else if (key == "protocol") {
      use_.protocol = required_number(value_protocol, value, "protocol");
    } else {
      tests_.push_back(test_of(key, value));
    }
  }

  static Test test_of(const std::string &key, const std::string &value) {
    if (key == "name") return [value](const TypeFacts &facts) { return holds(facts.name(), value); };
    if (key == "constant") return [value](const TypeFacts &facts) { return holds(facts.constant, value); };
    if (key == "number") return [value](const TypeFacts &facts) { return number_of(value) == facts.type; };
    if (key == "format")
      return [value](const TypeFacts &facts) { return folded(facts.format_name()).starts_with(folded(value)); };
    if (key == "flag") return [value](const TypeFacts &facts) { return has_flag(facts, value); };
    if (key == "class") return [value](const TypeFacts &facts) { return is_in_class(facts, value); };
    if (key == "rfc") return [value](const TypeFacts &facts) { return holds(facts.elsewhere, value); };
    if (key == "value") return [value](const TypeFacts &facts) { return has_value_named(facts, value); };
    throw Failure(
        "a word with '=' begins with number, name, constant, format, flag, class, service, protocol, rfc or "
        "value, not with " +
        attrtext::in_quotes(key));
  }

  std::vector<Test> tests_;
  Use use_;
};

bool is_named(const TypeFacts &facts, const std::string &name) {
  return same(facts.name(), name) || same(facts.constant, name) || same(rfc_name(facts), name) ||
         name == std::to_string(facts.type);
}

[[noreturn]] void refuse(const std::string &wanted) {
  std::vector<std::string_view> names;
  for (const TypeFacts &facts : all_types()) {
    names.emplace_back(facts.name());
    if (!rfc_name(facts).empty()) names.push_back(rfc_name(facts));
  }
  throw Refusal("the dictionary has nothing for " + attrtext::in_quotes(wanted) + nearest_text(wanted, names));
}

}  // namespace

Found search(const std::vector<std::string> &words) {
  const std::string whole = joined(words, " ");
  Found found;
  const Query query(words);
  for (const TypeFacts &facts : all_types()) {
    if (!words.empty() && is_named(facts, whole)) {
      found.exact.push_back(&facts);
    } else if (query.suits(facts)) {
      found.others.push_back(&facts);
    }
  }
  if (found.exact.empty() && found.others.empty()) refuse(whole);
  return found;
}

std::string grant_text(const TypeFacts &facts, std::uint32_t service) {
  std::vector<std::string> protocols;
  for (std::uint32_t protocol = 0; protocol < AAA_AUTHOR_PROTOCOLS; ++protocol)
    if (is_granted(facts, service, protocol)) protocols.emplace_back(name_protocol[protocol]);
  if (protocols.empty()) return "";
  const std::string name = name_service[service];
  return protocols.size() == AAA_AUTHOR_PROTOCOLS ? name : name + " (" + joined(protocols) + ")";
}

}  // namespace attrtool
