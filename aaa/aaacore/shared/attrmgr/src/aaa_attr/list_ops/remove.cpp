// Removing the attributes of a type, or those of a type and value.
#include "aaa_attr/list_ops/remove.h"

#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/find.h"
#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/sub_list.h"

namespace attrmgr {

void remove_with_sub_list(BlockView head, RecordView record) {
  free_list(owned_list(record));
  remove_record(head, record);
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_remove(aaa_attr_list_handle list, std::uint32_t type) noexcept {
  const auto [head, error] = resolve(list);
  if (error) return error.code;
  for (const RecordView record : RecordsOfType(head, type)) remove_with_sub_list(head, record);
  return 0;
}

aaa_attr_cerrno aaa_attr_remove_on_match(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                         std::uint32_t length) noexcept {
  if (value == nullptr && length != 0) return AAA_ATTR_ERR_BAD_ARG;
  const auto [head, error] = resolve(list);
  if (error) return error.code;
  for (const RecordView record : RecordsOfType(head, type))
    if (holds_value(record, value, length)) remove_record(head, record);
  return 0;
}
