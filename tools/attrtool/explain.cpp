// attrtool explain: a capture byte by byte.
#include <iostream>

#include "explain_writers.h"
#include "input.h"
#include "verbs.h"

namespace attrtool {

int run(const Explain &asked) {
  const Input input = read_input(asked.path, asked.reading);
  const Explanation explanation = explain(Capture(input.bytes()), asked.show_secrets);
  const std::string name = asked.path == "-" ? "standard input" : asked.path;
  if (asked.json) {
    write_json(explanation, name, std::cout);
  } else if (asked.html) {
    write_page(explanation, name, std::cout);
  } else {
    write_text(explanation, name, asked.colours, std::cout);
  }
  return refusal_of(explanation.verdicts) == nullptr ? kYes : kNo;
}

}  // namespace attrtool
