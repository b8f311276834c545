// The stack that freeing and reading take, on threads with little of it.
#include <gtest/gtest.h>
#include <pthread.h>

#include "support/malformed.h"

namespace {

// Checks of memory accesses and of addresses make frames several times as large.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || !defined(__OPTIMIZE__)
constexpr std::size_t kFrameFactor = 8;
#else
constexpr std::size_t kFrameFactor = 1;
#endif
constexpr std::size_t kFreeingStack = 64 * 1024;
constexpr std::size_t kReadingStack = 128 * 1024 * kFrameFactor;

template <class Call>
void on_stack(std::size_t size, Call call) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
  pthread_t thread;
  const auto run = [](void *call_) -> void * {
    (*static_cast<Call *>(call_))();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, run, &call), 0);
  EXPECT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

TEST(Stack, FreeingTakesTheSameAtAnyDepth) {
  aaa_attr_list_handle list = List().release(), innermost = list;
  for (int level = 0; level < 100'000; ++level)
    ASSERT_EQ(aaa_attr_add_group_list(innermost, &innermost, type::kGrouped, nullptr), 0u);
  on_stack(kFreeingStack, [list] { aaa_attr_list_free(list); });
}

TEST(Stack, ReceivedBuffersNestedToTheLimit) {
  Bytes flat = malformed::nested_lists(AAA_ATTR_NESTING_MAX);
  const Bytes tlv = malformed::nested_tlv(AAA_ATTR_NESTING_MAX);
  on_stack(kReadingStack, [&flat, &tlv] {
    List list;
    EXPECT_EQ(decode(tlv, &list), 0u);
    EXPECT_EQ(decode(flat, &list), 0u);
    aaa_attr_cerrno code;
    EXPECT_EQ(is_aaa_attr_buffer_valid(flat.data(), size_of(flat), &code), 1);
    std::uint32_t format, value, size = sizeof value;
    EXPECT_EQ(aaa_attr_get_from_buffer(flat.data(), type::kUlong, &format, &value, &size), AAA_ATTR_ERR_NO_MEMORY);
    for (const auto direction : {CDM_ENDIAN_TRAN_HTON, CDM_ENDIAN_TRAN_NTOH})
      EXPECT_EQ(aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(flat.data()), size_of(flat), direction), 0u);
    EXPECT_EQ(aaa_attr_buffer_scrub(flat.data(), size_of(flat)), 0u);
  });
}

}  // namespace
