#include "input.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <limits>

#include "failure.h"
#include "hex_text.h"
#include "text/printable.h"

namespace attrtool {
namespace {

class OpenFile {
 public:
  explicit OpenFile(const std::string &path)
      : path_(path), descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) fail();
    struct stat status = {};
    if (fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) size_ = static_cast<std::uint64_t>(status.st_size);
    if (size_ > kLargest) refuse("no buffer is larger than 4 GiB");
  }
  ~OpenFile() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
  }
  OpenFile(const OpenFile &) = delete;
  OpenFile &operator=(const OpenFile &) = delete;

  Input bytes() {
    if (size_ >= kMappedFrom && path_ != "-") {
      const auto size = static_cast<std::size_t>(size_);
      void *at = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE, descriptor_, 0);
      if (at != MAP_FAILED) return {at, size};
    }
    return Input(read_whole());
  }

 private:
  static constexpr std::uint64_t kLargest = std::numeric_limits<std::uint32_t>::max();
  static constexpr std::uint64_t kMappedFrom = 1 << 20;
  static constexpr std::size_t kFirstRead = std::size_t{64} * 1024;  // of what does not tell its size

  std::vector<std::uint8_t> read_whole() {
    // One byte more than the file has: one that has not grown is read at once.
    std::vector<std::uint8_t> bytes(size_ > 0 ? static_cast<std::size_t>(size_) + 1 : kFirstRead);
    std::size_t size = 0;
    while (const std::size_t got = read_into(bytes.data() + size, bytes.size() - size)) {
      size += got;
      if (size > kLargest) refuse("no buffer is larger than 4 GiB");
      if (size == bytes.size()) bytes.resize(2 * size);
    }
    if (size == 0) refuse("is empty; a buffer has its marker at least");
    bytes.resize(size);
    return bytes;
  }

  // 0 at the end.
  std::size_t read_into(std::uint8_t *to, std::size_t size) const {
    ssize_t got;
    do got = read(descriptor_, to, size);
    while (got < 0 && errno == EINTR);
    if (got < 0) fail();
    return static_cast<std::size_t>(got);
  }

  [[noreturn]] void refuse(const char *why) const { throw Failure(attrtext::printable(path_) + ": " + why); }
  [[noreturn]] void fail() const { refuse(std::strerror(errno)); }

  const std::string &path_;
  int descriptor_;
  std::uint64_t size_ = 0;  // of a file that tells it
};

Input read_file(const std::string &path) { return OpenFile(path).bytes(); }

Input read_hex(const std::string &path, ByteSpan text) {
  HexText read = bytes_of_hex({reinterpret_cast<const char *>(text.data()), text.size()});
  if (!read.error.empty()) throw Refusal(shown_name(path) + ":" + std::to_string(read.line) + ": " + read.error);
  return Input(std::move(read.bytes));
}

}  // namespace

Input::~Input() {
  if (mapped_ != nullptr) munmap(mapped_, bytes_.size());
}

Input read_input(const std::string &path, const Reading &reading) {
  Input file = read_file(path);
  Input input = reading.hex ? read_hex(path, std::as_const(file).bytes()) : std::move(file);
  const std::size_t size = std::as_const(input).bytes().size();
  if (reading.skipped >= size)
    throw Refusal(shown_name(path) + ": " + std::to_string(reading.skipped) +
                  " bytes were to be left out, and there are " + std::to_string(size));
  input.skip(reading.skipped);
  return input;
}

std::string shown_name(const std::string &path) { return path == "-" ? "standard input" : attrtext::printable(path); }

}  // namespace attrtool
