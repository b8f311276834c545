// Reading one attribute out of a flat buffer where it lies.
#include <cstring>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/walk/flat_reader.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

// The first record of the type in the outer list or a nested one, removed records included. Null when there is none,
// or when a record passes its block before it.
ConstRecordView find_in_buffer(const std::byte *bytes, std::uint32_t type) {
  TrustedReader reader(bytes);
  while (reader.next()) {
    ConstRecordScan scan = reader.records();
    while (scan.next())
      if (scan.record().type() == type) return scan.record();
    if (scan.overrun()) break;
  }
  return {};
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_get_from_buffer(const void *buffer, std::uint32_t type, std::uint32_t *format, void *value,
                                         std::uint32_t *size) noexcept {
  const auto *bytes = static_cast<const std::byte *>(buffer);
  if (bytes == nullptr || format == nullptr || value == nullptr || size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (*size == 0 || bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return AAA_ATTR_ERR_BAD_ARG;
  const ConstRecordView found = find_in_buffer(bytes + kMarkerSize, type);
  if (!found) return AAA_ATTR_ERR_NO_MEMORY;
  if (*size < found.length()) {
    *size = 0;
    return AAA_ATTR_ERR_NO_MEMORY;
  }
  std::memcpy(value, found.value(), found.length());
  *size = found.length();
  *format = format_of(type);
  return 0;
}
