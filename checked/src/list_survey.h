// What the lists that are in use hold, for the report. Reads the blocks of a list, docs/layout.md, with every length
// checked: a list may be damaged, or another thread may be changing it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace attrmgr::checked {

struct SurveyedList {
  std::uint64_t handle;
  const void *owner;         // the code that made the list; null when that is not known
  std::uint64_t attributes;  // removed ones left out
  std::string names;         // of the first attributes, secrets left out
  bool damaged;              // what follows could not be read
  bool sub_list;             // another list owns it
};

// Every list of the process.
std::vector<SurveyedList> survey_lists();

}  // namespace attrmgr::checked
