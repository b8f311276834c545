#include "workloads.h"

#include <attrmgr/attrmgr.h>

#include <cstdlib>
#include <vector>

namespace {

using List = aaa_attr_list_handle;

// Types of several formats, none twice in a short list.
struct Attribute {
  const char *value;
  std::uint32_t length;
  std::uint32_t type;
};
constexpr Attribute kAttributes[] = {
    {"mira.holt@fibre.example", 23, 197}, {"\1\0\0\0", 4, 2}, {"\x0a\0\0\1", 4, 7},      {"0123456789abcdef", 16, 30},
    {"0123456789abcdef", 16, 11},         {"\1", 1, 25},      {"pool-of-north", 13, 15}, {"12345678", 8, 453},
};
constexpr std::uint32_t kGrouped = 444;
constexpr std::uint32_t kRefused = 1;

// Nothing of this may fail, or the figures would be of something else.
void check(bool ok) {
  if (!ok) std::abort();
}

List new_list() {
  List list = 0;
  check(aaa_attr_list_alloc(&list) == 0);
  return list;
}

void add(List list, unsigned count) {
  for (unsigned i = 0; i < count; ++i) {
    const Attribute &attribute = kAttributes[i % std::size(kAttributes)];
    check(aaa_attr_add(list, attribute.type, attribute.value, attribute.length, nullptr) == 0);
  }
}

// The list that a workload reads, made once.
List list_of(unsigned count) {
  const List list = new_list();
  add(list, count);
  return list;
}

List list_of_groups() {
  const List list = new_list();
  for (int i = 0; i < 4; ++i) {
    List group = 0;
    check(aaa_attr_add_group_list(list, &group, kGrouped, nullptr) == 0);
    add(group, 8);
  }
  return list;
}

std::vector<char> flat(List list) {
  std::uint32_t size = 0;
  (void)aaa_attr_list_to_buffer(list, nullptr, &size);
  std::vector<char> buffer(size);
  check(aaa_attr_list_to_buffer(list, buffer.data(), &size) == 0);
  return buffer;
}

// ---- Workloads ----

void lookup(std::uint64_t times) {
  static const List list = list_of(1);
  for (; times > 0; --times) {
    std::uint32_t status = kRefused;
    check(id_to_ptr(list, &status, 1) != nullptr && status == 0);
  }
}

// So many lists that the table does not fit the nearest cache, looked up in a mixed order.
void lookup_4096(std::uint64_t times) {
  constexpr std::size_t kLists = 4096;
  constexpr std::size_t kStep = 1365;  // has no divisor in common with kLists
  static const std::vector<List> lists = [] {
    std::vector<List> made(kLists);
    for (List &list : made) list = new_list();
    return made;
  }();
  std::size_t at = 0;
  for (; times > 0; --times) {
    std::uint32_t status = kRefused;
    check(id_to_ptr(lists[at], &status, 1) != nullptr && status == 0);
    at = (at + kStep) % kLists;
  }
}

void empty_list(std::uint64_t times) {
  for (; times > 0; --times) aaa_attr_list_free(new_list());
}

template <unsigned kCount>
void build(std::uint64_t times) {
  for (; times > 0; --times) aaa_attr_list_free(list_of(kCount));
}

template <unsigned kCount>
void find(std::uint64_t times) {
  static const List list = list_of(kCount);
  for (; times > 0; --times) check(aaa_attr_is_present(list, 453) == 1);
}

template <unsigned kCount>
void encode(std::uint64_t times) {
  static const List list = list_of(kCount);
  static std::vector<char> buffer = flat(list);
  for (; times > 0; --times) {
    auto size = static_cast<std::uint32_t>(buffer.size());
    check(aaa_attr_list_to_buffer(list, buffer.data(), &size) == 0);
  }
}

void decode(const std::vector<char> &buffer, std::uint64_t times) {
  for (; times > 0; --times) {
    List list = 0;
    check(aaa_attr_buffer_to_list(buffer.data(), static_cast<std::uint32_t>(buffer.size()), &list) == 0);
    aaa_attr_list_free(list);
  }
}

template <unsigned kCount>
void decode(std::uint64_t times) {
  static const std::vector<char> buffer = flat(list_of(kCount));
  decode(buffer, times);
}

void decode_groups(std::uint64_t times) {
  static const std::vector<char> buffer = flat(list_of_groups());
  decode(buffer, times);
}

void build_groups(std::uint64_t times) {
  for (; times > 0; --times) aaa_attr_list_free(list_of_groups());
}

void encode_groups(std::uint64_t times) {
  static const List list = list_of_groups();
  static std::vector<char> buffer = flat(list);
  for (; times > 0; --times) {
    auto size = static_cast<std::uint32_t>(buffer.size());
    check(aaa_attr_list_to_buffer(list, buffer.data(), &size) == 0);
  }
}

template <unsigned kCount>
void copy(std::uint64_t times) {
  static const List list = list_of(kCount);
  for (; times > 0; --times) {
    List made = 0;
    check(aaa_attr_list_copy(list, &made) == 0);
    aaa_attr_list_free(made);
  }
}

void merge(std::uint64_t times) {
  static const List source = list_of(8);
  for (; times > 0; --times) {
    const List list = list_of(32);
    check(aaa_attr_list_merge_with_replace(list, source) == 0);
    aaa_attr_list_free(list);
  }
}

void equal(std::uint64_t times) {
  static const List one = list_of(32), other = list_of(32);
  for (; times > 0; --times) check(aaa_attr_list_eq(one, other) == 1);
}

void render(std::uint64_t times) {
  static const List list = list_of(8);
  static char text[4096];
  for (; times > 0; --times) aaa_attr_list_print_to_output_buffer(list, text, sizeof text);
}

// What a message costs at both ends.
void exchange(std::uint64_t times) {
  static char buffer[4096];
  for (; times > 0; --times) {
    const List sent = list_of(32);
    std::uint32_t size = sizeof buffer;
    check(aaa_attr_list_to_buffer_v1(sent, buffer, &size) == 0);
    aaa_attr_list_free(sent);
    List received = 0;
    check(aaa_attr_buffer_to_list(buffer, size, &received) == 0);
    for (const Attribute &attribute : kAttributes) check(aaa_attr_is_present(received, attribute.type) == 1);
    aaa_attr_list_free(received);
  }
}

constexpr Workload kWorkloads[] = {
    {"lookup", lookup},
    {"lookup, 4096 lists", lookup_4096},
    {"empty list", empty_list},
    {"build 8", build<8>},
    {"build 32", build<32>},
    {"build 128", build<128>},
    {"find in 8", find<8>},
    {"find in 128", find<128>},
    {"encode 8", encode<8>},
    {"encode 128", encode<128>},
    {"decode 8", decode<8>},
    {"decode 128", decode<128>},
    {"build 4 groups of 8", build_groups},
    {"encode 4 groups of 8", encode_groups},
    {"decode 4 groups of 8", decode_groups},
    {"copy 8", copy<8>},
    {"copy 128", copy<128>},
    {"merge 8 into 32", merge},
    {"compare 32", equal},
    {"render 8", render},
    {"exchange 32", exchange},
    {nullptr, nullptr},
};

}  // namespace

extern "C" [[gnu::visibility("default")]] const Workload *bench_workloads() { return kWorkloads; }
