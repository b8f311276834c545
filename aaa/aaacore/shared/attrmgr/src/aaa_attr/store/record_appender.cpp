#include "aaa_attr/store/record_appender.h"

namespace attrmgr {

aaa_attr_cerrno copy_long_value(std::byte *to, const void *from, std::size_t length) {
  std::memcpy(to, from, length);
  return 0;
}

aaa_attr_cerrno append_to_new_block(BlockView head, BlockView *last, NewAttribute attribute) {
  const NewRecord record = measure(attribute);
  const BlockView block = aaa_attr_list_add_block(head, *last, static_cast<std::size_t>(record.size) + kHeaderSize);
  if (!block) return AAA_ATTR_ERR_NO_MEMORY;
  *last = block;
  return write_record(block, attribute, record);
}

aaa_attr_cerrno add_to_looked_up(aaa_attr_list_handle list, NewAttribute attribute) {
  const Resolved resolved = look_up(list);
  return resolved.code == 0 ? add_attribute(resolved.head, attribute) : resolved.code;
}

}  // namespace attrmgr
