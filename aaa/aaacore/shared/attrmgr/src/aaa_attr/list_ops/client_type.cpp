// Stamping attributes with the producer client type.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/client_types.h"

namespace attrmgr {
namespace {

Error stamp(aaa_attr_list_handle list, std::uint32_t client_type, bool keep_valid) {
  PooledCursor cursor(list);
  if (cursor.error()) return cursor.error();
  while (RecordView record = cursor.next()) {
    if (!is_valid_client_type(client_type)) return AAA_ATTR_ERR_BAD_ARG;
    if (keep_valid && is_valid_client_type(record.client_type())) continue;
    record.set_client_type(client_type);
  }
  return 0;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_set_producer_client_type(aaa_attr_list_handle list, std::uint32_t client_type) noexcept {
  return stamp(list, client_type, false).code;
}

aaa_attr_cerrno aaa_attr_list_init_producer_client_type(aaa_attr_list_handle list, std::uint32_t client_type) noexcept {
  return stamp(list, client_type, true).code;
}
