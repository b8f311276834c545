#include "aaa_attr/store/record_appender.h"

#include <cstring>

#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/list_blocks.h"

namespace attrmgr {
namespace {

bool length_suits(std::uint32_t format, std::uint32_t length) {
  switch (format) {
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
    case AAA_ATTR_FMT_IPV4:
      return length == 4;
    case AAA_ATTR_FMT_IPV6:
      return length == 16;
    case AAA_ATTR_FMT_ADDRESS:
      return length == 4 || length == 16;
    case AAA_ATTR_FMT_GROUPED:
      return length == kHandleSize;
    case AAA_ATTR_FMT_BOOLEAN:
      return length == 1;
    default:
      return length > 0;
  }
}

bool stores_nul(std::uint32_t format) { return format == AAA_ATTR_FMT_STRING || format == AAA_ATTR_FMT_STRING_ATTR; }

std::uint64_t record_size(const NewAttribute &attribute) {
  return kRecordHeaderSize + (attribute.meta != nullptr ? kMetaSize : 0) + std::uint64_t{attribute.length} +
         (stores_nul(format_of(attribute.type)) ? 1 : 0);
}

void write_record(std::byte *at, const NewAttribute &attribute, bool nul) {
  RecordView record(at);
  const std::uint32_t flags = (attribute.client_type & kClientTypeMax) << kClientTypeShift;
  record.set_type(static_cast<std::uint16_t>(attribute.type));
  record.set_flags(static_cast<std::uint16_t>(flags | (attribute.meta != nullptr ? kRecordHasMeta : 0)));
  record.set_length(attribute.length + (nul ? 1 : 0));
  if (attribute.meta != nullptr) std::memcpy(record.meta_bytes(), attribute.meta, kMetaSize);
  std::memcpy(record.value(), attribute.value, attribute.length);
  if (nul) record.value()[attribute.length] = std::byte{0};
}

}  // namespace

NewAttribute attribute_of(RecordView record) {
  return {record.type(), record.value(), reported_length(record), record.has_meta() ? record.meta_bytes() : nullptr,
          record.client_type()};
}

aaa_attr_cerrno check_presence(const NewAttribute &attribute) {
  if (attribute.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
  return attribute.value == nullptr || attribute.length == 0 ? AAA_ATTR_ERR_BAD_ARG : 0;
}

aaa_attr_cerrno check_length(const NewAttribute &attribute) {
  if (!length_suits(format_of(attribute.type), attribute.length)) return AAA_ATTR_ERR_BAD_ARG;
  return record_size(attribute) > kBlockSizeMax - kHeaderSize ? AAA_ATTR_ERR_BAD_ARG : 0;
}

aaa_attr_cerrno append_record(BlockView head, const NewAttribute &attribute) {
  const auto size = static_cast<std::size_t>(record_size(attribute));
  BlockView block = last_block(head);
  if (size > block.free_bytes()) {
    block = aaa_attr_list_add_block(head, block, size + kHeaderSize);
    if (!block) return AAA_ATTR_ERR_NO_MEMORY;
  }
  const std::uint32_t format = format_of(attribute.type);
  write_record(block.end(), attribute, stores_nul(format));
  block.set_free_bytes(static_cast<std::uint16_t>(block.free_bytes() - size));
  block.set_used(static_cast<std::uint16_t>(block.used() + size));
  block.set_record_count(static_cast<std::uint16_t>(block.record_count() + 1));
  if (format == AAA_ATTR_FMT_GROUPED) block.add_flags(kBlockHoldsGrouped);
  return 0;
}

aaa_attr_cerrno add_attribute(BlockView head, const NewAttribute &attribute) {
  if (const aaa_attr_cerrno code = check_presence(attribute)) return code;
  if (const aaa_attr_cerrno code = check_length(attribute)) return code;
  return append_record(head, attribute);
}

aaa_attr_cerrno add_attribute(aaa_attr_list_handle list, const NewAttribute &attribute) {
  BlockView head;
  if (const aaa_attr_cerrno code = check_presence(attribute)) return code;
  if (const aaa_attr_cerrno code = resolve(list, &head)) return code;
  if (const aaa_attr_cerrno code = check_length(attribute)) return code;
  return append_record(head, attribute);
}

}  // namespace attrmgr
