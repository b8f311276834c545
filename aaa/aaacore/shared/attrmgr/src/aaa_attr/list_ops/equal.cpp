// Equality of lists as sets: every attribute of each has a match in the other. Lists that hold the same in the same
// order are equal after one pass over both; only what is behind the first difference is searched for.
//
// Sub-lists are compared by content, which is dear. Two of them are compared once, for both directions together; what
// was found to match is remembered in the sub-list's own head meanwhile (see MatchMarks).
#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

bool lists_equal(aaa_attr_list_handle list1, aaa_attr_list_handle list2);

bool is_grouped(RecordView record) { return format_of(record.type()) == AAA_ATTR_FMT_GROUPED; }

aaa_attr_list_handle sub_list_of(RecordView record) { return load<aaa_attr_list_handle>(record.value()); }

// Null for a record that holds no list: comparing it is cheap. A Grouped record whose handle names no list is one of
// those, it equals only the same handle.
BlockView sub_list_head(RecordView record) {
  BlockView head;
  return is_grouped(record) && resolve(sub_list_of(record), &head) == 0 ? head : BlockView();
}

bool holds_list(RecordView record) { return static_cast<bool>(sub_list_head(record)); }

bool same_meta(RecordView a, RecordView b) {
  if (a.has_meta() != b.has_meta()) return false;
  return !a.has_meta() || std::memcmp(a.meta_bytes(), b.meta_bytes(), kMetaSize) == 0;
}

bool matches(RecordView a, RecordView b) {
  if (a.type() != b.type()) return false;
  if (is_grouped(a)) return lists_equal(sub_list_of(a), sub_list_of(b));
  return same_value(a, b) && same_meta(a, b);
}

// Remembers which Grouped records of a list have found a match. The mark takes the place of the tail hint in the head
// of the record's sub-list, which nobody looks at meanwhile, and the hint is put back in the end.
class MatchMarks {
 public:
  explicit MatchMarks(BlockView list) : list_(list) {}
  ~MatchMarks() {
    for (const RecordView record : Attributes(list_)) put_hint_back(record);
  }
  MatchMarks(const MatchMarks &) = delete;
  MatchMarks &operator=(const MatchMarks &) = delete;

  static void mark(RecordView record) {
    if (BlockView head = sub_list_head(record)) head.set_reserved(kMark);
  }
  static bool marked(RecordView record) {
    const BlockView head = sub_list_head(record);
    return head && head.reserved() == kMark;
  }

 private:
  static constexpr std::int32_t kMark = kNeverATailHint;

  static void put_hint_back(RecordView record) {
    BlockView head = sub_list_head(record);
    if (!head || head.reserved() != kMark) return;
    head.set_reserved(0);
    set_tail(head, last_block(head));
  }

  BlockView list_;
};

using Position = Attributes::Iterator;  // at a null record behind the last

bool has_plain_match(RecordView wanted, BlockView list) {
  for (const RecordView record : Attributes(list))
    if (matches(wanted, record)) return true;
  return false;
}

// Behind `from`, every record that holds no list has a match in the list.
bool plain_records_match(Position from, BlockView list) {
  for (; *from; ++from)
    if (!holds_list(*from) && !has_plain_match(*from, list)) return false;
  return true;
}

// Every record that holds a list, in either list, has a match in the other. Records before the first difference, at
// `from1` and `from2`, match already; those two do not match each other.
bool sub_lists_match(BlockView list1, BlockView list2, Position from1, Position from2) {
  const MatchMarks marks(list2);
  for (Position at(list2); *at && *at != *from2; ++at)
    if (holds_list(*at)) MatchMarks::mark(*at);

  bool before_difference = true;
  for (const RecordView own : Attributes(list1)) {
    if (own == *from1) before_difference = false;
    if (!holds_list(own)) continue;
    bool matched = before_difference;
    for (const RecordView other : Attributes(list2)) {
      if (other.type() != own.type() || (matched && MatchMarks::marked(other))) continue;
      if (own == *from1 && other == *from2) continue;
      if (!matches(own, other)) continue;
      matched = true;
      MatchMarks::mark(other);
    }
    if (!matched) return false;
  }
  for (; *from2; ++from2)
    if (holds_list(*from2) && !MatchMarks::marked(*from2)) return false;
  return true;
}

bool lists_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2) {
  if (handle1 == handle2) return true;
  if (check_whole_list(handle1) != 0 || check_whole_list(handle2) != 0) return false;
  BlockView list1;
  BlockView list2;
  if (resolve(handle1, &list1) != 0 || resolve(handle2, &list2) != 0) return false;

  Position at1(list1);
  Position at2(list2);
  while (*at1 && *at2 && matches(*at1, *at2)) {
    ++at1;
    ++at2;
  }
  if (!*at1 && !*at2) return true;
  return plain_records_match(at1, list2) && plain_records_match(at2, list1) && sub_lists_match(list1, list2, at1, at2);
}

}  // namespace
}  // namespace attrmgr

int aaa_attr_list_eq(aaa_attr_list_handle list1, aaa_attr_list_handle list2) {
  return attrmgr::lists_equal(list1, list2);
}
