// attrtool explain: a capture byte by byte.
#include <iostream>
#include <memory>

#include "explain_writers.h"
#include "input.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr char kExamples[] = R"(Examples:
  attrtool explain reply.bin                 every byte, and the field it is of
  attrtool explain --html reply.bin >r.html  a page with a map of the bytes
  attrtool explain --hex trace.log           out of a hexadecimal dump
  attrtool explain --json - <reply.bin | jq '.readers[] | select(.offset)'

Says first what each reader answers: the decoder, reading in place, and the
translation to the other byte order; then takes the buffer apart. For a refused
one it names the byte and the rule, and shows plainly what comes after.
Values of opaque types, LI attributes, and what may be either in bytes that no
reader gets to, are shown as ".." unless --show-secrets is given. Offsets count
from the first byte of the buffer, its marker.

Exit status: 0 the buffer can be decoded, 1 it cannot, 2 usage or a file that
cannot be read.)";

struct Arguments {
  std::string path;
  Reading reading;
  bool json = false, html = false, show_secrets = false;
};

int run(const Arguments &arguments, const Options &options) {
  const Input input = read_input(arguments.path, arguments.reading);
  const Explanation explanation = explain(Capture(input.bytes()), arguments.show_secrets);
  const std::string name = arguments.path == "-" ? "standard input" : arguments.path;
  if (arguments.json) {
    write_json(explanation, name, std::cout);
  } else if (arguments.html) {
    write_page(explanation, name, std::cout);
  } else {
    write_text(explanation, name, options.colours(), std::cout);
  }
  return refusal_of(explanation.verdicts) == nullptr ? kYes : kNo;
}

}  // namespace

void add_explain(CLI::App &program, const Options &options, int *status) {
  CLI::App *verb = program.add_subcommand("explain", "Name every byte of a buffer, and what is wrong with it");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("FILE", arguments->path, "The capture; - is the standard input")->required();
  CLI::Option *json = verb->add_flag("--json", arguments->json, "Write one JSON object");
  verb->add_flag("--html", arguments->html, "Write one HTML page that needs nothing else")->excludes(json);
  verb->add_flag("--show-secrets", arguments->show_secrets, "Show values of opaque types, and LI attributes");
  add_reading(verb, &arguments->reading);
  verb->footer(kExamples);
  verb->callback([arguments, &options, status] { *status = run(*arguments, options); });
}

}  // namespace attrtool
