// Equality of lists as sets: every attribute of each has a match in the other. Lists that hold the same in the same
// order are equal after one pass over both, block by block if even the bytes are the same. Of all others first the
// values are compared, then the groups. The values of a short list are found by their types; else both go class by
// class: the records whose hashes fall into one class are few enough for a window, and one pass over each list tells
// whether they are the same set.
//
// The hash of a group is computed from what its sub-list holds, in any order. So sub-lists that differ are seldom
// compared at all, and equal ones are compared once, for both directions together. Comparing them once a direction
// would double the work with each level of nesting, 2^128 comparisons for a hostile pair.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/contents_hash.h"
#include "aaa_attr/list_ops/few_records.h"
#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/list_ops/record_window.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

bool same_meta(RecordView a, RecordView b) {
  if (a.has_meta() != b.has_meta()) return false;
  return !a.has_meta() || std::memcmp(a.meta_bytes(), b.meta_bytes(), kMetaSize) == 0;
}

// Of records of one type.
bool same_value_and_meta(RecordView a, RecordView b) { return same_value(a, b) && same_meta(a, b); }

// ---- The same in the same order ----

// Whether the lists have the same records, byte by byte and block by block; the same handle is the same sub-list.
bool same_bytes(BlockView block1, BlockView block2) {
  while (block1 && block2) {
    if (block1.used() != block2.used() || block1.record_count() != block2.record_count()) return false;
    if (std::memcmp(block1.records(), block2.records(), block1.used() - kHeaderSize) != 0) return false;
    block1 = block1.next();
    block2 = block2.next();
  }
  return !block1 && !block2;
}

bool same_sub_lists_in_order(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2);

bool same_in_order(BlockView list1, BlockView list2) {
  if (same_bytes(list1, list2)) return true;
  Attributes::Iterator at1(list1);
  Attributes::Iterator at2(list2);
  for (; *at1 && *at2; ++at1, ++at2) {
    if ((*at1).type() != (*at2).type()) return false;
    const bool same = is_grouped(*at1) ? same_sub_lists_in_order(owned_list(*at1), owned_list(*at2))
                                       : same_value_and_meta(*at1, *at2);
    if (!same) return false;
  }
  return !*at1 && !*at2;
}

bool same_sub_lists_in_order(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2) {
  if (handle1 == handle2) return true;
  const BlockView list1 = resolve_whole(handle1).head;
  const BlockView list2 = resolve_whole(handle2).head;
  return list1 && list2 && same_in_order(list1, list2);
}

// ---- The same in any order ----

// Large enough that a mebibyte of the shortest records takes no more than a hundred passes.
constexpr std::size_t kValueEntries = 2048;
constexpr std::size_t kGroupEntries = 2048;

// What the levels of a comparison share. Values need their window only while no sub-list is compared, so that each
// level has all of it; the windows of groups stay, and each level leaves a quarter of what it finds to those below it.
struct Windows {
  WindowSpace<kValueEntries> values;
  WindowSpace<kGroupEntries> groups;
  std::size_t groups_used = 0;
};

bool nested_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2, Windows &windows);

// The records that are no groups.
class Values {
 public:
  explicit Values(bool among_groups) : among_groups_(among_groups) {}

  bool include(RecordView record) const { return !among_groups_ || !is_grouped(record); }
  std::uint64_t hash(RecordView record) const { return hasher_.of_value_and_meta(record); }
  bool match(RecordView a, RecordView b) const { return a.type() == b.type() && same_value_and_meta(a, b); }
  void met_again(WindowEntry &, RecordView) const {}

 private:
  RecordHasher hasher_;
  bool among_groups_;
};

class Groups {
 public:
  explicit Groups(Windows &windows) : windows_(windows) {}

  bool include(RecordView record) const { return is_grouped(record); }
  std::uint64_t hash(RecordView record) const { return contents_.of_record(record); }
  bool match(RecordView a, RecordView b) const {
    return a.type() == b.type() && nested_equal(owned_list(a), owned_list(b), windows_);
  }

  // Of equal sub-lists the one with fewer repetitions is compared with those to come.
  void met_again(WindowEntry &known, RecordView equal) const {
    const Resolved known_list = resolve(owned_list(known.record));
    const Resolved other_list = resolve(owned_list(equal));
    if (known_list.error || other_list.error) return;
    if (count_records(other_list.head) < count_records(known_list.head)) known.record = equal;
  }

 private:
  Contents contents_;
  Windows &windows_;
};

// The hashes that agree in some bits, which are none of those that a window tells records apart by.
struct HashClass {
  static constexpr unsigned kFirstBit = std::bit_width(2 * kValueEntries - 1);
  static constexpr unsigned kBitsMax = 32 - kFirstBit;

  bool contains(std::uint64_t hash) const { return ((hash >> kFirstBit ^ value) & ((1u << bits) - 1)) == 0; }
  HashClass half(std::uint32_t which) const { return {value | which << bits, bits + 1}; }

  std::uint32_t value = 0;
  unsigned bits = 0;
};

// Whether the records of a kind, of two lists, are the same set.
template <class Kind>
class SetComparison {
 public:
  SetComparison(BlockView list1, BlockView list2, const Kind &kind, const RecordWindow &window)
      : list1_(list1), list2_(list2), kind_(kind), window_(window) {}

  bool equal(HashClass hashes = {}) {
    const Outcome outcome = compare(hashes);
    if (outcome != Outcome::kTooMany) return outcome == Outcome::kEqual;
    if (hashes.bits < HashClass::kBitsMax) return equal(hashes.half(0)) && equal(hashes.half(1));
    // So many different records with one hash: with a keyed hash this is chance, and comparing all with all will do.
    return all_match(list1_, list2_, hashes) && all_match(list2_, list1_, hashes);
  }

 private:
  enum class Outcome { kEqual, kDifferent, kTooMany };

  // The records of the class: those of the first list are collected, each once; those of the second must be among them,
  // and leave none over.
  Outcome compare(HashClass hashes) {
    std::size_t unmatched = 0;
    window_.clear();
    for (const RecordView own : Attributes(list1_)) {
      if (!kind_.include(own)) continue;
      const std::uint64_t hash = kind_.hash(own);
      if (!hashes.contains(hash)) continue;
      if (WindowEntry *known = find(hash, own)) {
        kind_.met_again(*known, own);
        continue;
      }
      if (window_.full()) return Outcome::kTooMany;
      window_.add(hash, own);
      ++unmatched;
    }
    for (const RecordView other : Attributes(list2_)) {
      if (!kind_.include(other)) continue;
      const std::uint64_t hash = kind_.hash(other);
      if (!hashes.contains(hash)) continue;
      WindowEntry *match = find(hash, other);
      if (match == nullptr) return Outcome::kDifferent;
      if (!std::exchange(match->matched, true)) --unmatched;
    }
    return unmatched == 0 ? Outcome::kEqual : Outcome::kDifferent;
  }

  WindowEntry *find(std::uint64_t hash, RecordView wanted) {
    return window_.find(hash, [this, wanted](const WindowEntry &entry) { return kind_.match(entry.record, wanted); });
  }

  bool is_of(HashClass hashes, RecordView record) const {
    return kind_.include(record) && hashes.contains(kind_.hash(record));
  }

  bool has_match(RecordView wanted, BlockView list) const {
    for (const RecordView candidate : Attributes(list))
      if (kind_.include(candidate) && kind_.match(candidate, wanted)) return true;
    return false;
  }

  bool all_match(BlockView list, BlockView other, HashClass hashes) const {
    for (const RecordView record : Attributes(list))
      if (is_of(hashes, record) && !has_match(record, other)) return false;
    return true;
  }

  BlockView list1_;
  BlockView list2_;
  const Kind &kind_;
  RecordWindow window_;
};

struct GroupsOf {
  std::size_t number = 0;
  RecordView first;
};

// The groups of a list; the blocks tell which need not be looked at.
GroupsOf groups_of(BlockView list) {
  GroupsOf groups;
  bool any = false;
  for (const BlockView block : Blocks(list)) any |= block.has(kBlockHoldsGrouped) && block.record_count() > 0;
  if (!any) return groups;
  for (const RecordView record : Attributes(list)) {
    if (!is_grouped(record)) continue;
    if (groups.number == 0) groups.first = record;
    ++groups.number;
  }
  return groups;
}

// Of lists of which the first is short.
bool few_values_equal(BlockView list1, BlockView list2, const Values &values) {
  FewRecords few;
  for (const RecordView record : Attributes(list1))
    if (values.include(record)) few.add(record);
  for (const RecordView record : Attributes(list2))
    if (values.include(record) && !few.match(record, same_value_and_meta)) return false;
  return few.all_matched();
}

bool values_equal(BlockView list1, BlockView list2, bool among_groups, Windows &windows) {
  const Values values(among_groups);
  if (count_records(list1) <= FewRecords::kMost) return few_values_equal(list1, list2, values);
  const RecordWindow window(windows.values, 0, std::min<std::size_t>(count_records(list1), kValueEntries));
  return SetComparison(list1, list2, values, window).equal();
}

bool groups_equal(BlockView list1, std::size_t num_groups, BlockView list2, Windows &windows) {
  constexpr std::size_t kFewEntries = 32;  // for whom the levels above have left little
  WindowSpace<kFewEntries> few;
  const Groups groups(windows);
  const std::size_t start = windows.groups_used;
  const std::size_t share = (kGroupEntries - start) / 4 * 3;
  const std::size_t wanted = std::min(num_groups, std::max(share, kFewEntries));
  if (wanted > share) return SetComparison(list1, list2, groups, RecordWindow(few, 0, wanted)).equal();
  windows.groups_used = start + wanted;
  const bool equal = SetComparison(list1, list2, groups, RecordWindow(windows.groups, start, wanted)).equal();
  windows.groups_used = start;
  return equal;
}

bool sets_equal(BlockView list1, BlockView list2, Windows &windows) {
  const GroupsOf groups1 = groups_of(list1);
  const GroupsOf groups2 = groups_of(list2);
  if ((groups1.number == 0) != (groups2.number == 0)) return false;
  if (!values_equal(list1, list2, groups1.number != 0, windows)) return false;
  if (groups1.number == 0) return true;
  // With one group each there is nothing to choose, and hashing what they hold would be wasted.
  if (groups1.number == 1 && groups2.number == 1) return Groups(windows).match(groups1.first, groups2.first);
  return groups_equal(list1, groups1.number, list2, windows);
}

bool nested_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2, Windows &windows) {
  if (handle1 == handle2) return true;
  const BlockView list1 = resolve_whole(handle1).head;
  const BlockView list2 = resolve_whole(handle2).head;
  if (!list1 || !list2) return false;
  return same_in_order(list1, list2) || sets_equal(list1, list2, windows);
}

// Not inlined: lists in the same order are compared without the windows on the stack.
[[gnu::noinline]] bool equal_in_any_order(BlockView list1, BlockView list2) {
  Windows windows;
  return sets_equal(list1, list2, windows);
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

int aaa_attr_list_eq(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2) noexcept {
  if (handle1 == handle2) return 1;
  const BlockView list1 = resolve_whole(handle1).head;
  const BlockView list2 = resolve_whole(handle2).head;
  if (!list1 || !list2) return 0;
  return same_in_order(list1, list2) || equal_in_any_order(list1, list2);
}
