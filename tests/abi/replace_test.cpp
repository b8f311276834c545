// A process that brings its own platform layer: a handle table that really maps handles, pools, memory and address text
// of its own. The library must call these, from the shared object too.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <thread>

#include "support/lists.h"

namespace {

// A handle is a slot and the number of times that the slot has been given out.
struct HandleTable {
  struct Slot {
    void *block = nullptr;
    std::uint32_t generation = 0;
  };
  struct Answer {
    std::uint64_t handle = 0;  // the handle that is answered like this
    int after = 0;             // that many look-ups are answered truly first
    bool null = false;
    std::uint32_t status = 0;
  };
  std::vector<Slot> slots;
  Answer answer;
  std::uint16_t number = 0;  // 0: none can be created
  std::uint16_t number_seen = 0;

  std::size_t live() const {
    return static_cast<std::size_t>(std::count_if(slots.begin(), slots.end(), [](const Slot &s) { return s.block; }));
  }
  Slot *slot(std::uint64_t handle) {
    const std::size_t n = handle & 0xFFFFFFFF;
    return n < slots.size() && slots[n].generation == handle >> 32 && slots[n].block ? &slots[n] : nullptr;
  }
} table;

struct Platform {
  std::string creation;  // arguments of the last chunk_create
  int pools = 0;
  bool no_pool = false, no_element = false;
  std::size_t size = 0;  // arguments of the last malloc_pc
  const void *owner = nullptr;
} platform;

std::string arguments_of_table;

}  // namespace

std::uint16_t id_create_new_table(std::uint32_t initial, std::uint32_t maximum, const char *name) {
  arguments_of_table = std::to_string(initial) + ' ' + std::to_string(maximum) + ' ' + name;
  return table.number;
}

std::uint64_t id_get(void *block, std::uint16_t) {
  auto slot = std::find_if(table.slots.begin(), table.slots.end(), [](const auto &s) { return !s.block; });
  if (slot == table.slots.end()) slot = table.slots.emplace(slot);
  *slot = {block, slot->generation + 1};
  return std::uint64_t{slot->generation} << 32 | static_cast<std::uint64_t>(slot - table.slots.begin());
}

void *id_to_ptr(std::uint64_t handle, std::uint32_t *status, std::uint16_t number) {
  table.number_seen = number;
  const HandleTable::Slot *slot = table.slot(handle);
  *status = slot != nullptr ? 0 : 2;
  if (table.answer.handle == handle && table.answer.after-- <= 0) {
    *status = table.answer.status;
    if (table.answer.null) return nullptr;
  }
  return slot != nullptr ? slot->block : nullptr;
}

void id_delete(std::uint64_t handle, std::uint16_t) {
  if (HandleTable::Slot *slot = table.slot(handle)) slot->block = nullptr;
}

chunk_pool *chunk_create(const char *name, std::uint32_t size, std::uint32_t per_chunk, std::uint32_t flags,
                         std::uint32_t reserved_1, std::uint32_t reserved_2) {
  std::this_thread::sleep_for(std::chrono::milliseconds(20));  // keeps the door of a race open
  platform.creation = name;
  for (const std::uint32_t number : {size, per_chunk, flags, reserved_1, reserved_2})
    platform.creation += ' ' + std::to_string(number);
  ++platform.pools;
  return platform.no_pool ? nullptr : reinterpret_cast<chunk_pool *>(&platform);
}

void *chunk_malloc(chunk_pool *) { return platform.no_element ? nullptr : std::malloc(sizeof(aaa_cursor)); }
void chunk_free(chunk_pool *, void *element) { std::free(element); }
void chunk_destroy(chunk_pool *) {}

void *malloc_pc(std::size_t size, const void *owner) {
  platform.size = size;
  platform.owner = owner;
  return std::malloc(size);
}

const void *malloc_pc_owner(const void *) { return nullptr; }

char *ipv6_address_to_string(const std::uint8_t *, char *text) { return std::strcpy(text, "six"); }

namespace {

// Leaves nothing behind for the next test: no forced answers, no pool, no live handle.
class Replaced : public testing::Test {
 protected:
  ~Replaced() override {
    aaa_base_destroy_chunk_cursor();
    EXPECT_EQ(table.live(), 0u);
    table.answer = {};
    platform = {};
  }
};

TEST_F(Replaced, TheHandleTableIsCreatedAtRegistration) {
  const std::uint16_t ids[] = {1, 2};
  const List list;
  int empty = 0;
  table.number_seen = 99;
  is_aaa_attr_list_empty(list, &empty);
  EXPECT_EQ(table.number_seen, 0) << "lists work before registration";
  EXPECT_EQ(aaa_attr_client_register("client", ids), AAA_ATTR_ERR_NO_MEMORY);
  table.number = 7;
  EXPECT_EQ(aaa_attr_client_register("client", ids), 0u);
  EXPECT_EQ(arguments_of_table, "256 4096 AAA Attribute List handle IDs");
  is_aaa_attr_list_empty(list, &empty);
  EXPECT_EQ(table.number_seen, 7);
}

struct {
  std::uint16_t count;
  std::uint32_t size;
  aaa_attr_cerrno code;
  aaa_attr_list_handle list;
} found;

// Operations that answer with the codes of their handle, and change nothing when it is refused.
const std::map<std::string, std::function<aaa_attr_cerrno(aaa_attr_list_handle)>> kOperations = {
    {"valid", [](auto list) { return is_aaa_attr_list_valid(list, &found.code) ? 0 : found.code; }},
    {"add", [](auto list) { return aaa_attr_add(list, type::kString, "x", 1, nullptr); }},
    {"add or replace", [](auto list) { return aaa_attr_add_or_replace(list, type::kString, "x", 1, nullptr); }},
    {"remove", [](auto list) { return aaa_attr_remove(list, type::kUlong); }},
    {"count", [](auto list) { return aaa_attr_find_attr_type_number(list, type::kUlong, &found.count); }},
    {"stamp", [](auto list) { return aaa_attr_list_set_producer_client_type(list, 1); }},
    {"flat size", [](auto list) { return aaa_attr_list_buffer_len(list, &found.size); }},
    {"TLV size", [](auto list) { return aaa_attr_list_tlv_buffer_len(list, &found.size); }},
    {"copy", [](auto list) { return aaa_attr_list_copy(list, &found.list); }},
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
  void *magic = table.slot(list)->block;
  const std::uint16_t live_magic = 0xABCD;
  for (const auto &[name, operation] : kOperations) {
    SCOPED_TRACE(name);
    EXPECT_EQ(operation(0), name == "append from" ? AAA_ATTR_ERR_BAD_ARG : AAA_ATTR_ERR_BAD_LIST);
    for (const auto &row : rows) {
      SCOPED_TRACE(row.why);
      table.answer = {list, 0, row.null, row.status};
      std::memcpy(magic, &row.magic, sizeof row.magic);
      EXPECT_EQ(operation(list), row.code);
      std::memcpy(magic, &live_magic, sizeof live_magic);
      table.answer = {};
    }
    EXPECT_EQ(outline(list), "2=01000000");
  }
}

TEST_F(Replaced, AFreedListIsStaleEvenWhenItsSlotIsTakenAgain) {
  List gone;
  const aaa_attr_list_handle stale = gone;
  aaa_attr_list_free(gone.release());
  const List other;
  ASSERT_EQ(other & 0xFFFFFFFF, stale & 0xFFFFFFFF) << "the slot is taken again";
  for (const auto &[name, operation] : kOperations) EXPECT_EQ(operation(stale), AAA_ATTR_ERR_STALE_HANDLE) << name;
  aaa_attr_list_free(stale);
  EXPECT_EQ(table.live(), 1u);
}

TEST_F(Replaced, SubListsAreWithdrawnWithTheirParent) {
  List list;
  aaa_attr_list_handle inner = list;
  for (int depth = 0; depth < 3; ++depth) aaa_attr_add_group_list(inner, &inner, type::kGrouped, nullptr);
  list.group(type::kOtherGrouped);
  EXPECT_EQ(table.live(), 5u);
  aaa_attr_remove(list, type::kOtherGrouped);
  EXPECT_EQ(table.live(), 4u);
  List copy(0);
  aaa_attr_list_copy(list, copy.out());
  EXPECT_EQ(table.live(), 8u);
  aaa_attr_list_free(list.release());
  EXPECT_EQ(table.live(), 4u);
}

TEST_F(Replaced, ASecondLookupThatFailsIsReportedAndNothingFreed) {
  const struct {
    std::uint32_t status;
    const char *line;
  } rows[] = {{1, "\nCursor init failed in aaa_attr_list_free - ret -1344304640"},
              {2, "\nCursor init failed in aaa_attr_list_free - ret -1344304128"}};
  const List list;
  for (const auto &row : rows) {
    table.answer = {list, 1, false, row.status};
    testing::internal::CaptureStderr();
    aaa_attr_list_free(list);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), row.line);
    table.answer = {};
    EXPECT_EQ(table.live(), 1u);
  }
}

TEST_F(Replaced, HeadsAreTakenOnBehalfOfTheCaller) {
  List source;
  source.group(type::kGrouped);
  const Bytes flat = flat_buffer(source), tlv = tlv_buffer(source);
  const std::map<std::string, std::function<aaa_attr_cerrno(List &)>> makers = {
      {"alloc", [](List &made) { return aaa_attr_list_alloc((made = List(0)).out()); }},
      {"group list", [](List &made) { return made.group(type::kGrouped) == 0; }},
      {"copy", [&](List &made) { return aaa_attr_list_copy(source, (made = List(0)).out()); }},
      {"append a group", [&](List &made) { return aaa_attr_list_append_list(made, source); }},
      {"filter", [](List &made) { return aaa_attr_filter_on_type(made.out(), nullptr, 0); }},
      {"flat", [&](List &made) { return decode(flat, &made); }},
      {"TLV", [&](List &made) { return decode(tlv, &made); }},
  };
  Dl_info here, caller;
  ASSERT_NE(dladdr(reinterpret_cast<const void *>(&flat_buffer), &here), 0);
  for (const auto &[name, make] : makers) {
    SCOPED_TRACE(name);
    List made;
    platform.owner = nullptr;
    ASSERT_EQ(make(made), 0u);
    EXPECT_EQ(platform.size, 512u);
    ASSERT_NE(dladdr(platform.owner, &caller), 0);
    EXPECT_EQ(caller.dli_fbase, here.dli_fbase) << "not in the client but in " << caller.dli_fname;
  }
}

TEST_F(Replaced, CursorPool) {
  List list;
  list.group(type::kGrouped);
  const Bytes buffer = flat_buffer(list);
  aaa_cursor *outer = nullptr;
  aaa_base_chunk_flag = 0x55;
  ASSERT_EQ(aaa_cursor_alloc(list, &outer), 0u);
  aaa_base_chunk_flag = 0x101;
  EXPECT_EQ(platform.creation, "aaa_cursor 40 256 85 0 0");
  aaa_cursor_get_next(outer);

  const std::map<std::string, std::function<aaa_attr_cerrno(aaa_cursor **)>> takers = {
      {"list", [&](auto out) { return aaa_cursor_alloc(list, out); }},
      {"filtered", [&](auto out) { return aaa_cursor_alloc_filtered(list, out, 1, 2); }},
      {"buffer", [&](auto out) { return aaa_cursor_alloc_from_buffer(buffer.data(), out); }},
      {"grouped", [&](auto out) { return aaa_cursor_grouped_alloc(outer, out); }},
  };
  for (const auto &[name, take] : takers) {
    SCOPED_TRACE(name);
    aaa_cursor *cursor = outer;
    platform.no_element = true;
    EXPECT_EQ(take(&cursor), AAA_ATTR_ERR_NO_MEMORY);
    EXPECT_EQ(cursor, nullptr);

    aaa_base_destroy_chunk_cursor();
    platform.no_element = false;
    platform.no_pool = true;
    cursor = outer;
    EXPECT_EQ(take(&cursor), AAA_ATTR_ERR_NO_MEMORY);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(aaa_base_chunk_cursor, nullptr);

    platform = {};
    EXPECT_EQ(take(&cursor), 0u) << "the pool is tried again";
    EXPECT_EQ(platform.pools, 1);
    aaa_cursor_free(cursor);
  }
  aaa_cursor_free(outer);
}

TEST_F(Replaced, FirstCursorsThatRaceMakeOnePool) {
  const Bytes buffer = flat_buffer(List());
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i)
    threads.emplace_back([&buffer] {
      aaa_cursor *cursor = nullptr;
      EXPECT_EQ(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), 0u);
      aaa_cursor_free(cursor);
    });
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(platform.pools, 1);
}

TEST_F(Replaced, AddressText) {
  char text[AAA_IPV6_TEXT_SIZE];
  EXPECT_STREQ(aaa_attr_ipv6_address_to_string(Bytes(16).data(), text), "six");
  List list;
  list.text(type::kIpv6, std::string(16, '\1'));
  char lines[256];
  aaa_attr_list_print_to_output_buffer(list, lines, sizeof lines);
  EXPECT_NE(std::string_view(lines).find("six"), std::string_view::npos) << lines;
}

}  // namespace
