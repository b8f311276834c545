// Equality of lists as sets: every attribute of each has a match in the other. Lists that hold the same in the same
// order are equal after one pass over both, block by block if even the bytes are the same. All others are compared
// class by class: the records whose hashes fall into one class are few enough for a window, and one pass over each list
// tells whether they are the same set.
//
// A Grouped record's hash is that of what its sub-list holds, in any order. So sub-lists that differ are seldom
// compared at all, and those that are equal are compared once, for both directions together; every other way, each
// level of nesting would double the work.
#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/list_ops/record_hash.h"
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
    const bool same = is_grouped(*at1) ? same_sub_lists_in_order(sub_list_of(*at1), sub_list_of(*at2))
                                       : same_value(*at1, *at2) && same_meta(*at1, *at2);
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

// A number for what a list holds, whatever the order and the number of repetitions: a bit for each record's hash, and
// of all bits a hash. Lists of many records that differ in few may have the same.
class Contents {
 public:
  std::uint64_t of(RecordView record) const {
    if (!is_grouped(record)) return hasher_.of_value_and_meta(record);
    return hasher_.of_number(of(sub_list_of(record)) ^ record.type());
  }

 private:
  std::uint64_t of(aaa_attr_list_handle list) const {
    const Resolved resolved = resolve(list);
    if (resolved.code != 0) return hasher_.of_number(list);
    std::uint64_t seen[32] = {};
    for (const RecordView record : Attributes(resolved.head)) {
      const std::uint64_t hash = of(record);
      seen[hash >> 6 & 31] |= std::uint64_t{1} << (hash & 63);
    }
    std::uint64_t sum = 0;
    for (std::uint64_t place = 0; const std::uint64_t bits : seen) sum ^= hasher_.of_number(bits ^ place++ << 58);
    return sum;
  }

  RecordHasher hasher_;
};

// As many as make a mebibyte of the shortest records a matter of a hundred passes.
constexpr std::size_t kWindowEntries = 2048;

// The space that the levels of a comparison share.
struct Windows {
  WindowSpace<kWindowEntries> space;
  std::size_t used = 0;
};

// The hashes that agree in some bits, which are none of those that a window tells records apart by.
struct HashClass {
  static constexpr unsigned kFirstBit = std::bit_width(2 * kWindowEntries - 1);
  static constexpr unsigned kBitsMax = 32 - kFirstBit;

  bool contains(std::uint64_t hash) const { return ((hash >> kFirstBit ^ value) & ((1u << bits) - 1)) == 0; }
  HashClass half(std::uint32_t which) const { return {value | which << bits, bits + 1}; }

  std::uint32_t value = 0;
  unsigned bits = 0;
};

bool holds_grouped(BlockView list) {
  for (const BlockView block : Blocks(list))
    if (block.has(kBlockHoldsGrouped)) return true;
  return false;
}

bool nested_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2, Windows &windows);

// Two lists compared as sets, with a window over the first.
class SetComparison {
 public:
  SetComparison(BlockView list1, BlockView list2, Windows &windows)
      : list1_(list1), list2_(list2), windows_(windows), window_(take_window()) {}
  ~SetComparison() { windows_.used = start_; }
  SetComparison(const SetComparison &) = delete;
  SetComparison &operator=(const SetComparison &) = delete;

  bool equal(HashClass hashes = {}) {
    const Outcome outcome = compare(hashes);
    if (outcome != Outcome::kTooMany) return outcome == Outcome::kEqual;
    // So many records that differ do not have so much of a hash in common.
    if (hashes.bits == HashClass::kBitsMax) return false;
    return equal(hashes.half(0)) && equal(hashes.half(1));
  }

 private:
  enum class Outcome { kEqual, kDifferent, kTooMany };

  // A list that nests others leaves half of the space to them. Whom too little is left for has a little of his own.
  RecordWindow take_window() {
    const std::size_t left = kWindowEntries - start_;
    const std::size_t share = nested_ ? left / 2 : left;
    const std::size_t wanted = std::min(count_records(list1_), std::max(share, kFewEntries));
    if (share < wanted) return RecordWindow(few_, 0, wanted);
    windows_.used = start_ + wanted;
    return RecordWindow(windows_.space, start_, wanted);
  }

  // The records of the class: those of the first list are collected, each value once; those of the second must be
  // among them, and leave none over.
  Outcome compare(HashClass hashes) {
    std::size_t unmatched = 0;
    window_.clear();
    for (const RecordView own : Attributes(list1_)) {
      const std::uint64_t hash = hash_of(own);
      if (!hashes.contains(hash)) continue;
      if (WindowEntry *known = find(hash, own)) {
        keep_shorter(*known, own);
        continue;
      }
      if (window_.full()) return Outcome::kTooMany;
      window_.add(hash, own);
      ++unmatched;
    }
    for (const RecordView other : Attributes(list2_)) {
      const std::uint64_t hash = hash_of(other);
      if (!hashes.contains(hash)) continue;
      WindowEntry *match = find(hash, other);
      if (match == nullptr) return Outcome::kDifferent;
      if (!std::exchange(match->matched, true)) --unmatched;
    }
    return unmatched == 0 ? Outcome::kEqual : Outcome::kDifferent;
  }

  std::uint64_t hash_of(RecordView record) const {
    return nested_ ? contents_.of(record) : hasher_.of_value_and_meta(record);
  }

  WindowEntry *find(std::uint64_t hash, RecordView wanted) {
    return window_.find(hash, [this, wanted](const WindowEntry &entry) { return matches(entry.record, wanted); });
  }

  bool matches(RecordView a, RecordView b) {
    if (a.type() != b.type()) return false;
    if (nested_ && is_grouped(a)) return nested_equal(sub_list_of(a), sub_list_of(b), windows_);
    return same_value(a, b) && same_meta(a, b);
  }

  // Of equal sub-lists the one with fewer repetitions is compared with those to come.
  static void keep_shorter(WindowEntry &known, RecordView equal) {
    if (!is_grouped(equal)) return;
    const Resolved known_list = resolve(sub_list_of(known.record));
    const Resolved other_list = resolve(sub_list_of(equal));
    if (known_list.code != 0 || other_list.code != 0) return;
    if (count_records(other_list.head) < count_records(known_list.head)) known.record = equal;
  }

  static constexpr std::size_t kFewEntries = 16;

  BlockView list1_;
  BlockView list2_;
  const bool nested_ = holds_grouped(list1_) || holds_grouped(list2_);
  Windows &windows_;
  const std::size_t start_ = windows_.used;
  WindowSpace<kFewEntries> few_;
  RecordWindow window_;
  RecordHasher hasher_;
  Contents contents_;
};

bool nested_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2, Windows &windows) {
  if (handle1 == handle2) return true;
  const BlockView list1 = resolve_whole(handle1).head;
  const BlockView list2 = resolve_whole(handle2).head;
  if (!list1 || !list2) return false;
  return same_in_order(list1, list2) || SetComparison(list1, list2, windows).equal();
}

// Not in line: lists in the same order need no windows on the stack.
[[gnu::noinline]] bool equal_in_any_order(BlockView list1, BlockView list2) {
  Windows windows;
  return SetComparison(list1, list2, windows).equal();
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

int aaa_attr_list_eq(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2) {
  if (handle1 == handle2) return 1;
  const BlockView list1 = resolve_whole(handle1).head;
  const BlockView list2 = resolve_whole(handle2).head;
  if (!list1 || !list2) return 0;
  return same_in_order(list1, list2) || equal_in_any_order(list1, list2);
}
