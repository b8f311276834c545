// attribute.hpp: an attribute of a list or of a flat buffer, as one meets it on a walk. A view: it holds until the list
// is packed, filtered or freed (the buffer goes), as do the texts and bytes read from it.
#pragma once

#include <attrmgr/aaa_cursor.h>
#include <attrmgr/cpp/attributes.hpp>
#include <attrmgr/cpp/error.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace attrmgr {

// What an attribute may carry beside its value; aaa_attr_meta with zeros to begin with:
// `list.add(attr::addr, "192.0.2.1", {.service = AAA_SERVICE_PPP, .protocol = AAA_PROTOCOL_IP})`.
struct meta {
  std::uint8_t service = 0;
  std::uint8_t protocol = 0;
  std::uint16_t tag = 0;
  std::uint16_t flags = 0;  // AAA_ATTR_META_MANDATORY
  std::uint16_t client = 0;

  friend bool operator==(const meta &, const meta &) = default;
};

namespace detail {

inline aaa_attr_meta to_c(const meta &given) noexcept {
  return {given.service, given.protocol, given.tag, given.flags, given.client};
}

// How attribute::value<T>() reads a T out of an attribute; false when the attribute does not hold one.
template <class T>
struct reading {
  template <class Attribute>
  static bool of(const Attribute &, T &) {
    static_assert(never<T>, "attrmgr: no attribute gives a value of this type");
    return false;
  }
};

// As values of a format are read, where the attribute's format is one of these.
template <class Format, std::uint32_t... kFormats>
struct reading_as {
  template <class Attribute, class T>
  static bool of(const Attribute &from, T &read) {
    const std::uint32_t format = from.format();
    return ((format == kFormats) || ...) && Format::read(from.bytes(), read);
  }
};

template <>
struct reading<std::string_view> : reading_as<format::text, AAA_ATTR_FMT_STRING> {};
template <>
struct reading<std::uint32_t> : reading_as<format::number, AAA_ATTR_FMT_ULONG, AAA_ATTR_FMT_ENUM> {};
template <>
struct reading<std::uint64_t> : reading_as<format::number64, AAA_ATTR_FMT_ULONGLONG> {};
template <>
struct reading<bool> : reading_as<format::boolean, AAA_ATTR_FMT_BOOLEAN> {};
template <>
struct reading<in_addr> : reading_as<format::ipv4, AAA_ATTR_FMT_IPV4, AAA_ATTR_FMT_ADDRESS> {};
template <>
struct reading<in6_addr> : reading_as<format::ipv6, AAA_ATTR_FMT_IPV6, AAA_ATTR_FMT_ADDRESS> {};
template <>
struct reading<address> : reading_as<format::ip, AAA_ATTR_FMT_IPV4, AAA_ATTR_FMT_IPV6, AAA_ATTR_FMT_ADDRESS> {};

template <>
struct reading<std::span<const std::byte>> {
  template <class Attribute>
  static bool of(const Attribute &from, std::span<const std::byte> &read) {
    read = from.bytes();
    return true;
  }
};

template <class Enumeration>
requires(type_of<Enumeration> != 0) struct reading<Enumeration> {
  template <class Attribute>
  static bool of(const Attribute &from, Enumeration &read) {
    return from.type() == type_of<Enumeration> && load_exactly(from.bytes(), read);
  }
};

template <>
struct reading<list_view> {
  template <class Attribute>
  static bool of(const Attribute &from, list_view &read) {
    if (!from.has_group()) return false;
    return format::group::read(from.bytes(), read);
  }
};

}  // namespace detail

// An attribute met on a walk: a view, passed by value.
//
// Functions that hand out a std::optional are templates here and in the other headers, with a parameter that nobody
// gives: so a compiler makes the class for those who call them only.
class attribute {
 public:
  std::uint32_t type() const noexcept { return type_; }
  const char *name() const noexcept { return aaa_attr_get_name_from_type(type_); }
  std::uint32_t format() const noexcept { return aaa_attr_get_format_from_type(type_); }  // AAA_ATTR_FMT_*

  // Nothing for an attribute that carries none.
  template <class Meta = attrmgr::meta>
  std::optional<Meta> meta() const noexcept {
    const aaa_cursor at = cursor();
    const aaa_attr_meta *stored = aaa_cursor_get_meta(&at);
    if (stored == nullptr) return std::nullopt;
    return Meta{stored->service, stored->protocol, stored->tag, stored->flags, stored->client};
  }
  std::uint32_t producer_client_type() const noexcept {
    const aaa_cursor at = cursor();
    return aaa_cursor_get_producer_client_type(&at);
  }

  // The stored bytes, a text without its NUL.
  std::span<const std::byte> bytes() const noexcept {
    const aaa_cursor at = cursor();
    std::uint32_t length = 0;
    const void *data = aaa_cursor_get(&at, &length);
    return {static_cast<const std::byte *>(data), length};
  }

  // The value as a T: std::string_view, std::uint32_t, std::uint64_t, bool, in_addr, in6_addr, attrmgr::address,
  // list_view, an enumeration, or std::span<const std::byte>. Throws attrmgr::error (bad_format) when the attribute
  // does not hold a T.
  template <class T>
  T value() const {
    T read{};
    if (!detail::reading<T>::of(*this, read)) [[unlikely]]
      detail::raise(AAA_ATTR_ERR_BAD_FORMAT, "read", type_);
    return read;
  }
  template <class T>
  result<T> try_value() const {
    T read{};
    if (!detail::reading<T>::of(*this, read)) return errc::bad_format;
    return read;
  }

  // The value of an attribute of this type; nothing for an attribute of another type. Throws attrmgr::error
  // (bad_format) when what is stored has a wrong length.
  template <typed_attribute Attribute>
  std::optional<detail::value_of<Attribute>> value(Attribute type) const {
    if (type_ != type) return std::nullopt;
    return value<detail::value_of<Attribute>>();
  }

  // The name of an enumerated value; null where the value has none, and for other formats.
  const char *value_name() const {
    std::uint32_t number = 0;
    return detail::load_exactly(bytes(), number) ? aaa_attr_get_enum_name_from_type(type_, number) : nullptr;
  }

  // Whether there is a sub-list to walk: for a group, but not inside a flat buffer, whose handles mean nothing.
  bool has_group() const noexcept { return format() == AAA_ATTR_FMT_GROUPED && (flags_ & AAA_CURSOR_BUFFER) == 0; }
  // The sub-list, a range of attributes; nothing where there is none.
  template <class List = list_view>
  std::optional<List> group() const {
    if (!has_group()) return std::nullopt;
    return value<List>();
  }

 private:
  friend class iterator;
  friend class list_ref;

  attribute(const aaa_cursor &at, std::uint32_t type) : record_(at.record), type_(type), flags_(at.flags) {}

  // A cursor that stands on the attribute, as far as reading goes.
  aaa_cursor cursor() const noexcept {
    return {.block = nullptr,
            .handle = 0,
            .record = record_,
            .left = 0,
            .filter_service = 0,
            .filter_protocol = 0,
            .flags = flags_};
  }

  aaa_attr_record *record_;
  std::uint32_t type_;
  std::uint16_t flags_;
};

}  // namespace attrmgr
