#include "report.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "lists_in_use.h"
#include "options.h"
#include "place.h"

namespace attrmgr::checked {
namespace {

constexpr std::size_t kGroupsShown = 20;
constexpr std::size_t kListsShown = 3;  // of a group

// Lines of text, each begun in the way that tells them from the program's own.
class Text {
 public:
  // NOLINTNEXTLINE(cert-dcl50-cpp): the compiler checks the arguments, as it does for printf
  [[gnu::format(printf, 2, 3)]] void line(const char *format, ...) {
    char start[48];
    std::snprintf(start, sizeof start, "attrmgr_checked[%d]: ", static_cast<int>(getpid()));
    text_ += start;
    std::va_list arguments;
    va_start(arguments, format);
    char *formatted = nullptr;
    if (vasprintf(&formatted, format, arguments) >= 0) {
      text_ += formatted;
      std::free(formatted);
    }
    va_end(arguments);
    text_ += '\n';
  }

  const std::string &text() const { return text_; }

 private:
  std::string text_;
};

// Asks for a place once, however often it is named.
class Places {
 public:
  const std::vector<std::string> &all(const void *address) {
    auto [known, is_new] = known_.try_emplace(address);
    if (is_new) known->second = places_of_call(address, options().lines);
    return known->second;
  }

  const char *operator()(const void *address) { return all(address).front().c_str(); }

 private:
  std::map<const void *, std::vector<std::string>> known_;
};

const char *plural(std::uint64_t number) { return number == 1 ? "" : "s"; }

unsigned long long wide(std::uint64_t number) { return number; }

int open_report() {
  std::string path = options().report;
  if (path.empty()) return STDERR_FILENO;
  const std::size_t process = path.find("%p");
  if (process != std::string::npos) path.replace(process, std::strlen("%p"), std::to_string(getpid()));
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  if (file >= 0) return file;
  std::fprintf(stderr, "attrmgr_checked: cannot write %s: %s\n", path.c_str(), std::strerror(errno));
  return STDERR_FILENO;
}

void write_out(const std::string &text) {
  const int file = open_report();
  for (std::size_t written = 0; written < text.size();) {
    const ssize_t now = write(file, text.data() + written, text.size() - written);
    if (now < 0 && errno == EINTR) continue;
    if (now <= 0) break;
    written += static_cast<std::size_t>(now);
  }
  if (file != STDERR_FILENO) close(file);
}

// What called the first call, up to `main`, as far as the option goes.
void put_callers(Text &text, Places &place, std::span<const void *const> calls) {
  std::size_t told = 0;
  for (const void *call : calls) {
    if (call == nullptr) return;
    for (const std::string &caller : place.all(call)) {
      if (told == options().stack) return;
      if (told++ > 0) text.line("      called from %s", caller.c_str());
      if (caller.find(" in main ") != std::string::npos) return;
    }
  }
}

// ---- Lists ----

struct Group {
  std::vector<const void *> calls;
  std::vector<const ListInUse *> lists;
  std::uint64_t attributes = 0;
};

std::vector<Group> by_caller(const std::vector<ListInUse> &lists) {
  std::map<std::vector<const void *>, Group> groups;
  for (const ListInUse &list : lists) {
    if (list.sub_list) continue;  // the list that it belongs to is told of
    Group &group = groups[list.calls];
    group.calls = list.calls;
    group.lists.push_back(&list);
    group.attributes += list.attributes;
  }
  std::vector<Group> sorted;
  sorted.reserve(groups.size());
  for (auto &[calls, group] : groups) sorted.push_back(std::move(group));
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const Group &a, const Group &b) { return a.lists.size() > b.lists.size(); });
  return sorted;
}

void put_list(Text &text, const ListInUse &list) {
  text.line("    0x%llx: %llu attribute%s%s%s%s", wide(list.handle), wide(list.attributes), plural(list.attributes),
            list.names.empty() ? "" : ": ", list.names.c_str(), list.damaged ? "; damaged from there on" : "");
}

std::uint32_t put_lists(Text &text, Places &place, When when) {
  const std::vector<ListInUse> lists = lists_in_use();
  if (lists.empty()) return 0;
  const auto sub_lists = static_cast<std::size_t>(
      std::count_if(lists.begin(), lists.end(), [](const ListInUse &list) { return list.sub_list; }));
  const std::size_t outer = lists.size() - sub_lists;
  text.line("%zu list%s %s, with %zu sub-list%s", outer, plural(outer),
            when == When::kAtExit ? "never freed" : "in use", sub_lists, plural(sub_lists));
  const std::vector<Group> groups = by_caller(lists);
  for (std::size_t i = 0; i < std::min(groups.size(), kGroupsShown); ++i) {
    const Group &group = groups[i];
    text.line("  %zu list%s, %llu attribute%s, made at %s", group.lists.size(), plural(group.lists.size()),
              wide(group.attributes), plural(group.attributes), place(group.calls[0]));
    put_callers(text, place, group.calls);
    for (std::size_t n = 0; n < std::min(group.lists.size(), kListsShown); ++n) put_list(text, *group.lists[n]);
    if (group.lists.size() > kListsShown) text.line("    and %zu more", group.lists.size() - kListsShown);
  }
  if (groups.size() > kGroupsShown) text.line("  and lists of %zu more callers", groups.size() - kGroupsShown);
  return static_cast<std::uint32_t>(lists.size());
}

// ---- Misuses ----

void put_misuse(Text &text, Places &place, const Misuse &misuse) {
  text.line("  %llu use%s at %s, of 0x%llx", wide(misuse.uses), plural(misuse.uses), place(misuse.calls[0]),
            wide(misuse.handle));
  put_callers(text, place, misuse.calls);
  if (misuse.verdict != Verdict::kWithdrawn) return;
  if (misuse.withdrawn_by == nullptr) {
    text.line("    freed or handed over too long ago to tell where");
  } else {
    text.line("    freed or handed over at %s", place(misuse.withdrawn_by));
  }
}

std::uint64_t put_misuses(Text &text, Places &place, Verdict verdict, const char *what,
                          const std::vector<Misuse> &all) {
  std::vector<const Misuse *> chosen;
  std::uint64_t uses = 0;
  for (const Misuse &misuse : all) {
    if (misuse.verdict != verdict) continue;
    chosen.push_back(&misuse);
    uses += misuse.uses;
  }
  if (chosen.empty()) return 0;
  text.line("%llu use%s of %s", wide(uses), plural(uses), what);
  for (std::size_t i = 0; i < std::min(chosen.size(), kGroupsShown); ++i) put_misuse(text, place, *chosen[i]);
  if (chosen.size() > kGroupsShown) text.line("  and by %zu more callers", chosen.size() - kGroupsShown);
  return uses;
}

std::uint64_t put_all_misuses(Text &text, Places &place, const std::vector<Misuse> &all, std::uint64_t others) {
  std::uint64_t uses = put_misuses(text, place, Verdict::kWithdrawn, "handles whose list is gone", all);
  uses += put_misuses(text, place, Verdict::kNeverIssued, "numbers that never were a handle", all);
  if (others > 0) text.line("%llu more of either, by still other callers", wide(others));
  return uses + others;
}

}  // namespace

std::uint32_t write_report(When when) {
  Text text;
  Places place;
  std::uint64_t others = 0;
  const std::vector<Misuse> all = misuses(&others);
  const std::uint64_t uses = put_all_misuses(text, place, all, others);
  const bool with_lists = when == When::kOnDemand || options().leaks;
  const std::uint32_t lists = with_lists ? put_lists(text, place, when) : 0;
  if (!text.text().empty()) write_out(text.text());
  return lists + static_cast<std::uint32_t>(uses);
}

void write_misuse(const Misuse &misuse) {
  Text text;
  Places place;
  put_all_misuses(text, place, {misuse}, 0);
  write_out(text.text());
}

}  // namespace attrmgr::checked
