#include "channel.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <system_error>

namespace {

// A length off the wire is believed up to here: a bad one must not exhaust memory.
constexpr std::size_t kMessageMax = std::size_t{64} << 20;

[[noreturn]] void fail(const char *what) { throw std::system_error(errno, std::generic_category(), what); }

void check_length(std::size_t length) {
  if (length > kMessageMax) throw std::runtime_error("a message of " + std::to_string(length) + " bytes is too long");
}

// Takes the bytes that have been written off the parts from `first` on; returns the first part that has bytes left.
std::size_t skip_written(std::vector<iovec> &parts, std::size_t first, std::size_t written) {
  for (; first < parts.size() && written >= parts[first].iov_len; ++first) written -= parts[first].iov_len;
  if (written > 0) {
    parts[first].iov_base = static_cast<char *>(parts[first].iov_base) + written;
    parts[first].iov_len -= written;
  }
  return first;
}

}  // namespace

std::pair<Channel, Channel> Channel::open() {
  int sockets[2];
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets) != 0) fail("socketpair");
  return {Channel(sockets[0]), Channel(sockets[1])};
}

void Channel::close() {
  if (socket_ >= 0) ::close(std::exchange(socket_, -1));
}

std::size_t Channel::send(Piece message) { return send(std::vector<Piece>{message}); }

std::size_t Channel::send(const std::vector<Piece> &pieces) {
  std::size_t length = 0;
  for (const Piece piece : pieces) length += piece.size();
  check_length(length);
  std::uint32_t header = htonl(static_cast<std::uint32_t>(length));
  std::vector<iovec> parts = {{&header, sizeof header}};
  for (const Piece piece : pieces) parts.push_back({const_cast<std::byte *>(piece.data()), piece.size()});
  write_all(std::move(parts));
  return length;
}

Message Channel::receive() {
  std::uint32_t header = 0;
  read_all(&header, sizeof header);
  const std::size_t length = ntohl(header);
  check_length(length);
  Message message(length);
  read_all(message.data(), message.size());
  return message;
}

// One call takes IOV_MAX parts at most, and may write less than it was given.
void Channel::write_all(std::vector<iovec> parts) {
  for (std::size_t first = 0; first < parts.size();) {
    const std::size_t count = std::min<std::size_t>(parts.size() - first, IOV_MAX);
    const ssize_t written = writev(socket_, &parts[first], static_cast<int>(count));
    if (written >= 0) {
      first = skip_written(parts, first, static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      fail("sending");
    }
  }
}

void Channel::read_all(void *bytes, std::size_t size) {
  auto *to = static_cast<char *>(bytes);
  while (size > 0) {
    const ssize_t count = read(socket_, to, size);
    if (count == 0) throw std::runtime_error("the other process has closed the connection");
    if (count > 0) {
      to += count;
      size -= static_cast<std::size_t>(count);
    } else if (errno != EINTR) {
      fail("receiving");
    }
  }
}
