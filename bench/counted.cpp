// Operations whose instructions are counted, each in a function of its own that runs once: scripts/check-cost runs this
// program under callgrind and holds the counts against bench/costs.txt. What a function needs is prepared before it
// runs.
#include <attrmgr/attrmgr.h>

#include <cstddef>
#include <vector>

#include "data.h"

namespace {

using bench::Attributes;
using List = aaa_attr_list_handle;

constexpr std::uint32_t kLowType = 1;  // in no list; its bytes are in many lengths
constexpr std::size_t kBufferSize = 1 << 20;
std::byte buffer[kBufferSize];

List build(const Attributes &attributes) {
  List list = 0;
  aaa_attr_list_alloc(&list);
  for (const bench::Attribute &attribute : attributes)
    (void)aaa_attr_add(list, attribute.type, attribute.value.data(), static_cast<std::uint32_t>(attribute.value.size()),
                       nullptr);
  return list;
}

List copy(List list) {
  List made = 0;
  (void)aaa_attr_list_copy(list, &made);
  return made;
}

std::uint32_t encode(List list) {
  std::uint32_t length = kBufferSize;
  (void)aaa_attr_list_to_buffer(list, buffer, &length);
  return length;
}

std::uint32_t encode_tlv(List list) {
  std::uint32_t length = kBufferSize;
  (void)aaa_attr_list_tlv_to_buffer(list, buffer, &length);
  return length;
}

List decode(std::uint32_t length) {
  List list = 0;
  (void)aaa_attr_buffer_to_list(buffer, length, &list);
  return list;
}

bool find(List list, std::uint32_t type) {
  const void *value;
  std::uint32_t length;
  return aaa_attr_get(list, type, &value, &length) == 0;
}

}  // namespace

// Named for callgrind; not in line, so that it sees them.
#define COUNTED extern "C" [[gnu::noinline, gnu::used]]

COUNTED List counted_build(const Attributes &attributes) { return build(attributes); }
COUNTED void counted_free(List list) { aaa_attr_list_free(list); }
COUNTED bool counted_find_miss(List list) { return find(list, bench::kMissingType); }
COUNTED bool counted_find_low_type(List list) { return find(list, kLowType); }
COUNTED std::uint32_t counted_encode(List list) { return encode(list); }
COUNTED std::uint32_t counted_encode_tlv(List list) { return encode_tlv(list); }
COUNTED List counted_decode(std::uint32_t length) { return decode(length); }
COUNTED List counted_decode_tlv(std::uint32_t length) { return decode(length); }
COUNTED List counted_copy(List list) { return copy(list); }
COUNTED void counted_merge(List into, List from) { (void)aaa_attr_list_merge_with_replace(into, from); }
COUNTED void counted_remove(List from, List types) { aaa_attr_list_remove_list(from, types); }
COUNTED bool counted_equal(List list1, List list2) { return aaa_attr_list_eq(list1, list2) != 0; }
COUNTED void counted_render(List list, char *text, std::int32_t size) {
  aaa_attr_list_print_to_output_buffer(list, text, size);
}
COUNTED std::uint32_t counted_name_to_number(const char *name) { return aaa_attr_get_type_from_name(name); }

// Runs everything once for lists of `count` attributes. The argument is the count.
int main(int argc, char **argv) {
  if (argc != 2) return 2;
  const std::size_t count = std::stoul(argv[1]);
  const Attributes attributes = bench::attributes(count, 0);
  build(attributes);  // the allocator grows outside the counts

  const List list = counted_build(attributes);
  const List same = counted_copy(list);
  bool ok = !counted_find_miss(list) && !find(same, 0) && counted_equal(list, same);
  ok = ok && !counted_find_low_type(list);
  const List decoded = counted_decode(counted_encode(list));
  const List tlv_decoded = counted_decode_tlv(counted_encode_tlv(list));
  ok = ok && aaa_attr_list_eq(list, decoded) != 0 && aaa_attr_list_eq(list, tlv_decoded) != 0;

  const List newer = build(bench::attributes(count, 0, count / 2, 1));
  counted_merge(decoded, build(bench::merged_in(0)));
  counted_remove(tlv_decoded, newer);
  std::vector<char> text(200 * count);
  counted_render(same, text.data(), static_cast<std::int32_t>(text.size()));
  ok = ok && text[0] != '\0' && counted_name_to_number("pppoe-session-id") == bench::kWantedType;
  counted_free(list);
  return ok ? 0 : 1;
}
