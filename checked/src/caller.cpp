#include "caller.h"

#include <dlfcn.h>
#include <link.h>
#include <unwind.h>

#include <algorithm>
#include <atomic>

namespace attrmgr::checked {
namespace {

// The addresses of a loaded object.
struct Range {
  std::atomic<std::uintptr_t> begin{0};
  std::atomic<std::uintptr_t> size{0};

  bool contains(std::uintptr_t address) const {
    return address - begin.load(std::memory_order_relaxed) < size.load(std::memory_order_relaxed);
  }
};

constinit Range library;
constinit Range checked;

std::uintptr_t number(const void *address) { return reinterpret_cast<std::uintptr_t>(address); }

struct Search {
  std::uintptr_t address;
  Range *range;
};

int look_at_object(dl_phdr_info *object, std::size_t, void *context) {
  const auto &[address, range] = *static_cast<const Search *>(context);
  std::uintptr_t begin = UINTPTR_MAX;
  std::uintptr_t end = 0;
  bool inside = false;
  for (int i = 0; i < object->dlpi_phnum; ++i) {
    const ElfW(Phdr) &segment = object->dlpi_phdr[i];
    if (segment.p_type != PT_LOAD) continue;
    const std::uintptr_t at = object->dlpi_addr + segment.p_vaddr;
    begin = at < begin ? at : begin;
    end = at + segment.p_memsz > end ? at + segment.p_memsz : end;
    inside = inside || (address >= at && address < at + segment.p_memsz);
  }
  if (!inside) return 0;
  range->begin.store(begin, std::memory_order_relaxed);
  range->size.store(end - begin, std::memory_order_relaxed);
  return 1;
}

void find_range(const void *address_in_it, Range *range) {
  Search search{number(address_in_it), range};
  dl_iterate_phdr(look_at_object, &search);
}

struct Calls {
  const void **found;
  std::size_t max;
  std::size_t count;
};

_Unwind_Reason_Code look_at_frame(_Unwind_Context *context, void *argument) {
  auto &calls = *static_cast<Calls *>(argument);
  const std::uintptr_t address = _Unwind_GetIP(context);
  if (address == 0) return _URC_END_OF_STACK;
  const bool inside = library.contains(address) || checked.contains(address);
  if (inside && calls.count == 0) return _URC_NO_REASON;
  calls.found[calls.count++] = reinterpret_cast<const void *>(address);
  return calls.count < calls.max ? _URC_NO_REASON : _URC_END_OF_STACK;
}

const void *caller_by_unwinding() {
  const void *caller;
  find_calls(&caller, 1);
  return caller;
}

// A frame pointer points at the one of the frame around, and that is followed by the return address.
struct Frame {
  const Frame *outer;
  const void *return_address;
};

constexpr int kFramesMax = 64;
constexpr std::uintptr_t kFrameSizeMax = 1 << 20;

__attribute__((no_sanitize("address"), no_sanitize("thread"))) const void *follow(const Frame *frame) {
  for (int i = 0; i < kFramesMax; ++i) {
    if (!library.contains(number(frame->return_address))) return frame->return_address;
    const std::uintptr_t distance = number(frame->outer) - number(frame);
    if (distance == 0 || distance > kFrameSizeMax || distance % alignof(Frame) != 0) return nullptr;
    frame = frame->outer;
  }
  return nullptr;
}

enum class FramePointers { kUnknown, kGood, kNone };
std::atomic<FramePointers> frame_pointers{FramePointers::kUnknown};

}  // namespace

void find_library() {
  find_range(&checked, &checked);
  // The library's own definition is the next one after that of this table.
  if (const void *definition = dlsym(RTLD_NEXT, "id_to_ptr")) find_range(definition, &library);
}

void find_library(const void *address_in_it) { find_range(address_in_it, &library); }

bool library_found() { return library.size.load(std::memory_order_relaxed) != 0; }

bool in_library(const void *address) { return library.contains(number(address)); }

void find_calls(const void **calls, std::size_t max) {
  std::fill(calls, calls + max, nullptr);
  Calls wanted{calls, max, 0};
  if (max > 0) _Unwind_Backtrace(look_at_frame, &wanted);
}

const void *caller_by_frames(const void *frame) {
  FramePointers found = frame_pointers.load(std::memory_order_relaxed);
  if (found == FramePointers::kNone) return nullptr;
  const void *caller = follow(static_cast<const Frame *>(frame));
  if (found == FramePointers::kGood) return caller;
  found = caller == caller_by_unwinding() ? FramePointers::kGood : FramePointers::kNone;
  frame_pointers.store(found, std::memory_order_relaxed);
  return found == FramePointers::kGood ? caller : nullptr;
}

}  // namespace attrmgr::checked
