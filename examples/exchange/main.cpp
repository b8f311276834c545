// exchange FILE: reads attributes from a text file (docs/text-format.md) into a list and hands the list to a second
// process, in turn as a flat buffer, as a gather list and as a TLV buffer. The second process rebuilds the list, prints
// it and sends it back; the first compares.
#include <sys/wait.h>
#include <unistd.h>
#include <attrmgr/attrmgr.hpp>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

#include "channel.h"
#include "text/text_reader.h"

namespace {

constexpr int kFailed = 1;
constexpr int kUsageError = 2;

enum class Form { kFlat, kGather, kTlv };
constexpr Form kForms[] = {Form::kFlat, Form::kGather, Form::kTlv};

const char *name_of(Form form) {
  if (form == Form::kFlat) return "flat buffer";
  return form == Form::kGather ? "gather list" : "TLV buffer";
}

// What has been printed goes out before the next message does: the other process may print when it has that.
void flush_output() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) throw std::runtime_error("cannot write to the output");
}

// ---- The sending process ----

std::size_t send_list(Channel &channel, attrmgr::list &list, Form form) {
  if (form == Form::kFlat) return channel.send(list.to_flat());
  if (form == Form::kGather) {
    const attrmgr::pieces pieces = list.to_pieces();
    return channel.send(std::vector<Piece>(pieces.begin(), pieces.end()));
  }
  return channel.send(list.to_tlv());
}

// 0 when every list that came back equals the one that was sent.
int run_sender(Channel &channel, attrmgr::list &list) {
  int status = 0;
  for (const Form form : kForms) {
    const std::size_t size = send_list(channel, list, form);
    const bool equal = attrmgr::list::from_bytes(channel.receive()) == list;
    std::printf("%s: %zu bytes, lists are %s\n", name_of(form), size, equal ? "equal" : "NOT equal");
    flush_output();
    if (!equal) status = kFailed;
  }
  return status;
}

// ---- The receiving process ----

int run_receiver(Channel &channel) {
  for (const Form form : kForms) {
    const Message message = channel.receive();
    std::printf("\n==== received as %s: %zu bytes ====\n", name_of(form), message.size());
    if (form != Form::kTlv) {
      // Bytes off a socket are untrusted: only a checked buffer can be read in place.
      const attrmgr::flat_view in_place = attrmgr::flat_view::check(message);
      std::printf("%td attributes, counted in the buffer as it lies\n", std::ranges::distance(in_place));
    }
    attrmgr::list list = attrmgr::list::from_bytes(message);  // checks by itself
    const attrmgr::bytes answer = list.to_flat();             // as received: printing clears bits after an IPv6 prefix
    aaa_attr_list_print(list.handle());
    flush_output();
    channel.send(answer);
  }
  aaa_base_destroy_chunk_cursor();
  return 0;
}

// ---- Both ----

std::optional<attrmgr::list> read_file(const char *path) {
  std::ifstream file(path);
  if (!file) throw std::system_error(errno, std::generic_category(), std::string("cannot open ") + path);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (file.bad()) throw std::runtime_error(std::string("cannot read ") + path);
  auto read = attrtext::list_from_text(text);
  if (const auto *bad = std::get_if<attrtext::BadPlace>(&read)) {
    std::fprintf(stderr, "%s:%s\n", path, to_string(*bad).c_str());
    return std::nullopt;
  }
  return std::get<attrmgr::list>(std::move(read));
}

int wait_for(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0)
    if (errno != EINTR) return kFailed;
  return WIFEXITED(status) ? WEXITSTATUS(status) : kFailed;
}

// Runs one side; says what went wrong.
template <class Side>
int guarded(const char *side, Side run) {
  try {
    return run();
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "%s: %s\n", side, failure.what());
    return kFailed;
  }
}

int exchange(attrmgr::list list) {
  auto [sender, receiver] = Channel::open();
  std::fflush(stdout);  // what is still in the stream would be written by both processes
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) {
    sender.close();
    list = attrmgr::list();  // fork left a copy of the sender's list here; the receiver knows only what it is sent
    return guarded("receiver", [&channel = receiver] { return run_receiver(channel); });
  }
  receiver.close();
  const int sent = guarded("sender", [&channel = sender, &list] { return run_sender(channel, list); });
  sender.close();  // a receiver that still waits for a message ends now
  const int received = wait_for(child);
  return sent != 0 ? sent : received;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: exchange FILE\n");
    return kUsageError;
  }
  return guarded("exchange", [path = argv[1]] {
    std::signal(SIGPIPE, SIG_IGN);  // a receiver that is gone shows as an error of writing
    attrmgr::register_client("exchange", 1, 2);
    std::optional<attrmgr::list> list = read_file(path);
    return list ? exchange(std::move(*list)) : kFailed;
  });
}
