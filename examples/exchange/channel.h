// Messages between two processes over a stream socket: the length as 4 bytes in network order, then the bytes.
#pragma once

#include <sys/uio.h>

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

using Message = std::vector<std::byte>;
using Piece = std::span<const std::byte>;

// One end. Sending and receiving throw std::runtime_error when the socket fails or the other end is gone.
class Channel {
 public:
  // The two ends of a new channel.
  static std::pair<Channel, Channel> open();

  Channel(Channel &&other) noexcept : socket_(std::exchange(other.socket_, -1)) {}
  Channel &operator=(Channel &&) = delete;
  ~Channel() { close(); }
  void close();

  // Sends one message and returns its length. The second form sends the pieces as they lie in memory.
  std::size_t send(Piece message);
  std::size_t send(const std::vector<Piece> &pieces);

  Message receive();

 private:
  explicit Channel(int socket) : socket_(socket) {}
  void write_all(std::vector<iovec> parts);
  void read_all(void *bytes, std::size_t size);

  int socket_;
};
