// Searching a list in list order; type 0 is never found.
#pragma once

#include "aaa_attr/walk/type_search.h"

namespace attrmgr {

// The n-th live record of the type, from 0; null when there are fewer.
inline RecordView find_nth(BlockView head, std::uint32_t type, std::uint32_t n) {
  for (const RecordView record : RecordsOfType(head, type)) {
    if (n == 0) return record;
    --n;
  }
  return {};
}

inline RecordView find_first(BlockView head, std::uint32_t type) { return find_nth(head, type, 0); }

}  // namespace attrmgr
