#include "aaa_attr/store/record_appender.h"

namespace attrmgr {

aaa_attr_cerrno copy_long_value(std::byte *to, const void *from, std::size_t length) {
  std::memcpy(to, from, length);
  return 0;
}

aaa_attr_cerrno append_to_new_block(BlockView head, NewAttribute attribute) {
  const NewRecord record = measure(attribute);
  const BlockView block =
      aaa_attr_list_add_block(head, last_block(head), static_cast<std::size_t>(record.size) + kHeaderSize);
  return block ? write_record(block, attribute, record) : AAA_ATTR_ERR_NO_MEMORY;
}

aaa_attr_cerrno add_to_looked_up(aaa_attr_list_handle list, NewAttribute attribute) {
  const Resolved resolved = look_up(list);
  return resolved.code == 0 ? add_attribute(resolved.head, attribute) : resolved.code;
}

}  // namespace attrmgr
