// Everything that a client can do with a list or a buffer that it received, with what must hold of the results.
#pragma once

#include <attrmgr/attrmgr.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "support/byte_order.h"

// Fails the run with the place: what a fuzzer looks for.
#define REQUIRE(condition)                                                         \
  do {                                                                             \
    if (!(condition)) {                                                            \
      std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                \
    }                                                                              \
  } while (false)

namespace exercise {

// The input after its marker. Corpus and mutator have the bytes of a little-endian host: here are those of this one.
// What begins as network form does is left as it is.
inline std::vector<std::uint8_t> received(std::uint8_t marker, const std::uint8_t *data, std::size_t size) {
  std::vector<std::uint8_t> bytes{marker};
  bytes.insert(bytes.end(), data, data + size);
  const bool in_network_form = marker == AAA_MARSHAL_BUFFER && size >= 2 && data[0] == 0xAB && data[1] == 0xCD;
  return in_network_form ? bytes : host_form(bytes);
}

// An exact-size copy on the heap: one byte too far is seen.
class Copy {
 public:
  Copy(const void *bytes, std::size_t size) : bytes_(static_cast<std::uint8_t *>(std::malloc(size ? size : 1))) {
    const auto *from = static_cast<const std::uint8_t *>(bytes);
    for (std::size_t i = 0; i < size; ++i) bytes_[i] = from[i];
  }
  ~Copy() { std::free(bytes_); }
  Copy(const Copy &) = delete;
  Copy &operator=(const Copy &) = delete;
  std::uint8_t *data() { return bytes_; }

 private:
  std::uint8_t *bytes_;
};

// One attribute as a cursor reads it; every byte of the value is touched.
inline std::string read_attribute(const aaa_cursor *cursor) {
  std::uint32_t length = 0;
  const auto *value = static_cast<const char *>(aaa_cursor_get(cursor, &length));
  REQUIRE(value != nullptr && length == aaa_cursor_get_length(cursor));
  std::string text(value, length);
  std::uint32_t number = 0;
  std::uint64_t wide = 0;
  if (const char *string = aaa_cursor_get_string(cursor, &length)) REQUIRE(string[length] == '\0');
  if (aaa_cursor_get_uint32_t(cursor, &number) == 0) text += std::to_string(number);
  if (aaa_cursor_get_uint64_t(cursor, &wide) == 0) text += aaa_cursor_grouped(cursor) ? "group" : std::to_string(wide);
  if (const aaa_attr_meta *meta = aaa_cursor_get_meta(cursor)) {
    text += std::to_string(meta->service + meta->protocol + meta->tag + meta->flags + meta->client);
    REQUIRE(meta->tag == aaa_cursor_get_tag(cursor));
  }
  text += aaa_cursor_get_name(cursor);
  text += std::to_string(aaa_cursor_get_format(cursor)) + std::to_string(aaa_cursor_get_producer_client_type(cursor));
  return text;
}

// What a cursor sees, one text an attribute. The values of Grouped attributes are handles, and left out.
inline std::vector<std::string> walk(aaa_cursor *cursor) {
  std::vector<std::string> seen;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor))
    seen.push_back(std::to_string(type) + (aaa_cursor_grouped(cursor) ? "" : read_attribute(cursor)));
  return seen;
}

inline std::vector<std::string> walk_list(aaa_attr_list_handle list) {
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc(list, &cursor) == 0);
  std::vector<std::string> seen = walk(cursor);
  aaa_cursor_free(cursor);
  return seen;
}

inline std::vector<std::string> walk_buffer(const void *buffer) {
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc_from_buffer(buffer, &cursor) == 0);
  std::vector<std::string> seen = walk(cursor);
  aaa_cursor_free(cursor);
  return seen;
}

inline int count_line(char *line, std::uint64_t context) {
  auto *lines = reinterpret_cast<std::vector<std::size_t> *>(static_cast<std::uintptr_t>(context));
  lines->push_back(std::char_traits<char>::length(line));
  return 0;
}

inline void display(aaa_attr_list_handle list) {
  std::vector<std::size_t> lines;
  const auto context = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&lines));
  aaa_attr_list_display(list, count_line, context);
  aaa_attr_list_display_brief(list, count_line, context);
  aaa_display_summ_attr_list_fn(list, 0, count_line, context);
  for (const std::size_t length : lines) REQUIRE(length < 512);
  for (const std::int32_t size : {1, 40, 4096}) {
    Copy text(std::string(static_cast<std::size_t>(size), 'x').data(), static_cast<std::size_t>(size));
    aaa_attr_list_print_to_output_buffer(list, reinterpret_cast<char *>(text.data()), size);
  }
}

inline std::vector<std::uint8_t> encode(aaa_attr_list_handle list) {
  std::uint32_t size = 0;
  REQUIRE(aaa_attr_list_to_buffer(list, nullptr, &size) == AAA_ATTR_ERR_BAD_FORMAT && size > 0);
  std::vector<std::uint8_t> buffer(size);
  REQUIRE(aaa_attr_list_to_buffer(list, buffer.data(), &size) == 0 && size == buffer.size());
  return buffer;
}

// Writes the list in every form and reads each back.
inline void marshal(aaa_attr_list_handle list) {
  std::vector<std::uint8_t> flat = encode(list);
  aaa_attr_list_handle again = 0;
  const auto flat_size = static_cast<std::uint32_t>(flat.size());
  REQUIRE(aaa_attr_buffer_to_list(flat.data(), flat_size, &again) == 0);
  REQUIRE(walk_list(again) == walk_list(list));
  REQUIRE(aaa_attr_list_eq(again, list) == 1);
  aaa_attr_list_free(again);

  std::uint32_t size = 0;
  REQUIRE(aaa_attr_list_tlv_to_buffer(list, nullptr, &size) == AAA_ATTR_ERR_BAD_FORMAT);
  std::vector<std::uint8_t> tlv(size);
  REQUIRE(aaa_attr_list_tlv_to_buffer(list, tlv.data(), &size) == 0);
  if (aaa_attr_buffer_to_list(tlv.data(), size, &again) == 0) aaa_attr_list_free(again);

  aaa_attr_array_entry *entries = nullptr;
  std::uint32_t count = 0;
  REQUIRE(aaa_attr_list_to_array(list, &entries, &count) == 0);
  std::uint64_t gathered = 0;
  for (std::uint32_t i = 0; i < count; ++i) gathered += entries[i].length;
  REQUIRE(gathered == flat.size());
  std::free(entries);
}

// The fields of a buffer cover it, byte after byte, and the fault that comes with them is the one that comes alone.
inline void require_fields(const std::uint8_t *bytes, std::uint32_t length, aaa_attr_reader reader,
                           const aaa_attr_fault &expected) {
  std::uint32_t at = 0;
  const auto take = [](const aaa_attr_field *field, void *next) {
    auto &offset = *static_cast<std::uint32_t *>(next);
    REQUIRE(field->offset == offset && field->depth <= AAA_ATTR_NESTING_MAX + 1);
    offset += field->size;
  };
  aaa_attr_fault fault = {77, 77};
  const aaa_attr_cerrno code = aaa_attr_buffer_fields(bytes, length, reader, take, &at, &fault);
  REQUIRE(at == length && (code != 0) == (expected.rule != AAA_ATTR_RULE_NONE));
  REQUIRE(fault.rule == expected.rule && fault.offset == expected.offset);
}

// Why a reader refuses a buffer: with the same code as the reader, a rule if and only if it does, at a byte of the
// buffer or at its end.
inline aaa_attr_fault fault_of(const std::uint8_t *bytes, std::uint32_t length, aaa_attr_reader reader,
                               aaa_attr_cerrno code) {
  aaa_attr_fault fault = {77, 77};
  REQUIRE(aaa_attr_buffer_fault(bytes, length, reader, &fault) == code);
  REQUIRE((fault.rule != AAA_ATTR_RULE_NONE) == (code != 0) && fault.offset <= length);
  REQUIRE((*aaa_attr_rule_text(fault.rule) != 0) == (code != 0));
  require_fields(bytes, length, reader, fault);
  return fault;
}

inline void require_fault(const std::uint8_t *bytes, std::uint32_t length, aaa_attr_reader reader, aaa_attr_cerrno code,
                          const aaa_attr_fault &expected) {
  const aaa_attr_fault fault = fault_of(bytes, length, reader, code);
  REQUIRE(fault.rule == expected.rule && fault.offset == expected.offset);
}

// All of it, on a list that came out of a decoder.
inline void use(aaa_attr_list_handle list) {
  aaa_attr_cerrno code = 0;
  REQUIRE(is_aaa_attr_list_valid(list, &code) == 1 && code == 0);
  display(list);  // may clear bits after an IPv6 prefix; from here on the list does not change
  const std::vector<std::string> seen = walk_list(list);
  marshal(list);

  aaa_attr_list_handle copy = 0;
  const aaa_attr_cerrno copied = aaa_attr_list_copy(list, &copy);
  if (copied == AAA_ATTR_ERR_BAD_LIST) return;  // a block came in with another layout version
  REQUIRE(copied == 0);
  REQUIRE(aaa_attr_list_eq(list, copy) == 1 && aaa_attr_list_eq(copy, list) == 1);
  std::uint32_t size = 0;
  REQUIRE(aaa_attr_list_buffer_coalesce_and_get_len(copy, &size) == 0);
  REQUIRE(walk_list(copy) == seen);
  REQUIRE(aaa_attr_list_eq(list, copy) == 1);
  REQUIRE(aaa_attr_add(copy, 197, "bob", 3, nullptr) == 0);
  REQUIRE(aaa_attr_remove(copy, 444) == 0);
  aaa_attr_list_free(copy);
}

}  // namespace exercise
