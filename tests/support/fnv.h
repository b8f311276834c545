// A fingerprint of many small facts: 64-bit FNV-1a over the bytes put in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class Fnv {
 public:
  Fnv &put(std::string_view bytes) {
    for (const char byte : bytes) hash_ = (hash_ ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
    return *this;
  }
  Fnv &put(std::uint64_t number) { return put(std::to_string(number)); }
  // Ends a field, a line.
  Fnv &field() { return put(std::string_view("\0", 1)); }
  Fnv &line() { return put("\n"); }

  std::uint64_t hash() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xcbf29ce484222325u;
};
