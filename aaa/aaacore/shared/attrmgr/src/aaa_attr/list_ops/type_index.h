// Where a list has its records of the types that another list has, found in one pass over both: for a merge, which
// would otherwise search the one list for each record of the other. It takes no memory but the stack's, about 10 KiB of
// it.
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

  // The first live record of a type of the dictionary in the list, as it is now; null without any.
  RecordView first(std::uint16_t type);

  // A record of this size was appended to the list, at the end of its last block.
  void appended(BlockView last, std::size_t size);

 private:
  void add(Place place);

  BlockView list_;
  TypeSet asked_;
  TypeSet known_;
  Unwritten<Place> first_[AAA_ATTR_TYPE_COUNT];  // of a known type: no live record of it lies before
  bool cut_ = false;                             // a record of type 0 ends the walk: what is appended is not found
};

}  // namespace attrmgr
