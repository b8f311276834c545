// The verbs of attrtool, each with what it is asked; command_line.cpp says what the options mean. run() writes the
// answer to the standard output and returns the exit status; it throws a Failure or a Refusal where there is none.
#pragma once

#include <string>
#include <vector>

#include "failure.h"
#include "input.h"

namespace attrtool {

struct Decode {
  std::string path, display;
  Reading reading;
  bool json = false, show_secrets = false;
};
int run(const Decode &asked);

struct Encode {
  std::string path, to = "flat", out = "-";
};
int run(const Encode &asked);

struct Explain {
  std::string path;
  Reading reading;
  bool json = false, html = false, show_secrets = false, colours = false;
};
int run(const Explain &asked);

struct Check {
  std::vector<std::string> paths;
  Reading reading;
  bool json = false, all = false, strict = false;
};
int run(const Check &asked);

struct Diff {
  std::string before, after;
  Reading reading;
  bool json = false, show_secrets = false, colours = false;
};
int run(const Diff &asked);

struct Dict {
  std::vector<std::string> words;
  bool json = false, colours = false;
};
int run(const Dict &asked);

struct Err {
  std::string code;
  bool json = false, colours = false;
};
int run(const Err &asked);

}  // namespace attrtool
