#include "capture.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <limits>

#include "explain_words.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr std::size_t kFirstRead = std::size_t{64} * 1024;

class OpenFile {
 public:
  explicit OpenFile(const std::string &path)
      : path_(path), descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) fail();
  }
  ~OpenFile() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
  }
  OpenFile(const OpenFile &) = delete;
  OpenFile &operator=(const OpenFile &) = delete;

  // 0 at the end.
  std::size_t read_into(std::uint8_t *to, std::size_t size) {
    ssize_t got;
    do got = read(descriptor_, to, size);
    while (got < 0 && errno == EINTR);
    if (got < 0) fail();
    return static_cast<std::size_t>(got);
  }

  [[noreturn]] void fail() const { throw Failure(printable(path_) + ": " + std::strerror(errno)); }

 private:
  const std::string &path_;
  int descriptor_;
};

}  // namespace

void read_capture(const std::string &path, std::vector<std::uint8_t> *bytes) {
  OpenFile file(path);
  if (bytes->size() < kFirstRead) bytes->resize(kFirstRead);
  std::size_t size = 0;
  while (const std::size_t got = file.read_into(bytes->data() + size, bytes->size() - size)) {
    size += got;
    if (size > std::numeric_limits<std::uint32_t>::max())
      throw Failure(printable(path) + ": no buffer is larger than 4 GiB");
    if (size == bytes->size()) bytes->resize(2 * size);
  }
  if (size == 0) throw Failure(printable(path) + ": is empty; a buffer has its marker at least");
  bytes->resize(size);
}

ByteOrder byte_order_of(ByteSpan bytes) {
  constexpr std::uint8_t kNetworkMagic[] = {0xAB, 0xCD};
  const bool flat = bytes.size() > sizeof kNetworkMagic && bytes[0] == AAA_MARSHAL_BUFFER;
  const bool network = flat && std::memcmp(bytes.data() + 1, kNetworkMagic, sizeof kNetworkMagic) == 0;
  return network ? ByteOrder::kNetwork : ByteOrder::kHost;
}

}  // namespace attrtool
