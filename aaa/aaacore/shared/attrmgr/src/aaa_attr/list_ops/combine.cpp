// Combining lists. All but the splice take attributes over one by one: a source record is written into the destination,
// appended or replacing, with a copy of its sub-list. They differ in which records, how they are written and whether
// the producer client type comes along.
#include <cstdio>
#include <utility>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/add_or_replace.h"
#include "aaa_attr/list_ops/copy.h"
#include "aaa_attr/list_ops/release.h"
#include "aaa_attr/list_ops/remove.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/record_appender.h"
#include "aaa_attr/walk/list_walk.h"

namespace {

using namespace attrmgr;

enum class Write { kNot, kAppend, kReplace };

// What a combination does with a source record of a type, and whether it keeps the record's producer client type.
Write append_all(std::uint32_t) { return Write::kAppend; }
Write replace_all(std::uint32_t) { return Write::kReplace; }

// QoS policies accumulate, everything else replaces.
Write double_dip(std::uint32_t type) {
  constexpr std::uint32_t kQosPolicyIn = 277;
  constexpr std::uint32_t kQosPolicyOut = 278;
  return type == kQosPolicyIn || type == kQosPolicyOut ? Write::kAppend : Write::kReplace;
}

enum class ClientType { kKeep, kDrop };

aaa_attr_cerrno write_attribute(aaa_attr_list_handle destination, const NewAttribute &attribute, Write write) {
  return write == Write::kAppend ? add_attribute(destination, attribute)
                                 : add_or_replace(destination, attribute, OnOtherMeta::kSupersede);
}

// The step under every combination. A sub-list that was copied in vain is released.
aaa_attr_cerrno take_over(aaa_attr_list_handle destination, RecordView record, Write write, ClientType client_type,
                          const void *owner) {
  NewAttribute attribute = attribute_of(record);
  if (client_type == ClientType::kDrop) attribute.client_type = 0;
  if (format_of(attribute.type) != AAA_ATTR_FMT_GROUPED) return write_attribute(destination, attribute, write);

  aaa_attr_list_handle sub_copy;
  if (const auto code = copy_list(load<aaa_attr_list_handle>(record.value()), owner, &sub_copy)) return code;
  attribute.value = &sub_copy;
  const aaa_attr_cerrno code = write_attribute(destination, attribute, write);
  if (code != 0) release_list(sub_copy);
  return code;
}

template <class WriteFor>
aaa_attr_cerrno take_over_all(aaa_attr_list_handle destination, aaa_attr_list_handle source, WriteFor write_for,
                              ClientType client_type, const void *owner) {
  BlockView from;
  if (destination == 0 || source == 0) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = resolve(source, &from)) return code;
  if (destination == source) return AAA_ATTR_ERR_BAD_ARG;
  for (const RecordView record : Attributes(from)) {
    const Write write = write_for(record.type());
    if (write == Write::kNot) continue;
    if (const aaa_attr_cerrno code = take_over(destination, record, write, client_type, owner)) return code;
  }
  return 0;
}

// The first half of both replace-and-add forms.
aaa_attr_cerrno remove_replaced(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  if (destination == 0 || source == 0) return AAA_ATTR_ERR_BAD_ARG;
  if (destination == source && check_whole_list(source) == 0) return AAA_ATTR_ERR_BAD_ARG;
  const aaa_attr_cerrno code = remove_types_of(destination, source);
  if (code != 0) std::fputs("Unable to remove attributes of list2 in list1", stderr);
  return code;
}

}  // namespace

aaa_attr_cerrno aaa_attr_list_append_list(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  return take_over_all(destination, source, append_all, ClientType::kKeep, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_merge_with_replace(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  return take_over_all(destination, source, replace_all, ClientType::kKeep, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_copy_by_type(aaa_attr_list_handle source, aaa_attr_list_handle destination,
                                           std::uint32_t type) {
  const auto of_that_type = [type](std::uint32_t found) { return found == type ? Write::kAppend : Write::kNot; };
  return take_over_all(destination, source, of_that_type, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_merge_double_dip(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  return take_over_all(destination, source, double_dip, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_replace_and_add(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  if (const aaa_attr_cerrno code = remove_replaced(destination, source)) return code;
  return take_over_all(destination, source, append_all, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_replace_and_add_v1(aaa_attr_list_handle *list1, aaa_attr_list_handle *list2) {
  if (list1 == nullptr || list2 == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = remove_replaced(*list1, *list2)) return code;
  if (const auto code = take_over_all(*list2, *list1, append_all, ClientType::kKeep, ATTRMGR_CALLER)) return code;
  std::swap(*list1, *list2);
  return 0;
}
