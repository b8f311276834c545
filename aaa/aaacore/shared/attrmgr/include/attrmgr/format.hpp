// format.hpp: lists in std::format, where the standard library has it: std::format("{}", list). The text is that of
// to_string. A header of its own beside attrmgr.hpp, because <format> takes a compiler long.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <version>

#ifdef __cpp_lib_format
#include <format>

template <class List>
requires std::derived_from<List, attrmgr::list_view>
struct std::formatter<List> : std::formatter<std::string> {
  template <class Context>
  auto format(const List &shown, Context &context) const {
    return std::formatter<std::string>::format(attrmgr::to_string(shown), context);
  }
};
#endif
