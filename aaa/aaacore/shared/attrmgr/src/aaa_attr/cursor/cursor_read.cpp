// Reading a cursor's current attribute.
#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/cursor_step.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

// A number of exactly this many stored bytes.
template <class T>
Error read_number(const aaa_cursor *cursor, T *value) {
  const RecordView record = current_record(cursor);
  if (!record || value == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (record.length() != sizeof(T)) return AAA_ATTR_ERR_BAD_FORMAT;
  *value = load<T>(record.value());
  return 0;
}

const void *read_value(RecordView record, std::uint32_t *length) {
  if (!record || length == nullptr) return nullptr;
  *length = reported_length(record);
  return record.value();
}

std::uint32_t format_at(const aaa_cursor *cursor) {
  const RecordView record = current_record(cursor);
  return record ? format_of(record.type()) : AAA_ATTR_FMT_INVALID;
}

const TypeRow *row_at(const aaa_cursor *cursor) {
  const RecordView record = current_record(cursor);
  return record ? row_of(record.type()) : nullptr;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

const void *aaa_cursor_get(const aaa_cursor *cursor, std::uint32_t *length) noexcept {
  return read_value(current_record(cursor), length);
}

const char *aaa_cursor_get_string(const aaa_cursor *cursor, std::uint32_t *length) noexcept {
  if (format_at(cursor) != AAA_ATTR_FMT_STRING) return nullptr;
  return static_cast<const char *>(read_value(current_record(cursor), length));
}

aaa_attr_cerrno aaa_cursor_get_uint32_t(const aaa_cursor *cursor, std::uint32_t *value) noexcept {
  return read_number(cursor, value).code;
}

aaa_attr_cerrno aaa_cursor_get_uint64_t(const aaa_cursor *cursor, std::uint64_t *value) noexcept {
  return read_number(cursor, value).code;
}

aaa_attr_cerrno aaa_cursor_get_grouped_attr_handle(const aaa_cursor *cursor, aaa_attr_list_handle *sub_list) noexcept {
  return read_number(cursor, sub_list).code;
}

const aaa_attr_meta *aaa_cursor_get_meta(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  if (!record || !record.has_meta()) return nullptr;
  return reinterpret_cast<const aaa_attr_meta *>(record.meta_bytes());
}

std::uint32_t aaa_cursor_get_tag(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record && record.has_meta() ? record.meta().tag() : 0;
}

std::uint32_t aaa_cursor_mandatory(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record && record.has_meta() && record.meta().mandatory();
}

std::uint32_t aaa_cursor_get_length(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record ? reported_length(record) : 0;
}

std::uint32_t aaa_cursor_get_producer_client_type(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record ? record.client_type() : 0;
}

std::uint32_t aaa_cursor_get_format(const aaa_cursor *cursor) noexcept { return format_at(cursor); }

const char *aaa_cursor_get_name(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record ? type_name(record.type()) : nullptr;
}

int aaa_cursor_grouped(const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  return record && is_grouped(record);
}

int aaa_cursor_attr_is_class(const aaa_cursor *cursor, std::uint32_t mask) noexcept {
  const TypeRow *row = row_at(cursor);
  return row != nullptr && (row->class_mask & mask) != 0;
}

aaa_attr_cerrno aaa_cursor_get_offset_in_buffer(const aaa_cursor *cursor, std::uint32_t *offset) noexcept {
  const RecordView record = current_record(cursor);
  if (!record || offset == nullptr || !in_buffer(*cursor)) return AAA_ATTR_ERR_BAD_ARG;
  const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(record.bytes()) + kRecordHeaderSize;
  *offset = static_cast<std::uint32_t>(at - cursor->handle);
  return 0;
}

aaa_attr_record *aaa_cursor_get_current_attr(const aaa_cursor *cursor) noexcept {
  return cursor != nullptr ? cursor->record : nullptr;
}

aaa_attr_cerrno aaa_attr_get_ulong_val(const aaa_cursor *cursor, std::uint32_t *value) noexcept {
  const RecordView record = current_record(cursor);
  if (!record || value == nullptr || record.length() < sizeof *value) return AAA_ATTR_ERR_BAD_ARG;
  *value = load<std::uint32_t>(record.value());
  return 0;
}
