// The forms that a list of attributes may have in a file, and which one it is.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include <string>

#include "byte_span.h"

namespace attrtool {

enum class Layout { kUnknown, kFlat, kForeign, kTlv };

struct Form {
  Layout layout = Layout::kUnknown;
  bool other_order = false;  // a flat buffer in network form; a TLV buffer of a host of the other byte order

  friend bool operator==(const Form &, const Form &) = default;
};

// "flat buffer in network form".
std::string name_of(Form form);

// What the buffer is, as far as its first bytes tell; the rest may be damaged.
Form form_of(ByteSpan bytes);

// Why a buffer of an unknown form is none, and where one may begin: "byte 0 is 0x45: ...".
std::string why_unknown(ByteSpan bytes);

// Turns the buffer into this host's order where it is in another, in place: every field keeps its offset. A TLV buffer
// that is damaged is turned as far as it goes; for a flat one the library's code is given, and nothing is changed.
[[nodiscard]] aaa_attr_cerrno to_host_order(Form form, std::span<std::uint8_t> bytes);

// The same the other way round.
[[nodiscard]] aaa_attr_cerrno to_other_order(Form form, std::span<std::uint8_t> bytes);

}  // namespace attrtool
