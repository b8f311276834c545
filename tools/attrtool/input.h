// What a verb reads: a file, the standard input, or the bytes that a text shows in hexadecimal.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "byte_span.h"

namespace attrtool {

// How a file is to be read.
struct Reading {
  bool hex = false;
  std::uint64_t skipped = 0;  // bytes before the buffer, such as the headers of a packet
};

// The bytes of a file, which may be written to: the file stays as it is. A large file is mapped: the memory of the
// process grows only with what is written.
class Input {
 public:
  explicit Input(std::vector<std::uint8_t> bytes) : owned_(std::move(bytes)), bytes_(owned_) {}
  Input(void *mapped, std::size_t size) : mapped_(mapped), bytes_(static_cast<std::uint8_t *>(mapped), size) {}
  Input(Input &&other) noexcept
      : owned_(std::move(other.owned_)),
        mapped_(std::exchange(other.mapped_, nullptr)),
        bytes_(other.bytes_),
        skipped_(other.skipped_) {}
  Input &operator=(Input &&) = delete;
  ~Input();

  ByteSpan bytes() const { return bytes_.subspan(skipped_); }
  std::span<std::uint8_t> bytes() { return bytes_.subspan(skipped_); }
  std::size_t skipped() const { return skipped_; }
  void skip(std::size_t bytes) { skipped_ = bytes; }

 private:
  std::vector<std::uint8_t> owned_;
  void *mapped_ = nullptr;
  std::span<std::uint8_t> bytes_;
  std::size_t skipped_ = 0;
};

// "-" is the standard input. Throws Failure for a file that cannot be read, Refusal for a text without hexadecimal.
Input read_input(const std::string &path, const Reading &reading);

// The file as messages name it.
std::string shown_name(const std::string &path);

}  // namespace attrtool
