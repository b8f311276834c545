// list_view.hpp: reading an attribute list that another owns. Small, passed by value, like std::string_view: it must
// not outlive the list, which dies when it is freed, spliced into another or filtered.
#pragma once

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_marshal.h>
#include <attrmgr/cpp/bytes.hpp>
#include <attrmgr/cpp/walk.hpp>

namespace attrmgr {

// A list that another owns, to be read.
class list_view {
 public:
  list_view() = default;  // of no list
  explicit list_view(aaa_attr_list_handle handle) noexcept : handle_(handle) {}

  // For calls of the C interface.
  aaa_attr_list_handle handle() const noexcept { return handle_; }

  // ---- Walking: a forward range of attributes ----

  iterator begin() const { return iterator(detail::cursor_over(handle_)); }
  std::default_sentinel_t end() const noexcept { return {}; }

  // The attributes whose meta has this service and protocol.
  attributes filtered(std::uint32_t service, std::uint32_t protocol) const {
    return attributes(detail::cursor_over(handle_, service, protocol));
  }

  // The values of all attributes of the type.
  template <typed_attribute Attribute>
  values<Attribute> all(Attribute type) const {
    return values<Attribute>(detail::cursor_over(handle_), type);
  }

  // ---- Finding ----

  // The value of the first attribute of the type, or of the n-th, from 0; nothing when there is none. Texts and bytes
  // point into the list. Throws attrmgr::error when the list is gone, or what is stored has a wrong length.
  template <typed_attribute Attribute>
  std::optional<detail::value_of<Attribute>> get(Attribute type) const {
    std::optional<detail::value_of<Attribute>> found;
    detail::check(read(type, found), "read", type);
    return found;
  }
  template <typed_attribute Attribute>
  std::optional<detail::value_of<Attribute>> get(Attribute type, std::uint16_t n) const {
    std::optional<detail::value_of<Attribute>> found;
    detail::check(read(type, found, n), "read", type);
    return found;
  }
  template <typed_attribute Attribute>
  result<std::optional<detail::value_of<Attribute>>> try_get(Attribute type, std::uint16_t n = 0) const {
    std::optional<detail::value_of<Attribute>> found;
    const aaa_attr_cerrno code = n == 0 ? read(type, found) : read(type, found, n);
    if (code != 0) return static_cast<errc>(code);
    return found;
  }

  // The first attribute of the type (a number, or a constant of attr), with its meta; nothing when there is none.
  template <class Attribute = attribute>
  std::optional<Attribute> find(std::uint32_t type) const {
    for (iterator at = begin(); at != end(); ++at)
      if ((*at).type() == type) return *at;
    return std::nullopt;
  }

  bool contains(std::uint32_t type) const noexcept { return aaa_attr_is_present(handle_, type) != 0; }

  // The number of attributes of the type, up to 65,535. How many there are in all tells std::ranges::distance.
  std::uint16_t count(std::uint32_t type) const {
    std::uint16_t number = 0;
    detail::check(aaa_attr_find_attr_type_number(handle_, type, &number), "count", type);
    return number;
  }

  bool empty() const {
    int answer = 0;
    detail::check(is_aaa_attr_list_empty(handle_, &answer), "look into a list");
    return answer != 0;
  }

  // Whether each list holds, for every attribute of the other, one of the same type, value and meta, in any order.
  friend bool operator==(list_view one, list_view other) noexcept {
    return aaa_attr_list_eq(one.handle_, other.handle_) != 0;
  }

  // ---- Bytes ----

  // The list and its sub-lists as a TLV buffer.
  bytes to_tlv() const { return encoded(aaa_attr_list_tlv_to_buffer); }

  // The same as a flat buffer, in the host's byte order; attributes that were removed but not packed away travel too.
  // list_ref::to_flat packs first.
  bytes to_flat_as_it_stands() const { return encoded(aaa_attr_list_to_buffer); }

  // The pieces of the flat buffer where they lie, for a vectored write; they hold until the list changes.
  pieces to_pieces() const {
    aaa_attr_array_entry *entries = nullptr;
    std::uint32_t count = 0;  // 0 has the array allocated
    detail::check(aaa_attr_list_to_array(handle_, &entries, &count), "gather the pieces of a list");
    return {entries, count};
  }

 protected:
  using encoder = aaa_attr_cerrno(aaa_attr_list_handle, void *, std::uint32_t *);

  // Asks for the size, then for the bytes. Two encodings of an unchanged list are of one size.
  bytes encoded(encoder *encode) const {
    std::uint32_t size = 0;
    const aaa_attr_cerrno code = encode(handle_, nullptr, &size);
    if (code != AAA_ATTR_ERR_BAD_FORMAT || size == 0) detail::raise(code, "encode a list");
    bytes buffer(size);
    detail::check(encode(handle_, buffer.data(), &size), "encode a list");
    return buffer;
  }

  aaa_attr_list_handle handle_ = 0;

 private:
  template <class Attribute, class Found, class... Nth>
  aaa_attr_cerrno read(Attribute type, Found &found, Nth... nth) const {
    const void *value = nullptr;
    std::uint32_t length = 0;
    aaa_attr_cerrno code;
    if constexpr (sizeof...(nth) == 0) {
      code = aaa_attr_get(handle_, type, &value, &length);
    } else {
      code = aaa_attr_get_nth(handle_, type, &value, &length, nth...);
    }
    if (code == AAA_ATTR_ERR_NOT_FOUND) return 0;
    if (code != 0) return code;
    if (detail::format_of<Attribute>::read({static_cast<const std::byte *>(value), length}, found.emplace())) return 0;
    found.reset();
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
};

inline bool format::group::read(std::span<const std::byte> stored, list_view &read) {
  aaa_attr_list_handle handle = 0;
  if (!detail::load_exactly(stored, handle)) return false;
  read = list_view(handle);
  return true;
}

}  // namespace attrmgr

// A view by its nature, whose iterators do not need it.
template <>
inline constexpr bool std::ranges::enable_view<attrmgr::list_view> = true;
template <>
inline constexpr bool std::ranges::enable_borrowed_range<attrmgr::list_view> = true;
