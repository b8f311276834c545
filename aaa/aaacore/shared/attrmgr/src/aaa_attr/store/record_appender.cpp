#include "aaa_attr/store/record_appender.h"

namespace attrmgr {

aaa_attr_cerrno copy_long_value(std::byte *to, const void *from, std::size_t length) {
  std::memcpy(to, from, length);
  return 0;
}

aaa_attr_cerrno append_to_new_block(BlockView head, std::uint32_t type, const void *value, std::uint32_t length,
                                    const void *meta, std::uint32_t client_type) {
  const NewAttribute attribute{type, value, length, meta, client_type};
  const NewRecord record = measure(attribute);
  const BlockView block =
      aaa_attr_list_add_block(head, last_block(head), static_cast<std::size_t>(record.size) + kHeaderSize);
  return block ? write_record(block, attribute, record) : AAA_ATTR_ERR_NO_MEMORY;
}

aaa_attr_cerrno add_to_looked_up(aaa_attr_list_handle list, std::uint32_t type, const void *value, std::uint32_t length,
                                 const void *meta, std::uint32_t client_type) {
  const Resolved resolved = look_up(list);
  if (resolved.code != 0) return resolved.code;
  return add_attribute(resolved.head, {type, value, length, meta, client_type});
}

}  // namespace attrmgr
