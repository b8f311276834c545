// The gather list: a list's flat buffer as addresses and lengths.
#include <cstdlib>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/flat_order.h"

static_assert(sizeof(aaa_attr_array_entry) == 16);

namespace {

using namespace attrmgr;

// The byte in front of the blocks; the entries outlast the call.
constexpr std::byte kMarker{AAA_MARSHAL_BUFFER};

aaa_attr_cerrno count_entries(aaa_attr_list_handle list, std::uint32_t *needed) {
  std::uint64_t entries = 1;
  auto count = [&entries](BlockView) -> aaa_attr_cerrno {
    ++entries;
    return entries > std::numeric_limits<std::uint32_t>::max() ? AAA_ATTR_ERR_BAD_FORMAT : 0;
  };
  const aaa_attr_cerrno code = for_each_flat_block(list, count);
  if (code == 0) *needed = static_cast<std::uint32_t>(entries);
  return code;
}

aaa_attr_cerrno fill(aaa_attr_list_handle list, aaa_attr_array_entry *entries, std::uint32_t *count) {
  const std::uint32_t capacity = *count;
  std::uint32_t filled = 0;
  entries[filled++] = {&kMarker, sizeof kMarker};
  auto describe = [entries, capacity, &filled](BlockView block) -> aaa_attr_cerrno {
    if (filled < capacity) entries[filled++] = {block.bytes(), block.used()};
    return 0;
  };
  const aaa_attr_cerrno code = for_each_flat_block(list, describe);
  if (code == 0) *count = filled;
  return code;
}

}  // namespace

aaa_attr_cerrno aaa_attr_list_to_array(aaa_attr_list_handle list, aaa_attr_array_entry **array, std::uint32_t *count) {
  if (count == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  std::uint32_t needed;
  if (const aaa_attr_cerrno code = count_entries(list, &needed)) return code;
  const std::uint32_t capacity = *count;
  if (array == nullptr || (capacity != 0 && (capacity < needed || *array == nullptr))) {
    *count = needed;
    return AAA_ATTR_ERR_BAD_ARG;
  }
  if (capacity == 0) {
    void *made = std::malloc(needed * sizeof(aaa_attr_array_entry));
    if (made == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
    *array = static_cast<aaa_attr_array_entry *>(made);
  }
  *count = needed;
  return fill(list, *array, count);
}
