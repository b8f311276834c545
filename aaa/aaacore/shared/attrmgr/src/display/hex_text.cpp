// Bytes as hexadecimal text.
#include <cstdint>

#include <attrmgr/aaa_attr_display.h>

#include "display/text_line.h"

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_bin_to_str(const std::uint8_t *bytes, std::int32_t count, char *text, std::uint32_t size,
                                    std::uint32_t *length) noexcept {
  if (size == 0 || bytes == nullptr || count == 0 || text == nullptr || length == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (count < 0) {
    *length = 0;
    return 0;
  }
  TextWriter writer(text, size);
  for (std::int32_t i = 0; i < count && !writer.full(); ++i) writer.put_hex_byte(bytes[i]);
  *length = static_cast<std::uint32_t>(writer.length());
  return 0;
}
