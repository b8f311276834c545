// What must hold of a list and its text and JSON forms.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>

#include "exercise.h"
#include "support/any_list.h"
#include "text/json_reader.h"
#include "text/json_writer.h"
#include "text/printable.h"
#include "text/text_reader.h"
#include "text/text_writer.h"

namespace text_forms {

using Read = std::variant<attrmgr::list, attrtext::BadPlace>;

inline std::string text_of(attrmgr::list_view list) {
  std::ostringstream out;
  attrtext::write_text(list, {}, out);
  return out.str();
}

inline std::string json_of(attrmgr::list_view list) {
  std::ostringstream out;
  attrtext::write_json(list, {}, nullptr, out);
  return out.str();
}

inline void require_printable(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = text.front() == '\n' ? 1 : attrtext::printable_length(text);
    REQUIRE(length > 0);
    text.remove_prefix(length);
  }
}

// A list that a reader made is written in both forms, and comes back from both.
inline void require_round_trip(const attrmgr::list &list) {
  const std::string text = text_of(list), json = json_of(list);
  require_printable(text);
  require_printable(json);
  const Read from_text = attrtext::list_from_text(text), from_json = attrtext::list_from_json(json);
  REQUIRE(std::holds_alternative<attrmgr::list>(from_text) && std::holds_alternative<attrmgr::list>(from_json));
  REQUIRE(same_lists(list, std::get<attrmgr::list>(from_text)));
  REQUIRE(same_lists(list, std::get<attrmgr::list>(from_json)));
}

// Any text: a list that makes the round trip, or a place in the text.
inline void require_list_or_place(std::string_view text, const Read &read) {
  if (const auto *list = std::get_if<attrmgr::list>(&read)) return require_round_trip(*list);
  const auto &bad = std::get<attrtext::BadPlace>(read);
  require_printable(bad.reason);
  REQUIRE(bad.line >= 1 && bad.line <= 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
  REQUIRE(bad.column >= 1 && bad.column <= text.size() + 1);
}

}  // namespace text_forms
