// What the tests build lists and bytes with, over the public interface.
#pragma once

#include <attrmgr/attrmgr.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "support/byte_order.h"

// Types of the dictionary, one of each format, that many tests use.
namespace type {
inline constexpr std::uint32_t kUlong = 2;           // ipv4-icmp-unreachable
inline constexpr std::uint32_t kEnum = 3;            // Acct-Status-Type
inline constexpr std::uint32_t kIpv4 = 7;            // addr
inline constexpr std::uint32_t kIpv6 = 11;           // addrv6
inline constexpr std::uint32_t kBoolean = 25;        // force-local-chap
inline constexpr std::uint32_t kBinary = 30;         // user-data
inline constexpr std::uint32_t kSecret = 145;        // password
inline constexpr std::uint32_t kUtc = 186;           // start_time
inline constexpr std::uint32_t kString = 197;        // username
inline constexpr std::uint32_t kPrefix = 224;        // prefix
inline constexpr std::uint32_t kClientId = 258;      // dhcp-client-id
inline constexpr std::uint32_t kLi = 293;            // intercept-id
inline constexpr std::uint32_t kAddress = 429;       // HOST IP Address
inline constexpr std::uint32_t kGrouped = 444;       // Failed AVP
inline constexpr std::uint32_t kOtherGrouped = 445;  // Experimental result AVP
inline constexpr std::uint32_t kUlonglong = 453;     // Input octets
}  // namespace type

// For what a test prepares and cannot do without: it says where it stopped, and goes no further.
inline void must(aaa_attr_cerrno code, const char *what) {
  if (code == 0) return;
  std::fprintf(stderr, "preparing a test: %s gave %s\n", what, aaa_attr_cerrno_name(code));
  std::abort();
}

// A list that is freed with the scope, unless it is released to a new owner.
class List {
 public:
  List() { aaa_attr_list_alloc(&handle_); }
  explicit List(aaa_attr_list_handle handle) : handle_(handle) {}
  List(List &&other) noexcept : handle_(other.release()) {}
  List &operator=(List &&other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~List() { aaa_attr_list_free(handle_); }

  operator aaa_attr_list_handle() const { return handle_; }
  aaa_attr_list_handle *out() { return &handle_; }
  aaa_attr_list_handle release() { return std::exchange(handle_, 0); }

  List &text(std::uint32_t type, std::string_view value, const aaa_attr_meta *meta = nullptr) {
    must(aaa_attr_add(handle_, type, value.data(), static_cast<std::uint32_t>(value.size()), meta), "adding a value");
    return *this;
  }
  List &number(std::uint32_t type, std::uint32_t value, const aaa_attr_meta *meta = nullptr) {
    must(aaa_attr_add(handle_, type, &value, sizeof value, meta), "adding a number");
    return *this;
  }
  // Adds an empty sub-list, which this list owns; 0 when that fails.
  aaa_attr_list_handle group(std::uint32_t type, const aaa_attr_meta *meta = nullptr) {
    aaa_attr_list_handle sub_list = 0;
    return aaa_attr_add_group_list(handle_, &sub_list, type, meta) == 0 ? sub_list : 0;
  }

 private:
  aaa_attr_list_handle handle_ = 0;
};

// The list as a flat buffer (as it stands), as a TLV buffer; empty on failure.
inline Bytes flat_buffer(aaa_attr_list_handle list) {
  std::uint32_t size = 0;
  (void)aaa_attr_list_to_buffer(list, nullptr, &size);  // asks for the size: 0 where there is no buffer
  Bytes buffer(size);
  return aaa_attr_list_to_buffer(list, buffer.data(), &size) == 0 ? buffer : Bytes();
}
inline Bytes tlv_buffer(aaa_attr_list_handle list) {
  std::uint32_t size = 0;
  (void)aaa_attr_list_tlv_to_buffer(list, nullptr, &size);
  Bytes buffer(size);
  return aaa_attr_list_tlv_to_buffer(list, buffer.data(), &size) == 0 ? buffer : Bytes();
}

inline aaa_attr_cerrno decode(const Bytes &buffer, List *list) {
  *list = List(0);
  return aaa_attr_buffer_to_list(buffer.data(), static_cast<std::uint32_t>(buffer.size()), list->out());
}

// A list's attributes as text, "type=value" each: what it holds and in which order. Values in hexadecimal, numbers
// least significant byte first, sub-lists in braces; a meta as "[service,protocol,tag,flags,client]", flags as
// little-endian hosts have them, and a producer client type as "@n" after the type.
inline std::string outline(aaa_attr_list_handle list) {
  std::string text;
  aaa_cursor *cursor = nullptr;
  if (aaa_cursor_alloc(list, &cursor) != 0) text = "bad list";
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) {
    if (!text.empty()) text += ' ';
    text += std::to_string(type);
    if (const aaa_attr_meta *meta = aaa_cursor_get_meta(cursor))
      text += '[' + std::to_string(meta->service) + ',' + std::to_string(meta->protocol) + ',' +
              std::to_string(meta->tag) + ',' + std::to_string(little_meta_flags(meta->flags)) + ',' +
              std::to_string(meta->client) + ']';
    if (const std::uint32_t client_type = aaa_cursor_get_producer_client_type(cursor))
      text += '@' + std::to_string(client_type);
    text += '=';
    if (aaa_cursor_grouped(cursor)) {
      aaa_attr_list_handle sub_list = 0;
      aaa_cursor_get_grouped_attr_handle(cursor, &sub_list);
      text += '{' + outline(sub_list) + '}';
      continue;
    }
    std::uint32_t length = 0;
    const auto *at = static_cast<const std::uint8_t *>(aaa_cursor_get(cursor, &length));
    Bytes value(at, at + length);
    if (kBigEndianHost && byte_order::is_number(aaa_cursor_get_format(cursor)))
      std::reverse(value.begin(), value.end());
    for (const std::uint8_t byte : value) {
      constexpr char kDigits[] = "0123456789abcdef";
      text += kDigits[byte >> 4];
      text += kDigits[byte & 0xF];
    }
  }
  aaa_cursor_free(cursor);
  return text;
}
