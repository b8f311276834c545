// text.hpp: lists as text, for debugging: one line an attribute, secrets left out. <attrmgr/format.hpp> has the same
// for std::format.
#pragma once

#include <attrmgr/aaa_attr_display.h>
#include <attrmgr/cpp/list_view.hpp>

#include <iosfwd>
#include <string>

namespace attrmgr {
namespace detail {

// Takes the lines of a display. No exception may cross the library: an exhausted memory is noted and told afterwards.
struct text_sink {
  std::string text;
  bool exhausted = false;

  static int take(char *line, std::uint64_t context) noexcept {
    auto *sink = reinterpret_cast<text_sink *>(static_cast<std::uintptr_t>(context));
#ifdef __cpp_exceptions
    try {
      sink->text += line;
    } catch (...) {
      sink->exhausted = true;
    }
#else
    sink->text += line;
#endif
    return 0;
  }
};

}  // namespace detail

// The lines of aaa_attr_list_display.
inline std::string to_string(list_view shown) {
  detail::text_sink sink;
  aaa_attr_list_display(shown.handle(), detail::text_sink::take,
                        static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&sink)));
  if (sink.exhausted) detail::raise(AAA_ATTR_ERR_NO_MEMORY, "write a list as text");
  return std::move(sink.text);
}

// A template, so that only those who write to a stream need its header.
template <class Traits>
std::basic_ostream<char, Traits> &operator<<(std::basic_ostream<char, Traits> &out, list_view shown) {
  const std::string text = to_string(shown);
  return out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

}  // namespace attrmgr
