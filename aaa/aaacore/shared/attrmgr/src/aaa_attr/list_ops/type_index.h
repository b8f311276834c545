// Where a list has its records of the types that another list has, found in one pass over both: for operations that
// would else search the one list for each record of the other. It takes no memory but the stack's, about 10 KiB of it.
#pragma once

#include <cstddef>

#include "aaa_attr/list_ops/type_set.h"
#include "aaa_attr/store/unwritten.h"
#include "aaa_attr/walk/type_search.h"

namespace attrmgr {

class TypeIndex {
 public:
  // The index of `list`, for the types of the records of `asked`.
  TypeIndex(BlockView list, BlockView asked);

  // The live records of the type in the list, as it is now, in list order.
  RecordsOfType::Iterator records(std::uint16_t type) const;

  // The first of them; null without any. Cheaper, if records are removed between two calls.
  RecordView first(std::uint16_t type);

  // Whether the types that were asked for, and found, are of the dictionary and found once each.
  bool unique() const { return unique_; }

  // Whether there is a record of the type in the other list; only where unique().
  bool asked(std::uint16_t type) const { return asked_.may_contain(type); }

  // A record of this size was appended to the list.
  void appended(std::size_t size);

 private:
  void note(Place place);

  BlockView list_;
  TypeSet asked_;
  TypeSet known_;
  Unwritten<Place> first_[AAA_ATTR_TYPE_COUNT];  // of a known type: no live record of it lies before
  bool unique_ = true;
  bool cut_ = false;  // a record of type 0 ends the walk: what is appended is not found
};

}  // namespace attrmgr
