// buffer.hpp: flat buffers read where they lie. flat_view is the one way to do so, and checking a buffer is the one way
// to a flat_view: bytes that nobody looked at cannot be read. fault_of says why a buffer is refused.
#pragma once

#include <attrmgr/aaa_attr_fault.h>
#include <attrmgr/cpp/list.hpp>

namespace attrmgr {

// The rule that a buffer breaks, and the byte.
struct buffer_fault {
  errc code;             // what the reader answers
  aaa_attr_rule rule;    // AAA_ATTR_RULE_NONE where there was nothing to read
  std::uint32_t offset;  // in the buffer, its marker included

  // "a block must begin with the magic number 0xABCD"
  const char *sentence() const noexcept { return aaa_attr_rule_text(static_cast<std::uint32_t>(rule)); }
};

// Why the reader refuses the buffer; nothing when it does not. Never throws.
inline std::optional<buffer_fault> fault_of(std::span<const std::byte> buffer,
                                            aaa_attr_reader reader = AAA_ATTR_READER_LIST) noexcept {
  if (buffer.size() != detail::length_of(buffer.size())) return buffer_fault{errc::bad_arg, AAA_ATTR_RULE_NONE, 0};
  aaa_attr_fault fault{};
  const aaa_attr_cerrno code = aaa_attr_buffer_fault(buffer.data(), detail::length_of(buffer.size()), reader, &fault);
  if (code == 0) return std::nullopt;
  return buffer_fault{static_cast<errc>(code), static_cast<aaa_attr_rule>(fault.rule), fault.offset};
}

// The outer list of a checked flat buffer, a forward range of attributes. A view: the bytes have to stay, unchanged.
class flat_view {
 public:
  // Throws attrmgr::error: bad_arg (not marked as a flat buffer, a TLV buffer for instance), bad_buffer.
  static flat_view check(std::span<const std::byte> buffer) {
    aaa_cursor first{};
    detail::check(open(buffer, &first), "read a buffer in place");
    return flat_view(buffer, first);
  }
  template <class View = flat_view>
  static result<View> try_check(std::span<const std::byte> buffer) {
    aaa_cursor first{};
    if (const aaa_attr_cerrno code = open(buffer, &first)) return static_cast<errc>(code);
    return View(buffer, first);
  }

  iterator begin() const { return iterator(first_); }
  std::default_sentinel_t end() const noexcept { return {}; }

  // The first attribute of the type, a number or a constant of attr; nothing when there is none.
  template <class Attribute = attribute>
  std::optional<Attribute> find(std::uint32_t type) const {
    for (iterator at = begin(); at != end(); ++at)
      if ((*at).type() == type) return *at;
    return std::nullopt;
  }

  // The value of the first attribute of the type; nothing when there is none. Groups are read from a list: to_list.
  template <typed_attribute Attribute>
  std::optional<detail::value_of<Attribute>> get(Attribute type) const {
    static_assert(
        !std::same_as<Attribute, attr::group_attribute>,
        "attrmgr: a group cannot be read inside a buffer, whose handles mean nothing: make a list with to_list");
    for (iterator at = begin(); at != end(); ++at)
      if ((*at).type() == type) return (*at).value(type);
    return std::nullopt;
  }

  list to_list() const { return list::from_bytes(buffer_); }
  std::span<const std::byte> bytes() const noexcept { return buffer_; }

 private:
  flat_view(std::span<const std::byte> buffer, const aaa_cursor &first) : buffer_(buffer), first_(first) {}

  // Checks the bytes and borrows a cursor from the pool for its state, which is a value.
  static aaa_attr_cerrno open(std::span<const std::byte> buffer, aaa_cursor *first) {
    aaa_attr_cerrno code = 0;
    if (buffer.size() != detail::length_of(buffer.size())) return AAA_ATTR_ERR_BAD_ARG;
    if (is_aaa_attr_buffer_valid(buffer.data(), detail::length_of(buffer.size()), &code) == 0) return code;
    aaa_cursor *pooled = nullptr;
    code = aaa_cursor_alloc_from_buffer(buffer.data(), &pooled);
    if (code == 0) *first = *pooled;
    aaa_cursor_free(pooled);
    return code;
  }

  std::span<const std::byte> buffer_;
  aaa_cursor first_;
};

}  // namespace attrmgr
