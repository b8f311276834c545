// walk.hpp: the walk over the attributes of a list or a flat buffer, as iterators and ranges. An iterator is one of the
// library's cursors, held by value: nothing is taken from the pool, and a copy walks on by itself.
#pragma once

#include <attrmgr/cpp/attribute.hpp>

namespace attrmgr {

// A place in a list or a flat buffer: one of the library's cursors, held by value.
class iterator {
 public:
  using value_type = attribute;
  using reference = attribute;
  using difference_type = std::ptrdiff_t;
  using iterator_concept = std::forward_iterator_tag;
  using iterator_category = std::input_iterator_tag;  // what it points to is made when it is asked for

  class pointer {
   public:
    explicit pointer(const attribute &pointed) : pointed_(pointed) {}
    const attribute *operator->() const { return &pointed_; }

   private:
    attribute pointed_;
  };

  iterator() = default;

  // The first attribute that the cursor has before it.
  explicit iterator(const aaa_cursor &from) : cursor_(from) { ++*this; }

  attribute operator*() const { return {cursor_, type_}; }
  pointer operator->() const { return pointer(**this); }

  iterator &operator++() {
    type_ = aaa_cursor_get_next(&cursor_);
    return *this;
  }
  iterator operator++(int) {
    iterator before = *this;
    ++*this;
    return before;
  }

  friend bool operator==(const iterator &at, std::default_sentinel_t) { return at.type_ == 0; }
  friend bool operator==(const iterator &one, const iterator &other) {
    return one.type_ == other.type_ && (one.type_ == 0 || one.cursor_.record == other.cursor_.record);
  }

 private:
  friend class list_ref;

  aaa_cursor cursor_{};
  std::uint32_t type_ = 0;  // of the attribute on which the cursor stands; 0 at the end
};

namespace detail {

// A cursor before the first attribute of a list. It is reset rather than taken from the pool.
inline aaa_cursor cursor_over(aaa_attr_list_handle list, std::uint32_t service = 0, std::uint32_t protocol = 0) {
  aaa_cursor cursor{};
  cursor.handle = list;
  cursor.filter_service = service;
  cursor.filter_protocol = protocol;
  check(aaa_cursor_reset(&cursor), "walk a list");
  return cursor;
}

}  // namespace detail

// The attributes that a cursor has before it.
class attributes {
 public:
  explicit attributes(const aaa_cursor &from) : from_(from) {}
  iterator begin() const { return iterator(from_); }
  std::default_sentinel_t end() const { return {}; }

 private:
  aaa_cursor from_;
};

// The values of the attributes of one type, in list order: `for (std::string_view route : list.all(attr::route))`.
template <typed_attribute Attribute>
class values {
 public:
  class iterator {
   public:
    using value_type = detail::value_of<Attribute>;
    using difference_type = std::ptrdiff_t;
    using iterator_concept = std::forward_iterator_tag;
    using iterator_category = std::input_iterator_tag;

    iterator() = default;
    iterator(const attrmgr::iterator &at, Attribute type) : at_(at), type_(type) { skip_others(); }

    value_type operator*() const { return (*at_).template value<value_type>(); }
    iterator &operator++() {
      ++at_;
      skip_others();
      return *this;
    }
    iterator operator++(int) {
      iterator before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(const iterator &one, const iterator &other) { return one.at_ == other.at_; }
    friend bool operator==(const iterator &at, std::default_sentinel_t end) { return at.at_ == end; }

   private:
    void skip_others() {
      while (at_ != std::default_sentinel && (*at_).type() != type_) ++at_;
    }
    attrmgr::iterator at_;
    Attribute type_{};
  };

  values(const aaa_cursor &from, Attribute type) : from_(from), type_(type) {}
  iterator begin() const { return iterator(attrmgr::iterator(from_), type_); }
  std::default_sentinel_t end() const { return {}; }

 private:
  aaa_cursor from_;
  Attribute type_;
};

}  // namespace attrmgr
