// Adding attributes and sub-lists.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/store/add_attribute.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {
namespace {

// Adds any attribute, with every check. It returns the bare code, so that the call of it can be a jump.
[[gnu::noinline]] aaa_attr_cerrno add_any(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                          std::uint32_t length, const aaa_attr_meta *meta, std::uint32_t client_type) {
  return add_attribute(list, {type, value, length, meta, client_type}).code;
}

// Adds an attribute of the usual kind: it passes every check, its type needs nothing but storing, and the last block
// has room. This path calls nothing and so saves no registers, which would be a tenth of its work. False: not done.
[[nodiscard]] inline bool add_plain(aaa_attr_list_handle list, const NewAttribute &attribute) {
  if (check_presence(attribute) || attribute.length > kCopiedInline) return false;
  const BlockView head = head_at(list);
  if (!head) return false;
  const NewRecord record = measure(attribute);
  const ListEnd end(head);
  const bool plain = (traits_of(attribute.type) & ~kEndsInNul) == 0 && !check_length(attribute, record);
  if (!plain || record.size > end.last.free_bytes()) return false;
  write_record(end, attribute, record);
  return true;
}

inline aaa_attr_cerrno add(aaa_attr_list_handle list, std::uint32_t type, const void *value, std::uint32_t length,
                           const aaa_attr_meta *meta, std::uint32_t client_type) {
  if (add_plain(list, {type, value, length, meta, client_type})) [[likely]]
    return 0;
  return add_any(list, type, value, length, meta, client_type);
}

Error add_sub_list(aaa_attr_list_handle parent, aaa_attr_list_handle sub_list, std::uint32_t type,
                   const aaa_attr_meta *meta) {
  return add_attribute(parent, {type, &sub_list, kHandleSize, meta, 0});
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_add(aaa_attr_list_handle list, std::uint32_t type, const void *value, std::uint32_t length,
                             const aaa_attr_meta *meta) noexcept {
  return add(list, type, value, length, meta, 0);
}

aaa_attr_cerrno aaa_attr_add_v1(aaa_attr_list_handle list, std::uint32_t type, const void *value, std::uint32_t length,
                                const aaa_attr_meta *meta, std::uint32_t client_type) noexcept {
  return add(list, type, value, length, meta, client_type);
}

aaa_attr_cerrno aaa_attr_add_group_list(aaa_attr_list_handle parent, aaa_attr_list_handle *sub_list, std::uint32_t type,
                                        const aaa_attr_meta *meta) noexcept {
  if (sub_list == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  *sub_list = 0;
  List made;
  if (const Error error = create_list(ATTRMGR_CALLER, &made)) return error.code;
  if (const Error error = add_sub_list(parent, made.handle, type, meta)) {
    free_list(made.handle);
    return error.code;
  }
  *sub_list = made.handle;
  return 0;
}

aaa_attr_cerrno aaa_attr_add_existing_group_list(aaa_attr_list_handle parent, aaa_attr_list_handle sub_list,
                                                 std::uint32_t type, const aaa_attr_meta *meta) noexcept {
  return add_sub_list(parent, sub_list, type, meta).code;
}
