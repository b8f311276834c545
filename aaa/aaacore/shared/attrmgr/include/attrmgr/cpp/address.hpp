// address.hpp: an IPv4 or an IPv6 address, as the attributes of format Address hold one.
#pragma once

#include <arpa/inet.h>
#include <attrmgr/aaa_platform.h>
#include <netinet/in.h>

#include <cstring>
#include <string>
#include <string_view>

namespace attrmgr {
namespace detail {

// Reads the address that the text is; false when it is none of the family.
template <class Address>
bool parse_address(int family, std::string_view text, Address &parsed) {
  char terminated[AAA_IPV6_TEXT_SIZE];
  if (text.size() >= sizeof terminated || text.find('\0') != std::string_view::npos) return false;
  std::memcpy(terminated, text.data(), text.size());
  terminated[text.size()] = '\0';
  return inet_pton(family, terminated, &parsed) == 1;
}

}  // namespace detail

// An IPv4 address, an IPv6 address, or none.
class address {
 public:
  address() = default;  // none
  address(in_addr v4) noexcept { assign(&v4, sizeof v4); }
  address(const in6_addr &v6) noexcept { assign(&v6, sizeof v6); }

  // The address that the text is, of either family; none when it is no address.
  static address parse(std::string_view text) {
    in_addr v4;
    in6_addr v6;
    if (detail::parse_address(AF_INET, text, v4)) return v4;
    if (detail::parse_address(AF_INET6, text, v6)) return v6;
    return {};
  }

  bool is_none() const noexcept { return size_ == 0; }
  bool is_v4() const noexcept { return size_ == sizeof(in_addr); }
  bool is_v6() const noexcept { return size_ == sizeof(in6_addr); }

  // To be asked for when the address is of the family; the unspecified address, 0.0.0.0 or ::, when it is not.
  in_addr v4() const noexcept { return is_v4() ? as<in_addr>() : in_addr{}; }
  in6_addr v6() const noexcept { return is_v6() ? as<in6_addr>() : in6_addr{}; }

  // In network byte order: 4 bytes, or 16, or none.
  const unsigned char *data() const noexcept { return bytes_; }
  std::uint32_t size() const noexcept { return size_; }

  // Takes 4 or 16 bytes in network byte order; false, and nothing taken, for another number.
  bool assign(const void *bytes, std::size_t size) noexcept {
    if (size != sizeof(in_addr) && size != sizeof(in6_addr)) return false;
    std::memcpy(bytes_, bytes, size);
    size_ = static_cast<std::uint32_t>(size);
    return true;
  }

  friend bool operator==(const address &one, const address &other) noexcept {
    return one.size_ == other.size_ && std::memcmp(one.bytes_, other.bytes_, one.size_) == 0;
  }

 private:
  template <class Address>
  Address as() const noexcept {
    Address made;
    std::memcpy(&made, bytes_, sizeof made);
    return made;
  }

  unsigned char bytes_[sizeof(in6_addr)] = {};
  std::uint32_t size_ = 0;
};

// "192.0.2.1", "2001:db8::1" (RFC 5952), and nothing for none.
inline std::string to_string(const address &shown) {
  char text[AAA_IPV6_TEXT_SIZE] = {};
  if (shown.is_v4()) inet_ntop(AF_INET, shown.data(), text, sizeof text);
  if (shown.is_v6()) ipv6_address_to_string(shown.data(), text);
  return text;
}

}  // namespace attrmgr
