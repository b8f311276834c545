// Memory runs out at every point where it can: the n-th allocation of an operation fails, for n = 1, 2, ... until the
// operation gets through. Whatever fails, the code says so, nothing leaks and the source is as it was. Linked with the
// static library, so that the platform layer defined here stands in for the library's own in that link too.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>
#include <string_view>

#include "support/lists.h"

namespace {

int live = 0;        // allocations not yet freed
int countdown = 0;   // the allocation to fail, counted from now; 0: none
bool stays = false;  // and all after it

// Text that must not be in memory that is given back, and how often it was.
std::string_view secret;
int given_back = 0;

bool fails() {
  if (countdown == 0 || --countdown > 0) return false;
  countdown = stays;
  return true;
}

void *counted(void *memory) {
  live += memory != nullptr;
  return memory;
}

}  // namespace

extern "C" {
void *__real_malloc(std::size_t size);
void *__real_aligned_alloc(std::size_t alignment, std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
char *__real_strdup(const char *text);
void __real_free(void *memory);

void *__wrap_malloc(std::size_t size) { return fails() ? nullptr : counted(__real_malloc(size)); }
void *__wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
  return fails() ? nullptr : counted(__real_aligned_alloc(alignment, size));
}
void *__wrap_calloc(std::size_t count, std::size_t size) {
  return fails() ? nullptr : counted(__real_calloc(count, size));
}
char *__wrap_strdup(const char *text) { return fails() ? nullptr : __real_strdup(text); }
void __wrap_free(void *memory) {
  live -= memory != nullptr;
  if (memory != nullptr && !secret.empty()) {
    const std::string_view bytes(static_cast<const char *>(memory), malloc_usable_size(memory));
    given_back += bytes.find(secret) != std::string_view::npos;
  }
  __real_free(memory);
}
}

void *malloc_pc(std::size_t size, const void *) { return std::malloc(size); }

// The handle table can run out as well.
std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return fails() ? 0 : 1; }
std::uint64_t id_get(void *block, std::uint16_t) { return fails() ? 0 : reinterpret_cast<std::uintptr_t>(block); }
void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  *status = 0;
  return reinterpret_cast<void *>(handle);
}
void id_delete(std::uint64_t, std::uint16_t) {}

namespace {

// What the operations work on. The source has three blocks and sub-lists four deep, the target one block without
// room for a group, the outer cursor stands on a sub-list.
struct Lists {
  Lists() {
    aaa_attr_list_handle inner = source;
    for (int depth = 0; depth < 4; ++depth)
      EXPECT_EQ(aaa_attr_add_group_list(inner, &inner, type::kGrouped, nullptr), 0u);
    EXPECT_EQ(aaa_attr_add(inner, type::kString, "inner", 5, nullptr), 0u);
    for (const char c : {'a', 'b', 'c'}) source.text(type::kClientId, std::string(400, c));
    source.group(type::kOtherGrouped);
    target.text(type::kString, std::string(470, 'd'));
    flat = flat_buffer(source);
    tlv = tlv_buffer(source);
    aaa_cursor_alloc(source, &at);
    aaa_cursor_get_next(at);
    outer = *at;
    aaa_base_destroy_chunk_cursor();
  }
  ~Lists() { std::free(array); }
  List source, target, result{0};
  Bytes flat, tlv;
  aaa_cursor outer, *at = nullptr;
  aaa_attr_array_entry *array = nullptr;
  aaa_attr_list_handle group = 1;
  std::uint32_t count = 0;
  int empty = 0;
};

// The code of an operation that must give out null when it fails.
template <class T>
aaa_attr_cerrno nulled(const T &given, aaa_attr_cerrno code) {
  EXPECT_EQ(given == T{}, code != 0);
  return code;
}

struct Operation {
  const char *name;
  int points;  // at least that many points of failure
  aaa_attr_cerrno (*run)(Lists &);
};

const char kBig[300] = "does not fit beside what the target holds";
const std::uint32_t kKept[] = {type::kGrouped, type::kClientId, type::kOtherGrouped};

const Operation kOperations[] = {
    {"alloc", 2, [](Lists &l) { return aaa_attr_list_alloc(l.result.out()); }},
    {"add", 1, [](Lists &l) { return aaa_attr_add(l.target, type::kString, kBig, sizeof kBig, nullptr); }},
    {"replace", 1,
     [](Lists &l) { return aaa_attr_add_or_replace(l.target, type::kString, kBig, sizeof kBig, nullptr); }},
    {"add a group list", 3,
     [](Lists &l) { return nulled(l.group, aaa_attr_add_group_list(l.target, &l.group, type::kGrouped, nullptr)); }},
    {"cursor", 2, [](Lists &l) { return nulled(l.at, aaa_cursor_alloc(l.source, &l.at)); }},
    {"filtered", 2, [](Lists &l) { return nulled(l.at, aaa_cursor_alloc_filtered(l.source, &l.at, 1, 1)); }},
    {"buffer cursor", 2, [](Lists &l) { return nulled(l.at, aaa_cursor_alloc_from_buffer(l.flat.data(), &l.at)); }},
    {"grouped cursor", 2, [](Lists &l) { return nulled(l.at, aaa_cursor_grouped_alloc(&l.outer, &l.at)); }},
    {"is it empty", 2, [](Lists &l) { return is_aaa_attr_list_empty(l.source, &l.empty); }},
    {"remove a list's types", 2, [](Lists &l) { return aaa_attr_list_remove_list(l.target, l.source); }},
    {"flat", 14, [](Lists &l) { return decode(l.flat, &l.result); }},
    {"TLV", 14, [](Lists &l) { return decode(l.tlv, &l.result); }},
    {"gather list", 1, [](Lists &l) { return aaa_attr_list_to_array(l.source, &l.array, &l.count); }},
    {"copy", 14, [](Lists &l) { return aaa_attr_list_copy(l.source, l.result.out()); }},
    {"append", 13, [](Lists &l) { return aaa_attr_list_append_list(l.target, l.source); }},
    {"merge", 11, [](Lists &l) { return aaa_attr_list_merge_with_replace(l.target, l.source); }},
    {"merge, policies beside", 11, [](Lists &l) { return aaa_attr_list_merge_double_dip(l.target, l.source); }},
    {"copy a type", 8, [](Lists &l) { return aaa_attr_list_copy_by_type(l.source, l.target, type::kGrouped); }},
    {"replace and add", 15, [](Lists &l) { return aaa_attr_list_replace_and_add(l.target, l.source); }},
    {"filter", 4, [](Lists &l) { return aaa_attr_filter_on_type(l.source.out(), kKept, 3); }},
};

TEST(OutOfMemory, AtEveryPointOfEveryOperation) {
  const std::string source = outline(Lists().source);
  aaa_base_destroy_chunk_cursor();
  const int live_before = live;
  for (const Operation &operation : kOperations)
    for (const bool all_after : {false, true}) {
      aaa_attr_cerrno code = AAA_ATTR_ERR_NO_MEMORY;
      int n = 0;
      while (code == AAA_ATTR_ERR_NO_MEMORY) {
        SCOPED_TRACE(std::string(operation.name) + (all_after ? ", all from " : ", ") + std::to_string(++n));
        {
          Lists lists;
          stays = all_after;
          countdown = n;
          code = operation.run(lists);
          countdown = 0;
          EXPECT_TRUE(code == 0 || lists.result == 0) << "a handle in spite of the failure";
          EXPECT_EQ(outline(lists.source), source);
        }
        aaa_base_destroy_chunk_cursor();
        EXPECT_EQ(live, live_before);
      }
      EXPECT_EQ(code, 0u) << operation.name;
      EXPECT_GT(n, operation.points) << operation.name;
    }
}

// Equality has no code to say that memory ran out: it takes none, however many groups there are.
TEST(OutOfMemory, EqualityDoesWithout) {
  List list, reversed, other;
  for (std::uint32_t i = 0; i < 3000; ++i) {
    List(list.group(type::kGrouped)).number(type::kUlong, i).release();
    List(reversed.group(type::kGrouped)).number(type::kUlong, 2999 - i).release();
    List(other.group(type::kGrouped)).number(type::kUlong, 3000 - i).release();
  }
  stays = false;
  countdown = 1;
  EXPECT_EQ(aaa_attr_list_eq(list, reversed), 1);
  EXPECT_EQ(aaa_attr_list_eq(list, other), 0);
  EXPECT_EQ(std::exchange(countdown, 0), 1) << "something was asked for";
}

// A list with the text in a value of the type: in its head, in a chained block, removed, and in a sub-list.
List with_text(std::uint32_t type, std::string_view text) {
  List list;
  list.text(type, text).text(type::kBinary, std::string(480, 'x')).text(type, text);
  list.text(type, text).text(type::kBinary, std::string(900, 'y'));
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(list, &cursor);
  aaa_cursor_get_next(cursor);
  aaa_cursor_remove(cursor);
  aaa_cursor_free(cursor);
  List(list.group(type::kGrouped)).text(type, text).release();
  return list;
}

// How often the text is in a block that is given back: when the list is freed, packed, filtered, copied, spliced,
// decoded from either form, and refused.
int times_given_back(std::uint32_t type, std::string_view text) {
  given_back = 0;
  {
    List list = with_text(type, text), other = with_text(type, text), decoded;
    Bytes flat = flat_buffer(list), tlv = tlv_buffer(list);
    secret = text;
    List copy(0);
    EXPECT_EQ(aaa_attr_list_copy(list, copy.out()), 0u);
    decode(flat, &decoded);
    decode(tlv, &decoded);
    flat.pop_back();
    EXPECT_NE(decode(flat, &decoded), 0u);
    tlv[1] = static_cast<std::uint8_t>(tlv[1] - 1);
    EXPECT_NE(decode(tlv, &decoded), 0u);
    const std::uint32_t kept[] = {type::kBinary};
    EXPECT_EQ(aaa_attr_filter_on_type(copy.out(), kept, 1), 0u);
    EXPECT_EQ(aaa_attr_list_merge_list(list, other.release()), 0u);
    aaa_attr_remove(list, type);
    std::uint32_t size = 0;
    aaa_attr_list_buffer_coalesce_and_get_len(list, &size);
  }
  secret = {};
  return given_back;
}

TEST(Secrets, DoNotOutliveTheirList) {
  const std::string text = "correct horse battery staple";
  EXPECT_EQ(times_given_back(type::kSecret, text), 0);
  EXPECT_GT(times_given_back(type::kClientId, text), 10) << "no secret: the test sees what is given back";
}

TEST(OutOfMemory, Registration) {
  const std::uint16_t ids[] = {1, 2};
  stays = false;
  // No handle table; a table, but no copy of the name; the table was kept, so the name comes first; nothing to
  // allocate.
  for (const auto &[n, code] : {std::pair(1, AAA_ATTR_ERR_NO_MEMORY), {2, AAA_ATTR_ERR_NO_MEMORY}, {2, 0}, {1, 0}}) {
    countdown = n;
    EXPECT_EQ(aaa_attr_client_register("client", ids), code);
  }
  countdown = 0;
}

}  // namespace
