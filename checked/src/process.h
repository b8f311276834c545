// What ties the checked table to the process that it is in: its start, its end, its forks and the signal that asks for
// a report.
#pragma once

namespace attrmgr::checked {

// Writes the report that a signal has asked for since the last call. A signal handler itself could not.
void report_if_asked();

}  // namespace attrmgr::checked
