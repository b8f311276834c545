#include "aaa_attr/marshal/ipv6_prefix.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <attrmgr/aaa_attr_marshal.h>
#include <attrmgr/aaa_platform.h>

namespace attrmgr {
namespace {

constexpr std::size_t kLengthAt = 1;
constexpr std::size_t kPrefixAt = 2;
constexpr unsigned kLengthMax = 128;
static_assert(kPrefixAt + AAA_IPV6_ADDRESS_SIZE == AAA_IPV6_PREFIX_SIZE);

}  // namespace

Error decode_ipv6_prefix(std::uint8_t *value, std::uint8_t *address, std::uint8_t *prefix_length) {
  if (prefix_length == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  *prefix_length = 0;
  if (value == nullptr || address == nullptr || value[kLengthAt] > kLengthMax) return AAA_ATTR_ERR_BAD_ARG;
  const unsigned bits = value[kLengthAt];
  *prefix_length = static_cast<std::uint8_t>(bits);
  if (bits % 8 != 0) value[kPrefixAt + bits / 8] &= static_cast<std::uint8_t>(0xFF << (8 - bits % 8));
  std::memset(address, 0, AAA_IPV6_ADDRESS_SIZE);
  std::memcpy(address, value + kPrefixAt, (bits + 7) / 8);
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_encode_ipv6_prefix(const std::uint8_t *address, std::int32_t prefix_length,
                                 std::uint8_t *value) noexcept {
  if (address == nullptr || value == nullptr) return;
  value[0] = 0;
  value[kLengthAt] = static_cast<std::uint8_t>(prefix_length & 0xFF);
  std::memcpy(value + kPrefixAt, address, AAA_IPV6_ADDRESS_SIZE);
}

aaa_attr_cerrno aaa_attr_decode_ipv6_prefix(std::uint8_t *value, std::uint8_t *address,
                                            std::uint8_t *prefix_length) noexcept {
  return decode_ipv6_prefix(value, address, prefix_length).code;
}

char *aaa_attr_ipv6_address_to_string(const std::uint8_t *address, char *text) noexcept {
  return ipv6_address_to_string(address, text);
}
