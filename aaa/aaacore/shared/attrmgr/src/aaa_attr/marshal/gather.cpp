// The gather list: a list's flat buffer as addresses and lengths.
#include <cstdlib>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/flat_order.h"

static_assert(sizeof(aaa_attr_array_entry) == 16);

namespace attrmgr {
namespace {

// The byte in front of the blocks; the entries outlast the call.
constexpr std::byte kMarker{AAA_MARSHAL_BUFFER};

Error count_entries(aaa_attr_list_handle list, std::uint32_t *needed) {
  std::uint64_t entries = 1;
  auto count = [&entries](BlockView) -> Error {
    ++entries;
    return entries > std::numeric_limits<std::uint32_t>::max() ? AAA_ATTR_ERR_BAD_FORMAT : 0;
  };
  const Error error = for_each_flat_block(list, count);
  if (!error) *needed = static_cast<std::uint32_t>(entries);
  return error;
}

Error fill(aaa_attr_list_handle list, aaa_attr_array_entry *entries, std::uint32_t *count) {
  const std::uint32_t capacity = *count;
  std::uint32_t filled = 0;
  entries[filled++] = {&kMarker, sizeof kMarker};
  auto describe = [entries, capacity, &filled](BlockView block) -> Error {
    if (filled < capacity) entries[filled++] = {block.bytes(), block.used()};
    return 0;
  };
  const Error error = for_each_flat_block(list, describe);
  if (!error) *count = filled;
  return error;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_to_array(aaa_attr_list_handle list, aaa_attr_array_entry **array,
                                       std::uint32_t *count) noexcept {
  if (count == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  std::uint32_t needed = 1;  // the marker
  if (const Error error = count_entries(list, &needed)) return error.code;
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
  return fill(list, *array, count).code;
}
