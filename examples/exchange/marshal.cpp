#include "marshal.h"

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_marshal.h>
#include <attrmgr/aaa_cursor.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

void check(aaa_attr_cerrno code, const char *call) {
  if (code != 0) throw std::runtime_error(std::string(call) + " failed: " + aaa_attr_cerrno_name(code));
}

std::uint32_t size_of(const Bytes &buffer) { return static_cast<std::uint32_t>(buffer.size()); }

using Encoder = aaa_attr_cerrno(aaa_attr_list_handle, void *, std::uint32_t *);

// Both encoders work alike: without a buffer they only tell the size.
Bytes encoded(aaa_attr_list_handle list, Encoder *encode, const char *name) {
  std::uint32_t size = 0;
  encode(list, nullptr, &size);
  Bytes buffer(size);
  check(encode(list, buffer.data(), &size), name);
  return buffer;
}

}  // namespace

Bytes flat_buffer(aaa_attr_list_handle list) {
  return encoded(list, aaa_attr_list_to_buffer_v1, "aaa_attr_list_to_buffer_v1");
}

Bytes tlv_buffer(aaa_attr_list_handle list) {
  return encoded(list, aaa_attr_list_tlv_to_buffer, "aaa_attr_list_tlv_to_buffer");
}

std::vector<iovec> gather_list(aaa_attr_list_handle list) {
  aaa_attr_array_entry *entries = nullptr;
  std::uint32_t count = 0;  // 0 has the array allocated, which is ours to free
  check(aaa_attr_list_to_array(list, &entries, &count), "aaa_attr_list_to_array");
  const std::unique_ptr<aaa_attr_array_entry, decltype(&std::free)> owner(entries, &std::free);
  std::vector<iovec> parts;
  for (std::uint32_t i = 0; i < count; ++i) parts.push_back({const_cast<void *>(entries[i].base), entries[i].length});
  return parts;
}

OwnedList list_from_buffer(const Bytes &buffer) {
  aaa_attr_list_handle handle = 0;
  check(aaa_attr_buffer_to_list(buffer.data(), size_of(buffer), &handle), "aaa_attr_buffer_to_list");
  return OwnedList(handle);
}

unsigned count_in_place(const Bytes &buffer) {
  // Bytes off a socket are untrusted, and a cursor is told no length: it would believe the lengths in the buffer.
  // So the buffer is checked first. (aaa_attr_buffer_to_list needs no such check, it makes its own.)
  aaa_attr_cerrno code = 0;
  if (!is_aaa_attr_buffer_valid(buffer.data(), size_of(buffer), &code)) check(code, "is_aaa_attr_buffer_valid");

  aaa_cursor *cursor = nullptr;
  check(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor), "aaa_cursor_alloc_from_buffer");
  unsigned count = 0;
  while (aaa_cursor_get_next(cursor) != 0) ++count;
  aaa_cursor_free(cursor);
  return count;
}
