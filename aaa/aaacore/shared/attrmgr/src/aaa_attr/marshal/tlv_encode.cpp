// Writing TLV buffers.
#include <cstring>
#include <limits>

#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/tlv_format.h"
#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace {

using namespace attrmgr;

// Adds the size of the list's records to the total.
aaa_attr_cerrno measure(aaa_attr_list_handle list, std::uint64_t *total) {
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  for (const RecordView record : Attributes(head)) {
    *total += kTlvRecordSizeMin + (record.has_meta() ? kMetaSize : 0);
    if (!is_grouped(record)) {
      *total += reported_length(record);
    } else if (const aaa_attr_cerrno code = measure(sub_list_of(record), total)) {
      return code;
    }
  }
  return 0;
}

// Writes within the space it was given; what does not fit is refused.
class Writer {
 public:
  Writer(std::byte *at, std::uint64_t room) : at_(at), room_(room) {}

  bool put(const void *bytes, std::uint64_t size) {
    std::byte *to = reserve(size);
    if (to != nullptr) std::memcpy(to, bytes, static_cast<std::size_t>(size));
    return to != nullptr;
  }
  bool put(std::uint32_t number) { return put(&number, sizeof number); }

  // Space to be filled in later; null when there is none.
  std::byte *reserve(std::uint64_t size) {
    if (size > room_) return nullptr;
    std::byte *reserved = at_;
    at_ += size;
    room_ -= size;
    return reserved;
  }

  std::byte *at() const { return at_; }

 private:
  std::byte *at_;
  std::uint64_t room_;
};

aaa_attr_cerrno write_body(aaa_attr_list_handle list, Writer &writer);

aaa_attr_cerrno write_record(RecordView record, Writer &writer) {
  const std::uint32_t meta_length = record.has_meta() ? kMetaSize : 0;
  if (!writer.put(record.type()) || !writer.put(meta_length)) return AAA_ATTR_ERR_BAD_FORMAT;
  if (!writer.put(record.meta_bytes(), meta_length)) return AAA_ATTR_ERR_BAD_FORMAT;
  if (is_grouped(record)) return write_body(sub_list_of(record), writer);
  const std::uint32_t length = reported_length(record);
  return writer.put(length) && writer.put(record.value(), length) ? 0 : AAA_ATTR_ERR_BAD_FORMAT;
}

// Total and records.
aaa_attr_cerrno write_body(aaa_attr_list_handle list, Writer &writer) {
  BlockView head;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  std::byte *const total = writer.reserve(kTlvTotalSize);
  if (total == nullptr) return AAA_ATTR_ERR_BAD_FORMAT;
  for (const RecordView record : Attributes(head))
    if (const aaa_attr_cerrno code = write_record(record, writer)) return code;
  store(total, static_cast<std::uint32_t>(writer.at() - total));
  return 0;
}

constexpr std::uint64_t kBufferOverhead = kTlvMarkerSize + kTlvTotalSize;
constexpr std::uint64_t kRecordsMax = std::numeric_limits<std::uint32_t>::max() - kBufferOverhead;

}  // namespace

aaa_attr_cerrno aaa_attr_list_tlv_buffer_len(aaa_attr_list_handle list, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  std::uint64_t total = 0;
  if (const aaa_attr_cerrno code = measure(list, &total)) return code;
  if (total > kRecordsMax) return AAA_ATTR_ERR_BAD_FORMAT;
  *size = static_cast<std::uint32_t>(total);
  return 0;
}

aaa_attr_cerrno aaa_attr_list_tlv_to_buffer(aaa_attr_list_handle list, void *buffer, std::uint32_t *size) {
  if (size == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  std::uint32_t records;
  if (const aaa_attr_cerrno code = aaa_attr_list_tlv_buffer_len(list, &records)) {
    if (code == AAA_ATTR_ERR_BAD_FORMAT) *size = 0;  // no buffer can be large enough
    return code;
  }
  const std::uint32_t needed = records + static_cast<std::uint32_t>(kBufferOverhead);
  if (buffer == nullptr || *size < needed) {
    *size = needed;
    return AAA_ATTR_ERR_BAD_FORMAT;
  }
  Writer writer(static_cast<std::byte *>(buffer), needed);
  const std::byte marker{AAA_MARSHAL_TLV};
  writer.put(&marker, sizeof marker);
  const aaa_attr_cerrno code = write_body(list, writer);
  *size = code == 0 ? needed : 0;
  return code;
}
