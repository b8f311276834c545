// Making a list.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/store/list_blocks.h"

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_alloc(aaa_attr_list_handle *list) noexcept {
  if (list == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  List made;
  const Error error = create_list(ATTRMGR_CALLER, &made);
  *list = made.handle;
  return error.code;
}
