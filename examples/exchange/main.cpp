// exchange FILE: reads attributes from a text file (attr_text.h) into a list and hands the list to a second process,
// in turn as a flat buffer, as a gather list and as a TLV buffer. The second process rebuilds the list, prints it and
// sends it back; the first compares.
#include <attrmgr/attrmgr.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

#include "attr_text.h"
#include "channel.h"
#include "marshal.h"

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

std::size_t send_list(Channel &channel, aaa_attr_list_handle list, Form form) {
  if (form == Form::kFlat) return channel.send(flat_buffer(list));
  if (form == Form::kGather) return channel.send(gather_list(list));
  return channel.send(tlv_buffer(list));
}

// 0 when every list that came back equals the one that was sent.
int run_sender(Channel &channel, aaa_attr_list_handle list) {
  int status = 0;
  for (const Form form : kForms) {
    const std::size_t size = send_list(channel, list, form);
    const OwnedList returned = list_from_buffer(channel.receive());
    const bool equal = aaa_attr_list_eq(list, returned.handle()) == 1;
    std::printf("%s: %zu bytes, lists are %s\n", name_of(form), size, equal ? "equal" : "NOT equal");
    flush_output();
    if (!equal) status = kFailed;
  }
  return status;
}

// ---- The receiving process ----

int run_receiver(Channel &channel) {
  for (const Form form : kForms) {
    const Bytes message = channel.receive();
    std::printf("\n==== received as %s: %zu bytes ====\n", name_of(form), message.size());
    if (form != Form::kTlv) std::printf("%u attributes, counted in the buffer as it lies\n", count_in_place(message));
    const OwnedList list = list_from_buffer(message);
    const Bytes answer = flat_buffer(list.handle());  // as received: printing clears bits behind an IPv6 prefix
    aaa_attr_list_print(list.handle());
    flush_output();
    channel.send(answer);
  }
  aaa_base_destroy_chunk_cursor();
  return 0;
}

// ---- Both ----

OwnedList read_file(const char *path) {
  std::ifstream file(path);
  if (!file) throw std::system_error(errno, std::generic_category(), std::string("cannot open ") + path);
  auto read = list_from_text(file);
  if (file.bad()) throw std::runtime_error(std::string("cannot read ") + path);
  if (const auto *bad = std::get_if<BadLine>(&read)) {
    std::fprintf(stderr, "%s:%u: %s\n", path, bad->line, bad->reason.c_str());
    return OwnedList();
  }
  return std::get<OwnedList>(std::move(read));
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

int exchange(OwnedList list) {
  auto [sender, receiver] = Channel::open();
  std::fflush(stdout);  // what is still in the stream would be written by both processes
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) {
    sender.close();
    list = OwnedList();  // fork left a copy of the sender's list here; the receiver knows only what it is sent
    return guarded("receiver", [&channel = receiver] { return run_receiver(channel); });
  }
  receiver.close();
  const int sent = guarded("sender", [&channel = sender, &list] { return run_sender(channel, list.handle()); });
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
    const std::uint16_t client_ids[] = {1, 2};
    if (const aaa_attr_cerrno code = aaa_attr_client_register("exchange", client_ids))
      throw std::runtime_error(std::string("cannot register: ") + aaa_attr_cerrno_name(code));
    OwnedList list = read_file(path);
    return list.handle() == 0 ? kFailed : exchange(std::move(list));
  });
}
