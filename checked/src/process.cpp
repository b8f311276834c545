#include "process.h"

#include <attrmgr/checked.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "caller.h"
#include "free_slots.h"
#include "misuse.h"
#include "options.h"
#include "report.h"
#include "slot_table.h"

namespace attrmgr::checked {
namespace {

std::atomic<bool> report_asked{false};
static_assert(std::atomic<bool>::is_always_lock_free);

void ask_for_report(int) {
  report_asked.store(true, std::memory_order_relaxed);
  attention.store(true, std::memory_order_relaxed);
}

void before_fork() {
  lock_free_slots();
  lock_misuses();
}

void after_fork_in_parent() {
  unlock_misuses();
  unlock_free_slots();
}

void after_fork_in_child() {
  after_fork_in_parent();
  forget_misuses();
  inherit();
}

void at_exit(int status, void *) {
  const bool found = write_report(When::kAtExit) > 0;
  if (!found || options().exit_status == 0 || status != 0) return;
  std::fflush(nullptr);
  _exit(options().exit_status);
}

// on_exit, and so early: the report comes after all other handlers, and after the destructors of the program and its
// libraries, which may free lists.
[[gnu::constructor]] void start() {
  find_library();
  stacks_wanted = options().stack > 1;
  pthread_atfork(before_fork, after_fork_in_parent, after_fork_in_child);
  on_exit(at_exit, nullptr);
  if (options().signal != 0) std::signal(options().signal, ask_for_report);
}

}  // namespace

std::atomic<bool> attention{true};
bool stacks_wanted = false;

void attend(const void *library_code) {
  attention.store(false, std::memory_order_relaxed);
  if (!library_found()) find_library(library_code);
  if (report_asked.exchange(false, std::memory_order_relaxed)) write_report(When::kOnDemand);
}

}  // namespace attrmgr::checked

std::uint32_t attrmgr_checked_report() { return attrmgr::checked::write_report(attrmgr::checked::When::kOnDemand); }
