// Removing from one list what another list has. No order of the records makes this expensive: types are collected in a
// set, values are looked up in windows over the one list while the other is passed over.
#include <attrmgr/aaa_attr.h>

#include <bitset>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/list_ops/record_hash.h"
#include "aaa_attr/list_ops/record_window.h"
#include "aaa_attr/list_ops/remove.h"
#include "aaa_attr/list_ops/type_set.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

// Large enough that a mebibyte of the shortest records takes no more than a hundred windows.
constexpr std::size_t kWindowEntries = 1024;

// Two lists, and the types of the second one's attributes.
struct Pair {
  BlockView own;
  BlockView other;
  TypeSet other_types;
};

Error open_pair(aaa_attr_list_handle list, aaa_attr_list_handle other, Pair *pair) {
  pair->own = resolve_whole(list).head;
  pair->other = resolve_whole(other).head;
  return pair->own && pair->other ? 0 : AAA_ATTR_ERR_BAD_LIST;
}

// open_pair, with the types collected by a cursor from the pool.
Error open_pair_with_types(aaa_attr_list_handle list, aaa_attr_list_handle other, Pair *pair) {
  if (const Error error = open_pair(list, other, pair)) return error;
  if (count_records(pair->other) == 0) return 0;
  PooledCursor cursor(other);
  if (cursor.error()) return cursor.error();
  while (const RecordView record = cursor.next()) pair->other_types.insert(record.type());
  return 0;
}

// The rare case: types outside the dictionary, which only a buffer brings. Not inlined: the set takes 8 KiB of stack.
[[gnu::noinline]] void remove_any_types(const Pair &pair) {
  std::bitset<kRecordTypeMax + 1> types;
  for (const RecordView other : Attributes(pair.other)) types[other.type()] = true;
  for (const RecordView own : Attributes(pair.own))
    if (types[own.type()]) remove_with_sub_list(pair.own, own);
}

// Not inlined, nor is the next one: a call that removes nothing is not to have a window on its stack.
[[gnu::noinline]] void remove_equal(const Pair &pair) {
  const RecordHasher hasher;
  WindowSpace<kWindowEntries> space;
  RecordWindow window(space, 0, std::min<std::size_t>(count_records(pair.other), kWindowEntries));
  for (Attributes::Iterator at(pair.other); *at;) {
    const auto find = [&window, &hasher](RecordView wanted) {
      return window.find(hasher.of_value(wanted), [wanted](const WindowEntry &entry) {
        return entry.record.type() == wanted.type() && same_value(entry.record, wanted);
      });
    };
    for (window.clear(); *at && !window.full(); ++at)
      if (find(*at) == nullptr) window.add(hasher.of_value(*at), *at);
    for (const RecordView own : Attributes(pair.own))
      if (pair.other_types.may_contain(own.type()) && find(own) != nullptr) remove_record(pair.own, own);
  }
}

// Each attribute of the one list is held against the first one of its type that the other list still has, and no other.
// Seen from there: an attribute of the other list meets those of its type in turn, until one has its value.
[[gnu::noinline]] void remove_common(const Pair &pair) {
  const RecordHasher hasher;
  WindowSpace<kWindowEntries> space;
  RecordWindow window(space, 0, std::min<std::size_t>(count_records(pair.own), kWindowEntries));
  for (Attributes::Iterator at(pair.own); *at;) {
    for (window.clear(); *at && !window.full(); ++at) window.add(hasher.of_number((*at).type()), *at);
    for (const RecordView other : Attributes(pair.other)) {
      const auto of_type = [other](const WindowEntry &entry) { return entry.record.type() == other.type(); };
      const std::uint64_t hash = hasher.of_number(other.type());
      while (const WindowEntry *met = window.take(hash, of_type)) {
        const bool same = same_value(met->record, other);
        remove_record(pair.own, met->record);
        if (!same) continue;
        remove_record(pair.other, other);
        break;
      }
    }
  }
}

}  // namespace

Error remove_types_of(aaa_attr_list_handle list, aaa_attr_list_handle types_from) {
  Pair pair;
  if (const Error error = open_pair_with_types(list, types_from, &pair)) return error;
  if (pair.other_types.has_others()) {
    remove_any_types(pair);
    return 0;
  }
  for (const RecordView own : Attributes(pair.own))
    if (pair.other_types.may_contain(own.type())) remove_with_sub_list(pair.own, own);
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_remove_list(aaa_attr_list_handle list1, aaa_attr_list_handle list2) noexcept {
  return remove_types_of(list1, list2).code;
}

aaa_attr_cerrno aaa_attr_list_remove_list_on_match(aaa_attr_list_handle list1, aaa_attr_list_handle list2) noexcept {
  Pair pair;
  if (const Error error = open_pair_with_types(list1, list2, &pair)) return error.code;
  remove_equal(pair);
  return 0;
}

aaa_attr_cerrno aaa_attr_list_remove_common_attrs(aaa_attr_list_handle list1, aaa_attr_list_handle list2) noexcept {
  Pair pair;
  if (const Error error = open_pair(list1, list2, &pair)) return error.code;
  remove_common(pair);
  return 0;
}
