// list.hpp: attribute lists to build and to change. list owns its attributes and is moved, not copied; list_ref changes
// a list that another owns, such as the sub-list of a group.
//
// Every operation that can fail throws attrmgr::error; those whose names begin with try_ return a result instead.
#pragma once

#include <attrmgr/cpp/list_view.hpp>

namespace attrmgr {

// A list that another owns, to be changed. Small, passed by value; it must not outlive the list.
class list_ref : public list_view {
 public:
  explicit list_ref(aaa_attr_list_handle handle) noexcept : list_view(handle) {}
  list_ref(list &owner) noexcept;
  list_ref(const list &) = delete;  // a list_view reads it

  // ---- Adding ----
  //
  // The value is what formats.hpp says for the type; it is copied, a list moved. On failure nothing has changed.

  // Adds an attribute after all others. The client type is the producer's, 0 for none.
  template <typed_attribute Attribute>
  void add(Attribute type, detail::argument_of<Attribute> value) {
    detail::check(store<aaa_attr_add>(type, value, nullptr), "add", type);
  }
  template <typed_attribute Attribute>
  void add(Attribute type, detail::argument_of<Attribute> value, const meta &with, std::uint32_t client_type = 0) {
    const aaa_attr_meta carried = detail::to_c(with);
    detail::check(store<aaa_attr_add_v1>(type, value, &carried, client_type), "add", type);
  }
  template <typed_attribute Attribute>
  result<void> try_add(Attribute type, detail::argument_of<Attribute> value) {
    return detail::as_result(store<aaa_attr_add>(type, value, nullptr));
  }
  template <typed_attribute Attribute>
  result<void> try_add(Attribute type, detail::argument_of<Attribute> value, const meta &with,
                       std::uint32_t client_type = 0) {
    const aaa_attr_meta carried = detail::to_c(with);
    return detail::as_result(store<aaa_attr_add_v1>(type, value, &carried, client_type));
  }

  // Replaces the first attribute of the type, or adds one; a sub-list that it held is freed.
  template <typed_attribute Attribute>
  void set(Attribute type, detail::argument_of<Attribute> value) {
    detail::check(store<aaa_attr_add_or_replace>(type, value, nullptr), "set", type);
  }
  template <typed_attribute Attribute>
  void set(Attribute type, detail::argument_of<Attribute> value, const meta &with, std::uint32_t client_type = 0) {
    const aaa_attr_meta carried = detail::to_c(with);
    detail::check(store<aaa_attr_add_or_replace_v2>(type, value, &carried, client_type), "set", type);
  }
  template <typed_attribute Attribute>
  result<void> try_set(Attribute type, detail::argument_of<Attribute> value) {
    return detail::as_result(store<aaa_attr_add_or_replace>(type, value, nullptr));
  }
  template <typed_attribute Attribute>
  result<void> try_set(Attribute type, detail::argument_of<Attribute> value, const meta &with,
                       std::uint32_t client_type = 0) {
    const aaa_attr_meta carried = detail::to_c(with);
    return detail::as_result(store<aaa_attr_add_or_replace_v2>(type, value, &carried, client_type));
  }

  // Adds a group with an empty sub-list and returns it to be filled; this list owns it.
  list_ref add_group(attr::group_attribute type) { return new_group(type, nullptr); }
  list_ref add_group(attr::group_attribute type, const meta &with) {
    const aaa_attr_meta carried = detail::to_c(with);
    return new_group(type, &carried);
  }

  // For types known only while the program runs: the bytes that aaa_attr_add takes, a text without its NUL. Groups are
  // added by add_group_by_number.
  void add_bytes(std::uint32_t type, std::span<const std::byte> value) {
    detail::check(bytes_to_add(type, value, nullptr), "add", type);
  }
  void add_bytes(std::uint32_t type, std::span<const std::byte> value, const meta &with) {
    const aaa_attr_meta carried = detail::to_c(with);
    detail::check(bytes_to_add(type, value, &carried), "add", type);
  }
  result<void> try_add_bytes(std::uint32_t type, std::span<const std::byte> value) {
    return detail::as_result(bytes_to_add(type, value, nullptr));
  }
  result<void> try_add_bytes(std::uint32_t type, std::span<const std::byte> value, const meta &with) {
    const aaa_attr_meta carried = detail::to_c(with);
    return detail::as_result(bytes_to_add(type, value, &carried));
  }
  list_ref add_group_by_number(std::uint32_t type) { return new_group(type, nullptr); }
  list_ref add_group_by_number(std::uint32_t type, const meta &with) {
    const aaa_attr_meta carried = detail::to_c(with);
    return new_group(type, &carried);
  }

  // Adds a copy of an attribute of another list or of a buffer, a group with a copy of its sub-list.
  void add(const attribute &other);  // below

  // ---- Groups ----

  // The sub-list of the first group of the type, to be changed; nothing when there is none.
  template <class List = list_ref, std::same_as<attr::group_attribute> Group>
  std::optional<List> group(Group type) {
    const auto found = get(type);
    if (!found) return std::nullopt;
    return List(found->handle());
  }

  // Takes the first group of the type out of this list; nothing when there is none.
  template <class List = list, std::same_as<attr::group_attribute> Group>
  std::optional<List> take(Group type) {
    const auto found = get(type);
    if (!found) return std::nullopt;
    const aaa_attr_list_handle sub_list = found->handle();
    detail::check(aaa_attr_remove_on_match(handle_, type, &sub_list, sizeof sub_list), "take", type);
    return List::adopt(sub_list);
  }

  // ---- Removing: what is not there needs no removing ----

  // Every attribute of the type, with its sub-list.
  void remove(std::uint32_t type) { detail::check(aaa_attr_remove(handle_, type), "remove", type); }

  // Every attribute of the type with this value.
  template <typed_attribute Attribute>
  void remove(Attribute type, detail::argument_of<Attribute> value) {
    static_assert(!std::same_as<Attribute, attr::group_attribute>,
                  "attrmgr: a group is taken out of its list by take, which hands the sub-list over");
    detail::check(value.code(), "remove", type);
    detail::check(aaa_attr_remove_on_match(handle_, type, value.data(), value.size()), "remove", type);
  }

  // Every attribute for which the predicate returns true, with its sub-list.
  template <class Predicate>
  void remove_if(Predicate predicate) {
    for (iterator at = begin(); at != end(); ++at)
      if (const attribute seen = *at; predicate(seen)) {
        const list_view sub_list = seen.has_group() ? seen.value<list_view>() : list_view();
        aaa_cursor_remove(&at.cursor_);
        aaa_attr_list_free(sub_list.handle());  // the handle of no list: nothing happens
      }
  }

  // Every attribute whose type the other list has, with its sub-list.
  void remove_types_of(list_view other) {
    detail::check(aaa_attr_list_remove_list(handle_, other.handle()), "remove the types of a list");
  }
  // Every attribute of which the other list has one of the same type and value. Groups stay: no sub-list is in both.
  void remove_values_of(list_view other) {
    detail::check(aaa_attr_list_remove_list_on_match(handle_, other.handle()), "remove the values of a list");
  }

  // Gives the space of removed attributes back. Views of attributes, texts and bytes end.
  void pack() {
    std::uint32_t size = 0;
    detail::check(aaa_attr_list_buffer_coalesce_and_get_len(handle_, &size), "pack a list");
  }

  // ---- Combining: the other list stays as it is, groups are copied ----

  // Adds every attribute of the other list.
  void append(list_view other) { detail::check(aaa_attr_list_append_list(handle_, other.handle()), "append a list"); }
  // Adds them as set does: those that are there already are replaced.
  void merge(list_view other) {
    detail::check(aaa_attr_list_merge_with_replace(handle_, other.handle()), "merge a list");
  }
  // Removes every attribute whose type the other list has, then adds all of the other list.
  void replace_types_of(list_view other) {
    detail::check(aaa_attr_list_replace_and_add(handle_, other.handle()), "replace by a list");
  }
  // Adds the other list's attributes of one type.
  void append(list_view other, std::uint32_t type) {
    detail::check(aaa_attr_list_copy_by_type(other.handle(), handle_, type), "append", type);
  }
  // Moves all attributes of the other list to the end of this one, without a copy. On failure the other list stays.
  void splice(list &&other);

  // Stamps the attributes with a producer client type, 1 to 23; init leaves those that have one.
  void set_producer_client_type(std::uint32_t client_type) {
    detail::check(aaa_attr_list_set_producer_client_type(handle_, client_type), "stamp a list");
  }
  void init_producer_client_type(std::uint32_t client_type) {
    detail::check(aaa_attr_list_init_producer_client_type(handle_, client_type), "stamp a list");
  }

  // ---- Bytes ----

  // The list and its sub-lists as a flat buffer, in the host's byte order. Packs the list first.
  bytes to_flat() { return encoded(aaa_attr_list_to_buffer_v1); }

  // The same into memory of the caller's; returns the part that was written. Throws attrmgr::error (bad_format) when it
  // does not fit, nothing written then. flat_size tells how much it takes, and packs the list too.
  std::span<std::byte> to_flat(std::span<std::byte> memory) {
    std::uint32_t size = detail::length_of(memory.size());
    detail::check(aaa_attr_list_to_buffer_v1(handle_, memory.data(), &size), "encode a list");
    return {memory.data(), size};
  }
  std::size_t flat_size() {
    std::uint32_t size = 0;
    detail::check(aaa_attr_list_buffer_coalesce_and_get_len(handle_, &size), "measure a list");
    return size;
  }

 private:
  // kAdd is one of the C calls of adding; the last arguments are what it takes after the value.
  template <auto kAdd, class Attribute, class Argument, class... Rest>
  aaa_attr_cerrno store(Attribute type, const Argument &value, Rest... rest) {
    if (value.code() != 0) return value.code();
    if constexpr (std::same_as<Attribute, attr::group_attribute>)
      if (value.names(handle_)) return AAA_ATTR_ERR_BAD_ARG;  // a list that owned itself would never be freed
    const aaa_attr_cerrno code = kAdd(handle_, type, value.data(), value.size(), rest...);
    if (code == 0) value.added();
    return code;
  }

  // A group's bytes are a handle, which no caller can vouch for.
  aaa_attr_cerrno bytes_to_add(std::uint32_t type, std::span<const std::byte> value, const aaa_attr_meta *with) {
    if (aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED) return AAA_ATTR_ERR_BAD_ARG;
    return aaa_attr_add(handle_, type, value.data(), detail::length_of(value.size()), with);
  }

  list_ref new_group(std::uint32_t type, const aaa_attr_meta *with) {
    aaa_attr_list_handle sub_list = 0;
    detail::check(aaa_attr_add_group_list(handle_, &sub_list, type, with), "add", type);
    return list_ref(sub_list);
  }
};

// A list that owns its attributes, and frees them at the end of its scope.
class list : public list_ref {
 public:
  // An empty list.
  list() : list_ref(aaa_attr_list_handle{0}) { detail::check(aaa_attr_list_alloc(&handle_), "make a list"); }
  template <class List = list>
  static result<List> try_make() {
    aaa_attr_list_handle made = 0;
    return made_list<List>(aaa_attr_list_alloc(&made), made);
  }

  list(list &&other) noexcept : list_ref(other.release()) {}
  list &operator=(list &&other) noexcept {
    if (this != &other) {
      aaa_attr_list_free(handle_);
      handle_ = other.release();
    }
    return *this;
  }
  list(const list &) = delete;  // copy() says it aloud
  list &operator=(const list &) = delete;
  ~list() { aaa_attr_list_free(handle_); }  // handle 0 names no list: nothing happens

  // Takes a list over from the C interface, and gives it back to be freed there.
  static list adopt(aaa_attr_list_handle handle) noexcept { return list(handle); }
  [[nodiscard]] aaa_attr_list_handle release() noexcept { return std::exchange(handle_, 0); }

  // A deep copy.
  static list copy_of(list_view source) {
    aaa_attr_list_handle made = 0;
    detail::check(aaa_attr_list_copy(source.handle(), &made), "copy a list");
    return list(made);
  }
  list copy() const { return copy_of(*this); }

  // The list that a flat or TLV buffer holds; its first byte tells which it is. The bytes need not be trusted.
  static list from_bytes(std::span<const std::byte> buffer) {
    aaa_attr_list_handle made = 0;
    detail::check(decode(buffer, &made), "decode a buffer");
    return list(made);
  }
  template <class List = list>
  static result<List> try_from_bytes(std::span<const std::byte> buffer) {
    aaa_attr_list_handle made = 0;
    const aaa_attr_cerrno code = decode(buffer, &made);
    return made_list<List>(code, made);
  }

  // Keeps the attributes of these types, up to 255, and drops all others. The list is rebuilt: list_refs to it end.
  template <class... Types>
  requires(std::convertible_to<Types, std::uint32_t> &&...) void keep(Types... types) {
    static_assert(sizeof...(types) < 256, "attrmgr: a list is filtered by up to 255 types");
    const std::uint32_t numbers[] = {types..., 0};
    detail::check(aaa_attr_filter_on_type(&handle_, numbers, sizeof...(types)), "filter a list");
  }

 private:
  explicit list(aaa_attr_list_handle handle) noexcept : list_ref(handle) {}

  static aaa_attr_cerrno decode(std::span<const std::byte> buffer, aaa_attr_list_handle *made) {
    if (buffer.size() != detail::length_of(buffer.size())) return AAA_ATTR_ERR_BAD_ARG;
    return aaa_attr_buffer_to_list(buffer.data(), detail::length_of(buffer.size()), made);
  }
  template <class List>
  static result<List> made_list(aaa_attr_cerrno code, const aaa_attr_list_handle &made) {
    if (code != 0) return static_cast<errc>(code);
    return List(made);
  }
};

inline list_ref::list_ref(list &owner) noexcept : list_view(owner.handle()) {}

inline void list_ref::splice(list &&other) {
  detail::check(aaa_attr_list_merge_list(handle_, other.handle()), "splice a list");
  static_cast<void>(other.release());
}

// The C call copies the handle of a sub-list as it is, which would then have two owners: a copy takes its place.
inline void list_ref::add(const attribute &other) {
  const aaa_cursor at = other.cursor();
  if (other.has_group()) {
    list copied = list::copy_of(other.value<list_view>());
    const aaa_attr_list_handle handle = copied.handle();
    detail::check(aaa_attr_add_v1(handle_, other.type(), &handle, sizeof handle, aaa_cursor_get_meta(&at),
                                  other.producer_client_type()),
                  "add", other.type());
    static_cast<void>(copied.release());
  } else {
    detail::check(aaa_cursor_list_add_attr(handle_, &at), "add", other.type());
  }
}

inline format::group::argument::argument(list &&given) : given_(&given), handle_(given.handle()) {}
inline void format::group::argument::added() const { static_cast<void>(given_->release()); }

}  // namespace attrmgr
