// Writing TLV buffers.
#include <cstring>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/byte_writer.h"
#include "aaa_attr/marshal/tlv_format.h"
#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

constexpr std::uint32_t kBufferOverhead = kMarkerSize + kTlvTotalSize;
constexpr std::uint64_t kRecordsMax = std::numeric_limits<std::uint32_t>::max() - kBufferOverhead;

// Adds the size of the list's records to the total.
Error add_size(aaa_attr_list_handle list, std::uint64_t *total) {
  const auto [head, refused] = resolve(list);
  if (refused) return refused;
  for (const RecordView record : Attributes(head)) {
    *total += kTlvRecordSizeMin + (record.has_meta() ? kMetaSize : 0);
    if (!is_grouped(record)) {
      *total += reported_length(record);
    } else if (const Error error = add_size(owned_list(record), total)) {
      return error;
    }
  }
  return 0;
}

// *size: of the records, with those of sub-lists.
Error measure(aaa_attr_list_handle list, std::uint32_t *size) {
  std::uint64_t total = 0;
  if (const Error error = add_size(list, &total)) return error;
  if (total > kRecordsMax) return AAA_ATTR_ERR_BAD_FORMAT;
  *size = static_cast<std::uint32_t>(total);
  return 0;
}

Error write_body(aaa_attr_list_handle list, ByteWriter &writer);

Error write_record(RecordView record, ByteWriter &writer) {
  const std::uint32_t meta_length = record.has_meta() ? kMetaSize : 0;
  std::byte *const header = writer.take(kTlvRecordHeaderSize);
  if (header == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
  store(header + kTlvTypeAt, std::uint32_t{record.type()});
  store(header + kTlvMetaLengthAt, meta_length);
  if (!writer.put(record.meta_bytes(), meta_length)) return AAA_ATTR_ERR_BAD_FORMAT;
  if (is_grouped(record)) return write_body(owned_list(record), writer);
  const std::uint32_t length = reported_length(record);
  std::byte *const content = writer.take(std::uint64_t{kTlvLengthSize} + length);
  if (content == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
  store(content, length);
  std::memcpy(content + kTlvLengthSize, record.value(), length);
  return 0;
}

// Total and records.
Error write_body(aaa_attr_list_handle list, ByteWriter &writer) {
  const auto [head, refused] = resolve(list);
  if (refused) return refused;
  std::byte *const total = writer.take(kTlvTotalSize);
  if (total == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
  for (const RecordView record : Attributes(head))
    if (const Error error = write_record(record, writer)) return error;
  store(total, static_cast<std::uint32_t>(writer.at() - total));
  return 0;
}

Error encode(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  std::uint32_t records = 0;
  if (const Error error = measure(list, &records)) {
    if (error == AAA_ATTR_ERR_BAD_FORMAT) *size = 0;  // no buffer can be large enough
    return error;
  }
  const std::uint32_t needed = records + kBufferOverhead;
  if (buffer == nullptr || *size < needed) {
    *size = needed;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  auto *bytes = static_cast<std::byte *>(buffer);
  bytes[0] = std::byte{AAA_MARSHAL_TLV};
  ByteWriter writer(bytes + kMarkerSize, needed - kMarkerSize);
  const Error error = write_body(list, writer);
  *size = error ? 0 : needed;
  return error;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_list_tlv_buffer_len(aaa_attr_list_handle list, std::uint32_t *size) noexcept {
  return size != nullptr ? measure(list, size).code : AAA_ATTR_ERR_BAD_ARG;
}

aaa_attr_cerrno aaa_attr_list_tlv_to_buffer(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) noexcept {
  return size != nullptr ? encode(list, buffer, size).code : AAA_ATTR_ERR_BAD_ARG;
}
