// bytes.hpp: what the encodings of a list hand out. A contiguous range of std::byte that owns its memory and is moved,
// not copied; a std::span sees it, and a std::vector<std::byte> takes a copy: `std::vector<std::byte> kept =
// list.to_flat()`. A type of its own, because it is not filled with zeros first and needs no <vector>, which takes a
// compiler long.
#pragma once

#include <attrmgr/aaa_attr_marshal.h>
#include <attrmgr/cpp/error.hpp>

#include <concepts>
#include <cstddef>
#include <cstdlib>
#include <span>
#include <utility>

namespace attrmgr {

namespace detail {

template <class Container>
concept owns_bytes = std::same_as<typename Container::value_type, std::byte> &&
    std::constructible_from<Container, const std::byte *, const std::byte *,
                            const typename Container::allocator_type &>;

}  // namespace detail

// Bytes that own their memory: what an encoding hands out.
class bytes {
 public:
  using value_type = std::byte;

  bytes() = default;
  explicit bytes(std::size_t size) : data_(static_cast<std::byte *>(std::malloc(size))), size_(size) {
    if (data_ == nullptr) detail::raise(AAA_ATTR_ERR_NO_MEMORY, "make a buffer");
  }
  bytes(bytes &&other) noexcept : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  bytes &operator=(bytes &&other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~bytes() { std::free(data_); }

  std::byte *data() noexcept { return data_; }
  const std::byte *data() const noexcept { return data_; }
  std::size_t size() const noexcept { return size_; }
  std::byte *begin() noexcept { return data_; }
  std::byte *end() noexcept { return data_ + size_; }
  const std::byte *begin() const noexcept { return data_; }
  const std::byte *end() const noexcept { return data_ + size_; }

  // A copy in a container that owns its elements, such as std::vector<std::byte>.
  template <detail::owns_bytes Container>
  operator Container() const {
    return Container(begin(), end());
  }

 private:
  std::byte *data_ = nullptr;
  std::size_t size_ = 0;
};

// The pieces of a flat buffer where they lie in a list, a range of std::span<const std::byte>; it owns the array that
// describes them, not the bytes.
class pieces {
 public:
  class iterator {
   public:
    using value_type = std::span<const std::byte>;
    using difference_type = std::ptrdiff_t;

    iterator() = default;
    explicit iterator(const aaa_attr_array_entry *at) : at_(at) {}
    value_type operator*() const {
      return {static_cast<const std::byte *>(at_->base), static_cast<std::size_t>(at_->length)};
    }
    iterator &operator++() {
      ++at_;
      return *this;
    }
    iterator operator++(int) { return iterator(at_++); }
    friend bool operator==(const iterator &one, const iterator &other) = default;

   private:
    const aaa_attr_array_entry *at_ = nullptr;
  };

  // Owns the array, which comes from malloc, from now on.
  pieces(aaa_attr_array_entry *entries, std::size_t count) noexcept : entries_(entries), count_(count) {}
  pieces(pieces &&other) noexcept
      : entries_(std::exchange(other.entries_, nullptr)), count_(std::exchange(other.count_, 0)) {}
  pieces &operator=(pieces &&) = delete;
  ~pieces() { std::free(entries_); }

  iterator begin() const { return iterator(entries_); }
  iterator end() const { return iterator(entries_ + count_); }
  std::size_t size() const noexcept { return count_; }

 private:
  aaa_attr_array_entry *entries_;
  std::size_t count_;
};

}  // namespace attrmgr
