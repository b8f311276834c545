#include "platform/cursor_pool.h"

#include <pthread.h>

#include <atomic>
#include <cstring>

#include <attrmgr/aaa_platform.h>

chunk_pool *aaa_base_chunk_cursor = nullptr;
std::uint32_t aaa_base_chunk_flag = 0x101;

namespace attrmgr {
namespace {

constexpr std::uint32_t kCursorsPerChunk = 256;

pthread_mutex_t creation = PTHREAD_MUTEX_INITIALIZER;

// The exported variable is a plain pointer to clients; the library shares it between threads.
std::atomic_ref<chunk_pool *> pool() { return std::atomic_ref<chunk_pool *>(aaa_base_chunk_cursor); }

// Two threads that take their first cursors at once create one pool.
chunk_pool *pool_or_new() {
  chunk_pool *existing = pool().load(std::memory_order_acquire);
  if (existing != nullptr) return existing;
  pthread_mutex_lock(&creation);
  existing = pool().load(std::memory_order_relaxed);
  if (existing == nullptr) {
    existing = chunk_create("aaa_cursor", sizeof(aaa_cursor), kCursorsPerChunk, aaa_base_chunk_flag, 0, 0);
    pool().store(existing, std::memory_order_release);
  }
  pthread_mutex_unlock(&creation);
  return existing;
}

}  // namespace

aaa_cursor *take_cursor() {
  chunk_pool *from = pool_or_new();
  void *element = from != nullptr ? chunk_malloc(from) : nullptr;
  if (element != nullptr) std::memset(element, 0, sizeof(aaa_cursor));
  return static_cast<aaa_cursor *>(element);
}

void return_cursor(aaa_cursor *cursor) {
  chunk_pool *to = pool().load(std::memory_order_acquire);
  if (to != nullptr && cursor != nullptr) chunk_free(to, cursor);
}

}  // namespace attrmgr

using namespace attrmgr;

void aaa_base_destroy_chunk_cursor() noexcept {
  chunk_pool *gone = pool().exchange(nullptr);
  if (gone != nullptr) chunk_destroy(gone);
}
