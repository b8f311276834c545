// Pools of fixed-size elements. A pool consists of a few shards, each with a lock and a free list of its own,
// because one lock would make threads wait for each other with every cursor. A thread keeps to one shard until it
// finds another thread there and then moves to the next one, so that after a few collisions they no longer meet. A
// thread whose shard is empty takes from the others before the pool grows.
//
// Memory is taken a chunk at a time and given back when the pool is destroyed.
#include <pthread.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include <attrmgr/aaa_platform.h>

#include "platform/replaceable.h"

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

constexpr std::uint64_t round_up(std::uint64_t size) { return (size + kAlignment - 1) / kAlignment * kAlignment; }

constexpr std::size_t kChunkHeader = round_up(sizeof(Chunk));

struct alignas(kCacheLine) Shard {
  pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;
  FreeElement *free = nullptr;
  Chunk *chunks = nullptr;
};

std::atomic<unsigned> threads_seen{0};

// The shard that the calling thread uses, of whatever pool.
unsigned &own_shard() {
  // A fixed place in each thread's own storage: no call into the dynamic linker.
  constexpr unsigned kNone = kShards;
  [[gnu::tls_model("initial-exec")]] thread_local constinit unsigned shard = kNone;
  if (shard == kNone) shard = threads_seen.fetch_add(1, std::memory_order_relaxed) % kShards;
  return shard;
}

// A shard, locked as long as this lives.
class Locked {
 public:
  explicit Locked(Shard &shard) : shard_(shard) { pthread_mutex_lock(&shard_.lock); }
  // The thread's own shard, or the first free one after it, which is the thread's own from now on.
  explicit Locked(Shard (&shards)[kShards]) : shard_(lock_own(shards)) {}
  ~Locked() { pthread_mutex_unlock(&shard_.lock); }
  Locked(const Locked &) = delete;
  Locked &operator=(const Locked &) = delete;

  Shard *operator->() const { return &shard_; }

 private:
  static Shard &lock_own(Shard (&shards)[kShards]) {
    unsigned &own = own_shard();
    for (unsigned tries = 0; tries < kShards; ++tries) {
      if (pthread_mutex_trylock(&shards[own].lock) == 0) return shards[own];
      own = (own + 1) % kShards;
    }
    pthread_mutex_lock(&shards[own].lock);
    return shards[own];
  }

  Shard &shard_;
};

FreeElement *take(const Locked &shard) {
  FreeElement *element = shard->free;
  if (element != nullptr) shard->free = element->next;
  return element;
}

}  // namespace

struct chunk_pool {
  std::size_t element_size;
  std::size_t elements_per_chunk;
  Shard shards[kShards];

  bool grow() {
    char *memory = static_cast<char *>(std::malloc(kChunkHeader + element_size * elements_per_chunk));
    if (memory == nullptr) return false;
    const Locked own(shards);
    own->chunks = new (memory) Chunk{own->chunks};
    for (std::size_t i = elements_per_chunk; i > 0; --i)
      own->free = new (memory + kChunkHeader + (i - 1) * element_size) FreeElement{own->free};
    return true;
  }
};

ATTRMGR_REPLACEABLE chunk_pool *chunk_create(const char *, std::uint32_t element_size, std::uint32_t elements_per_chunk,
                                             std::uint32_t, std::uint32_t, std::uint32_t) {
  if (element_size == 0 || elements_per_chunk == 0) return nullptr;
  // In 64 bits: rounded up, a size may be above what a host with 32-bit addresses can hold.
  const std::uint64_t rounded = round_up(element_size);
  if (rounded > (SIZE_MAX - kChunkHeader) / elements_per_chunk) return nullptr;
  const auto size = static_cast<std::size_t>(rounded);
  void *memory = std::aligned_alloc(alignof(chunk_pool), sizeof(chunk_pool));
  if (memory == nullptr) return nullptr;
  return new (memory) chunk_pool{size, elements_per_chunk, {}};
}

ATTRMGR_REPLACEABLE void *chunk_malloc(chunk_pool *pool) {
  if (pool == nullptr) return nullptr;
  do {
    if (FreeElement *element = take(Locked(pool->shards))) return element;
    for (Shard &shard : pool->shards)
      if (FreeElement *element = take(Locked(shard))) return element;
  } while (pool->grow());
  return nullptr;
}

ATTRMGR_REPLACEABLE void chunk_free(chunk_pool *pool, void *element) {
  if (pool == nullptr || element == nullptr) return;
  const Locked own(pool->shards);
  own->free = new (element) FreeElement{own->free};
}

ATTRMGR_REPLACEABLE void chunk_destroy(chunk_pool *pool) {
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
