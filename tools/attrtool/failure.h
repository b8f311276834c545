// How attrtool ends: the exit status, and what it says when it cannot answer yes.
#pragma once

#include <stdexcept>

namespace attrtool {

enum ExitStatus : int { kYes = 0, kNo = 1, kUsage = 2 };

// What keeps a verb from answering: a file that cannot be read. what() is a sentence without the program's name.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An answer of no that needs a sentence: a file that is refused, a name that is not known. what() as above.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace attrtool
