// Combining lists. All but the splice take attributes one by one: a source record is written into the destination,
// appended or replacing, with a copy of its sub-list. They differ in which records, how they are written and whether
// the producer client type comes along.
#include <cstdio>
#include <utility>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/add_or_replace.h"
#include "aaa_attr/list_ops/copy.h"
#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/list_ops/remove.h"
#include "aaa_attr/store/append.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"
#include "dictionary/known_types.h"

namespace attrmgr {
namespace {

// How the source's attributes are written.
enum class Write {
  kAppend,
  kReplace,
  kDoubleDip,  // QoS policies accumulate, everything else replaces
};

// Whether a record's producer client type comes along.
enum class ClientType { kKeep, kDrop };

constexpr std::uint32_t kAnyType = ~std::uint32_t{0};

// What a combination does with the source's attributes.
struct Rules {
  Write write;
  ClientType client_type;
  std::uint32_t type = kAnyType;  // the only one that is taken
};

bool replaces(Write write, std::uint32_t type) {
  const bool accumulates = type == kTypeQosPolicyIn || type == kTypeQosPolicyOut;
  return write == Write::kReplace || (write == Write::kDoubleDip && !accumulates);
}

// A combination of two lists under way.
struct Combination {
  aaa_attr_list_handle handle;  // the destination's
  Rules rules;
  const void *owner;
  ListEnd destination;         // resolved with the first attribute: an empty source never touches it
  TypeIndex *index = nullptr;  // of the destination; null where that does not pay
};

Error open_destination(Combination &combination) {
  if (combination.destination.head) return 0;
  const auto [head, error] = resolve(combination.handle);
  if (error) return error;
  combination.destination = ListEnd(head);
  return 0;
}

Error write_attribute(Combination &combination, const NewAttribute &attribute) {
  // In the order in which adding looks at its arguments.
  if (const Error error = check_presence(attribute)) return error;
  if (const Error error = open_destination(combination)) return error;
  if (!replaces(combination.rules.write, attribute.type)) return append(combination.destination, attribute);
  return add_or_replace(combination.destination, attribute, OnOtherMeta::kSupersede, combination.index);
}

// What every combination does with one record. A sub-list whose record could not be added is freed.
Error take_record(Combination &combination, RecordView record) {
  NewAttribute attribute = attribute_of(record);
  if (combination.rules.client_type == ClientType::kDrop) attribute.client_type = 0;
  if (!is_grouped(record)) return write_attribute(combination, attribute);

  aaa_attr_list_handle sub_copy;
  if (const Error error = copy_list(owned_list(record), combination.owner, &sub_copy)) return error;
  attribute.value = &sub_copy;
  const Error error = write_attribute(combination, attribute);
  if (error) free_list(sub_copy);
  return error;
}

Error take_each(Combination &combination, BlockView from) {
  const std::uint32_t type = combination.rules.type;
  for (const RecordView record : Attributes(from)) {
    if (type != kAnyType && record.type() != type) continue;
    if (const Error error = take_record(combination, record)) return error;
  }
  return 0;
}

// Not inlined: only a call that replaces many attributes is to have the index, about 10 KiB, on its stack.
[[gnu::noinline]] Error take_each_by_index(Combination &combination, BlockView from) {
  TypeIndex index(combination.destination.head, from);
  combination.index = &index;
  return take_each(combination, from);
}

// Searching for each of a few records takes less time than making an index.
bool index_pays(const Rules &rules, BlockView source) {
  constexpr std::uint16_t kFewRecords = 4;
  const bool few = !source.next() && source.record_count() <= kFewRecords;
  return rules.write != Write::kAppend && !few;
}

Error combine(aaa_attr_list_handle destination, aaa_attr_list_handle source, const Rules &rules, const void *owner) {
  if (destination == 0 || source == 0) return AAA_ATTR_ERR_BAD_ARG;
  const auto [from, error] = resolve(source);
  if (error) return error;
  if (names_list_at(destination, from)) return AAA_ATTR_ERR_BAD_ARG;
  Combination combination{destination, rules, owner, {}};
  // With an empty source the destination is not touched, whatever its handle is.
  if (!index_pays(rules, from) || !*Attributes(from).begin()) return take_each(combination, from);
  // If the handle names no list, the first attribute that is written returns that code.
  return open_destination(combination) ? take_each(combination, from) : take_each_by_index(combination, from);
}

// The first half of both replace-and-add forms.
Error remove_replaced(aaa_attr_list_handle destination, aaa_attr_list_handle source) {
  if (destination == 0 || source == 0) return AAA_ATTR_ERR_BAD_ARG;
  if (name_one_list(destination, source) && !resolve_whole(source).error) return AAA_ATTR_ERR_BAD_ARG;
  const Error error = remove_types_of(destination, source);
  if (error) std::fputs("Unable to remove attributes of list2 in list1", stderr);
  return error;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_append_list(aaa_attr_list_handle destination, aaa_attr_list_handle source) noexcept {
  return combine(destination, source, {Write::kAppend, ClientType::kKeep}, ATTRMGR_CALLER).code;
}

aaa_attr_cerrno aaa_attr_list_merge_with_replace(aaa_attr_list_handle destination,
                                                 aaa_attr_list_handle source) noexcept {
  return combine(destination, source, {Write::kReplace, ClientType::kKeep}, ATTRMGR_CALLER).code;
}

aaa_attr_cerrno aaa_attr_list_copy_by_type(aaa_attr_list_handle source, aaa_attr_list_handle destination,
                                           std::uint32_t type) noexcept {
  return combine(destination, source, {Write::kAppend, ClientType::kDrop, type}, ATTRMGR_CALLER).code;
}

aaa_attr_cerrno aaa_attr_list_merge_double_dip(aaa_attr_list_handle destination, aaa_attr_list_handle source) noexcept {
  return combine(destination, source, {Write::kDoubleDip, ClientType::kDrop}, ATTRMGR_CALLER).code;
}

aaa_attr_cerrno aaa_attr_list_replace_and_add(aaa_attr_list_handle destination, aaa_attr_list_handle source) noexcept {
  if (const Error error = remove_replaced(destination, source)) return error.code;
  return combine(destination, source, {Write::kAppend, ClientType::kDrop}, ATTRMGR_CALLER).code;
}

aaa_attr_cerrno aaa_attr_list_replace_and_add_v1(aaa_attr_list_handle *list1, aaa_attr_list_handle *list2) noexcept {
  if (list1 == nullptr || list2 == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (const Error error = remove_replaced(*list1, *list2)) return error.code;
  const Rules append_all{Write::kAppend, ClientType::kKeep};
  if (const Error error = combine(*list2, *list1, append_all, ATTRMGR_CALLER)) return error.code;
  std::swap(*list1, *list2);
  return 0;
}
