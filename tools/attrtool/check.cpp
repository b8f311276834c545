// attrtool check: which captures are good.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>

#include "check_captures.h"
#include "explain_words.h"
#include "input.h"
#include "verbs.h"

namespace attrtool {
namespace {

// A line on a terminal that says how far it has come, and is gone in the end.
class Progress {
 public:
  explicit Progress(std::size_t all) : all_(all), shown_(isatty(STDERR_FILENO) != 0 && all > 1) {}
  ~Progress() { clear(); }
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

  void step() {
    ++done_;
    if (!shown_ || done_ % kStepsALook != 0 || std::chrono::steady_clock::now() < next_) return;
    next_ = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
    std::cerr << '\r' << done_ << " of " << all_ << " captures" << std::flush;
    visible_ = true;
  }
  // Before something else is written.
  void clear() {
    if (visible_) std::cerr << "\r\x1b[K" << std::flush;
    visible_ = false;
  }

 private:
  static constexpr std::size_t kStepsALook = 64;

  std::size_t all_, done_ = 0;
  bool shown_, visible_ = false;
  std::chrono::steady_clock::time_point next_{};
};

// The files to check: those that are named, and those below the directories that are, in the order of their names.
std::vector<std::string> files_of(const std::vector<std::string> &paths) {
  namespace fs = std::filesystem;
  std::vector<std::string> files;
  for (const std::string &path : paths) {
    std::error_code error;
    if (path == "-" || !fs::is_directory(path, error)) {
      files.push_back(path);
      continue;
    }
    const auto first = static_cast<std::ptrdiff_t>(files.size());
    fs::recursive_directory_iterator entry(path, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error))
      if (entry->is_regular_file(error)) files.push_back(entry->path().string());
    if (error) throw Failure(printable(path) + ": " + error.message());
    std::sort(files.begin() + first, files.end());
  }
  return files;
}

class Run {
 public:
  explicit Run(const Check &asked)
      : asked_(asked), files_(files_of(asked.paths)), progress_(files_.size()), in_bulk_(files_ != asked.paths) {}

  int run() {
    for (const std::string &file : files_) {
      check_file(file);
      progress_.step();
    }
    progress_.clear();
    const bool summed_up = in_bulk_ || files_.size() > 1;
    if (summed_up && asked_.json) tally_.write_json(std::cout);
    if (summed_up && !asked_.json) tally_.write_text(std::cout);
    return tally_.unreadable() > 0 ? kUsage : tally_.refused() > 0 ? kNo : kYes;
  }

 private:
  void check_file(const std::string &file) {
    std::optional<Input> input;
    try {
      input.emplace(read_input(file, asked_.reading));
    } catch (const std::runtime_error &failure) {
      progress_.clear();
      std::cerr << "attrtool: " << failure.what() << '\n';
      tally_.add_unreadable();
      return;
    }
    const std::string name = file == "-" ? "standard input" : file;
    const Checked checked = check(name, Capture(input->bytes()), asked_.strict);
    tally_.add(checked);
    if (asked_.json) return write_json(checked, std::cout);
    if (in_bulk_ && !asked_.all && checked.refusal == nullptr) return;
    progress_.clear();
    write_text(checked, std::cout);
  }

  const Check &asked_;
  const std::vector<std::string> files_;
  Progress progress_;
  bool in_bulk_;  // found in directories: the good ones are not worth a line
  Tally tally_;
};

}  // namespace

int run(const Check &asked) { return Run(asked).run(); }

}  // namespace attrtool
