// formats.hpp: what a value of each format is in C++: what an attribute of the format takes when it is added
// (`argument`), and what it gives when it is read (`value`). A value that does not suit its attribute does not compile,
// and the compiler says which ones do.
//
//   format         takes                                          gives
//   text           text                                           std::string_view, into the list
//   binary         bytes, or the bytes of a text                  std::span<const std::byte>, into the list
//   number         integers of up to 32 bits, not negative        std::uint32_t
//   number64       integers, not negative                         std::uint64_t
//   enumeration    a constant of the enumeration, or a name       the enumeration
//   ipv4, ipv6     in_addr, in6_addr, text                        in_addr, in6_addr
//   ip             either, attrmgr::address, text                 attrmgr::address
//   boolean        bool                                           bool
//   utc            std::chrono::sys_seconds                       std::chrono::sys_seconds    with <attrmgr/chrono.hpp>
//   group          an attrmgr::list, moved in                     list_view, list_ref
#pragma once

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_names.h>
#include <attrmgr/cpp/address.hpp>
#include <attrmgr/cpp/value_names.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>

namespace attrmgr {

class list;
class list_view;

namespace detail {

template <class>
inline constexpr bool never = false;

template <class V>
concept text_like = std::convertible_to<const V &, std::string_view> && !std::same_as<V, std::nullptr_t>;

template <class V>
concept plain_integer =
    std::integral<V> && !std::same_as<V, bool> && !std::same_as<V, char> && !std::same_as<V, wchar_t> &&
    !std::same_as<V, char8_t> && !std::same_as<V, char16_t> && !std::same_as<V, char32_t>;

// A null pointer is no text at all, which the library refuses.
template <text_like V>
constexpr std::string_view as_text(const V &text) {
  if constexpr (std::is_pointer_v<V>)
    if (text == nullptr) return {};
  return text;
}

// The library's lengths have 32 bits; it refuses the longest one as too long.
constexpr std::uint32_t length_of(std::size_t size) {
  constexpr std::uint32_t longest = std::numeric_limits<std::uint32_t>::max();
  return size < longest ? static_cast<std::uint32_t>(size) : longest;
}

// Bytes that lie elsewhere.
class outside_bytes {
 public:
  constexpr outside_bytes(const void *data, std::size_t size) : data_(data), size_(length_of(size)) {}
  const void *data() const { return data_; }
  std::uint32_t size() const { return size_; }
  aaa_attr_cerrno code() const { return 0; }
  void added() const {}

 private:
  const void *data_;
  std::uint32_t size_;
};

// A value of fixed size, or the reason why there is none.
template <class T>
class own_bytes {
 public:
  constexpr own_bytes(T value) : value_(value) {}
  static constexpr own_bytes refused(aaa_attr_cerrno code) {
    own_bytes none{T{}};
    none.code_ = code;
    return none;
  }
  const void *data() const { return &value_; }
  std::uint32_t size() const { return sizeof value_; }
  aaa_attr_cerrno code() const { return code_; }
  void added() const {}

 private:
  T value_;
  aaa_attr_cerrno code_ = 0;
};

template <class T, class V>
constexpr own_bytes<T> not_negative(V value) {
  if constexpr (std::is_signed_v<V>)
    if (value < 0) return own_bytes<T>::refused(AAA_ATTR_ERR_BAD_ARG);
  return static_cast<T>(value);
}

template <class Address>
own_bytes<Address> address_in(int family, std::string_view text) {
  Address parsed{};
  if (!parse_address(family, text, parsed)) return own_bytes<Address>::refused(AAA_ATTR_ERR_BAD_ARG);
  return parsed;
}

// A value of fixed size out of stored bytes; false when they are of another size.
template <class T>
bool load_exactly(std::span<const std::byte> stored, T &value) {
  if (stored.size() != sizeof(T)) return false;
  std::memcpy(&value, stored.data(), sizeof value);
  return true;
}

// Looked for while compiling; a name that no value has stops the compiler here.
inline void no_value_of_this_enumeration_has_the_name() {}

template <class Enumeration>
consteval Enumeration value_named(std::string_view wanted) {
  std::uint32_t number = 0;
  for (const char *name : names<Enumeration>) {
    if (wanted == name) return static_cast<Enumeration>(number);
    ++number;
  }
  no_value_of_this_enumeration_has_the_name();
  return Enumeration{};
}

// The same while the program runs; AAA_ATTR_ERR_NOT_FOUND for a name that no value has.
inline aaa_attr_cerrno find_value_named(std::uint32_t type, std::string_view wanted, std::uint32_t &value) {
  constexpr std::size_t longest = 128;
  char terminated[longest];
  if (wanted.size() >= longest || wanted.find('\0') != std::string_view::npos) return AAA_ATTR_ERR_NOT_FOUND;
  std::memcpy(terminated, wanted.data(), wanted.size());
  terminated[wanted.size()] = '\0';
  return aaa_attr_get_value_from_enum_name(type, terminated, &value);
}

}  // namespace detail

namespace format {

struct text {
  using value = std::string_view;
  static bool read(std::span<const std::byte> stored, value &read) {
    read = value(reinterpret_cast<const char *>(stored.data()), stored.size());
    return true;
  }

  class argument : public detail::outside_bytes {
   public:
    template <class V>
    constexpr argument(const V &given) : outside_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static constexpr outside_bytes bytes_of(const V &given) {
      static_assert(detail::text_like<V>,
                    "attrmgr: this attribute holds a text: give a literal, a std::string or a std::string_view");
      const std::string_view text = detail::as_text(given);
      return {text.data(), text.size()};
    }
  };
};

struct binary {
  using value = std::span<const std::byte>;
  static bool read(std::span<const std::byte> stored, value &read) {
    read = stored;
    return true;
  }

  class argument : public detail::outside_bytes {
   public:
    template <class V>
    constexpr argument(const V &given) : outside_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static constexpr outside_bytes bytes_of(const V &given) {
      if constexpr (detail::text_like<V>) {
        const std::string_view text = detail::as_text(given);
        return {text.data(), text.size()};
      } else if constexpr (std::convertible_to<const V &, std::span<const unsigned char>>) {
        const std::span<const unsigned char> bytes = given;
        return {bytes.data(), bytes.size()};
      } else {
        static_assert(std::convertible_to<const V &, std::span<const std::byte>>,
                      "attrmgr: this attribute holds bytes: give a span, vector or array of std::byte or of unsigned "
                      "char, or a text");
        const std::span<const std::byte> bytes = given;
        return {bytes.data(), bytes.size()};
      }
    }
  };
};

struct number {
  using value = std::uint32_t;
  static bool read(std::span<const std::byte> stored, value &read) { return detail::load_exactly(stored, read); }

  class argument : public detail::own_bytes<value> {
   public:
    template <class V>
    constexpr argument(const V &given) : own_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static constexpr own_bytes bytes_of(const V &given) {
      static_assert(detail::plain_integer<V> && sizeof(V) <= sizeof(value),
                    "attrmgr: this attribute holds an unsigned 32-bit number: give an integer of up to 32 bits");
      return detail::not_negative<value>(given);
    }
  };
};

struct number64 {
  using value = std::uint64_t;
  static bool read(std::span<const std::byte> stored, value &read) { return detail::load_exactly(stored, read); }

  class argument : public detail::own_bytes<value> {
   public:
    template <class V>
    constexpr argument(const V &given) : own_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static constexpr own_bytes bytes_of(const V &given) {
      static_assert(detail::plain_integer<V> && sizeof(V) <= sizeof(value),
                    "attrmgr: this attribute holds an unsigned 64-bit number: give an integer");
      return detail::not_negative<value>(given);
    }
  };
};

template <class Enumeration>
struct enumeration {
  using value = Enumeration;
  static bool read(std::span<const std::byte> stored, value &read) { return detail::load_exactly(stored, read); }

  class argument {
   public:
    constexpr argument(Enumeration given) : value_(given) {}

    // A name in the text of the program is looked up by the compiler.
    template <std::size_t kSize>
    consteval argument(const char (&name)[kSize]) : value_(detail::value_named<Enumeration>(name)) {}

    // Any other text while the program runs: a name that no value has is AAA_ATTR_ERR_NOT_FOUND.
    template <class V>
    requires(!std::is_array_v<V>) argument(const V &given) : value_{} {
      static_assert(detail::text_like<V>,
                    "attrmgr: this attribute holds a value of its own enumeration: give one of its constants, such as "
                    "AAA_ACCT_STATUS_TYPE_STOP, or a value's name");
      std::uint32_t number = 0;
      code_ = detail::find_value_named(detail::type_of<Enumeration>, detail::as_text(given), number);
      value_ = static_cast<Enumeration>(number);
    }

    const void *data() const { return &value_; }
    std::uint32_t size() const { return sizeof value_; }
    aaa_attr_cerrno code() const { return code_; }
    void added() const {}

   private:
    Enumeration value_;
    aaa_attr_cerrno code_ = 0;
  };
};

struct ipv4 {
  using value = in_addr;
  static bool read(std::span<const std::byte> stored, value &read) { return detail::load_exactly(stored, read); }

  class argument : public detail::own_bytes<value> {
   public:
    template <class V>
    argument(const V &given) : own_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static own_bytes bytes_of(const V &given) {
      static_assert(std::same_as<V, in_addr> || detail::text_like<V>,
                    "attrmgr: this attribute holds an IPv4 address: give an in_addr or a text such as \"192.0.2.1\"; a "
                    "number would leave its byte order open");
      if constexpr (detail::text_like<V>) {
        return detail::address_in<in_addr>(AF_INET, detail::as_text(given));
      } else {
        return value(given);
      }
    }
  };
};

struct ipv6 {
  using value = in6_addr;
  static bool read(std::span<const std::byte> stored, value &read) { return detail::load_exactly(stored, read); }

  class argument : public detail::own_bytes<value> {
   public:
    template <class V>
    argument(const V &given) : own_bytes(bytes_of(given)) {}

   private:
    template <class V>
    static own_bytes bytes_of(const V &given) {
      static_assert(
          std::same_as<V, in6_addr> || detail::text_like<V>,
          "attrmgr: this attribute holds an IPv6 address: give an in6_addr or a text such as \"2001:db8::1\"");
      if constexpr (detail::text_like<V>) {
        return detail::address_in<in6_addr>(AF_INET6, detail::as_text(given));
      } else {
        return value(given);
      }
    }
  };
};

struct ip {
  using value = address;
  static bool read(std::span<const std::byte> stored, value &read) { return read.assign(stored.data(), stored.size()); }

  class argument {
   public:
    template <class V>
    argument(const V &given) : address_(address_of(given)) {}
    const void *data() const { return address_.data(); }
    std::uint32_t size() const { return address_.size(); }
    aaa_attr_cerrno code() const { return address_.is_none() ? AAA_ATTR_ERR_BAD_ARG : 0; }
    void added() const {}

   private:
    template <class V>
    static address address_of(const V &given) {
      static_assert(std::convertible_to<const V &, address> || detail::text_like<V>,
                    "attrmgr: this attribute holds an IPv4 or IPv6 address: give an in_addr, an in6_addr, an "
                    "attrmgr::address or a text");
      if constexpr (detail::text_like<V>) {
        return address::parse(detail::as_text(given));
      } else {
        return given;
      }
    }

    address address_;
  };
};

struct boolean {
  using value = bool;
  static bool read(std::span<const std::byte> stored, value &read) {
    std::uint8_t byte = 0;
    const bool loaded = detail::load_exactly(stored, byte);
    read = byte != 0;
    return loaded;
  }

  class argument : public detail::own_bytes<std::uint8_t> {
   public:
    template <class V>
    constexpr argument(const V &given) : own_bytes(byte_of(given)) {}

   private:
    template <class V>
    static constexpr std::uint8_t byte_of(const V &given) {
      static_assert(std::same_as<V, bool>, "attrmgr: this attribute holds a bool: give true or false");
      return given ? 1 : 0;
    }
  };
};

// Times are left to a header of their own: <chrono> takes a compiler longer than all the rest.
struct utc {
  class argument;  // include <attrmgr/chrono.hpp>, which defines it
  template <class Time>
  static bool read(std::span<const std::byte> stored, Time &read);
};

struct group {
  using value = list_view;
  static bool read(std::span<const std::byte> stored, list_view &read);  // in list_view.hpp

  // Takes the list away from its variable when it has been added, not before.
  class argument {
   public:
    argument(list &&given);  // in list.hpp
    template <class V>
    requires(!std::same_as<std::remove_cvref_t<V>, argument>) argument(V &&) {
      static_assert(detail::never<V>,
                    "attrmgr: this attribute holds a list and owns it: give one by std::move, or a copy() of it");
    }
    const void *data() const { return &handle_; }
    std::uint32_t size() const { return sizeof handle_; }
    aaa_attr_cerrno code() const { return handle_ != 0 ? 0 : AAA_ATTR_ERR_BAD_LIST; }
    void added() const;  // in list.hpp
    bool names(aaa_attr_list_handle list) const { return handle_ == list; }

   private:
    list *given_ = nullptr;
    aaa_attr_list_handle handle_ = 0;
  };
};

}  // namespace format

namespace detail {

// The format of the attributes whose constants have this type: attributes.hpp has a specialisation for each.
template <class Attribute>
struct format_named_by;

// What an attribute of the format gives when it is read.
template <class Format>
struct value_given_by {
  using type = typename Format::value;
};
template <>
struct value_given_by<format::utc>;  // include <attrmgr/chrono.hpp>, which defines it

template <class Attribute>
using format_of = typename format_named_by<Attribute>::type;
template <class Attribute>
using argument_of = typename format_of<Attribute>::argument;
template <class Attribute>
using value_of = typename value_given_by<format_of<Attribute>>::type;

}  // namespace detail

// The type of a constant of attr.
template <class T>
concept typed_attribute = requires {
  typename detail::format_named_by<T>::type;
};

// The name of a value, null for a number that has none; the value that has the name.
template <typed_attribute Attribute>
const char *name_of(Attribute type, detail::value_of<Attribute> value) {
  return aaa_attr_get_enum_name_from_type(type, static_cast<std::uint32_t>(value));
}
template <typed_attribute Attribute>
std::optional<detail::value_of<Attribute>> value_named(Attribute type, std::string_view name) {
  std::uint32_t number = 0;
  if (detail::find_value_named(type, name, number) != 0) return std::nullopt;
  return static_cast<detail::value_of<Attribute>>(number);
}

}  // namespace attrmgr
