#include "tlv_order.h"

#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <cstring>

namespace attrtool {
namespace {

constexpr std::size_t kMarker = 1;
constexpr std::size_t kNumber = 4;  // a total, a type, a length
constexpr std::size_t kMeta = 8;

std::uint32_t number_at(const std::uint8_t *at, bool reversed) {
  std::uint8_t bytes[kNumber];
  std::memcpy(bytes, at, kNumber);
  if (reversed) std::reverse(std::begin(bytes), std::end(bytes));
  std::uint32_t number;
  std::memcpy(&number, bytes, kNumber);
  return number;
}

// What adding takes for a number; the bytes of every other format mean the same on all hosts.
bool is_number(std::uint32_t type, std::size_t length) {
  const std::uint32_t format = aaa_attr_get_format_from_type(type);
  if (format == AAA_ATTR_FMT_ULONG || format == AAA_ATTR_FMT_ENUM) return length == sizeof(std::uint32_t);
  return (format == AAA_ATTR_FMT_UTC || format == AAA_ATTR_FMT_ULONGLONG) && length == sizeof(std::uint64_t);
}

// Goes through a body, and turns what is a number round as it passes it.
class Reorder {
 public:
  explicit Reorder(TlvOrder order) : reversed_(order == TlvOrder::kToHost) {}

  // False where it ends before the body does.
  bool body(std::span<std::uint8_t> &from, unsigned depth) {
    std::uint32_t total = 0;
    if (depth > AAA_ATTR_NESTING_MAX || !take_number(from, &total)) return false;
    if (total < kNumber) return false;
    // A list that is cut short is shown as far as it goes.
    const std::size_t size = std::min<std::size_t>(total - kNumber, from.size());
    std::span<std::uint8_t> records = from.first(size);
    from = from.subspan(size);
    while (!records.empty())
      if (!record(records, depth)) return false;
    return true;
  }

 private:
  bool record(std::span<std::uint8_t> &from, unsigned depth) {
    std::uint32_t type = 0, meta_length = 0, length = 0;
    if (!take_number(from, &type) || !take_number(from, &meta_length)) return false;
    if (meta_length != 0 && !take_meta(from)) return false;
    if (aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED) return body(from, depth + 1);
    if (!take_number(from, &length) || length > from.size()) return false;
    if (is_number(type, length)) std::reverse(from.begin(), from.begin() + length);
    from = from.subspan(length);
    return true;
  }

  bool take_number(std::span<std::uint8_t> &from, std::uint32_t *number) {
    if (from.size() < kNumber) return false;
    *number = number_at(from.data(), reversed_);
    std::reverse(from.begin(), from.begin() + kNumber);
    from = from.subspan(kNumber);
    return true;
  }

  // Service and protocol are one byte each, then three numbers of two.
  bool take_meta(std::span<std::uint8_t> &from) {
    if (from.size() < kMeta) return false;
    for (std::size_t at = 2; at < kMeta; at += 2) std::swap(from[at], from[at + 1]);
    from = from.subspan(kMeta);
    return true;
  }

  bool reversed_;
};

}  // namespace

bool is_tlv_of_other_order(ByteSpan bytes) {
  if (bytes.size() < kMarker + kNumber) return false;
  const auto fits = [left = bytes.size() - kMarker](std::uint32_t total) { return total >= kNumber && total <= left; };
  const std::uint8_t *total = bytes.data() + kMarker;
  const std::uint32_t host = number_at(total, false), other = number_at(total, true);
  if (fits(host)) return false;
  // Neither fits where the buffer is cut short; then the smaller one is the likely one.
  return fits(other) || (other >= kNumber && other < host);
}

void turn_tlv(std::span<std::uint8_t> bytes, TlvOrder order) {
  std::span<std::uint8_t> body = bytes.subspan(kMarker);
  Reorder(order).body(body, 0);
}

}  // namespace attrtool
