// What each byte of a buffer is. The readers lead from block to block and from record to record; what they stand on,
// and what they refuse, is taken apart field by field.
#include <attrmgr/aaa_attr_fields.h>

#include <algorithm>

#include "aaa_attr/marshal/buffer_fault.h"
#include "aaa_attr/marshal/tlv_reader.h"
#include "aaa_attr/walk/flat_reader.h"

namespace attrmgr {
namespace {

// Tells of fields, one after the other. None reaches over the end of what contains it.
class Fields {
 public:
  Fields(const std::byte *buffer, std::uint32_t length, aaa_attr_field_callback callback, void *context)
      : buffer_(buffer), buffer_end_(buffer + length), end_(buffer_end_), callback_(callback), context_(context) {
    at_ = buffer_;
  }

  const std::byte *at() const { return at_; }
  std::uint64_t left() const { return static_cast<std::uint64_t>(end_ - at_); }

  // The fields from here on end within size bytes, or within the buffer.
  void lie_within(std::uint64_t size) {
    const auto rest = static_cast<std::uint64_t>(buffer_end_ - at_);
    end_ = at_ + std::min(size, rest);
  }
  void belong_to(unsigned depth, std::uint32_t type = 0) {
    depth_ = depth;
    type_ = type;
  }

  // The next size bytes; number is asked for what they mean if all are there, which is the answer.
  template <class Number>
  bool take(aaa_attr_field_kind kind, std::uint64_t size, Number number) {
    const std::uint64_t there = std::min(size, left());
    const bool whole = there == size;
    if (there > 0 || kind == AAA_ATTR_FIELD_VALUE) tell(kind, there, size - there, whole ? number() : 0);
    return whole;
  }
  bool take(aaa_attr_field_kind kind, std::uint64_t size) {
    return take(kind, size, [] { return std::uint64_t{0}; });
  }

  void take_rest() {
    lie_within(~std::uint64_t{0});
    belong_to(0);
    take(AAA_ATTR_FIELD_UNREAD, left());
  }

 private:
  void tell(aaa_attr_field_kind kind, std::uint64_t size, std::uint64_t missing, std::uint64_t number) {
    const aaa_attr_field field = {static_cast<std::uint32_t>(kind),
                                  static_cast<std::uint32_t>(at_ - buffer_),
                                  static_cast<std::uint32_t>(size),
                                  static_cast<std::uint32_t>(missing),
                                  depth_,
                                  type_,
                                  number};
    at_ += size;
    callback_(&field, context_);
  }

  const std::byte *buffer_;
  const std::byte *buffer_end_;
  const std::byte *at_;
  const std::byte *end_;
  std::uint32_t depth_ = 0, type_ = 0;
  aaa_attr_field_callback callback_;
  void *context_;
};

template <class Form>
bool take_meta(Fields &fields) {
  const BasicMeta<Form, const std::byte> meta(fields.at());
  return fields.take(AAA_ATTR_FIELD_SERVICE, 1, [meta] { return meta.service(); }) &&
         fields.take(AAA_ATTR_FIELD_PROTOCOL, 1, [meta] { return meta.protocol(); }) &&
         fields.take(AAA_ATTR_FIELD_TAG, 2, [meta] { return meta.tag(); }) &&
         fields.take(AAA_ATTR_FIELD_META_FLAGS, 2, [meta] { return meta.flags(); }) &&
         fields.take(AAA_ATTR_FIELD_CLIENT, 2, [meta] { return meta.client(); });
}

// ---- Flat buffers ----

template <class Form>
bool take_header(Fields &fields, BasicBlock<Form, const std::byte> block) {
  const bool begun = fields.take(AAA_ATTR_FIELD_MAGIC, 2, [block] { return block.magic(); });
  if (!begun || block.magic() != kBlockMagic) return false;  // of what is no block nothing else is known
  const bool shared = fields.take(AAA_ATTR_FIELD_VERSION, 1, [block] { return block.version(); }) &&
                      fields.take(AAA_ATTR_FIELD_BLOCK_FLAGS, 1, [block] { return block.flags(); }) &&
                      fields.take(AAA_ATTR_FIELD_BLOCK_COUNT, 2, [block] { return block.block_count(); }) &&
                      fields.take(AAA_ATTR_FIELD_RECORD_COUNT, 2, [block] { return block.record_count(); }) &&
                      fields.take(AAA_ATTR_FIELD_FREE_BYTES, 2, [block] { return block.free_bytes(); }) &&
                      fields.take(AAA_ATTR_FIELD_USED_BYTES, 2, [block] { return block.used(); });
  if (!shared) return false;
  // What follows is the sender's own, and is never translated.
  const std::byte *const rest = fields.at();
  if (block.foreign()) return fields.take(AAA_ATTR_FIELD_NEXT, 4, [rest] { return load<std::uint32_t>(rest); });
  return fields.take(AAA_ATTR_FIELD_RESERVED, 4, [rest] { return load<std::uint32_t>(rest); }) &&
         fields.take(AAA_ATTR_FIELD_NEXT, 8, [rest] { return load<std::uint64_t>(rest + 4); });
}

template <class Form>
bool take_record(Fields &fields, unsigned depth) {
  const BasicRecord<Form, const std::byte> record(fields.at());
  fields.belong_to(depth, fields.left() >= sizeof(std::uint16_t) ? record.type() : 0);
  return fields.take(AAA_ATTR_FIELD_TYPE, 2, [record] { return record.type(); }) &&
         fields.take(AAA_ATTR_FIELD_RECORD_FLAGS, 2, [record] { return record.flags(); }) &&
         fields.take(AAA_ATTR_FIELD_LENGTH, 4, [record] { return record.length(); }) &&
         (!record.has_meta() || take_meta<Form>(fields)) && fields.take(AAA_ATTR_FIELD_VALUE, record.length());
}

template <class Form>
void take_block(Fields &fields, const std::byte *at, unsigned depth) {
  const BasicBlock<Form, const std::byte> block(at);
  fields.belong_to(depth);
  fields.lie_within(kBlockSizeMax);
  if (!take_header(fields, block) || block.used() < block.header_size()) return;
  fields.lie_within(block.used() - block.header_size());
  for (std::uint16_t left = block.record_count(); left > 0 && fields.left() > 0; --left)
    if (!take_record<Form>(fields, depth)) return;
}

template <class Form, FlatRules kRules>
void take_flat(Fields &fields, std::uint64_t length) {
  FlatReader<Form, kRules, Named> reader(fields.at(), length);
  while (reader.next()) take_block<Form>(fields, fields.at(), reader.depth());
  if (!reader.complete()) take_block<Form>(fields, fields.at(), reader.fault_depth());
}

// ---- TLV buffers ----

bool take_number(Fields &fields, aaa_attr_field_kind kind) {
  const std::byte *const at = fields.at();
  return fields.take(kind, sizeof(std::uint32_t), [at] { return load<std::uint32_t>(at); });
}

// A record without what comes after its meta.
bool take_tlv_head(Fields &fields, unsigned depth) {
  const std::byte *const at = fields.at();
  fields.belong_to(depth, fields.left() >= sizeof(std::uint32_t) ? load<std::uint32_t>(at) : 0);
  if (!take_number(fields, AAA_ATTR_FIELD_TYPE) || !take_number(fields, AAA_ATTR_FIELD_META_LENGTH)) return false;
  return load<std::uint32_t>(at + kTlvMetaLengthAt) == 0 || take_meta<HostForm>(fields);
}

void take_tlv_value(Fields &fields) {
  const std::byte *const at = fields.at();
  if (take_number(fields, AAA_ATTR_FIELD_LENGTH)) fields.take(AAA_ATTR_FIELD_VALUE, load<std::uint32_t>(at));
}

void take_refused_tlv(Fields &fields, const Named &fault) {
  if (fault.depth == 0) return;
  const unsigned depth = fault.depth - 1;
  fields.lie_within(static_cast<std::uint64_t>(fault.list_end - fields.at()));
  if (!take_tlv_head(fields, depth) || fault.rule == AAA_ATTR_RULE_TLV_TYPE) return;
  const bool opens_list = fault.rule == AAA_ATTR_RULE_TLV_TOTAL_MIN || fault.rule == AAA_ATTR_RULE_NESTING;
  if (!opens_list) return take_tlv_value(fields);
  fields.belong_to(depth + 1);
  take_number(fields, AAA_ATTR_FIELD_TOTAL);
}

void take_tlv(Fields &fields, std::uint64_t length) {
  TlvReader<Named, LongTotal::kCut> reader(fields.at(), length);
  take_number(fields, AAA_ATTR_FIELD_TOTAL);
  while (reader.next()) {
    take_tlv_head(fields, reader.depth());
    if (!reader.opens_list()) {
      take_tlv_value(fields);
    } else {
      fields.belong_to(reader.depth() + 1);
      take_number(fields, AAA_ATTR_FIELD_TOTAL);
    }
  }
  if (reader.error()) take_refused_tlv(fields, reader.fault());
}

void take_body(Fields &fields, aaa_attr_reader reader, int marker, std::uint64_t length) {
  switch (reader) {
    case AAA_ATTR_READER_LIST:
      return marker == AAA_MARSHAL_TLV ? take_tlv(fields, length)
                                       : take_flat<HostForm, FlatRules::kDecodable>(fields, length);
    case AAA_ATTR_READER_IN_PLACE:
      return take_flat<HostForm, FlatRules::kValid>(fields, length);
    case AAA_ATTR_READER_HTON:
      return take_flat<HostForm, FlatRules::kWhole>(fields, length);
    case AAA_ATTR_READER_NTOH:
      return take_flat<NetworkForm, FlatRules::kWhole>(fields, length);
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_buffer_fields(const void *buffer, std::uint32_t length, aaa_attr_reader reader,
                                       aaa_attr_field_callback callback, void *context, aaa_attr_fault *fault) {
  aaa_attr_fault found;
  if (callback == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const auto *bytes = static_cast<const std::byte *>(buffer);
  const Error error = find_fault(bytes, length, reader, &found);
  if (fault != nullptr) *fault = found;
  if (error && found.rule == AAA_ATTR_RULE_NONE) return error.code;  // there is nothing to read
  Fields fields(bytes, length, callback, context);
  const int marker = std::to_integer<int>(bytes[0]);
  fields.take(AAA_ATTR_FIELD_MARKER, kMarkerSize, [marker] { return static_cast<std::uint64_t>(marker); });
  if (found.rule != AAA_ATTR_RULE_MARKER) take_body(fields, reader, marker, length - kMarkerSize);
  fields.take_rest();
  return error.code;
}
