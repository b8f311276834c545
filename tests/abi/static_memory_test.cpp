// Memory runs out at every point where it can: the n-th allocation of an operation fails, for n = 1, 2, ... until the
// operation gets through. Whatever fails, the code says so, nothing leaks and the source is as it was. Linked with the
// static library, so that the platform layer defined here stands in for the library's own in that link too.
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/lists.h"

namespace {

int live = 0;        // allocations not yet freed
int countdown = 0;   // the allocation to fail, counted from now; 0: none
bool stays = false;  // and all after it
int heads = 0;       // calls of the malloc_pc below

bool fails() {
  if (countdown == 0) return false;
  if (countdown == 1) {
    if (!stays) countdown = 0;
    return true;
  }
  --countdown;
  return false;
}

void *counted(void *memory) {
  live += memory != nullptr;
  return memory;
}

}  // namespace

extern "C" {
void *__real_malloc(std::size_t size);
void *__real_aligned_alloc(std::size_t alignment, std::size_t size);
char *__real_strdup(const char *text);
void __real_free(void *memory);

void *__wrap_malloc(std::size_t size) { return fails() ? nullptr : counted(__real_malloc(size)); }
void *__wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
  return fails() ? nullptr : counted(__real_aligned_alloc(alignment, size));
}
char *__wrap_strdup(const char *text) { return fails() ? nullptr : static_cast<char *>(counted(__real_strdup(text))); }
void __wrap_free(void *memory) {
  live -= memory != nullptr;
  __real_free(memory);
}
}

void *malloc_pc(std::size_t size, const void *) {
  ++heads;
  return std::malloc(size);
}
const void *malloc_pc_owner(const void *) { return nullptr; }

// The handle table can run out as well.
std::uint16_t id_create_new_table(std::uint32_t, std::uint32_t, const char *) { return fails() ? 0 : 1; }
std::uint64_t id_get(void *block, std::uint16_t) { return fails() ? 0 : reinterpret_cast<std::uintptr_t>(block); }
void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t) {
  *status = 0;
  return reinterpret_cast<void *>(handle);
}
void id_delete(std::uint64_t, std::uint16_t) {}

namespace {

// What the operations work on. The source has three blocks and sub-lists four deep, the destination one block without
// room for a group.
struct Lists {
  Lists() {
    aaa_attr_list_handle inner = source;
    for (int depth = 0; depth < 4; ++depth) {
      aaa_attr_add_group_list(inner, &inner, type::kGrouped, nullptr);
      aaa_attr_add(inner, type::kString, "inner", 5, nullptr);
    }
    for (const char c : {'a', 'b', 'c'}) source.text(type::kClientId, std::string(400, c));
    source.group(type::kOtherGrouped);
    destination.text(type::kString, std::string(470, 'd'));
    for (const Bytes &buffer : {flat_buffer(source), tlv_buffer(source)}) buffers.push_back(buffer);
  }
  List source, destination, result{0};
  std::vector<Bytes> buffers;
  aaa_cursor *cursor = nullptr;
  aaa_attr_array_entry *array = nullptr;
  std::uint32_t count = 0;
  int empty = 0;
  ~Lists() {
    aaa_cursor_free(cursor);
    std::free(array);
  }
};

struct Operation {
  const char *name;
  int points;  // at least that many points of failure
  aaa_attr_cerrno (*run)(Lists &);
  const char *drops = "";  // what the operation is meant to drop from the source's end, a failure or not
};

const char kLong[300] = "does not fit beside what the destination holds";
const std::uint32_t kKept[] = {type::kGrouped, type::kClientId};

const Operation kOperations[] = {
    {"alloc", 2, [](Lists &l) { return aaa_attr_list_alloc(l.result.out()); }},
    {"add", 1, [](Lists &l) { return aaa_attr_add(l.destination, type::kString, kLong, sizeof kLong, nullptr); }},
    {"add or replace", 1,
     [](Lists &l) { return aaa_attr_add_or_replace(l.destination, type::kString, kLong, sizeof kLong, nullptr); }},
    {"add a group list", 3,
     [](Lists &l) {
       aaa_attr_list_handle group = 1;
       const auto code = aaa_attr_add_group_list(l.destination, &group, type::kGrouped, nullptr);
       EXPECT_EQ(group == 0, code != 0);
       return code;
     }},
    {"cursor", 2, [](Lists &l) { return aaa_cursor_alloc(l.source, &l.cursor); }},
    {"filtered cursor", 2, [](Lists &l) { return aaa_cursor_alloc_filtered(l.source, &l.cursor, 1, 1); }},
    {"buffer cursor", 2, [](Lists &l) { return aaa_cursor_alloc_from_buffer(l.buffers[0].data(), &l.cursor); }},
    {"is it empty", 2, [](Lists &l) { return is_aaa_attr_list_empty(l.source, &l.empty); }},
    {"remove a list's types", 2, [](Lists &l) { return aaa_attr_list_remove_list(l.destination, l.source); }},
    {"flat", 14, [](Lists &l) { return decode(l.buffers[0], &l.result); }},
    {"TLV", 14, [](Lists &l) { return decode(l.buffers[1], &l.result); }},
    {"gather list", 1, [](Lists &l) { return aaa_attr_list_to_array(l.source, &l.array, &l.count); }},
    {"copy", 14, [](Lists &l) { return aaa_attr_list_copy(l.source, l.result.out()); }},
    {"append", 13, [](Lists &l) { return aaa_attr_list_append_list(l.destination, l.source); }},
    {"merge", 11, [](Lists &l) { return aaa_attr_list_merge_with_replace(l.destination, l.source); }},
    {"merge, policies beside", 11, [](Lists &l) { return aaa_attr_list_merge_double_dip(l.destination, l.source); }},
    {"copy a type", 8, [](Lists &l) { return aaa_attr_list_copy_by_type(l.source, l.destination, type::kGrouped); }},
    {"replace and add", 15, [](Lists &l) { return aaa_attr_list_replace_and_add(l.destination, l.source); }},
    {"filter", 4, [](Lists &l) { return aaa_attr_filter_on_type(l.source.out(), kKept, 2); }, " 445={}"},
};

// The code of a run in which allocation n fails, and the source's outline after it.
std::pair<aaa_attr_cerrno, std::string> attempt(const Operation &operation, int n) {
  Lists lists;
  aaa_base_destroy_chunk_cursor();
  testing::internal::CaptureStderr();
  countdown = n;
  const aaa_attr_cerrno code = operation.run(lists);
  countdown = 0;
  testing::internal::GetCapturedStderr();
  EXPECT_TRUE(code == 0 || lists.result == 0) << "a handle in spite of the failure";
  return {code, outline(lists.source)};
}

void run_out(const Operation &operation) {
  std::string expected = outline(Lists().source);
  expected.resize(expected.size() - std::strlen(operation.drops));
  for (int n = 1;; ++n) {
    SCOPED_TRACE("allocation " + std::to_string(n));
    aaa_base_destroy_chunk_cursor();
    const int live_before = live;
    const auto [code, source] = attempt(operation, n);
    aaa_base_destroy_chunk_cursor();
    EXPECT_EQ(live, live_before);
    EXPECT_EQ(source, expected);
    if (code == 0) {
      EXPECT_GT(n, operation.points);
      return;
    }
    ASSERT_EQ(code, AAA_ATTR_ERR_NO_MEMORY);
  }
}

TEST(OutOfMemory, AtEveryPointOfEveryOperation) {
  for (const Operation &operation : kOperations)
    for (const bool all_after : {false, true}) {
      SCOPED_TRACE(operation.name + std::string(all_after ? ", and all after it" : ""));
      stays = all_after;
      run_out(operation);
    }
  EXPECT_GT(heads, 0) << "the library's own malloc_pc was linked";
}

TEST(OutOfMemory, Registration) {
  const struct {
    const char *why;
    int failing;
    aaa_attr_cerrno code;
  } rows[] = {
      {"no handle table", 1, AAA_ATTR_ERR_NO_MEMORY},
      {"a table, but no copy of the name", 2, AAA_ATTR_ERR_NO_MEMORY},
      {"the table was kept, so the name comes first", 2, 0},
      {"registered, nothing to allocate", 1, 0},
  };
  const std::uint16_t ids[] = {1, 2};
  for (const auto &row : rows) {
    countdown = row.failing;
    EXPECT_EQ(aaa_attr_client_register("client", ids), row.code) << row.why;
  }
  countdown = 0;
}

}  // namespace
