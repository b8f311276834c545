// Lists written as text, for tables of cases: "T=x !U=y G{V@5=z T+=x}".
//
//   list  := (item ' '?)*
//   item  := '!'? type '+'? ('@' client type)? ('=' value | '{' list '}')     '!' removed, '+' with kMeta
//   type  := T U V (Strings), P Q (the QoS policies), N (Binary), G H (Grouped), 0 (the invalid type, value of 4 bytes)
//   value := text, or '*' for one too long for a usual block: it gets a block of its own, and leaves no room in it
#pragma once

#include <cstdlib>

#include "support/lists.h"

inline constexpr aaa_attr_meta kMeta = {3, 7, 9, AAA_ATTR_META_MANDATORY, 11};

inline std::uint32_t type_named(char name) {
  switch (name) {
    case 'T':
      return type::kString;
    case 'U':
      return 6;  // auto-logon-service
    case 'V':
      return 15;  // addr-pool
    case 'P':
      return 277;  // qos-policy-in
    case 'Q':
      return 278;  // qos-policy-out
    case 'N':
      return type::kBinary;
    case 'G':
      return type::kGrouped;
    case 'H':
      return type::kOtherGrouped;
    case '0':
      return 0;
    default:
      std::abort();
  }
}

inline bool take(std::string_view &text, char c) {
  if (text.empty() || text[0] != c) return false;
  text.remove_prefix(1);
  return true;
}

inline std::string_view take_until(std::string_view &text, std::string_view ends) {
  const std::string_view taken = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(taken.size());
  return taken;
}

inline void add_items(std::string_view &text, aaa_attr_list_handle list) {
  while (!text.empty() && text[0] != '}') {
    if (take(text, ' ')) continue;
    const bool removed = take(text, '!');
    const std::uint32_t type = type_named(text[0]);
    text.remove_prefix(1);
    const aaa_attr_meta *meta = take(text, '+') ? &kMeta : nullptr;
    std::uint32_t client_type = 0;
    if (take(text, '@')) client_type = static_cast<std::uint32_t>(std::stoul(std::string(take_until(text, "={"))));
    aaa_attr_list_handle sub_list = 0;
    std::string value;
    if (take(text, '{')) {
      aaa_attr_list_alloc(&sub_list);
      add_items(text, sub_list);
      take(text, '}');
      value.assign(reinterpret_cast<const char *>(&sub_list), sizeof sub_list);
    } else {
      take(text, '=');
      value = take_until(text, " }");
      if (value == "*") value.assign(520, '*');
    }
    const auto length = static_cast<std::uint32_t>(value.size());
    if (aaa_attr_add_v1(list, type, value.data(), length, meta, client_type) != 0) std::abort();
    if (!removed) continue;
    aaa_cursor *cursor = nullptr;
    aaa_cursor_alloc(list, &cursor);
    for (std::uint32_t left = aaa_attr_list_attr_count(list); left > 0; --left) aaa_cursor_get_next(cursor);
    aaa_cursor_remove(cursor);
    aaa_cursor_free(cursor);
    aaa_attr_list_free(sub_list);
  }
}

inline List list_of(std::string_view text) {
  List list;
  add_items(text, list);
  return list;
}

// The attributes that the text stands for, as outline() writes them.
inline std::string outline_of(std::string_view text) { return outline(list_of(text)); }
