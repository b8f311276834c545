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

// What a combination does with a source record of a type.
struct AppendAll {
  static constexpr bool kReplaces = false;
  Write operator()(std::uint32_t) const { return Write::kAppend; }
};

struct ReplaceAll {
  static constexpr bool kReplaces = true;
  Write operator()(std::uint32_t) const { return Write::kReplace; }
};

struct AppendType {
  static constexpr bool kReplaces = false;
  std::uint32_t type;
  Write operator()(std::uint32_t found) const { return found == type ? Write::kAppend : Write::kNot; }
};

// QoS policies accumulate, everything else replaces.
struct DoubleDip {
  static constexpr bool kReplaces = true;
  Write operator()(std::uint32_t type) const {
    constexpr std::uint32_t kQosPolicyIn = 277;
    constexpr std::uint32_t kQosPolicyOut = 278;
    return type == kQosPolicyIn || type == kQosPolicyOut ? Write::kAppend : Write::kReplace;
  }
};

// Whether a record's producer client type comes along.
enum class ClientType { kKeep, kDrop };

// A combination of two lists under way.
struct Combination {
  aaa_attr_list_handle destination;
  ClientType client_type;
  const void *owner;
  TypeIndex *index;  // of the destination; null where that does not pay
};

aaa_attr_cerrno write_attribute(const Combination &combination, const NewAttribute &attribute, Write write) {
  if (write == Write::kAppend) return add_attribute(combination.destination, attribute);
  return add_or_replace(combination.destination, attribute, OnOtherMeta::kSupersede, combination.index);
}

// The step under every combination. A sub-list that was copied in vain is released.
aaa_attr_cerrno take_over(const Combination &combination, RecordView record, Write write) {
  NewAttribute attribute = attribute_of(record);
  if (combination.client_type == ClientType::kDrop) attribute.client_type = 0;
  if (format_of(attribute.type) != AAA_ATTR_FMT_GROUPED) return write_attribute(combination, attribute, write);

  aaa_attr_list_handle sub_copy;
  if (const auto code = copy_list(load<aaa_attr_list_handle>(record.value()), combination.owner, &sub_copy))
    return code;
  attribute.value = &sub_copy;
  const aaa_attr_cerrno code = write_attribute(combination, attribute, write);
  if (code != 0) release_list(sub_copy);
  return code;
}

template <class WriteFor>
aaa_attr_cerrno take_over_each(const Combination &combination, BlockView from, WriteFor write_for) {
  for (const RecordView record : Attributes(from)) {
    const Write write = write_for(record.type());
    if (write == Write::kNot) continue;
    if (const aaa_attr_cerrno code = take_over(combination, record, write)) return code;
  }
  return 0;
}

template <class WriteFor>
[[gnu::noinline]] aaa_attr_cerrno take_over_each_by_index(Combination combination, BlockView to, BlockView from,
                                                          WriteFor write_for) {
  TypeIndex index(to, from);
  combination.index = &index;
  return take_over_each(combination, from, write_for);
}

// A search for each of few records is done before an index is made; and for none, the destination is not even looked
// at.
bool index_pays(BlockView source) {
  constexpr std::uint16_t kFewRecords = 4;
  const bool few = !source.next() && source.record_count() <= kFewRecords;
  return !few && *Attributes(source).begin();
}

template <class WriteFor>
aaa_attr_cerrno take_over_all(aaa_attr_list_handle destination, aaa_attr_list_handle source, WriteFor write_for,
                              ClientType client_type, const void *owner) {
  if (destination == 0 || source == 0) return AAA_ATTR_ERR_BAD_ARG;
  BlockView from;
  if (const aaa_attr_cerrno code = resolve(source, &from)) return code;
  if (destination == source) return AAA_ATTR_ERR_BAD_ARG;
  const Combination combination{destination, client_type, owner, nullptr};
  BlockView to;
  if (WriteFor::kReplaces && index_pays(from) && resolve(destination, &to) == 0)
    return take_over_each_by_index(combination, to, from, write_for);
  return take_over_each(combination, from, write_for);
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
  return take_over_all(destination, source, AppendAll{}, ClientType::kKeep, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_merge_with_replace(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  return take_over_all(destination, source, ReplaceAll{}, ClientType::kKeep, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_copy_by_type(aaa_attr_list_handle source, aaa_attr_list_handle destination,
                                           std::uint32_t type) {
  return take_over_all(destination, source, AppendType{type}, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_merge_double_dip(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  return take_over_all(destination, source, DoubleDip{}, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_replace_and_add(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  if (const aaa_attr_cerrno code = remove_replaced(destination, source)) return code;
  return take_over_all(destination, source, AppendAll{}, ClientType::kDrop, ATTRMGR_CALLER);
}

aaa_attr_cerrno aaa_attr_list_replace_and_add_v1(aaa_attr_list_handle *list1, aaa_attr_list_handle *list2) {
  if (list1 == nullptr || list2 == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const aaa_attr_cerrno code = remove_replaced(*list1, *list2)) return code;
  if (const auto code = take_over_all(*list2, *list1, AppendAll{}, ClientType::kKeep, ATTRMGR_CALLER)) return code;
  std::swap(*list1, *list2);
  return 0;
}
