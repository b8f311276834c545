// Equality of lists as sets: every attribute of each has a match in the other. Lists that hold the same in the same
// order are equal after one pass over both, block by block if even the bytes are the same; only what is behind the
// first difference is searched for.
//
// Sub-lists are compared by content, which is dear: two of them are compared once, for both directions together.
// Without that, every level of nesting would double the work.
#include <bitset>
#include <cstdlib>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/match.h"
#include "aaa_attr/list_ops/type_index.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

bool lists_equal(aaa_attr_list_handle list1, aaa_attr_list_handle list2);

bool is_grouped(RecordView record) { return format_of(record.type()) == AAA_ATTR_FMT_GROUPED; }

aaa_attr_list_handle sub_list_of(RecordView record) { return load<aaa_attr_list_handle>(record.value()); }

bool same_meta(RecordView a, RecordView b) {
  if (a.has_meta() != b.has_meta()) return false;
  return !a.has_meta() || std::memcmp(a.meta_bytes(), b.meta_bytes(), kMetaSize) == 0;
}

bool matches(RecordView a, RecordView b) {
  if (a.type() != b.type()) return false;
  if (is_grouped(a)) return lists_equal(sub_list_of(a), sub_list_of(b));
  return same_value(a, b) && same_meta(a, b);
}

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

using Position = Attributes::Iterator;  // at a null record behind the last

bool has_match(RecordView wanted, RecordsOfType::Iterator candidate) {
  for (; *candidate; ++candidate)
    if (matches(wanted, *candidate)) return true;
  return false;
}

// Two lists that agree up to the positions `at1` and `at2` and differ there.
struct Difference {
  BlockView list1;
  BlockView list2;
  Position at1;
  Position at2;
};

enum class Matched { kNo, kOneWay, kBothWays };

// Whether every record of the first list that holds a value, from the position on, has a match in the second. Where
// each type of the second list is there but once, a record that has a match is the match of that match, and the way
// back is short. Not in line: the index is not to lie on the stack while sub-lists are compared.
[[gnu::noinline]] Matched match_values(Difference lists) {
  const TypeIndex index(lists.list2, lists.list1);
  for (; *lists.at1; ++lists.at1)
    if (!is_grouped(*lists.at1) && !has_match(*lists.at1, index.records((*lists.at1).type()))) return Matched::kNo;
  if (!index.unique()) return Matched::kOneWay;
  for (; *lists.at2; ++lists.at2)
    if (!is_grouped(*lists.at2) && !index.asked((*lists.at2).type())) return Matched::kNo;
  return Matched::kBothWays;
}

bool values_match(const Difference &lists) {
  const Matched matched = match_values(lists);
  if (matched != Matched::kOneWay) return matched == Matched::kBothWays;
  return match_values({lists.list2, lists.list1, lists.at2, lists.at1}) != Matched::kNo;
}

// Every record that owns a sub-list, from the position on, has a match in the list.
bool grouped_have_match(Position from, BlockView list) {
  for (; *from; ++from)
    if (is_grouped(*from) && !has_match(*from, RecordsOfType(list, (*from).type()).begin())) return false;
  return true;
}

// A mark for each Grouped record of a list, by its number: it has found a match. Lists with very many of them need
// memory for it, and there may be none.
class Marks {
 public:
  explicit Marks(std::size_t count) {
    if (count > kOnStack) more_ = static_cast<bool *>(std::calloc(count, sizeof(bool)));
    available_ = count <= kOnStack || more_ != nullptr;
  }
  ~Marks() { std::free(more_); }
  Marks(const Marks &) = delete;
  Marks &operator=(const Marks &) = delete;

  bool available() const { return available_; }
  bool marked(std::size_t number) const { return more_ != nullptr ? more_[number] : few_[number]; }
  void mark(std::size_t number) {
    if (more_ != nullptr) {
      more_[number] = true;
    } else {
      few_[number] = true;
    }
  }

 private:
  static constexpr std::size_t kOnStack = 512;

  std::bitset<kOnStack> few_;
  bool *more_ = nullptr;
  bool available_;
};

std::size_t count_grouped(BlockView list) {
  std::size_t grouped = 0;
  for (const RecordView record : Attributes(list)) grouped += is_grouped(record);
  return grouped;
}

// Looks for matches of one Grouped record of the first list. `agreed`: it has one, and only records of the second list
// that have none yet are of interest. False when it has none.
bool match_grouped(RecordView own, bool agreed, const Difference &difference, Marks &marks) {
  bool matched = agreed;
  std::size_t number = 0;
  for (const RecordView other : Attributes(difference.list2)) {
    if (!is_grouped(other)) continue;
    const std::size_t current = number++;
    if (matched && marks.marked(current)) continue;
    if (own == *difference.at1 && other == *difference.at2) continue;  // known to differ
    if (!matches(own, other)) continue;
    matched = true;
    marks.mark(current);
  }
  return matched;
}

// Every Grouped record of either list has a match in the other.
bool grouped_match(const Difference &difference) {
  const std::size_t num_grouped = count_grouped(difference.list2);
  Marks marks(num_grouped);
  if (!marks.available())
    return grouped_have_match(difference.at1, difference.list2) && grouped_have_match(difference.at2, difference.list1);
  std::size_t number = 0;
  for (Position at(difference.list2); *at && *at != *difference.at2; ++at)
    if (is_grouped(*at)) marks.mark(number++);
  bool agreed = true;
  for (const RecordView own : Attributes(difference.list1)) {
    if (own == *difference.at1) agreed = false;
    if (is_grouped(own) && !match_grouped(own, agreed, difference, marks)) return false;
  }
  for (number = 0; number < num_grouped; ++number)
    if (!marks.marked(number)) return false;
  return true;
}

bool lists_equal(aaa_attr_list_handle handle1, aaa_attr_list_handle handle2) {
  if (handle1 == handle2) return true;
  if (check_whole_list(handle1) != 0 || check_whole_list(handle2) != 0) return false;
  BlockView list1;
  BlockView list2;
  if (resolve(handle1, &list1) != 0 || resolve(handle2, &list2) != 0) return false;

  if (same_bytes(list1, list2)) return true;
  Position at1(list1);
  Position at2(list2);
  while (*at1 && *at2 && matches(*at1, *at2)) {
    ++at1;
    ++at2;
  }
  if (!*at1 && !*at2) return true;
  const Difference difference{list1, list2, at1, at2};
  return values_match(difference) && grouped_match(difference);
}

}  // namespace
}  // namespace attrmgr

int aaa_attr_list_eq(aaa_attr_list_handle list1, aaa_attr_list_handle list2) {
  return attrmgr::lists_equal(list1, list2);
}
