// The report: what it says and where it goes.
#pragma once

#include <cstdint>

#include "misuse.h"

namespace attrmgr::checked {

enum class When { kOnDemand, kAtExit };

// Writes the report unless there is nothing to tell. Returns the number of lists and misuses in it.
std::uint32_t write_report(When when);

// Writes of one misuse, for a process that is about to be ended for it.
void write_misuse(const Misuse &misuse);

}  // namespace attrmgr::checked
