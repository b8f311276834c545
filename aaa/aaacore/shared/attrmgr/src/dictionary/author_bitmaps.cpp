// The exported authorization bitmaps, computed from the service and protocol names of author_bitmaps.def.
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include <attrmgr/aaa_attr_values.h>

namespace {

namespace names {
#define VALUES(table, ...) [[maybe_unused]] constexpr const char *table[] = {__VA_ARGS__};
#include "dictionary/value_names.def"
#undef VALUES
}  // namespace names

constexpr std::size_t kServices = AAA_AUTHOR_SERVICES;
constexpr std::size_t kProtocols = AAA_AUTHOR_PROTOCOLS;
static_assert(std::size(names::service) == kServices);
static_assert(std::size(names::protocol) == kProtocols);
static_assert(kServices * kProtocols <= std::size_t{8} * AAA_AUTHOR_BITMAP_SIZE);

template <std::size_t N>
constexpr std::size_t value_of(const char *const (&table)[N], std::string_view name) {
  for (std::size_t value = 0; value < N; ++value)
    if (table[value] == name) return value;
  __builtin_unreachable();  // a name that is not in the table stops the build here
}

// The protocols granted for one service.
struct Grant {
  std::size_t service;
  std::array<bool, kProtocols> protocols;
};

constexpr Grant all(std::string_view service) {
  Grant grant{value_of(names::service, service), {}};
  grant.protocols.fill(true);
  return grant;
}

template <class... Protocol>
constexpr Grant only(std::string_view service, Protocol... protocol) {
  Grant grant{value_of(names::service, service), {}};
  ((grant.protocols[value_of(names::protocol, protocol)] = true), ...);
  return grant;
}

template <class... Grants>
constexpr aaa_author_bitmap bitmap_of(Grants... grants) {
  aaa_author_bitmap bitmap{};
  for (const Grant &grant : {all("none"), grants...})
    for (std::size_t protocol = 0; protocol < kProtocols; ++protocol) {
      const std::size_t bit = grant.service * kProtocols + protocol;
      if (grant.protocols[protocol]) bitmap.bits[bit / 8] |= static_cast<std::uint8_t>(1u << bit % 8);
    }
  return bitmap;
}

}  // namespace

constinit const aaa_author_bitmap aaa_author_flags[AAA_AUTHOR_TYPES] = {
#define AUTHOR(type, name, ...) bitmap_of(__VA_ARGS__),
#include "dictionary/author_bitmaps.def"
#undef AUTHOR
};
