#include "aaa_attr/marshal/tlv_decode.h"

#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/release.h"
#include "aaa_attr/marshal/tlv_format.h"
#include "aaa_attr/store/list_blocks.h"
#include "aaa_attr/store/record_appender.h"

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
  aaa_attr_cerrno read_body(Reader &reader, BlockView list, unsigned depth) {
    Reader records;
    if (!reader.take_body(&records)) return AAA_ATTR_ERR_BAD_LENGTH;
    while (records.left() >= kTlvRecordSizeMin)
      if (const aaa_attr_cerrno code = read_record(records, list, depth)) return code;
    return records.left() == 0 ? 0 : AAA_ATTR_ERR_BAD_LENGTH;
  }

 private:
  aaa_attr_cerrno read_record(Reader &records, BlockView list, unsigned depth) {
    NewAttribute attribute{};
    std::uint32_t meta_length;
    if (!records.take_number(&attribute.type)) return AAA_ATTR_ERR_BAD_LENGTH;
    if (attribute.type == 0 || attribute.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
    if (!records.take_number(&meta_length)) return AAA_ATTR_ERR_BAD_LENGTH;
    if (meta_length != 0) {
      attribute.meta = records.take(kMetaSize);
      if (attribute.meta == nullptr) return AAA_ATTR_ERR_BAD_LENGTH;
    }
    if (format_of(attribute.type) == AAA_ATTR_FMT_GROUPED) return read_sub_list(records, list, attribute, depth);
    if (!records.take_number(&attribute.length)) return AAA_ATTR_ERR_BAD_LENGTH;
    attribute.value = records.take(attribute.length);
    if (attribute.value == nullptr) return AAA_ATTR_ERR_BAD_LENGTH;
    return add_attribute(list, attribute);
  }

  aaa_attr_cerrno read_sub_list(Reader &records, BlockView list, NewAttribute attribute, unsigned depth) {
    if (depth == AAA_ATTR_NESTING_MAX) return AAA_ATTR_ERR_BAD_LENGTH;
    List made;
    if (const aaa_attr_cerrno code = create_list(owner_, &made)) return code;
    attribute.value = &made.handle;
    attribute.length = kHandleSize;
    aaa_attr_cerrno code = read_body(records, made.head, depth + 1);
    if (code == 0) code = add_attribute(list, attribute);
    if (code != 0) release_list(made.handle);
    return code;
  }

  const void *owner_;
};

}  // namespace

aaa_attr_cerrno aaa_attr_tlv_buffer_to_list(const std::byte *bytes, std::uint64_t length, BlockView list,
                                            const void *owner) {
  Reader reader(bytes, length);
  return TlvDecoder(owner).read_body(reader, list, 0);
}

}  // namespace attrmgr
