// The options of the environment variable ATTRMGR_CHECKED: NAME=VALUE, separated by commas.
#pragma once

#include <cstddef>
#include <string>

namespace attrmgr::checked {

struct Options {
  std::string report;     // the file that reports are appended to, %p for the process number; empty: standard error
  bool abort = false;     // end the process at the first misuse
  bool leaks = true;      // tell of lists that were never freed
  bool lines = true;      // ask addr2line for files and lines
  int exit_status = 0;    // for a process that would have ended with 0 but has something to report
  std::size_t stack = 1;  // calls to tell of a list that is made and of a misuse
  int signal = 0;         // write a report when the process gets this signal
};

// Read at the first call. What is not understood is told of on the standard error stream, and passed over.
const Options &options();

}  // namespace attrmgr::checked
