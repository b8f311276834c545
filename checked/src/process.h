// What ties the checked table to the process that it is in: its start, its end, its forks and the signal that asks for
// a report.
#pragma once

#include <atomic>

namespace attrmgr::checked {

// Set when there is something to be done before the next handle is issued: at the start, and when a report was asked
// for by a signal, whose handler could not write it.
extern std::atomic<bool> attention;

// Does it. library_code: an address in the library.
void attend(const void *library_code);

// Set at the start: more calls are to be told of than the one that the library notes with each list.
extern bool stacks_wanted;

}  // namespace attrmgr::checked
