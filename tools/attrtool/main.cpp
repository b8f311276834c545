// attrtool: what is in a buffer, and why it is refused.
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
  CLI::App program("Shows what is in captured buffers of AAA attributes, and says why one is refused.", "attrtool");
  program.require_subcommand(1);
  program.fallthrough();
  program.add_option("--color", options.colour, "When to use colours")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->capture_default_str();
  program.footer(
      "Exit status: 0 yes, 1 no or refused, 2 usage or a file that cannot be read.\n"
      "attrtool VERB --help shows examples.");
  add_explain(program, options, &status);
  add_check(program, options, &status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::CallForHelp &help) {
    program.exit(help);
    return kYes;
  } catch (const CLI::ParseError &error) {
    std::cerr << "attrtool: " << printable(error.what()) << "; attrtool --help tells more\n";
    return kUsage;
  } catch (const std::exception &failure) {
    std::cerr << "attrtool: " << failure.what() << '\n';
    return kUsage;
  }
  std::cout.flush();
  return std::cout ? status : kUsage;
}

}  // namespace
}  // namespace attrtool

int main(int argc, char **argv) { return attrtool::run(argc, argv); }
