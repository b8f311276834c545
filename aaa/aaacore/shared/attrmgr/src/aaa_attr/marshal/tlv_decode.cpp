#include "aaa_attr/marshal/tlv_decode.h"

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/marshal/tlv_format.h"
#include "aaa_attr/store/append.h"

namespace attrmgr {
namespace {

// Bytes still to be read.
class Reader {
 public:
  Reader() = default;
  Reader(const std::byte *at, std::uint64_t left) : at_(at), left_(left) {}

  std::uint64_t left() const { return left_; }

  // The next size bytes; null when there are fewer. The only comparison with what is left.
  const std::byte *take(std::uint64_t size) {
    if (size > left_) return nullptr;
    const std::byte *taken = at_;
    at_ += size;
    left_ -= size;
    return taken;
  }

  bool take_number(std::uint32_t *number) {
    const std::byte *bytes = take(sizeof *number);
    if (bytes != nullptr) *number = load<std::uint32_t>(bytes);
    return bytes != nullptr;
  }

  // A body's records, with the total that stands before them taken too.
  bool take_body(Reader *records) {
    std::uint32_t total;
    if (!take_number(&total) || total < kTlvTotalSize) return false;
    const std::byte *bytes = take(total - kTlvTotalSize);
    if (bytes != nullptr) *records = Reader(bytes, total - kTlvTotalSize);
    return bytes != nullptr;
  }

 private:
  const std::byte *at_ = nullptr;
  std::uint64_t left_ = 0;
};

class TlvDecoder {
 public:
  explicit TlvDecoder(const void *owner) : owner_(owner) {}

  // Nested bodies are depth levels below the outer one.
  Error read_body(Reader &reader, BlockView head, unsigned depth) {
    Reader records;
    if (!reader.take_body(&records)) return AAA_ATTR_ERR_BAD_LENGTH;
    ListEnd list(head);
    while (records.left() >= kTlvRecordSizeMin) {
      NewAttribute attribute{};
      if (const Error error = read_type_and_meta(records, &attribute)) return error;
      const bool grouped = (traits_of(attribute.type) & kOwnsSubList) != 0;
      List sub_list;
      const Error read = grouped ? read_sub_list(records, depth, &sub_list) : read_value(records, &attribute);
      if (read) return read;
      if (grouped) {
        attribute.value = &sub_list.handle;
        attribute.length = kHandleSize;
      }
      if (const Error error = append(list, attribute)) {
        free_list(sub_list.handle);
        return error;
      }
    }
    return records.left() == 0 ? 0 : AAA_ATTR_ERR_BAD_LENGTH;
  }

 private:
  static Error read_type_and_meta(Reader &records, NewAttribute *attribute) {
    std::uint32_t meta_length;
    if (!records.take_number(&attribute->type)) return AAA_ATTR_ERR_BAD_LENGTH;
    if (attribute->type == 0 || attribute->type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
    if (!records.take_number(&meta_length)) return AAA_ATTR_ERR_BAD_LENGTH;
    if (meta_length == 0) return 0;
    attribute->meta = records.take(kMetaSize);
    return attribute->meta != nullptr ? 0 : AAA_ATTR_ERR_BAD_LENGTH;
  }

  static Error read_value(Reader &records, NewAttribute *attribute) {
    if (!records.take_number(&attribute->length)) return AAA_ATTR_ERR_BAD_LENGTH;
    attribute->value = records.take(attribute->length);
    return attribute->value != nullptr ? 0 : AAA_ATTR_ERR_BAD_LENGTH;
  }

  // Makes the list of a nested body; there is none on failure.
  Error read_sub_list(Reader &records, unsigned depth, List *sub_list) {
    if (depth == AAA_ATTR_NESTING_MAX) return AAA_ATTR_ERR_BAD_LENGTH;
    if (const Error error = create_list(owner_, sub_list)) return error;
    const Error error = read_body(records, sub_list->head, depth + 1);
    if (error) free_list(sub_list->handle);
    return error;
  }

  const void *owner_;
};

}  // namespace

Error aaa_attr_tlv_buffer_to_list(const std::byte *bytes, std::uint64_t length, BlockView list, const void *owner) {
  Reader reader(bytes, length);
  return TlvDecoder(owner).read_body(reader, list, 0);
}

}  // namespace attrmgr
