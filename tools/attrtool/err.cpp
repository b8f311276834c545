// attrtool err: what a result code means.
#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>

#include "dictionary.h"
#include "explain_json.h"
#include "output.h"
#include "text/bad_text.h"
#include "verbs.h"

namespace attrtool {
namespace {

// What a code comes from, and what to do about it. The sentence of its meaning is the library's.
struct Code {
  aaa_attr_cerrno code;
  std::vector<const char *> causes, todo;
};

const std::vector<Code> &codes() {
  static const std::vector<Code> table = {
      {AAA_ATTR_ERR_BAD_BUFFER,
       {"a flat buffer was cut short on its way, or is not the whole message",
        "its bytes were changed, or it never was a flat buffer", "it is in network form, and was not translated first",
        "lists nest too deep: AAA_ATTR_NESTING_MAX levels may lie below the outer one",
        "a buffer of the foreign layout is read in place, which the decoder alone can do"},
       {"attrtool explain FILE names the byte and the rule that is broken",
        "compare the bytes received with those that were sent",
        "a buffer from a machine of the other byte order needs aaa_attrs_buffer_tran_v1"}},
      {AAA_ATTR_ERR_NO_MEMORY,
       {"an allocation failed", "the list has 65,535 blocks, which is all that it may have",
        "aaa_attr_get_from_buffer: the type is not in the buffer, or the value does not fit"},
       {"look for lists that are never freed: docs/debugging.md", "split what is kept in one list into several"}},
      {AAA_ATTR_ERR_BAD_ARG,
       {"a null pointer, or a length of 0, where something must be",
        "the length does not suit the format: 4 bytes for Ulong, Enum and IPv4, 16 for IPv6, 8 for a group",
        "an attribute would not fit the 65,535 bytes of a block",
        "the marker of a buffer is none, or not that of the form that the call takes",
        "source and destination are the same list"},
       {"attrtool dict TYPE tells the format",
        "of a buffer: attrtool explain FILE shows its marker and what is refused"}},
      {AAA_ATTR_ERR_BAD_LIST,
       {"the handle is 0: the list was never made, or its variable was cleared",
        "what the handle names is not a list, or the list's memory was written over",
        "in C++: the list was moved from"},
       {"check what the call that made the list answered",
        "run with the checked handle table, libattrmgr_checked: docs/debugging.md"}},
      {AAA_ATTR_ERR_STALE_HANDLE,
       {"the list was freed, spliced into another or filtered, and the old handle is used",
        "a sub-list is used after the list that owns it was freed"},
       {"run with the checked handle table, libattrmgr_checked, which tells who freed it: docs/debugging.md"}},
      {AAA_ATTR_ERR_NOT_FOUND,
       {"the list holds no attribute of the type, or fewer than were asked for",
        "the dictionary has no such type, or a TLV record has type 0",
        "no value of the type has the name, which is compared byte for byte"},
       {"where an attribute may be missing this is an answer, not a fault",
        "attrtool decode FILE shows what a buffer holds, attrtool dict WORDS what types there are"}},
      {AAA_ATTR_ERR_BAD_FORMAT,
       {"a value is read as what it is not: 4 bytes as 64 bits, for one",
        "the memory for an encoded list is null or too small: the size needed is told",
        "a list would take more than 2^32 - 1 bytes as a buffer"},
       {"attrtool dict TYPE tells the format of a type",
        "ask for the size first, with a null buffer; this code is the proper answer then"}},
      {AAA_ATTR_ERR_BAD_LENGTH,
       {"a TLV buffer was cut short, or its lengths pass what contains them",
        "it comes from a machine of the other byte order", "lists nest deeper than 128 levels"},
       {"attrtool explain FILE names the byte and the rule that is broken",
        "attrtool decode FILE recognises the other byte order"}},
  };
  return table;
}

std::string short_name(aaa_attr_cerrno code) {
  constexpr std::string_view kPrefix = "AAA_ATTR_ERR_";
  const std::string_view name = aaa_attr_cerrno_name(code);
  return std::string(name.substr(name.starts_with(kPrefix) ? kPrefix.size() : 0));
}

std::string in_capitals(std::string text) {
  for (char &c : text) c = c == '-' || c == ' ' ? '_' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

template <class Number>
std::optional<aaa_attr_cerrno> as_number(std::string_view text, int base) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return static_cast<aaa_attr_cerrno>(number);
}

// In any of the ways in which a code is printed; digits alone are decimal unless only hexadecimal makes a code of them.
std::vector<aaa_attr_cerrno> readings_of(std::string_view text) {
  std::vector<aaa_attr_cerrno> readings;
  const auto add = [&readings](std::optional<aaa_attr_cerrno> code) {
    if (code) readings.push_back(*code);
  };
  if (text.starts_with("0x") || text.starts_with("0X")) {
    add(as_number<std::uint32_t>(text.substr(2), 16));
  } else {
    add(text.starts_with('-') ? as_number<std::int32_t>(text, 10) : as_number<std::uint32_t>(text, 10));
    add(as_number<std::uint32_t>(text, 16));
  }
  return readings;
}

const Code *find(const std::string &wanted) {
  const std::vector<aaa_attr_cerrno> readings = readings_of(wanted);
  const auto found = std::find_if(codes().begin(), codes().end(), [&](const Code &row) {
    const std::string name = in_capitals(wanted);
    return name == aaa_attr_cerrno_name(row.code) || name == short_name(row.code) ||
           std::find(readings.begin(), readings.end(), row.code) != readings.end();
  });
  return found == codes().end() ? nullptr : &*found;
}

[[noreturn]] void refuse(const std::string &wanted) {
  std::vector<std::string_view> names;
  for (const Code &row : codes()) names.emplace_back(aaa_attr_cerrno_name(row.code));
  std::string full = in_capitals(wanted);
  if (!full.starts_with("AAA_")) full = "AAA_ATTR_ERR_" + full;
  const bool is_name = readings_of(wanted).empty();
  throw Refusal(attrtext::in_quotes(wanted) + " is no result code" + (is_name ? nearest_text(full, names) : "") +
                "; attrtool err lists them");
}

std::string signed_text(aaa_attr_cerrno code) { return std::to_string(static_cast<std::int32_t>(code)); }

void write_items(const char *title, const std::vector<const char *> &items) {
  std::cout << title << '\n';
  for (const char *item : items) std::cout << "  - " << wrapped(item, 4, 4) << '\n';
}

void write_full(const Code &row, bool colours) {
  std::cout << painted(colours, Tone::kTitle, aaa_attr_cerrno_name(row.code)) << '\n'
            << "  " << in_hexadecimal(row.code) << ", unsigned " << row.code << ", signed " << signed_text(row.code)
            << "\n  " << wrapped(aaa_attr_cerrno_text(row.code), 2, 2) << '\n';
  write_items("Causes:", row.causes);
  write_items("What to do:", row.todo);
}

void write_table(bool colours) {
  constexpr std::size_t kName = 28, kHex = 12;
  std::cout << painted(colours, Tone::kFaint, padded("code", kName) + padded("hexadecimal", kHex) + "signed") << '\n';
  for (const Code &row : codes())
    std::cout << padded(aaa_attr_cerrno_name(row.code), kName) << padded(in_hexadecimal(row.code), kHex)
              << signed_text(row.code) << "\n    " << wrapped(aaa_attr_cerrno_text(row.code), 4, 4) << '\n';
}

nlohmann::ordered_json code_json(const Code &row) {
  return {{"name", aaa_attr_cerrno_name(row.code)},
          {"hexadecimal", in_hexadecimal(row.code)},
          {"unsigned", row.code},
          {"signed", static_cast<std::int32_t>(row.code)},
          {"meaning", aaa_attr_cerrno_text(row.code)},
          {"causes", row.causes},
          {"todo", row.todo}};
}

}  // namespace

int run(const Err &asked) {
  // Success is no failure, but people ask.
  if (asked.code == "0" || asked.code == "0x0") {
    if (asked.json)
      std::cout << json_line({{"version", kJsonVersion}, {"codes", nlohmann::ordered_json::array()}}, 2) << '\n';
    if (!asked.json) std::cout << "0 is success: nothing failed.\n";
    return kYes;
  }
  const Code *found = asked.code.empty() ? nullptr : find(asked.code);
  if (found == nullptr && !asked.code.empty()) refuse(asked.code);
  if (asked.json) {
    auto list = nlohmann::ordered_json::array();
    for (const Code &row : codes())
      if (found == nullptr || found == &row) list.push_back(code_json(row));
    std::cout << json_line({{"version", kJsonVersion}, {"codes", std::move(list)}}, 2) << '\n';
  } else if (found != nullptr) {
    write_full(*found, asked.colours);
  } else {
    write_table(asked.colours);
  }
  return kYes;
}

}  // namespace attrtool
