// chrono.hpp: the attributes that hold a time, as std::chrono::sys_seconds. A header of its own beside attrmgr.hpp,
// because <chrono> takes a compiler longer than all of that.
//
//   list.add(attr::start_time, std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
//   std::optional<std::chrono::sys_seconds> stopped = list.get(attr::stop_time);
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <chrono>

namespace attrmgr {

class format::utc::argument : public detail::own_bytes<std::int64_t> {
 public:
  template <class V>
  constexpr argument(const V &given) : own_bytes(seconds_of(given)) {}

 private:
  template <class V>
  static constexpr std::int64_t seconds_of(const V &given) {
    static_assert(std::convertible_to<const V &, std::chrono::sys_seconds>,
                  "attrmgr: this attribute holds a time in seconds: give a std::chrono::sys_seconds, or "
                  "std::chrono::floor<std::chrono::seconds>(time) of a finer one");
    const std::chrono::sys_seconds time = given;
    return time.time_since_epoch().count();
  }
};

template <>
struct detail::value_given_by<format::utc> {
  using type = std::chrono::sys_seconds;
};

template <class Time>
bool format::utc::read(std::span<const std::byte> stored, Time &read) {
  std::int64_t seconds = 0;
  const bool loaded = detail::load_exactly(stored, seconds);
  read = Time(std::chrono::seconds(seconds));
  return loaded;
}

template <>
struct detail::reading<std::chrono::sys_seconds> : detail::reading_as<format::utc, AAA_ATTR_FMT_UTC> {};

}  // namespace attrmgr
