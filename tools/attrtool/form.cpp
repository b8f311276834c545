#include "form.h"

#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <bit>
#include <cstring>

#include "tlv_order.h"

namespace attrtool {
namespace {

constexpr std::uint8_t kMagic[] = {0xAB, 0xCD};  // in network order
constexpr std::size_t kMarker = 1;

bool has_magic(ByteSpan bytes, std::size_t at, bool network) {
  if (bytes.size() < at + sizeof kMagic) return false;
  const bool first_high = network || std::endian::native == std::endian::big;
  return bytes[at] == kMagic[first_high ? 0 : 1] && bytes[at + 1] == kMagic[first_high ? 1 : 0];
}

bool is_foreign(ByteSpan bytes, bool network) {
  constexpr std::size_t kFlags = kMarker + 3;
  constexpr std::uint8_t kForeignBits[] = {0x10, 0x04};  // the header layout, as the host and as the network has it
  constexpr std::uint8_t kLayoutBits[] = {0x30, 0x0C};
  return bytes.size() > kFlags && (bytes[kFlags] & kLayoutBits[network ? 1 : 0]) == kForeignBits[network ? 1 : 0];
}

Form form_of_flat(ByteSpan bytes) {
  const bool network = std::endian::native == std::endian::little && has_magic(bytes, kMarker, true);
  return {is_foreign(bytes, network) ? Layout::kForeign : Layout::kFlat, network};
}

// Where a flat buffer may begin among other bytes; 0 for nowhere.
std::size_t place_of_flat(ByteSpan bytes) {
  for (std::size_t at = 1; at + kMarker < bytes.size(); ++at)
    if (bytes[at] == AAA_MARSHAL_BUFFER &&
        (has_magic(bytes, at + kMarker, false) || has_magic(bytes, at + kMarker, true)))
      return at;
  return 0;
}

aaa_attr_cerrno translate(std::span<std::uint8_t> bytes, cdm_endian_tran_type direction) {
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(bytes.data()), static_cast<std::uint32_t>(bytes.size()),
                                  direction);
}

}  // namespace

std::string name_of(Form form) {
  switch (form.layout) {
    case Layout::kFlat:
      return form.other_order ? "flat buffer in network form" : "flat buffer";
    case Layout::kForeign:
      return form.other_order ? "flat buffer with the foreign layout in network form"
                              : "flat buffer with the foreign layout";
    case Layout::kTlv:
      return form.other_order ? "TLV buffer of the other byte order" : "TLV buffer";
    case Layout::kUnknown:
      break;
  }
  return "buffer of no known form";
}

Form form_of(ByteSpan bytes) {
  if (bytes.empty() || bytes[0] > AAA_MARSHAL_TLV) return {};
  if (bytes[0] == AAA_MARSHAL_TLV) return {Layout::kTlv, is_tlv_of_other_order(bytes)};
  return form_of_flat(bytes);
}

std::string why_unknown(ByteSpan bytes) {
  char first[8];
  std::snprintf(first, sizeof first, "0x%02x", bytes[0]);
  std::string reason =
      std::string("byte 0 is ") + first + ", but a buffer begins with its marker: 0x01 for flat, 0x02 for TLV";
  if (const std::size_t at = place_of_flat(bytes))
    return reason + "; a flat buffer may begin at byte " + std::to_string(at) + ": try --skip " + std::to_string(at);
  if (has_magic(bytes, 0, false) || has_magic(bytes, 0, true))
    return reason + "; this looks like a flat buffer whose marker is missing";
  return reason;
}

aaa_attr_cerrno to_host_order(Form form, std::span<std::uint8_t> bytes) {
  if (!form.other_order) return 0;
  if (form.layout == Layout::kTlv) {
    turn_tlv(bytes, TlvOrder::kToHost);
    return 0;
  }
  return translate(bytes, CDM_ENDIAN_TRAN_NTOH);
}

aaa_attr_cerrno to_other_order(Form form, std::span<std::uint8_t> bytes) {
  if (form.layout == Layout::kTlv) {
    turn_tlv(bytes, TlvOrder::kFromHost);
    return 0;
  }
  return translate(bytes, CDM_ENDIAN_TRAN_HTON);
}

}  // namespace attrtool
