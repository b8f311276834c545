// Removing attributes marks their records; the space comes back when the list is coalesced or filtered.
#include "aaa_attr/list_ops/remove.h"

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/list_ops/release.h"
#include "aaa_attr/list_ops/search.h"
#include "aaa_attr/list_ops/type_set.h"
#include "aaa_attr/store/handle_check.h"

namespace attrmgr {
namespace {

// Two lists, and the types of the second one's attributes.
struct Pair {
  BlockView own;
  BlockView other;
  TypeSet other_types;
};

aaa_attr_cerrno open_pair(aaa_attr_list_handle list, aaa_attr_list_handle other, Pair *pair) {
  if (check_whole_list(list) != 0 || check_whole_list(other) != 0) return AAA_ATTR_ERR_BAD_LIST;
  if (const aaa_attr_cerrno code = resolve(list, &pair->own)) return code;
  return resolve(other, &pair->other);
}

// open_pair, with the types collected by a cursor from the pool.
aaa_attr_cerrno open_pair_with_types(aaa_attr_list_handle list, aaa_attr_list_handle other, Pair *pair) {
  if (const aaa_attr_cerrno code = open_pair(list, other, pair)) return code;
  if (aaa_attr_list_attr_count(other) == 0) return 0;
  const PooledCursor cursor(other);
  if (cursor.code() != 0) return cursor.code();
  while (const std::uint32_t type = aaa_cursor_get_next(cursor.get())) pair->other_types.insert(type);
  return 0;
}

bool holds_equal(BlockView head, RecordView wanted) {
  for (const RecordView record : RecordsOfType(head, wanted.type()))
    if (same_value(record, wanted)) return true;
  return false;
}

}  // namespace

void remove_with_sub_list(RecordView record) {
  if (format_of(record.type()) == AAA_ATTR_FMT_GROUPED && record.length() == kHandleSize)
    release_list(load<aaa_attr_list_handle>(record.value()));
  record.mark_deleted();
}

aaa_attr_cerrno remove_types_of(aaa_attr_list_handle list, aaa_attr_list_handle types_from) {
  Pair pair;
  if (const aaa_attr_cerrno code = open_pair_with_types(list, types_from, &pair)) return code;
  for (const RecordView own : Attributes(pair.own)) {
    const std::uint32_t type = own.type();
    if (!pair.other_types.may_contain(type)) continue;
    if (type < AAA_ATTR_TYPE_COUNT || find_first(pair.other, type)) remove_with_sub_list(own);
  }
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_remove(aaa_attr_list_handle list, std::uint32_t type) {
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  for (const RecordView record : RecordsOfType(head, type)) remove_with_sub_list(record);
  return 0;
}

aaa_attr_cerrno aaa_attr_remove_on_match(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                         std::uint32_t length) {
  if (value == nullptr && length != 0) return AAA_ATTR_ERR_BAD_ARG;
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  for (RecordView record : RecordsOfType(head, type))
    if (holds_value(record, value, length)) record.mark_deleted();
  return 0;
}

aaa_attr_cerrno aaa_attr_list_remove_list(aaa_attr_list_handle list1, aaa_attr_list_handle list2) {
  return remove_types_of(list1, list2);
}

aaa_attr_cerrno aaa_attr_list_remove_list_on_match(aaa_attr_list_handle list1, aaa_attr_list_handle list2) {
  Pair pair;
  if (const aaa_attr_cerrno code = open_pair_with_types(list1, list2, &pair)) return code;
  for (RecordView own : Attributes(pair.own))
    if (pair.other_types.may_contain(own.type()) && holds_equal(pair.other, own)) own.mark_deleted();
  return 0;
}

// Each attribute of list1 is held against the first one of its type that list2 still has, and no other.
aaa_attr_cerrno aaa_attr_list_remove_common_attrs(aaa_attr_list_handle list1, aaa_attr_list_handle list2) {
  Pair pair;
  if (const aaa_attr_cerrno code = open_pair(list1, list2, &pair)) return code;
  for (RecordView own : Attributes(pair.own)) {
    RecordView other = find_first(pair.other, own.type());
    if (!other) continue;
    const bool same = same_value(own, other);
    own.mark_deleted();
    if (same) other.mark_deleted();
  }
  return 0;
}
