// attrtool: what is in a buffer, why it is refused, what is in the dictionary.
#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "explain_words.h"
#include "verbs.h"

namespace attrtool {

bool Options::colours() const {
  if (colour != "auto") return colour == "always";
  const char *no_colour = std::getenv("NO_COLOR");
  return isatty(STDOUT_FILENO) != 0 && (no_colour == nullptr || *no_colour == '\0');
}

namespace {

int run(int argc, char **argv) {
  int status = kYes;
  Options options;
  CLI::App program("Shows what is in captured buffers of AAA attributes and in the dictionary.", "attrtool");
  program.get_formatter()->column_width(22);
  for (const char *noise : {"TEXT", "REQUIRED"}) program.get_formatter()->label(noise, "");
  program.require_subcommand(1);
  program.fallthrough();
  program.add_option("--color", options.colour, "When to use colours: auto, always or never")
      ->type_name("WHEN")
      ->check(CLI::IsMember({"auto", "always", "never"}).description(""));
  program.set_version_flag("--version", std::string("attrtool ") + aaa_attr_version(nullptr), "Print the version");
  program.footer(
      "Exit status: 0 yes, 1 no or refused, 2 usage or a file that cannot be read.\n"
      "attrtool VERB --help shows examples.");
  add_decode(program, options, &status);
  add_encode(program, options, &status);
  add_explain(program, options, &status);
  add_check(program, options, &status);
  add_diff(program, options, &status);
  add_dict(program, options, &status);
  add_err(program, options, &status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::Success &help) {  // --help or --version: the program writes it
    program.exit(help);
    return kYes;
  } catch (const CLI::ParseError &error) {
    std::cerr << "attrtool: " << printable(error.what()) << "; attrtool --help tells more\n";
    return kUsage;
  }
  std::cout.flush();
  return std::cout ? status : kUsage;
}

}  // namespace
}  // namespace attrtool

int main(int argc, char **argv) {
  try {
    return attrtool::run(argc, argv);
  } catch (const attrtool::Refusal &refusal) {
    std::cerr << "attrtool: " << refusal.what() << '\n';
    return attrtool::kNo;
  } catch (const std::exception &failure) {
    std::cerr << "attrtool: " << failure.what() << '\n';
    return attrtool::kUsage;
  }
}
