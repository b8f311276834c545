#include "aaa_attr/marshal/tlv_decode.h"

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/marshal/tlv_reader.h"
#include "aaa_attr/store/append.h"
#include "aaa_attr/store/unwritten.h"

namespace attrmgr {
namespace {

// The sub-list is added to its parent before it is filled, so that freeing the outer list frees it on every failure.
Error add_sub_list(ListEnd &parent, NewAttribute attribute, const void *owner, Unwritten<ListEnd> *sub_list) {
  List made;
  if (const Error error = create_list(owner, &made)) return error;
  attribute.value = &made.handle;
  attribute.length = kHandleSize;
  if (const Error error = append_checked(parent, attribute, measure(attribute))) {
    free_list(made.handle);
    return error;
  }
  sub_list->write(ListEnd(made.head));
  return 0;
}

}  // namespace

// The reader is not passed to any function: the compiler then keeps its fields in registers.
Error aaa_attr_tlv_buffer_to_list(const std::byte *bytes, std::uint64_t length, BlockView list, const void *owner) {
  TlvReader<> reader(bytes, length);
  Unwritten<ListEnd> lists[AAA_ATTR_NESTING_MAX + 1];  // that are being filled, by depth
  lists[0].write(ListEnd(list));
  while (reader.next()) {
    ListEnd &to = lists[reader.depth()].value;
    const Error error = reader.opens_list() ? add_sub_list(to, reader.attribute(), owner, &lists[reader.depth() + 1])
                                            : append_checked(to, reader.attribute(), reader.measured());
    if (error) return error;
  }
  return reader.error();
}

}  // namespace attrmgr
