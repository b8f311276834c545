#include "place.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <spawn.h>
#include <sys/auxv.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cinttypes>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

namespace attrmgr::checked {
namespace {

std::string hex(std::uintptr_t number) {
  char text[32];
  std::snprintf(text, sizeof text, "0x%" PRIxPTR, number);
  return text;
}

// The environment without what put this library here: a helper program needs no handle table.
std::vector<char *> plain_environment() {
  std::vector<char *> plain;
  for (char **variable = environ; *variable != nullptr; ++variable) {
    const std::string_view text(*variable);
    if (!text.starts_with("LD_PRELOAD=") && !text.starts_with("ATTRMGR_CHECKED=")) plain.push_back(*variable);
  }
  plain.push_back(nullptr);
  return plain;
}

// What the program writes to its standard output; empty when it cannot be run.
std::string output_of(std::vector<const char *> arguments) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return {};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  arguments.push_back(nullptr);
  pid_t child = 0;
  const int failed = posix_spawnp(&child, arguments[0], &actions, nullptr, const_cast<char *const *>(arguments.data()),
                                  plain_environment().data());
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  std::string output;
  char buffer[512];
  for (ssize_t read_now = 1; failed == 0 && read_now != 0;) {
    read_now = read(ends[0], buffer, sizeof buffer);
    if (read_now < 0 && errno != EINTR) break;
    if (read_now > 0) output.append(buffer, static_cast<std::size_t>(read_now));
  }
  close(ends[0]);
  while (failed == 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
  return output;
}

// The file of a loaded object; the program itself has no name there.
std::string file_of(const link_map &object) {
  if (object.l_name[0] != '\0') return object.l_name;
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

std::string_view base_name(std::string_view path) { return path.substr(path.rfind('/') + 1); }

// The next line of the text, which is taken from it.
std::string_view take_line(std::string_view *text) {
  const std::string_view line = text->substr(0, text->find('\n'));
  text->remove_prefix(std::min(line.size() + 1, text->size()));
  return line;
}

// "server.c:120 in handle_request", and what that is in line in; empty when there is no debug information.
std::vector<std::string> source_lines(const std::string &object, std::uintptr_t address) {
  if (getauxval(AT_SECURE) != 0) return {};  // no programs of the user's choice on another's behalf
  const std::string at = hex(address);
  const std::string output = output_of({"addr2line", "-C", "-f", "-i", "-e", object.c_str(), at.c_str()});
  std::vector<std::string> places;
  for (std::string_view left = output; !left.empty();) {
    const std::string_view function = take_line(&left);
    std::string_view line = take_line(&left);
    line = line.substr(0, line.find(" (discriminator"));
    if (line.empty() || line[0] == '?') break;
    if (line.ends_with(":?")) line.remove_suffix(2);  // the file alone is known
    places.push_back(std::string(base_name(line)) + " in " + std::string(function));
  }
  return places;
}

}  // namespace

std::vector<std::string> places_of_call(const void *return_address, bool with_lines) {
  if (return_address == nullptr) return {"an unknown place"};
  // The call stands before the address that it returns to, which may already belong to another line.
  const auto address = reinterpret_cast<std::uintptr_t>(return_address) - 1;
  Dl_info info;
  link_map *object = nullptr;
  if (dladdr1(reinterpret_cast<const void *>(address), &info, reinterpret_cast<void **>(&object), RTLD_DL_LINKMAP) == 0)
    return {hex(address)};
  const std::uintptr_t offset = address - object->l_addr;
  std::string where(base_name(info.dli_fname));
  where.append("+").append(hex(offset));
  std::vector<std::string> lines;
  if (with_lines) lines = source_lines(file_of(*object), offset);
  for (std::string &line : lines) line.append(" (").append(where).append(")");
  if (!lines.empty()) return lines;
  if (info.dli_sname == nullptr) return {where};
  const auto symbol = reinterpret_cast<std::uintptr_t>(info.dli_saddr);
  return {std::string(info.dli_sname) + "+" + hex(address - symbol) + " (" + where + ")"};
}

}  // namespace attrmgr::checked
