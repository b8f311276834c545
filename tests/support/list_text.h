// Lists written as text, for tables of cases: "T=x !U=y G{V=z T+=x}".
//
//   list  := (item ' '?)*
//   item  := '!'? type '+'? ('=' value | '{' list '}')     '!' removed with its equals before it, '+' with kMeta
//   type  := T U V | N | G H | 0
//   value := text | '*'
//
// T, U and V are Strings (username, auto-logon-service, addr-pool), N is Binary, G and H are Grouped, and 0 is the
// invalid type, with a value of 4 bytes. '*' is too long for a usual block: it gets one of its own, and leaves no room
// there.
#pragma once

#include <array>
#include <cstdlib>

#include "support/lists.h"

inline constexpr aaa_attr_meta kMeta = {3, 7, 9, AAA_ATTR_META_MANDATORY, 11};

inline std::uint32_t type_named(char name) {
  constexpr std::array kTypes = {type::kString, 6u, 15u, type::kBinary, type::kGrouped, type::kOtherGrouped, 0u};
  return kTypes.at(std::string_view("TUVNGH0").find(name));
}

inline bool take(std::string_view &text, char c) {
  if (text.empty() || text[0] != c) return false;
  text.remove_prefix(1);
  return true;
}

inline void add_items(std::string_view &text, aaa_attr_list_handle list) {
  while (!text.empty() && text[0] != '}') {
    if (take(text, ' ')) continue;
    const bool removed = take(text, '!');
    const std::uint32_t type = type_named(text[0]);
    text.remove_prefix(1);
    const aaa_attr_meta *meta = take(text, '+') ? &kMeta : nullptr;
    std::string value;
    if (take(text, '{')) {
      List sub_list;
      add_items(text, sub_list);
      take(text, '}');
      const aaa_attr_list_handle handle = sub_list.release();
      value.assign(reinterpret_cast<const char *>(&handle), sizeof handle);
    } else {
      take(text, '=');
      value = text.substr(0, text.find_first_of(" }"));
      text.remove_prefix(value.size());
      if (value == "*") value.assign(520, '*');
    }
    const auto length = static_cast<std::uint32_t>(value.size());
    if (aaa_attr_add(list, type, value.data(), length, meta) != 0) std::abort();
    if (removed) aaa_attr_remove_on_match(list, type, value.data(), length);
  }
}

inline List list_of(std::string_view text) {
  List list;
  add_items(text, list);
  return list;
}

// The attributes that the text stands for, as outline() writes them.
inline std::string outline_of(std::string_view text) { return outline(list_of(text)); }
