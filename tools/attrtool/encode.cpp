// attrtool encode: a buffer out of text or JSON.
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>

#include "load.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr char kNotes[] = R"(Forms: flat (for this machine), network (flat in network form), tlv, tlv-swapped
(TLV of the other byte order). Addresses of this process are taken out: a text
gives the same bytes each time. Whether FILE is text or JSON is seen from its
first character. A bad line is named with its column, the reason and what would
be right; nothing is written then.

Examples:
  attrtool encode session.attrs -o session.bin
  attrtool encode --to tlv session.attrs -o session.tlv
  attrtool encode --to network reply.json | ssh peer 'cat >reply.net'
  echo 'username = mira' | attrtool encode - | attrtool decode -

Exit status: 0 encoded, 1 a line is refused, 2 usage or a file that cannot be
read or written.)";

struct Arguments {
  std::string path, to = "flat", out = "-";
};

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

int run(const Arguments &arguments) {
  if (arguments.out == "-" && isatty(STDOUT_FILENO) != 0)
    throw Failure("a buffer is not written to a terminal: give -o FILE, or redirect the output");
  Loaded loaded = load_text(arguments.path);
  write(encoded(loaded.list, arguments.to), arguments.out);
  return kYes;
}

}  // namespace

void add_encode(CLI::App &program, const Options &, int *status) {
  CLI::App *verb = program.add_subcommand("encode", "Write a buffer from text or JSON");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("FILE", arguments->path, "The text or JSON; - is the standard input")->required();
  verb->add_option("-o,--output", arguments->out, "Where to write; the standard output if not given")->type_name("OUT");
  verb->add_option("--to", arguments->to, "The form, below; flat if not given")
      ->type_name("FORM")
      ->check(CLI::IsMember({"flat", "network", "tlv", "tlv-swapped"}).description(""));
  verb->footer(kNotes);
  verb->callback([arguments, status] { *status = run(*arguments); });
}

}  // namespace attrtool
