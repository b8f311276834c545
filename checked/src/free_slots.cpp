#include "free_slots.h"

#include <pthread.h>

#include <algorithm>
#include <mutex>
#include <new>

#include "slot_table.h"

namespace attrmgr::checked {
namespace {

constexpr std::uint32_t kResting = 1024;            // so many slots of a queue are not used again yet
constexpr std::uint32_t kThreadMax = 4 * kResting;  // a thread with more gives some to the others
constexpr std::uint32_t kBatch = 64;                // what a thread takes at a time

// First in, first out, through the slots themselves.
class Queue {
 public:
  std::uint32_t size() const { return size_; }

  void push(std::uint32_t slot) {
    if (size_++ == 0) {
      first_ = slot;
    } else {
      slot_at(last_).next_free = slot;
    }
    last_ = slot;
  }

  std::uint32_t pop() {
    const std::uint32_t slot = first_;
    first_ = slot_at(slot).next_free;
    --size_;
    return slot;
  }

  void move_to(Queue &other, std::uint32_t count) {
    for (; count > 0; --count) other.push(pop());
  }

 private:
  std::uint32_t first_ = kNoSlot;
  std::uint32_t last_ = kNoSlot;
  std::uint32_t size_ = 0;
};

std::mutex shared_mutex;
Queue shared;                  // under shared_mutex
std::uint32_t num_chunks = 0;  // likewise

// What a thread has at hand. Trivially destructible, so that a list may still be freed while the thread ends.
struct ThreadSlots {
  Queue used;   // resting, or ready after it
  Queue ready;  // rested, or never used
  bool registered;
};
thread_local constinit ThreadSlots own{};

void share_all(void *) {
  const std::lock_guard lock(shared_mutex);
  own.ready.move_to(shared, own.ready.size());
  own.used.move_to(shared, own.used.size());
  own.registered = false;
}

// Has the thread's slots shared when it ends.
void register_thread() {
  static pthread_key_t key;
  static const bool made = pthread_key_create(&key, share_all) == 0;
  if (made) pthread_setspecific(key, &own);
  own.registered = true;
}

// A new chunk's slots go to the shared queue's end: they need no rest, but those before them have had theirs.
bool add_chunk() {
  if (num_chunks == kChunksMax) return false;
  // From the heap, where leak checkers look for the addresses of what is in use.
  auto *chunk = new (std::nothrow) Chunk();
  if (chunk == nullptr) return false;
  attrmgr_checked_slots.chunks[num_chunks].store(chunk, std::memory_order_release);
  for (std::uint32_t i = 0; i < kSlotsPerChunk; ++i) shared.push(num_chunks * kSlotsPerChunk + i);
  ++num_chunks;
  return true;
}

bool refill() {
  if (!own.registered) register_thread();
  const std::lock_guard lock(shared_mutex);
  if (shared.size() <= kResting && !add_chunk() && shared.size() == 0) return false;
  shared.move_to(own.ready, std::min(kBatch, shared.size()));
  return true;
}

}  // namespace

std::uint32_t take_slot() {
  if (own.used.size() > kResting) return own.used.pop();
  if (own.ready.size() > 0 || refill()) return own.ready.pop();
  return own.used.size() > 0 ? own.used.pop() : kNoSlot;
}

void give_slot(std::uint32_t slot) {
  if (!own.registered) register_thread();
  own.used.push(slot);
  if (own.used.size() <= kThreadMax) return;
  const std::lock_guard lock(shared_mutex);
  own.used.move_to(shared, kThreadMax / 2);
}

void lock_free_slots() { shared_mutex.lock(); }
void unlock_free_slots() { shared_mutex.unlock(); }

}  // namespace attrmgr::checked
