// What the lists that are in use hold, for the report. Reads the blocks of a list with every length checked: a list may
// be damaged, or another thread may be changing it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace attrmgr::checked {

struct ListInUse {
  std::uint64_t handle;
  std::vector<const void *> calls;  // the call that made the list, and what called that, as far as is known
  std::uint64_t attributes;         // removed ones left out
  std::string names;                // of the first attributes, secrets left out
  bool damaged;                     // what follows could not be read
  bool sub_list;                    // another list owns it
};

// Every list of the process.
std::vector<ListInUse> lists_in_use();

}  // namespace attrmgr::checked
