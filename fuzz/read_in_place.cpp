// Any bytes: is_aaa_attr_buffer_valid accepts them exactly when the rules (flat_rules.h) do, and so does the decoder.
// Whoever reads a buffer that was accepted finds the records that the rules find in it: the decoder, the cursor, the
// look-up and the print.
#include <cctype>
#include <string_view>

#include "exercise.h"
#include "flat_mutator.h"
#include "support/flat_rules.h"

namespace {

using exercise::Copy;
using flat_rules::Reading;
using flat_rules::Record;

struct Buffer {
  const std::uint8_t *bytes;
  Reading reading;
};

bool has_foreign_layout(unsigned flags) {
  if (kBigEndianHost) flags = byte_order::moved_bits(flags, byte_order::kBlockFlagPlaces, true);
  return (flags & 0x30) == 0x10;
}

// The cursor stands on this record.
void see_record(const aaa_cursor *cursor, const Buffer &buffer, const Record &record) {
  const std::uint8_t *meta = reinterpret_cast<const std::uint8_t *>(aaa_cursor_get_meta(cursor));
  const std::uint8_t *expected = buffer.bytes + record.value_at;
  std::uint32_t length = 0;
  exercise::read_attribute(cursor);
  const auto *value = static_cast<const std::uint8_t *>(aaa_cursor_get(cursor, &length));
  REQUIRE((meta != nullptr) == record.has_meta);
  if (record.has_meta) REQUIRE(std::equal(meta, meta + sizeof(aaa_attr_meta), expected - sizeof(aaa_attr_meta)));
  REQUIRE(length == record.length - (record.format == AAA_ATTR_FMT_STRING ? 1 : 0));
  if (record.format != AAA_ATTR_FMT_GROUPED) REQUIRE(std::equal(value, value + record.length, expected));
}

// The records of one list as a client sees them: up to one of type 0, without the removed ones.
std::vector<Record> seen_in(const Reading &reading, std::size_t list) {
  std::vector<Record> seen;
  for (const Record &record : reading.records_of(list)) {
    if (record.removed) continue;
    if (record.type == 0) break;
    seen.push_back(record);
  }
  return seen;
}

void see_in_place(const Buffer &buffer) {
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc_from_buffer(buffer.bytes, &cursor) == 0);
  for (const Record &record : seen_in(buffer.reading, 0)) {
    std::uint32_t offset = 0;
    REQUIRE(aaa_cursor_get_next(cursor) == record.type);
    REQUIRE(aaa_cursor_get_offset_in_buffer(cursor, &offset) == 0 && offset == record.at + 8);
    see_record(cursor, buffer, record);
  }
  REQUIRE(aaa_cursor_get_next(cursor) == 0);
  aaa_cursor_free(cursor);
}

void see_list(aaa_attr_list_handle handle, const Buffer &buffer, std::size_t list) {
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc(handle, &cursor) == 0);
  for (const Record &record : seen_in(buffer.reading, list)) {
    REQUIRE(aaa_cursor_get_next(cursor) == record.type);
    see_record(cursor, buffer, record);
    if (record.format != AAA_ATTR_FMT_GROUPED) continue;
    aaa_attr_list_handle sub_list = 0;
    REQUIRE(aaa_cursor_get_grouped_attr_handle(cursor, &sub_list) == 0);
    see_list(sub_list, buffer, record.sub_list);
  }
  REQUIRE(aaa_cursor_get_next(cursor) == 0);
  aaa_cursor_free(cursor);
}

// A filtered cursor sees the attributes with the service and the protocol of the first that has any.
void see_filtered(aaa_attr_list_handle list, const Buffer &buffer) {
  std::vector<Record> wanted;
  const std::uint8_t *filter = nullptr;
  for (const Record &record : seen_in(buffer.reading, 0)) {
    const std::uint8_t *meta = buffer.bytes + record.value_at - sizeof(aaa_attr_meta);
    if (!record.has_meta || (meta[0] == 0 && meta[1] == 0)) continue;
    if (filter == nullptr) filter = meta;
    if (meta[0] == filter[0] && meta[1] == filter[1]) wanted.push_back(record);
  }
  if (filter == nullptr) return;
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc_filtered(list, &cursor, filter[0], filter[1]) == 0);
  for (const Record &record : wanted) {
    REQUIRE(aaa_cursor_get_next(cursor) == record.type);
    see_record(cursor, buffer, record);
  }
  // A record of type 0 ends the walk only where it passes the filter.
  while (aaa_cursor_get_next(cursor) != 0) REQUIRE(aaa_cursor_get_meta(cursor)->service == filter[0]);
  aaa_cursor_free(cursor);
}

// The answer of the look-up for a type, given the first record of that type; null when there is none.
void look_up(const Buffer &buffer, std::uint32_t type, const Record *first, std::uint32_t capacity) {
  std::uint8_t value[256];
  std::uint32_t size = capacity, format = 77;
  const aaa_attr_cerrno code = aaa_attr_get_from_buffer(buffer.bytes, type, &format, value, &size);
  const bool fits = first != nullptr && first->length <= capacity;
  if (capacity == 0) {
    REQUIRE(code == AAA_ATTR_ERR_BAD_ARG);
  } else if (!fits) {
    REQUIRE(code == AAA_ATTR_ERR_NO_MEMORY && format == 77 && size == (first != nullptr ? 0 : capacity));
  } else {
    REQUIRE(code == 0 && size == first->length && format == first->format);
    REQUIRE(std::equal(value, value + size, buffer.bytes + first->value_at));
  }
}

// Looks for every type that is in the buffer, and for a few that are not. Only the first records count.
void look_up_everything(const Buffer &buffer, std::size_t num_records) {
  const Record *first[AAA_ATTR_TYPE_COUNT + 1] = {};
  bool wanted[AAA_ATTR_TYPE_COUNT + 1] = {};
  for (std::size_t i = 0; i < buffer.reading.records().size(); ++i) {
    const Record &record = buffer.reading.records()[i];
    const std::uint32_t slot = std::min<std::uint32_t>(record.type, AAA_ATTR_TYPE_COUNT);
    wanted[slot] = true;
    if (first[slot] == nullptr && i < num_records) first[slot] = &record;
  }
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) {
    if (!wanted[type] && type % 97 != 0) continue;
    for (const std::uint32_t capacity : {0u, 5u, 256u}) look_up(buffer, type, first[type], capacity);
  }
}

// What a call prints, without what names addresses and handles: titles, and the numbers at the ends of lines.
template <class Call>
std::vector<std::string> printed(Call call) {
  char *text = nullptr;
  std::size_t size = 0;
  std::FILE *out = stdout;
  stdout = open_memstream(&text, &size);
  call();
  std::fclose(stdout);
  stdout = out;
  std::vector<std::string> lines;
  for (std::size_t begin = 0, end; begin < size; begin = end + 1) {
    end = std::min(std::string_view(text, size).find('\n', begin), size);
    std::string line(text + begin, text + end);
    if (line.empty() || line.find("ttribute list: ") == 1 || line.find("rouped attribute: ") == 1 ||
        line.find("nd of group list: ") == 1)
      continue;
    const bool has_number = line.back() == ')';
    while (has_number && !line.empty() && line.back() != '(') line.pop_back();
    while (has_number && !line.empty() && !std::isalpha(static_cast<unsigned char>(line.back()))) line.pop_back();
    lines.push_back(line);
  }
  std::free(text);
  return lines;
}

// One record, chosen by the buffer's size, gets a length that passes its block: the readers go as far as it at most.
void survive_damage(std::uint8_t *bytes, const Buffer &buffer, std::size_t size) {
  if (buffer.reading.records().empty()) return;
  const std::size_t damaged = size % buffer.reading.records().size();
  const std::size_t damaged_at = buffer.reading.records()[damaged].at;
  std::fill_n(bytes + damaged_at + 4, 4, std::uint8_t{0xFF});
  look_up_everything(buffer, damaged);
  aaa_cursor *cursor = nullptr;
  REQUIRE(aaa_cursor_alloc_from_buffer(bytes, &cursor) == 0);
  const std::vector<Record> all = seen_in(buffer.reading, 0);
  for (std::size_t i = 0; const std::uint32_t type = aaa_cursor_get_next(cursor); ++i) {
    REQUIRE(i < all.size() && type == all[i].type && all[i].at != damaged_at);
    see_record(cursor, buffer, all[i]);
  }
  aaa_cursor_free(cursor);
  printed([bytes] { aaa_attr_list_buffer_print(bytes); });
}

// Only the decoder takes a marker of 0 for that of a flat buffer, and nobody takes one that is not known.
void refuse_other_markers(std::uint8_t *bytes, std::uint32_t length) {
  for (const std::uint8_t marker : {0, 0xFF}) {
    bytes[0] = marker;
    aaa_attr_list_handle list = 0;
    REQUIRE(aaa_attr_buffer_to_list(bytes, length, &list) == (marker == 0 ? 0 : AAA_ATTR_ERR_BAD_ARG));
    aaa_attr_list_free(list);
    aaa_attr_cerrno code = 0;
    std::uint32_t format = 0, value = 0, size = sizeof value;
    REQUIRE(is_aaa_attr_buffer_valid(bytes, length, &code) == 0 && code == AAA_ATTR_ERR_BAD_ARG);
    REQUIRE(aaa_attr_buffer_scrub(bytes, length) == AAA_ATTR_ERR_BAD_ARG);
    REQUIRE(aaa_attr_buffer_is_alien(bytes, length) == 0);
    REQUIRE(aaa_attr_get_from_buffer(bytes, 2, &format, &value, &size) == AAA_ATTR_ERR_BAD_ARG);
    for (const auto direction : {CDM_ENDIAN_TRAN_HTON, CDM_ENDIAN_TRAN_NTOH})
      REQUIRE(aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(bytes), length, direction) == AAA_ATTR_ERR_BAD_ARG);
    exercise::fault_of(bytes, length, AAA_ATTR_READER_IN_PLACE, AAA_ATTR_ERR_BAD_ARG);
    exercise::fault_of(bytes, length, AAA_ATTR_READER_LIST, marker == 0 ? 0 : AAA_ATTR_ERR_BAD_ARG);
  }
  bytes[0] = AAA_MARSHAL_BUFFER;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const std::vector<std::uint8_t> bytes = exercise::received(AAA_MARSHAL_BUFFER, data, size);
  const auto length = static_cast<std::uint32_t>(bytes.size());
  Copy copy(bytes.data(), bytes.size());
  const Buffer buffer = {copy.data(), Reading(bytes.data(), bytes.size(), AAA_ATTR_READER_LIST)};
  const Reading in_place(bytes.data(), bytes.size(), AAA_ATTR_READER_IN_PLACE);

  aaa_attr_cerrno code = 77;
  aaa_attr_list_handle list = 0;
  REQUIRE((is_aaa_attr_buffer_valid(buffer.bytes, length, &code) == 1) == in_place.accepted());
  REQUIRE(code == (in_place.accepted() ? 0 : AAA_ATTR_ERR_BAD_BUFFER));
  exercise::require_fault(buffer.bytes, length, AAA_ATTR_READER_IN_PLACE, code, in_place.fault());
  REQUIRE((aaa_attr_buffer_to_list(buffer.bytes, length, &list) == 0) == buffer.reading.accepted());
  REQUIRE((aaa_attr_buffer_is_alien(buffer.bytes, length) == 1) == (size >= 24 && has_foreign_layout(bytes[4])));
  if (list != 0) see_list(list, buffer, 0);
  if (!in_place.accepted()) {
    aaa_attr_list_free(list);
    return 0;
  }
  see_in_place(buffer);
  see_filtered(list, buffer);
  look_up_everything(buffer, buffer.reading.records().size());
  const std::vector<std::string> lines = printed([&buffer] { aaa_attr_list_buffer_print(buffer.bytes); });
  REQUIRE(std::equal(bytes.begin(), bytes.end(), copy.data()));

  aaa_attr_list_handle scrubbed = 0;
  REQUIRE(aaa_attr_buffer_scrub(copy.data(), length) == 0);
  REQUIRE(is_aaa_attr_buffer_valid(copy.data(), length, &code) == 1);
  REQUIRE(aaa_attr_buffer_to_list(copy.data(), length, &scrubbed) == 0);
  REQUIRE(aaa_attr_list_eq(list, scrubbed) == 1);
  REQUIRE(printed([list] { aaa_attr_list_print(list); }) == lines);  // and clears bits after IPv6 prefixes in the list
  aaa_attr_list_free(scrubbed);
  aaa_attr_list_free(list);
  refuse_other_markers(copy.data(), length);
  survive_damage(copy.data(), buffer, size);
  return 0;
}
