#include "input.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "hex_text.h"
#include "text/printable.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr std::size_t kMappedFrom = 1 << 20;

// The file mapped, where it is large and can be.
std::optional<Input> mapped(const std::string &path) {
  if (path == "-") return std::nullopt;
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  struct stat status = {};
  std::optional<Input> input;
  if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size >= off_t{kMappedFrom}) {
    const auto size = static_cast<std::size_t>(status.st_size);
    const void *at = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    if (at != MAP_FAILED) input.emplace(at, size);
  }
  close(file);
  return input;
}

Input read_file(const std::string &path) {
  if (std::optional<Input> large = mapped(path)) return std::move(*large);
  std::vector<std::uint8_t> bytes;
  read_capture(path, &bytes);
  return Input(std::move(bytes));
}

Input read_hex(const std::string &path, ByteSpan text) {
  HexText read = bytes_of_hex({reinterpret_cast<const char *>(text.data()), text.size()});
  if (!read.error.empty()) throw Refusal(shown_name(path) + ":" + std::to_string(read.line) + ": " + read.error);
  return Input(std::move(read.bytes));
}

}  // namespace

Input::~Input() {
  if (mapped_ != nullptr) munmap(const_cast<void *>(mapped_), bytes_.size());
}

void add_reading(CLI::App *verb, Reading *reading) {
  verb->add_flag("--hex", reading->hex, "FILE is text that shows the bytes: see below");
  verb->add_option("--skip", reading->skipped, "Bytes to leave out before the buffer")->type_name("BYTES");
}

Input read_input(const std::string &path, const Reading &reading) {
  Input file = read_file(path);
  Input input = reading.hex ? read_hex(path, file.bytes()) : std::move(file);
  const std::size_t size = input.bytes().size();
  if (reading.skipped >= size)
    throw Refusal(shown_name(path) + ": " + std::to_string(reading.skipped) +
                  " bytes were to be left out, and there are " + std::to_string(size));
  input.skip(reading.skipped);
  return input;
}

std::string shown_name(const std::string &path) { return path == "-" ? "standard input" : attrtext::printable(path); }

}  // namespace attrtool
