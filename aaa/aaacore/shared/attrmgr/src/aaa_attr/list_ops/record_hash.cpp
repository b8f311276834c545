#include "aaa_attr/list_ops/record_hash.h"

#include <sys/auxv.h>

#include <atomic>

namespace attrmgr {
namespace {

// 0 until it is first asked for.
constinit std::atomic<std::uint64_t> key{0};

// The kernel gives every process 16 random bytes; an address is random as far as the process is laid out at random.
std::uint64_t make_key() {
  std::uint64_t random[2] = {0, reinterpret_cast<std::uintptr_t>(&random)};
  const auto *bytes = reinterpret_cast<const std::byte *>(getauxval(AT_RANDOM));
  if (bytes != nullptr) std::memcpy(random, bytes, sizeof random);
  const std::uint64_t made = fold(random[0] ^ reinterpret_cast<std::uintptr_t>(&key), random[1] | 1);
  return made != 0 ? made : 1;
}

}  // namespace

std::uint64_t hash_key() {
  const std::uint64_t known = key.load(std::memory_order_relaxed);
  if (known != 0) return known;
  // Where threads come here at once, all use the key of the first.
  std::uint64_t expected = 0;
  const std::uint64_t made = make_key();
  return key.compare_exchange_strong(expected, made, std::memory_order_relaxed) ? made : expected;
}

}  // namespace attrmgr
