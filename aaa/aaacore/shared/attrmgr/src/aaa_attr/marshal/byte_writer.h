// Writing into a space of known size: the one place that compares with what is left of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace attrmgr {

class ByteWriter {
 public:
  ByteWriter(std::byte *at, std::uint64_t left) : at_(at), left_(left) {}

  // Space for the next size bytes, to be filled in by the caller; null when there is less.
  std::byte *take(std::uint64_t size) {
    if (size > left_) return nullptr;
    std::byte *taken = at_;
    at_ += size;
    left_ -= size;
    return taken;
  }

  // Copies the bytes; false when there is no space for them.
  [[nodiscard]] bool put(const void *bytes, std::uint64_t size) {
    std::byte *to = take(size);
    if (to != nullptr) std::memcpy(to, bytes, static_cast<std::size_t>(size));
    return to != nullptr;
  }

  std::byte *at() const { return at_; }
  std::uint64_t left() const { return left_; }

 private:
  std::byte *at_;
  std::uint64_t left_;
};

}  // namespace attrmgr
