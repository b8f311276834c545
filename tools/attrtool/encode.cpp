// attrtool encode: a buffer out of text or JSON.
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include "load.h"
#include "verbs.h"

namespace attrtool {
namespace {

std::vector<std::uint8_t> copied(const attrmgr::bytes &bytes) {
  const auto *begin = reinterpret_cast<const std::uint8_t *>(bytes.data());
  return {begin, begin + bytes.size()};
}

void check(aaa_attr_cerrno code) {
  if (code != 0) throw Refusal(std::string("the list cannot be encoded: ") + aaa_attr_cerrno_name(code));
}

std::vector<std::uint8_t> encoded(attrmgr::list &list, const std::string &to) {
  const bool flat = to == "flat" || to == "network";
  std::vector<std::uint8_t> bytes = copied(flat ? list.to_flat() : list.to_tlv());
  if (flat) check(aaa_attr_buffer_scrub(bytes.data(), static_cast<std::uint32_t>(bytes.size())));
  if (to == "network") check(to_other_order({Layout::kFlat, false}, bytes));
  if (to == "tlv-swapped") check(to_other_order({Layout::kTlv, false}, bytes));
  return bytes;
}

void write(const std::vector<std::uint8_t> &bytes, const std::string &path) {
  const auto *begin = reinterpret_cast<const char *>(bytes.data());
  const auto size = static_cast<std::streamsize>(bytes.size());
  if (path == "-") {
    std::cout.write(begin, size);
    return;
  }
  std::ofstream file(path, std::ios::binary);
  if (!file || !file.write(begin, size).flush()) throw Failure(shown_name(path) + ": " + std::strerror(errno));
}

}  // namespace

int run(const Encode &asked) {
  if (asked.out == "-" && isatty(STDOUT_FILENO) != 0)
    throw Failure("a buffer is not written to a terminal: give -o FILE, or redirect the output");
  Loaded loaded = load_text(asked.path);
  write(encoded(loaded.list, asked.to), asked.out);
  return kYes;
}

}  // namespace attrtool
