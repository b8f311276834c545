#include <attrmgr/aaa_attr_version.h>

const char *aaa_attr_version(uint32_t *number) noexcept {
  if (number != nullptr) *number = AAA_ATTR_VERSION;
  return AAA_ATTR_VERSION_TEXT;
}
