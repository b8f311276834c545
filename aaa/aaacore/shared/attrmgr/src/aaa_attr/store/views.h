// Views of a packed block, record and meta: one pointer each, no ownership, passed by value. The only code that loads
// and stores their fields, at any alignment. A view does not check bounds; what makes one does (record_scan.h,
// flat_reader.h).
//
// A view is a template over the form its fields are in (form.h): HostForm in lists and in buffers as they are made,
// NetworkForm in translated buffers; and over whether the bytes may be written. A writable view is taken wherever a
// constant one is asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "aaa_attr/store/form.h"
#include "aaa_attr/store/layout.h"

namespace attrmgr {

template <class Form, class Byte = std::byte>
class BasicMeta {
 public:
  explicit BasicMeta(Byte *at) : at_(at) {}

  std::uint8_t service() const { return load<std::uint8_t>(at_ + kMetaServiceAt); }
  std::uint8_t protocol() const { return load<std::uint8_t>(at_ + kMetaProtocolAt); }
  std::uint16_t tag() const { return Form::template get<std::uint16_t>(at_ + kMetaTagAt); }
  std::uint16_t flags() const { return Form::template get_flags<MetaFlags>(at_ + kMetaFlagsAt); }
  bool mandatory() const { return (flags() & kMetaMandatory) != 0; }
  std::uint16_t client() const { return Form::template get<std::uint16_t>(at_ + kMetaClientAt); }

  void set_tag(std::uint16_t tag) { Form::put(at_ + kMetaTagAt, tag); }
  void set_flags(std::uint16_t flags) { Form::template put_flags<MetaFlags>(at_ + kMetaFlagsAt, flags); }
  void set_client(std::uint16_t client) { Form::put(at_ + kMetaClientAt, client); }

 private:
  Byte *at_;
};

template <class Form, class Byte = std::byte>
class BasicRecord {
 public:
  BasicRecord() = default;
  explicit BasicRecord(Byte *at) : at_(at) {}
  operator BasicRecord<Form, const std::byte>() const requires(!std::is_const_v<Byte>) {
    return BasicRecord<Form, const std::byte>(at_);
  }

  explicit operator bool() const { return at_ != nullptr; }
  friend bool operator==(BasicRecord, BasicRecord) = default;
  Byte *bytes() const { return at_; }

  std::uint16_t type() const { return Form::template get<std::uint16_t>(at_ + kRecordTypeAt); }
  std::uint16_t flags() const { return Form::template get_flags<RecordFlags>(at_ + kRecordFlagsAt); }
  std::uint32_t length() const { return Form::template get<std::uint32_t>(at_ + kRecordLengthAt); }
  bool has_meta() const { return (flags() & kRecordHasMeta) != 0; }
  bool deleted() const { return (flags() & kRecordDeleted) != 0; }
  std::uint32_t client_type() const { return (flags() & kClientTypeMask) >> kClientTypeShift; }

  // Only when has_meta().
  BasicMeta<Form, Byte> meta() const { return BasicMeta<Form, Byte>(meta_bytes()); }
  Byte *meta_bytes() const { return at_ + kRecordHeaderSize; }
  std::size_t value_at() const { return kRecordHeaderSize + (has_meta() ? kMetaSize : 0); }
  Byte *value() const { return at_ + value_at(); }
  // Header, meta and value. 64 bits wide: the length may be any 32-bit number in a hostile buffer.
  std::uint64_t size() const { return std::uint64_t{value_at()} + length(); }

  // The same for a walk, whose speed depends on how soon the next record's place is known. Hence a branch, which a
  // processor predicts instead of waiting for the flags: most lists have no metas at all, or hardly any.
  std::uint64_t size_in_walk() const {
    const std::uint64_t size = kRecordHeaderSize + std::uint64_t{length()};
    return __builtin_expect_with_probability(has_meta(), 0, 1.0) ? size + kMetaSize : size;
  }

  void set_type(std::uint16_t type) { Form::put(at_ + kRecordTypeAt, type); }
  void set_flags(std::uint16_t flags) { Form::template put_flags<RecordFlags>(at_ + kRecordFlagsAt, flags); }
  void set_length(std::uint32_t length) { Form::put(at_ + kRecordLengthAt, length); }
  void mark_deleted() { set_flags(flags() | kRecordDeleted); }
  void set_client_type(std::uint32_t client_type) {
    set_flags(
        static_cast<std::uint16_t>((flags() & ~std::uint32_t{kClientTypeMask}) | (client_type << kClientTypeShift)));
  }

 private:
  Byte *at_ = nullptr;
};

template <class Form, class Byte = std::byte>
class BasicBlock {
 public:
  BasicBlock() = default;
  explicit BasicBlock(Byte *at) : at_(at) {}
  operator BasicBlock<Form, const std::byte>() const requires(!std::is_const_v<Byte>) {
    return BasicBlock<Form, const std::byte>(at_);
  }

  explicit operator bool() const { return at_ != nullptr; }
  friend bool operator==(BasicBlock, BasicBlock) = default;
  Byte *bytes() const { return at_; }

  std::uint16_t magic() const { return Form::template get<std::uint16_t>(at_ + kBlockMagicAt); }
  std::uint8_t version() const { return load<std::uint8_t>(at_ + kBlockVersionAt); }
  std::uint8_t flags() const { return Form::template get_flags<BlockFlags>(at_ + kBlockFlagsAt); }
  bool has(std::uint8_t flag) const { return (flags() & flag) != 0; }
  bool foreign() const { return (flags() & kBlockLayoutMask) == kBlockLayoutForeign; }
  std::size_t header_size() const { return foreign() ? kForeignHeaderSize : kHeaderSize; }
  std::uint16_t block_count() const { return Form::template get<std::uint16_t>(at_ + kBlockCountAt); }
  std::uint16_t record_count() const { return Form::template get<std::uint16_t>(at_ + kRecordCountAt); }
  std::uint16_t free_bytes() const { return Form::template get<std::uint16_t>(at_ + kFreeBytesAt); }
  std::uint16_t used() const { return Form::template get<std::uint16_t>(at_ + kUsedBytesAt); }

  void set_magic(std::uint16_t magic) { Form::put(at_ + kBlockMagicAt, magic); }
  void set_version(std::uint8_t version) { store(at_ + kBlockVersionAt, version); }
  void set_flags(std::uint8_t flags) { Form::template put_flags<BlockFlags>(at_ + kBlockFlagsAt, flags); }
  void add_flags(std::uint8_t more) { set_flags(flags() | more); }
  void clear_flags(std::uint8_t gone) { set_flags(static_cast<std::uint8_t>(flags() & ~gone)); }
  void set_block_count(std::uint16_t count) { Form::put(at_ + kBlockCountAt, count); }
  void set_record_count(std::uint16_t count) { Form::put(at_ + kRecordCountAt, count); }
  void set_free_bytes(std::uint16_t bytes) { Form::put(at_ + kFreeBytesAt, bytes); }
  void set_used(std::uint16_t bytes) { Form::put(at_ + kUsedBytesAt, bytes); }

  // The rest is for blocks with the 24-byte header.
  Byte *records() const { return at_ + kHeaderSize; }
  Byte *end() const { return at_ + used(); }
  std::size_t size() const { return std::size_t{free_bytes()} + used(); }

  // Of a list in memory. The field has 64 bits on hosts with narrower addresses, too.
  BasicBlock next() const {
    return BasicBlock(reinterpret_cast<Byte *>(static_cast<std::uintptr_t>(load<std::uint64_t>(at_ + kNextAt))));
  }
  void set_next(BasicBlock next) { store(at_ + kNextAt, std::uint64_t{reinterpret_cast<std::uintptr_t>(next.at_)}); }
  // Of a buffer: what the field holds there is an address of the sender, or a 1.
  bool has_next() const { return load<std::uint64_t>(at_ + kNextAt) != 0; }
  std::uint32_t own_word() const { return load<std::uint32_t>(at_ + kReservedAt); }
  void set_own_word(std::uint32_t word) { store(at_ + kReservedAt, word); }

 private:
  Byte *at_ = nullptr;
};

using MetaView = BasicMeta<HostForm>;
using RecordView = BasicRecord<HostForm>;
using BlockView = BasicBlock<HostForm>;
using ConstRecordView = BasicRecord<HostForm, const std::byte>;
using ConstBlockView = BasicBlock<HostForm, const std::byte>;

// A block that a reader found in the buffer, for a caller that may write to the buffer.
template <class Form>
BasicBlock<Form> writable(BasicBlock<Form, const std::byte> found, std::byte *buffer) {
  return BasicBlock<Form>(buffer + (found.bytes() - buffer));
}

}  // namespace attrmgr
