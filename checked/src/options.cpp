#include "options.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "slot_table.h"

namespace attrmgr::checked {
namespace {

constexpr char kVariable[] = "ATTRMGR_CHECKED";
constexpr int kExitStatusMax = 255;

bool read_number(std::string_view text, int max, int *number) {
  int read = 0;
  const auto [end, error] = std::from_chars(text.begin(), text.end(), read);
  if (error != std::errc() || end != text.end() || read < 0 || read > max) return false;
  *number = read;
  return true;
}

bool read_switch(std::string_view text, bool *on) {
  *on = text == "1";
  return text == "1" || text == "0";
}

bool read_depth(std::string_view text, std::size_t *depth) {
  int number = 0;
  if (!read_number(text, kCallsMax, &number) || number == 0) return false;
  *depth = static_cast<std::size_t>(number);
  return true;
}

bool read_option(std::string_view name, std::string_view value, Options *options) {
  if (name == "report") options->report = value;
  if (name == "report") return !value.empty();
  if (name == "abort") return read_switch(value, &options->abort);
  if (name == "leaks") return read_switch(value, &options->leaks);
  if (name == "lines") return read_switch(value, &options->lines);
  if (name == "exitcode") return read_number(value, kExitStatusMax, &options->exit_status);
  if (name == "stack") return read_depth(value, &options->stack);
  if (name == "signal") return read_number(value, SIGRTMAX, &options->signal);
  return false;
}

Options read_options() {
  Options options;
  const char *variable = std::getenv(kVariable);
  std::string_view left = variable != nullptr ? variable : "";
  while (!left.empty()) {
    const std::string_view option = left.substr(0, left.find(','));
    left.remove_prefix(option.size() + (option.size() < left.size() ? 1 : 0));
    const std::size_t equals = option.find('=');
    const bool read =
        equals != std::string_view::npos && read_option(option.substr(0, equals), option.substr(equals + 1), &options);
    if (!read && !option.empty())
      std::fprintf(stderr,
                   "attrmgr_checked: %s: '%.*s' is no option; there are report=FILE, abort=1, leaks=0, lines=0, "
                   "exitcode=N, stack=N, signal=N\n",
                   kVariable, static_cast<int>(option.size()), option.data());
  }
  return options;
}

}  // namespace

const Options &options() {
  // Never destroyed: the report at exit comes after the destructors.
  static const Options &read = *new Options(read_options());
  return read;
}

}  // namespace attrmgr::checked
