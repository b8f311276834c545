// The verbs of attrtool. Each adds its subcommand to the program; when the subcommand is called it sets the exit
// status.
#pragma once

#include <CLI/CLI.hpp>
#include <stdexcept>
#include <string>

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

// Of the program, whatever the verb.
struct Options {
  std::string colour = "auto";

  // Whether what is written to the standard output may be coloured.
  bool colours() const;
};

void add_decode(CLI::App &program, const Options &options, int *status);
void add_dict(CLI::App &program, const Options &options, int *status);
void add_diff(CLI::App &program, const Options &options, int *status);
void add_encode(CLI::App &program, const Options &options, int *status);
void add_err(CLI::App &program, const Options &options, int *status);
void add_explain(CLI::App &program, const Options &options, int *status);
void add_check(CLI::App &program, const Options &options, int *status);

}  // namespace attrtool
