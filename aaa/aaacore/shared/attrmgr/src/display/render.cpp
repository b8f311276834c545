#include "display/render.h"

#include <algorithm>
#include <cctype>
#include <ctime>
#include <type_traits>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_platform.h>

#include "aaa_attr/marshal/ipv6_prefix.h"
#include "aaa_attr/store/attribute.h"
#include "dictionary/known_types.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

constexpr std::uint32_t kHexBytesMax = 128;

constexpr std::size_t kNameWidth = 15;
constexpr std::size_t kLengthWidth = 3;
constexpr std::uint32_t kIpv4Size = 4;
constexpr std::size_t kCtimeSize = 26;

// The value as a T; bytes that it does not have are zero.
template <class T>
T value_as(RecordView record) {
  static_assert(std::is_trivially_copyable_v<T>);
  T value{};
  std::memcpy(&value, record.value(), std::min<std::size_t>(sizeof value, record.length()));
  return value;
}

struct Ipv4 {
  std::uint8_t bytes[kIpv4Size];
};
struct Ipv6 {
  std::uint8_t bytes[AAA_IPV6_ADDRESS_SIZE];
};
struct Ipv6Prefix {
  std::uint8_t bytes[AAA_IPV6_PREFIX_SIZE];
};

class Renderer {
 public:
  Renderer(RecordView record, const TypeRow &row, TextWriter &line, RenderMode mode)
      : record_(record), row_(row), line_(line), mode_(mode), length_(reported_length(record.length(), row.format)) {}

  void render() {
    put_header();
    if (line_.full()) return;
    if (!brief() && record_.has_meta()) put_meta();
    if (line_.full()) return;
    if (record_.length() > line_.room()) {
      line_.put("Data length exceeds buffer size");
      return;
    }
    if (brief()) line_.put("value= ");
    put_value();
  }

 private:
  bool brief() const { return mode_ == RenderMode::kListBrief; }

  void put_header() {
    TextLine<16> digits;
    digits.put_decimal(length_);
    line_.put_left(row_.name, kNameWidth).put(" len=").put_right(digits.view(), kLengthWidth).put("  ");
  }

  void put_meta() {
    const MetaView meta = record_.meta();
    line_.put("svc<").put_decimal(meta.service()).put("> prot<").put_decimal(meta.protocol());
    line_.put("> tag<").put_decimal(meta.tag()).put("> mand<").put_decimal(unsigned{meta.mandatory()});
    line_.put("> client<0x").put_hex(meta.client()).put(">");
  }

  void put_value() {
    switch (row_.format) {
      case AAA_ATTR_FMT_STRING:
      case AAA_ATTR_FMT_STRING_ATTR:
        return row_.type == kTypeDhcpClientId && !brief() ? put_client_id() : put_text();
      case AAA_ATTR_FMT_BINARY:
      case AAA_ATTR_FMT_ULONGLONG:
        return put_binary();
      case AAA_ATTR_FMT_ULONG:
      case AAA_ATTR_FMT_GROUPED:
        return put_number();
      case AAA_ATTR_FMT_ENUM:
        return put_enum();
      case AAA_ATTR_FMT_IPV4:
        return put_ipv4();
      case AAA_ATTR_FMT_IPV6:
        return put_ipv6(value_as<Ipv6>(record_).bytes);
      case AAA_ATTR_FMT_ADDRESS:
        return length_ <= kIpv4Size ? put_ipv4() : put_ipv6(value_as<Ipv6>(record_).bytes);
      case AAA_ATTR_FMT_UTC:
        return put_time();
      case AAA_ATTR_FMT_BOOLEAN:
        return put_boolean();
      case AAA_ATTR_FMT_OPAQUE:
        return put_marker("<opaque value>");
      case AAA_ATTR_FMT_SPECIAL:
        return put_marker("<special>");
      default:
        put_marker("<bad format>(");
        line_.put_decimal(row_.format).put(")");
    }
  }

  // What stands for a value that is not shown begins a line of its own, but not in the brief form.
  void put_marker(std::string_view marker) {
    if (!brief()) line_.put('\n');
    line_.put(marker);
  }

  void put_text() {
    const auto *text = reinterpret_cast<const char *>(record_.value());
    line_.put(std::string_view(text, strnlen(text, record_.length())));
  }

  // An identifier as octets, then its first octet (the type) on its own, then the rest as text.
  void put_client_id() {
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(record_.value());
    for (std::uint32_t i = 0; i < length_; ++i)
      line_.put(std::string_view(i > 0 ? "-0x" : "0x")).put_hex_byte(bytes[i]);
    line_.put("(type :0x").put_hex_byte(value_as<std::uint8_t>(record_)).put(", ");
    for (std::uint32_t i = 1; i < length_; ++i) line_.put(std::isprint(bytes[i]) ? static_cast<char>(bytes[i]) : '*');
    line_.put(")");
  }

  void put_binary() {
    if (row_.type == kTypePrefix || row_.type == kTypeDelegatedPrefix) return put_ipv6_prefix();
    if ((row_.flags & AAA_ATTR_TYPE_OPAQUE) != 0) {
      line_.put("<opaque value>");
      return;
    }
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(record_.value());
    const std::uint32_t shown = std::min(record_.length(), kHexBytesMax);
    for (std::uint32_t i = 0; i < shown && !line_.full(); ++i) line_.put_hex_byte(bytes[i]).put(' ');
  }

  void put_ipv6_prefix() {
    auto prefix = value_as<Ipv6Prefix>(record_);
    Ipv6 address;
    std::uint8_t prefix_length;
    if (decode_ipv6_prefix(prefix.bytes, address.bytes, &prefix_length)) return;
    const std::size_t held = std::min<std::size_t>(sizeof prefix, record_.length());
    const bool cleared = std::memcmp(record_.value(), prefix.bytes, held) != 0;
    if (cleared && mode_ != RenderMode::kBuffer) std::memcpy(record_.value(), prefix.bytes, held);
    put_ipv6(address.bytes);
    line_.put("/").put_decimal(prefix_length);
  }

  void put_number() {
    const auto number = value_as<std::uint32_t>(record_);
    line_.put_decimal(number).put("(").put_hex(number).put(")");
  }

  void put_enum() {
    const auto value = value_as<std::uint32_t>(record_);
    const char *name = value_name(row_, value);
    if (name != nullptr) {
      line_.put(std::string_view(name));
    } else {
      line_.put_decimal(value);
    }
  }

  void put_ipv4() {
    const auto address = value_as<Ipv4>(record_);
    line_.put_decimal(std::uint32_t{address.bytes[0]});
    for (std::size_t i = 1; i < sizeof address.bytes; ++i) line_.put(".").put_decimal(std::uint32_t{address.bytes[i]});
  }

  void put_ipv6(const std::uint8_t *address) {
    char text[AAA_IPV6_TEXT_SIZE];
    line_.put(std::string_view(ipv6_address_to_string(address, text)));
  }

  void put_time() {
    const auto seconds = value_as<std::int64_t>(record_);
    const auto time = static_cast<std::time_t>(seconds);  // which may be narrower
    char text[kCtimeSize] = {};
    if (time == seconds && ctime_r(&time, text) != nullptr) {
      line_.put(std::string_view(text, std::strlen(text) - 1));  // without its newline
    } else {
      line_.put_signed(seconds);
    }
  }

  void put_boolean() { line_.put(std::string_view(value_as<std::uint8_t>(record_) != 0 ? "true" : "false")); }

  RecordView record_;
  const TypeRow &row_;
  TextWriter &line_;
  RenderMode mode_;
  std::uint32_t length_;
};

}  // namespace

void aaa_attr_to_string(RecordView record, TextWriter &line, RenderMode mode) {
  if (!record) return;
  const TypeRow *row = row_of(record.type());
  if (row != nullptr) {
    Renderer(record, *row, line, mode).render();
    return;
  }
  line.put("\nBAD TYPE ").put_decimal(record.type()).put(" length ");
  line.put_signed(static_cast<std::int32_t>(record.length()));
}

}  // namespace attrmgr
