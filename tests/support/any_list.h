// Lists out of any bytes: every type, every way to write a value, metas, producer client types, nested lists. Short
// inputs give short lists, so that a property test can shrink what fails.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

class AnyList {
 public:
  explicit AnyList(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  attrmgr::list make() {
    attrmgr::list list;
    fill(list, 0);
    return list;
  }

 private:
  std::uint8_t next() {
    if (bytes_.empty()) return 0;
    const std::uint8_t byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  std::uint16_t next16() {
    const unsigned high = next();
    return static_cast<std::uint16_t>(high << 8 | next());
  }

  void fill(attrmgr::list_ref list, unsigned depth) {
    while (!bytes_.empty()) {
      const std::uint32_t type = 1 + next16() % (AAA_ATTR_TYPE_COUNT - 1u);
      if (aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED) {
        if (depth == kDeepest) return;  // which also ends the list
        attrmgr::list sub_list;
        fill(sub_list, depth + 1);
        const aaa_attr_list_handle handle = sub_list.handle();
        if (add(list, type, &handle, sizeof handle) == 0) static_cast<void>(sub_list.release());
      } else {
        const std::vector<std::uint8_t> value = any_value(type);
        static_cast<void>(add(list, type, value.data(), value.size()));  // a length that the type refuses adds nothing
      }
    }
  }

  aaa_attr_cerrno add(attrmgr::list_ref list, std::uint32_t type, const void *value, std::size_t size) {
    const std::uint8_t choice = next();
    aaa_attr_meta meta{};
    if (choice % 4 == 1) meta = {next(), next(), next16(), next16(), next16()};  // braces go from left to right
    if (choice % 4 == 2) meta = {4, 3, 0, 1, 0};
    return aaa_attr_add_v1(list.handle(), type, value, static_cast<std::uint32_t>(size),
                           choice % 4 == 3 ? nullptr : &meta, choice / 4 % 3 == 0 ? next() : 0u);
  }

  std::vector<std::uint8_t> any_value(std::uint32_t type) {
    switch (next() % 5) {
      case 0:
        return text(next() % 24);
      case 1:
        return raw(next() % 24);
      case 2:
        return raw(natural_length(type));
      case 3:
        return prefix();
      default: {  // a small number
        std::vector<std::uint8_t> value(natural_length(type));
        const std::uint64_t number = next();
        std::memcpy(value.data(), &number, std::min(value.size(), sizeof number));
        return value;
      }
    }
  }

  std::vector<std::uint8_t> raw(std::size_t length) {
    std::vector<std::uint8_t> value(length);
    for (std::uint8_t &byte : value) byte = next();
    return value;
  }

  // Characters that mean something to a reader.
  std::vector<std::uint8_t> text(std::size_t length) {
    constexpr std::string_view kCharacters = "ab\"\\ {}[]<>=#\n\t\r/\x7f\x1b:0x1\xC3\xA9\xE2\x80\xAE";
    std::vector<std::uint8_t> value(length);
    for (std::uint8_t &byte : value) byte = static_cast<std::uint8_t>(kCharacters[next() % kCharacters.size()]);
    return value;
  }

  std::vector<std::uint8_t> prefix() {
    std::vector<std::uint8_t> value(AAA_IPV6_PREFIX_SIZE);
    const std::vector<std::uint8_t> address = raw(AAA_IPV6_ADDRESS_SIZE);
    aaa_attr_encode_ipv6_prefix(address.data(), next() % 130, value.data());
    return value;
  }

  static std::size_t natural_length(std::uint32_t type) {
    switch (aaa_attr_get_format_from_type(type)) {
      case AAA_ATTR_FMT_ULONG:
      case AAA_ATTR_FMT_ENUM:
      case AAA_ATTR_FMT_IPV4:
      case AAA_ATTR_FMT_ADDRESS:
        return 4;
      case AAA_ATTR_FMT_ULONGLONG:
      case AAA_ATTR_FMT_UTC:
        return 8;
      case AAA_ATTR_FMT_BOOLEAN:
        return 1;
      default:
        return 16;
    }
  }

  static constexpr unsigned kDeepest = 4;

  std::span<const std::uint8_t> bytes_;
};

// Whether the lists hold the same attributes in the same order: type, value, meta, producer client type, sub-lists.
inline bool same_lists(attrmgr::list_view one, attrmgr::list_view other) {
  attrmgr::iterator at = one.begin(), beside = other.begin();
  for (; at != one.end() && beside != other.end(); ++at, ++beside) {
    const attrmgr::attribute a = *at, b = *beside;
    if (a.type() != b.type() || a.meta() != b.meta() || a.producer_client_type() != b.producer_client_type())
      return false;
    const std::span<const std::byte> value = a.bytes(), value_beside = b.bytes();
    const bool same = a.has_group() ? same_lists(*a.group(), *b.group())
                                    : value.size() == value_beside.size() &&
                                          std::memcmp(value.data(), value_beside.data(), value.size()) == 0;
    if (!same) return false;
  }
  return at == one.end() && beside == other.end();
}
