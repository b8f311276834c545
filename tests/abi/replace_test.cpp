// A process that brings its own platform layer: a handle table that really maps handles, pools, memory and address text
// of its own. The library must call these, from the shared object too.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>

#include "support/codes.h"
#include "support/lists.h"

namespace {

// A handle is a place in the table, which is never given out again. The table ignores some of its bits, so that every
// list has many handles.
constexpr std::uint64_t kPlace = 0xFFFF;
constexpr std::uint64_t kOtherHandle = 0x10000;

struct {
  std::vector<void *> blocks{nullptr};
  std::uint16_t number = 0;  // 0: none can be created
  std::uint16_t number_seen = 99;
  struct {
    std::uint64_t handle = 0;  // the handle that is answered like this
    int after = 0;             // that many look-ups are answered truly first
    bool null = false;
    std::uint32_t status = 0;
  } answer;

  std::ptrdiff_t live() const {
    return std::count_if(blocks.begin(), blocks.end(), [](const void *block) { return block != nullptr; });
  }
} table;

// What the platform was last asked for.
using Request = std::pair<std::string, std::vector<std::uint32_t>>;
Request asked;
int pools = 0;
std::size_t head_size = 0;
const void *head_owner = nullptr;

}  // namespace

std::uint16_t id_create_new_table(std::uint32_t initial, std::uint32_t maximum, const char *name) {
  asked = {name, {initial, maximum}};
  return table.number;
}

std::uint64_t id_get(void *block, std::uint16_t number) {
  EXPECT_EQ(number, table.number);
  table.blocks.push_back(block);
  return table.blocks.size() - 1;
}

void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t number) {
  table.number_seen = number;
  const bool forced = table.answer.handle == handle && table.answer.after-- <= 0;
  void *block = forced && table.answer.null ? nullptr : table.blocks.at(handle & kPlace);
  *status = forced ? table.answer.status : block != nullptr ? 0 : 2;
  return block;
}

void id_delete(std::uint64_t handle, std::uint16_t number) {
  EXPECT_EQ(number, table.number);
  table.blocks.at(handle & kPlace) = nullptr;
}

chunk_pool *chunk_create(const char *name, std::uint32_t size, std::uint32_t per_chunk, std::uint32_t flags,
                         std::uint32_t reserved_1, std::uint32_t reserved_2) {
  std::this_thread::sleep_for(std::chrono::milliseconds(20));  // keeps the door of a race open
  asked = {name, {size, per_chunk, flags, reserved_1, reserved_2}};
  ++pools;
  return reinterpret_cast<chunk_pool *>(&pools);
}

void *chunk_malloc(chunk_pool *) { return std::malloc(sizeof(aaa_cursor)); }
void chunk_free(chunk_pool *, void *element) { std::free(element); }
void chunk_destroy(chunk_pool *) {}

void *malloc_pc(std::size_t size, const void *owner) {
  head_size = size;
  head_owner = owner;
  return std::malloc(size);
}

char *ipv6_address_to_string(const std::uint8_t *, char *text) { return std::strcpy(text, "six"); }

namespace {

// Leaves nothing behind for the next test: no pool, no live handle.
class Replaced : public testing::Test {
 protected:
  ~Replaced() override {
    aaa_base_destroy_chunk_cursor();
    EXPECT_EQ(table.live(), 0);
  }
};

TEST_F(Replaced, TheHandleTableIsCreatedAtRegistration) {
  const std::uint16_t ids[] = {1, 2};
  EXPECT_EQ(flat_buffer(List()).size(), 25u) << "lists work before registration";
  EXPECT_EQ(aaa_attr_client_register("client", ids), AAA_ATTR_ERR_NO_MEMORY);
  table.number = 7;
  EXPECT_EQ(aaa_attr_client_register("client", ids), 0u);
  EXPECT_EQ(asked, Request("AAA Attribute List handle IDs", {256, 4096}));
  EXPECT_EQ(table.number_seen, 0);
  EXPECT_EQ(flat_buffer(List()).size(), 25u);
  EXPECT_EQ(table.number_seen, 7);
}

aaa_attr_cerrno refusal;

// Operations that answer with the codes of their handle, and change nothing when it is refused.
const std::pair<std::string, aaa_attr_cerrno (*)(aaa_attr_list_handle)> kOperations[] = {
    {"valid", [](auto list) { return is_aaa_attr_list_valid(list, &refusal) ? 0 : refusal; }},
    {"add", [](auto list) { return aaa_attr_add(list, type::kString, "x", 1, nullptr); }},
    {"add or replace", [](auto list) { return aaa_attr_add_or_replace(list, type::kString, "x", 1, nullptr); }},
    {"remove", [](auto list) { return aaa_attr_remove(list, type::kUlong); }},
    {"stamp", [](auto list) { return aaa_attr_list_set_producer_client_type(list, 1); }},
    {"copy", [](auto list) { return aaa_attr_list_copy(list, List(0).out()); }},
    {"append from", [](auto list) { return aaa_attr_list_append_list(List(), list); }},
    {"filter", [](auto list) { return aaa_attr_filter_on_type(&list, nullptr, 0); }},
};

TEST_F(Replaced, HandleCheckInItsOrder) {
  const struct {
    const char *why;
    bool null;
    std::uint32_t status;
    std::uint16_t magic;
    aaa_attr_cerrno code;
  } rows[] = {
      {"no pointer", true, 0, 0xABCD, AAA_ATTR_ERR_STALE_HANDLE},
      {"no pointer goes before status 1", true, 1, 0xABCD, AAA_ATTR_ERR_STALE_HANDLE},
      {"status 2", false, 2, 0xABCD, AAA_ATTR_ERR_STALE_HANDLE},
      {"status 2 goes before a wrong magic", false, 2, 0x1234, AAA_ATTR_ERR_STALE_HANDLE},
      {"freed mark", false, 0, 0xFFFF, AAA_ATTR_ERR_STALE_HANDLE},
      {"freed mark goes before status 1", false, 1, 0xFFFF, AAA_ATTR_ERR_STALE_HANDLE},
      {"status 1", false, 1, 0xABCD, AAA_ATTR_ERR_BAD_LIST},
      {"wrong magic", false, 0, 0x1234, AAA_ATTR_ERR_BAD_LIST},
  };
  List list;
  list.number(type::kUlong, 1);
  auto *magic = static_cast<std::uint16_t *>(table.blocks.at(static_cast<std::size_t>(aaa_attr_list_handle{list})));
  for (const auto &[name, operation] : kOperations) {
    SCOPED_TRACE(name);
    EXPECT_EQ(operation(0), name == "append from" ? AAA_ATTR_ERR_BAD_ARG : AAA_ATTR_ERR_BAD_LIST);
    for (const auto &row : rows) {
      table.answer = {list, 0, row.null, row.status};
      *magic = row.magic;
      EXPECT_EQ(operation(list), row.code) << row.why;
      *magic = 0xABCD;
      table.answer = {};
    }
    EXPECT_EQ(outline(list), "2=01000000");
  }
}

TEST_F(Replaced, ASecondLookupThatFailsIsReportedAndNothingFreed) {
  const List list;
  for (const auto &[status, code] : {std::pair(1u, "-1344304640"), {2, "-1344304128"}}) {
    table.answer = {list, 1, false, status};
    testing::internal::CaptureStderr();
    aaa_attr_list_free(list);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string("\nCursor init failed in aaa_attr_list_free - ret ") + code);
    table.answer = {};
    EXPECT_EQ(table.live(), 1);
  }
}

TEST_F(Replaced, ANewListThatTheTableRefusesIsGivenBack) {
  const List list;
  const Bytes buffer = flat_buffer(list);
  aaa_attr_list_handle made = 77;
  for (const auto &[status, code] : {std::pair(1u, AAA_ATTR_ERR_BAD_LIST), {2, AAA_ATTR_ERR_STALE_HANDLE}}) {
    table.answer = {table.blocks.size(), 0, false, status};
    EXPECT_CODE(code, aaa_attr_list_copy(list, &made));
    table.answer = {table.blocks.size(), 0, false, status};
    EXPECT_CODE(code, aaa_attr_buffer_to_list(buffer.data(), static_cast<std::uint32_t>(buffer.size()), &made));
    table.answer = {};
    EXPECT_EQ(table.live(), 1) << "a handle is still in the table";
  }
}

// A list is not its own source, whichever of its handles it is given by.
TEST_F(Replaced, OneListUnderTwoHandlesIsOneList) {
  using Handle = aaa_attr_list_handle;
  const std::pair<const char *, aaa_attr_cerrno (*)(Handle, Handle)> rows[] = {
      {"append_list", aaa_attr_list_append_list},
      {"merge_with_replace", aaa_attr_list_merge_with_replace},
      {"merge_double_dip", aaa_attr_list_merge_double_dip},
      {"copy_by_type", [](Handle a, Handle b) { return aaa_attr_list_copy_by_type(a, b, type::kString); }},
      {"merge_list", aaa_attr_list_merge_list},
      {"replace_and_add", aaa_attr_list_replace_and_add},
      {"replace_and_add_v1", [](Handle a, Handle b) { return aaa_attr_list_replace_and_add_v1(&a, &b); }},
      {"add to itself", [](Handle a, Handle b) { return aaa_attr_add(a, type::kGrouped, &b, sizeof b, nullptr); }},
  };
  List list;
  list.text(type::kString, "x").number(type::kUlong, 1);
  const std::string before = outline(list);
  for (const auto &[name, call] : rows) {
    EXPECT_EQ(call(list, list | kOtherHandle), AAA_ATTR_ERR_BAD_ARG) << name;
    EXPECT_EQ(call(list | kOtherHandle, list), AAA_ATTR_ERR_BAD_ARG) << name;
    EXPECT_EQ(outline(list), before) << name;
  }
  const Handle sub_list = list.group(type::kGrouped), same = sub_list | kOtherHandle;
  const aaa_attr_meta meta = {1, 0, 0, 0, 0};
  EXPECT_EQ(aaa_attr_add_or_replace_v1(list, type::kGrouped, &same, sizeof same, &meta), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_add_or_replace(list, type::kGrouped, &same, sizeof same, nullptr), 0u);
  EXPECT_EQ(outline(list), before + " 444={}") << "the sub-list stays, under its other handle";
}

// Every way to make a list takes a head on behalf of the client, and withdraws all its handles in the end.
TEST_F(Replaced, HeadsAreTakenOnBehalfOfTheCaller) {
  List source;
  aaa_attr_list_handle inner = source.group(type::kGrouped);
  ASSERT_EQ(aaa_attr_add_group_list(inner, &inner, type::kGrouped, nullptr), 0u);
  const Bytes flat = flat_buffer(source), tlv = tlv_buffer(source);
  const std::pair<const char *, std::function<aaa_attr_cerrno(List &)>> makers[] = {
      {"alloc", [](List &made) { return aaa_attr_list_alloc((made = List(0)).out()); }},
      {"group list", [](List &made) { return made.group(type::kGrouped) == 0; }},
      {"copy", [&](List &made) { return aaa_attr_list_copy(source, (made = List(0)).out()); }},
      {"append a group", [&](List &made) { return aaa_attr_list_append_list(made, source); }},
      {"filter", [](List &made) { return aaa_attr_filter_on_type(made.out(), nullptr, 0); }},
      {"flat", [&](List &made) { return decode(flat, &made); }},
      {"TLV", [&](List &made) { return decode(tlv, &made); }},
  };
  Dl_info here, caller;
  for (const auto &[name, make] : makers) {
    SCOPED_TRACE(name);
    List made;
    head_owner = nullptr;
    ASSERT_EQ(make(made), 0u);
    EXPECT_EQ(head_size, 512u);
    ASSERT_TRUE(dladdr(head_owner, &caller) && dladdr(reinterpret_cast<const void *>(&flat_buffer), &here));
    EXPECT_EQ(caller.dli_fbase, here.dli_fbase) << "not in the client but in " << caller.dli_fname;
    aaa_attr_remove(made, type::kGrouped);
    EXPECT_EQ(table.live(), 4) << "the source's three and one more";
  }
}

TEST_F(Replaced, FirstCursorsThatRaceMakeOnePool) {
  const Bytes buffer = flat_buffer(List());
  aaa_base_destroy_chunk_cursor();
  aaa_base_chunk_flag = 0x55;
  pools = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i)
    threads.emplace_back([&buffer] {
      aaa_cursor *cursor = nullptr;
      EXPECT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
      aaa_cursor_free(cursor);
    });
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(pools, 1);
  EXPECT_EQ(asked, Request("aaa_cursor", {40, 256, 0x55, 0, 0}));
}

TEST_F(Replaced, AddressText) {
  char lines[256];
  aaa_attr_list_print_to_output_buffer(List().text(type::kIpv6, std::string(16, '\1')), lines, sizeof lines);
  EXPECT_NE(std::string_view(lines).find("six"), std::string_view::npos) << lines;
  EXPECT_STREQ(aaa_attr_ipv6_address_to_string(Bytes(16).data(), lines), "six");
}

}  // namespace
