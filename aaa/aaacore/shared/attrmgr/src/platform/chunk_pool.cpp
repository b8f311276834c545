// Pools of fixed-size elements. A pool is a few shards, each with a lock and a free list of its own; a thread sticks to
// one shard, so that threads seldom meet; a thread whose shard is empty takes from the others before the pool grows.
// Memory is taken a chunk at a time and given back when the pool is destroyed.
#include <pthread.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include <attrmgr/aaa_platform.h>

namespace {

struct FreeElement {
  FreeElement *next;
};

struct Chunk {
  Chunk *next;
};

constexpr std::size_t kAlignment = alignof(std::max_align_t);
constexpr unsigned kShards = 8;
constexpr std::size_t kCacheLine = 64;

constexpr std::size_t round_up(std::size_t size) { return (size + kAlignment - 1) / kAlignment * kAlignment; }

constexpr std::size_t kChunkHeader = round_up(sizeof(Chunk));

struct alignas(kCacheLine) Shard {
  pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;
  FreeElement *free = nullptr;
  Chunk *chunks = nullptr;
};

class Locked {
 public:
  explicit Locked(Shard &shard) : lock_(&shard.lock) { pthread_mutex_lock(lock_); }
  ~Locked() { pthread_mutex_unlock(lock_); }
  Locked(const Locked &) = delete;
  Locked &operator=(const Locked &) = delete;

 private:
  pthread_mutex_t *lock_;
};

std::atomic<unsigned> threads_seen{0};

unsigned shard_of_this_thread() {
  // A fixed place in each thread's own storage: no call into the dynamic linker.
  [[gnu::tls_model("initial-exec")]] thread_local constinit unsigned shard_plus_one = 0;
  if (shard_plus_one == 0) shard_plus_one = threads_seen.fetch_add(1, std::memory_order_relaxed) % kShards + 1;
  return shard_plus_one - 1;
}

}  // namespace

struct chunk_pool {
  std::size_t element_size;
  std::size_t elements_per_chunk;
  Shard shards[kShards];

  static FreeElement *take(Shard &shard) {
    const Locked locked(shard);
    FreeElement *element = shard.free;
    if (element != nullptr) shard.free = element->next;
    return element;
  }

  bool grow(Shard &shard) {
    char *memory = static_cast<char *>(std::malloc(kChunkHeader + element_size * elements_per_chunk));
    if (memory == nullptr) return false;
    const Locked locked(shard);
    shard.chunks = new (memory) Chunk{shard.chunks};
    for (std::size_t i = elements_per_chunk; i > 0; --i)
      shard.free = new (memory + kChunkHeader + (i - 1) * element_size) FreeElement{shard.free};
    return true;
  }
};

[[gnu::weak]] chunk_pool *chunk_create(const char *, std::uint32_t element_size, std::uint32_t elements_per_chunk,
                                       std::uint32_t, std::uint32_t, std::uint32_t) {
  if (element_size == 0 || elements_per_chunk == 0) return nullptr;
  const std::size_t size = round_up(element_size);
  if (size > (SIZE_MAX - kChunkHeader) / elements_per_chunk) return nullptr;
  void *memory = std::aligned_alloc(alignof(chunk_pool), sizeof(chunk_pool));
  if (memory == nullptr) return nullptr;
  return new (memory) chunk_pool{size, elements_per_chunk, {}};
}

[[gnu::weak]] void *chunk_malloc(chunk_pool *pool) {
  if (pool == nullptr) return nullptr;
  const unsigned own = shard_of_this_thread();
  do {
    for (unsigned i = 0; i < kShards; ++i)
      if (FreeElement *element = chunk_pool::take(pool->shards[(own + i) % kShards])) return element;
  } while (pool->grow(pool->shards[own]));
  return nullptr;
}

[[gnu::weak]] void chunk_free(chunk_pool *pool, void *element) {
  if (pool == nullptr || element == nullptr) return;
  Shard &shard = pool->shards[shard_of_this_thread()];
  const Locked locked(shard);
  shard.free = new (element) FreeElement{shard.free};
}

[[gnu::weak]] void chunk_destroy(chunk_pool *pool) {
  if (pool == nullptr) return;
  for (Shard &shard : pool->shards) {
    while (shard.chunks != nullptr) {
      Chunk *chunk = shard.chunks;
      shard.chunks = chunk->next;
      std::free(chunk);
    }
    pthread_mutex_destroy(&shard.lock);
  }
  std::free(pool);
}
