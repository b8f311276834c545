// misuse KIND: commits one kind of misuse, each in a function of its own. report_test.cpp holds the report of the
// checked handle table against the lines that are at fault here.
#include <attrmgr/attrmgr.h>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>

namespace {

using Handle = aaa_attr_list_handle;

constexpr std::uint32_t kName = 197;     // username
constexpr std::uint32_t kNumber = 2;     // ipv4-icmp-unreachable
constexpr std::uint32_t kSecret = 145;   // password
constexpr std::uint32_t kLi = 293;       // intercept-id
constexpr std::uint32_t kGrouped = 444;  // Failed AVP

Handle new_list() {
  Handle list = 0;
  aaa_attr_list_alloc(&list);
  return list;
}

void add_name(Handle list) { aaa_attr_add(list, kName, "bob", 3, nullptr); }

void use_after_free() {
  const Handle list = new_list();
  aaa_attr_list_free(list);
  add_name(list);
}

void use_after_splice() {
  const Handle whole = new_list();
  const Handle part = new_list();
  aaa_attr_list_merge_list(whole, part);
  for (int i = 0; i < 3; ++i) aaa_attr_is_present(part, kName);
  aaa_attr_list_free(whole);
}

void use_after_filter() {
  Handle list = new_list();
  const Handle old = list;
  aaa_attr_filter_on_type(&list, &kName, 1);
  aaa_attr_list_attr_count(old);
  aaa_attr_list_free(list);
}

void free_twice() {
  const Handle list = new_list();
  aaa_attr_list_free(list);
  aaa_attr_list_free(list);
}

void sub_list_outlives_parent() {
  const Handle parent = new_list();
  Handle sub_list = 0;
  aaa_attr_add_group_list(parent, &sub_list, kGrouped, nullptr);
  aaa_attr_list_free(parent);
  add_name(sub_list);
}

void sub_list_was_replaced() {
  const Handle parent = new_list();
  const Handle second = new_list();
  Handle first = 0;
  aaa_attr_add_group_list(parent, &first, kGrouped, nullptr);
  aaa_attr_add_or_replace(parent, kGrouped, &second, sizeof second, nullptr);
  add_name(first);
  aaa_attr_list_free(parent);
}

void cursor_outlives_list() {
  const Handle list = new_list();
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  aaa_attr_list_free(list);
  aaa_cursor_reset(cursor);
  aaa_cursor_free(cursor);
}

void from_thin_air() { add_name(0x5ca1ab1e); }

void address_for_a_handle() {
  alignas(8) static char block[512] = {'\xCD', '\xAB', 1, 0x23};
  add_name(reinterpret_cast<Handle>(&block));
}

void handle_cut_to_32_bits() {
  const Handle list = new_list();
  const auto cut = static_cast<std::uint32_t>(list);
  add_name(cut + (cut == 0 ? 1 : 0));  // 0 is no handle at all, and refused without a look at the table
  aaa_attr_list_free(list);
}

void two_owners() {
  const Handle one = new_list();
  const Handle other = new_list();
  const Handle shared = new_list();
  aaa_attr_add_existing_group_list(one, shared, kGrouped, nullptr);
  aaa_attr_add_existing_group_list(other, shared, kGrouped, nullptr);
  aaa_attr_list_free(one);
  aaa_attr_list_free(other);
}

void bogus_grouped_value() {
  const Handle list = new_list();
  const std::uint64_t bogus = 0x1122334455667788;
  aaa_attr_add(list, kGrouped, &bogus, sizeof bogus, nullptr);
  aaa_attr_list_free(list);
}

void leaked_lists() {
  for (int i = 0; i < 5; ++i) {
    const Handle list = new_list();
    aaa_attr_add(list, kSecret, "hush", 4, nullptr);
    aaa_attr_add(list, kLi, "tap", 3, nullptr);
    for (int n = 0; n < 6; ++n) add_name(list);
    aaa_attr_remove_on_match(list, kNumber, "gone", 4);
    Handle sub_list = 0;
    aaa_attr_add_group_list(list, &sub_list, kGrouped, nullptr);
  }
}

void leaked_damaged_list() {
  const Handle list = new_list();
  add_name(list);
  std::uint32_t status = 0;
  auto *block = static_cast<char *>(id_to_ptr(list, &status, 1));
  block[24 + 4] = 0x7F;  // the length of the record
  block[16] = 0x10;      // the next block
}

// A forked process has copies of its parent's lists, and need not free them.
void forked_with_lists() {
  const Handle list = new_list();
  if (fork() == 0) std::exit(0);
  int status = 0;
  wait(&status);
  aaa_attr_list_free(list);
  if (status != 0) std::exit(3);
}

// A list may end in another thread than the one that made it, and after the thread that made it.
void handed_to_another_thread() {
  for (int i = 0; i < 100; ++i) {
    Handle list = 0;
    std::thread([&list] { list = new_list(); }).join();
    std::thread([&list] { aaa_attr_list_free(list); }).join();
  }
}

// Lists that end with the program's own destructors are no leaks.
struct Owner {
  Handle list = 0;
  ~Owner() { aaa_attr_list_free(list); }
} owner;
void freed_by_a_destructor() { owner.list = new_list(); }

void asked_by_signal() {
  const Handle list = new_list();
  std::raise(SIGUSR1);
  aaa_attr_list_free(new_list());
  aaa_attr_list_free(list);
}

// The report that a program asks for itself, where the checked table is in use.
void asked_by_call() {
  const Handle list = new_list();
  void *report = dlsym(RTLD_DEFAULT, "attrmgr_checked_report");
  const bool one = report != nullptr && reinterpret_cast<std::uint32_t (*)()>(report)() == 1;
  aaa_attr_list_free(list);
  if (!one) std::exit(3);
}

const struct {
  const char *name;
  void (*commit)();
} kKinds[] = {
#define KIND(name) \
  { #name, name }
    KIND(use_after_free),
    KIND(use_after_splice),
    KIND(use_after_filter),
    KIND(free_twice),
    KIND(sub_list_outlives_parent),
    KIND(sub_list_was_replaced),
    KIND(cursor_outlives_list),
    KIND(from_thin_air),
    KIND(address_for_a_handle),
    KIND(handle_cut_to_32_bits),
    KIND(two_owners),
    KIND(bogus_grouped_value),
    KIND(leaked_lists),
    KIND(leaked_damaged_list),
    KIND(forked_with_lists),
    KIND(handed_to_another_thread),
    KIND(freed_by_a_destructor),
    KIND(asked_by_signal),
    KIND(asked_by_call),
#undef KIND
};

}  // namespace

int main(int argc, char **argv) {
  for (const auto &kind : kKinds)
    if (argc == 2 && std::string_view(argv[1]) == kind.name) {
      kind.commit();
      std::puts("done");
      return 0;
    }
  std::fprintf(stderr, "usage: misuse KIND\n");
  return 2;
}
