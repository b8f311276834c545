#include <attrmgr/aaa_attr_version.h>

#define TEXT_OF(number) #number
#define DOTTED(major, minor, patch) TEXT_OF(major) "." TEXT_OF(minor) "." TEXT_OF(patch)

const char *aaa_attr_version(uint32_t *number) noexcept {
  if (number != nullptr) *number = AAA_ATTR_VERSION;
  return DOTTED(AAA_ATTR_VERSION_MAJOR, AAA_ATTR_VERSION_MINOR, AAA_ATTR_VERSION_PATCH);
}
