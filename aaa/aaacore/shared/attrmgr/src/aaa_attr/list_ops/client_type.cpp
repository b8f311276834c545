// Stamping attributes with the producer client type.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/client_types.h"
#include "aaa_attr/walk/cursor_step.h"

namespace {

using namespace attrmgr;

aaa_attr_cerrno stamp(aaa_attr_list_handle list, std::uint32_t client_type, bool keep_valid) {
  const PooledCursor cursor(list);
  if (cursor.code() != 0) return cursor.code();
  while (aaa_cursor_get_next(cursor.get()) != 0) {
    const bool stamped = is_valid_client_type(record_of(*cursor.get()).client_type());
    if (keep_valid && is_valid_client_type(client_type) && stamped) continue;
    if (const aaa_attr_cerrno code = aaa_cursor_set_producer_client_type(cursor.get(), client_type)) return code;
  }
  return 0;
}

}  // namespace

aaa_attr_cerrno aaa_attr_list_set_producer_client_type(aaa_attr_list_handle list, std::uint32_t client_type) {
  return stamp(list, client_type, false);
}

aaa_attr_cerrno aaa_attr_list_init_producer_client_type(aaa_attr_list_handle list, std::uint32_t client_type) {
  return stamp(list, client_type, true);
}
