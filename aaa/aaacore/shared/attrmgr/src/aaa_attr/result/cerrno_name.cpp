#include <attrmgr/aaa_attr.h>

const char *aaa_attr_cerrno_name(aaa_attr_cerrno code) noexcept {
  switch (code) {
#define NAME_OF(code) \
  case code:          \
    return #code
    NAME_OF(AAA_ATTR_ERR_BAD_BUFFER);
    NAME_OF(AAA_ATTR_ERR_NO_MEMORY);
    NAME_OF(AAA_ATTR_ERR_BAD_ARG);
    NAME_OF(AAA_ATTR_ERR_BAD_LIST);
    NAME_OF(AAA_ATTR_ERR_STALE_HANDLE);
    NAME_OF(AAA_ATTR_ERR_NOT_FOUND);
    NAME_OF(AAA_ATTR_ERR_BAD_FORMAT);
    NAME_OF(AAA_ATTR_ERR_BAD_LENGTH);
#undef NAME_OF
    case 0:
      return "0";
    default:
      return "<unknown>";
  }
}
