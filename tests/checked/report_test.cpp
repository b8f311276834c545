// What the checked handle table says of each kind of misuse: the very calls at fault, and nothing else. The program
// `misuse` commits them; places in its report are replaced here by the source line that they name.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace {

struct Outcome {
  std::string output;
  int status;  // as of the shell: 128 and the signal's number where one ended the program
};

// `exec` goes before a single command: the shell is to have no word on how it ends.
Outcome run(const std::string &command) {
  std::unique_ptr<FILE, int (*)(FILE *)> stream(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> bytes;
  while (const std::size_t size = fread(bytes.data(), 1, bytes.size(), stream.get())) output.append(bytes.data(), size);
  const int status = pclose(stream.release());
  return {output, WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status)};
}

// What puts the table in front of a program that is not linked with it: the test runs with both ways.
std::string preload() {
  const char *table = std::getenv("PRELOADED_TABLE");
  if (table == nullptr) return "";
  // By name, for the loader takes a space in LD_PRELOAD for the end of a path.
  const std::string path = table;
  const std::size_t slash = path.rfind('/');
  return "LD_LIBRARY_PATH='" + path.substr(0, slash) + "' LD_PRELOAD='" + path.substr(slash + 1) + "' ";
}

// The report of `misuse kind` on the standard error stream.
Outcome misuse(const std::string &options, const std::string &kind) {
  return run("exec env ATTRMGR_CHECKED=" + options + " " + preload() + "'" + std::getenv("MISUSE") + "' " + kind +
             " 2>&1 >/dev/null");
}

std::vector<std::string> source_lines() {
  std::vector<std::string> lines{""};  // lines are counted from 1
  std::ifstream source(MISUSE_SOURCE);
  for (std::string line; std::getline(source, line);)
    lines.push_back(line.substr(std::min(line.find_first_not_of(' '), line.size())));
  return lines;
}

// The report without what differs from run to run: process, handle and place in the program's file. Each
// "misuse.cpp:LINE" becomes that line's text.
std::string readable(const std::string &report) {
  static const std::vector<std::string> lines = source_lines();
  std::string text = std::regex_replace(report, std::regex("attrmgr_checked\\[[0-9]+\\]: "), "");
  text = std::regex_replace(text, std::regex(" \\([^ ]*misuse[^ ]*\\+0x[0-9a-f]+\\)"), "");
  text = std::regex_replace(text, std::regex("0x[0-9a-f]+"), "HANDLE");
  const std::regex place("misuse\\.cpp:([0-9]+) in ([^,\n]*)");
  std::string shown;
  std::smatch match;
  for (; std::regex_search(text, match, place); text = match.suffix())
    shown += match.prefix().str() + "`" + lines.at(std::stoul(match[1])) + "`";
  return shown + text;
}

const std::string kNone;
const std::string kMade = "made at `aaa_attr_list_alloc(&list);`\n";

const std::string kInUse =
    "1 list in use, with 0 sub-lists\n  1 list, 0 attributes, " + kMade + "    HANDLE: 0 attributes\n";

std::string gone(const std::string &uses, const std::string &used, const std::string &ended) {
  return uses + " of handles whose list is gone\n  " + uses + " at `" + used +
         "`, of HANDLE\n    freed or handed over at `" + ended + "`\n";
}

std::string foreign(const std::string &used) {
  return "1 use of numbers that never were a handle\n  1 use at `" + used + "`, of HANDLE\n";
}

const std::string kAddName = "void add_name(Handle list) { aaa_attr_add(list, kName, \"bob\", 3, nullptr); }";

const struct {
  const char *kind;
  std::string report;
} kRows[] = {
    {"use_after_free", gone("1 use", kAddName, "aaa_attr_list_free(list);")},
    {"use_after_splice", gone("3 uses", "for (int i = 0; i < 3; ++i) aaa_attr_is_present(part, kName);",
                              "aaa_attr_list_merge_list(whole, part);")},
    {"use_after_filter", gone("1 use", "aaa_attr_list_attr_count(old);", "aaa_attr_filter_on_type(&list, &kName, 1);")},
    {"free_twice", gone("1 use", "aaa_attr_list_free(list);", "aaa_attr_list_free(list);")},
    {"sub_list_outlives_parent", gone("1 use", kAddName, "aaa_attr_list_free(parent);")},
    {"sub_list_was_replaced",
     gone("1 use", kAddName, "aaa_attr_add_or_replace(parent, kGrouped, &second, sizeof second, nullptr);")},
    {"cursor_outlives_list", gone("1 use", "aaa_cursor_reset(cursor);", "aaa_attr_list_free(list);")},
    {"from_thin_air", foreign(kAddName)},
    {"address_for_a_handle", foreign(kAddName)},
    {"handle_cut_to_32_bits", foreign(kAddName)},
    {"two_owners", gone("1 use", "aaa_attr_list_free(other);", "aaa_attr_list_free(one);")},
    {"bogus_grouped_value",
     "2 uses of numbers that never were a handle\n"
     "  1 use at `aaa_attr_add(list, kGrouped, &bogus, sizeof bogus, nullptr);`, of HANDLE\n"
     "  1 use at `aaa_attr_list_free(list);`, of HANDLE\n"},
    {"leaked_lists",
     "5 lists never freed, with 5 sub-lists\n"
     "  5 lists, 45 attributes, " +
         kMade +
         "    HANDLE: 9 attributes: username, username, username, username, 3 more\n"
         "    HANDLE: 9 attributes: username, username, username, username, 3 more\n"
         "    HANDLE: 9 attributes: username, username, username, username, 3 more\n"
         "    and 2 more\n"},
    {"leaked_damaged_list", "1 list never freed, with 0 sub-lists\n  1 list, 0 attributes, " + kMade +
                                "    HANDLE: 0 attributes; damaged from there on\n"},
    {"forked_with_lists", kNone},
    {"handed_to_another_thread", kNone},
    {"freed_by_a_destructor", kNone},
};

TEST(CheckedReport, NamesTheCallsAtFaultAndNoOthers) {
  for (const auto &[kind, report] : kRows) {
    SCOPED_TRACE(kind);
    const Outcome outcome = misuse("exitcode=9", kind);
    EXPECT_EQ(readable(outcome.output), report);
    EXPECT_EQ(outcome.status, report.empty() ? 0 : 9);
  }
}

TEST(CheckedReport, FollowsItsOptions) {
  const std::string file = testing::TempDir() + "attrmgr_checked." + std::to_string(getpid());
  const std::string found = foreign(kAddName);
  const struct {
    const char *why;
    std::string options;
    const char *kind;
    std::string report;
    int status;
  } rows[] = {
      {"the status is left alone", "", "from_thin_air", found, 0},
      {"into a file", "report=" + file + ".%p,exitcode=4", "from_thin_air", "", 4},
      {"no leaks", "leaks=0,exitcode=4", "leaked_lists", "", 0},
      {"ends at the first misuse", "abort=1", "from_thin_air", found, 128 + SIGABRT},
      {"nothing to end for", "abort=1", "leaked_damaged_list",
       "1 list never freed, with 0 sub-lists\n  1 list, 0 attributes, " + kMade +
           "    HANDLE: 0 attributes; damaged from there on\n",
       0},
      {"the calls above", "stack=3", "use_after_free",
       "1 use of handles whose list is gone\n  1 use at `" + kAddName +
           "`, of HANDLE\n      called from `add_name(list);`\n      called from `kind.commit();`\n"
           "    freed or handed over at `aaa_attr_list_free(list);`\n",
       0},
      {"by signal", "signal=" + std::to_string(SIGUSR1), "asked_by_signal", kInUse, 0},
      {"by a call", "stack=1", "asked_by_call", kInUse, 0},
      {"what is no option", "leaks=2,,abort", "use_after_free",
       "attrmgr_checked: ATTRMGR_CHECKED: 'leaks=2' is no option; there are report=FILE, abort=1, leaks=0, lines=0, "
       "exitcode=N, stack=N, signal=N\n"
       "attrmgr_checked: ATTRMGR_CHECKED: 'abort' is no option; there are report=FILE, abort=1, leaks=0, lines=0, "
       "exitcode=N, stack=N, signal=N\n" +
           gone("1 use", kAddName, "aaa_attr_list_free(list);"),
       0},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    const Outcome outcome = misuse(row.options, row.kind);
    EXPECT_EQ(readable(outcome.output), row.report);
    EXPECT_EQ(outcome.status, row.status);
  }
  EXPECT_EQ(readable(run("cat " + file + ".*; rm " + file + ".*").output), found);
}

// Without addr2line the place is a function or an offset in a file.
TEST(CheckedReport, PlacesWithoutDebugInformation) {
  const std::string report = misuse("lines=0", "from_thin_air").output;
  EXPECT_TRUE(std::regex_search(report, std::regex("1 use at attrmgr_misuse[a-z_]*\\+0x[0-9a-f]+, of 0x5ca1ab1e\n")))
      << report;
}

TEST(CheckedReport, ProgramsWithoutListsHaveNothingToTell) {
  EXPECT_EQ(run("exec env " + preload() + "echo quiet 2>&1").output, "quiet\n");
}

}  // namespace
