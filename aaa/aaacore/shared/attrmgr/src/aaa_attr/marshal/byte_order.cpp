// Translating flat buffers between host and network form: the structure is checked in whole, then each block is
// rewritten field by field, read through the view of the one form and written through the view of the other.
#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/marshal/translatable.h"
#include "aaa_attr/result/error.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

template <class From, class To>
void translate_meta(BasicMeta<From> from, BasicMeta<To> to) {
  to.set_tag(from.tag());
  to.set_flags(from.flags());
  to.set_client(from.client());
}

// Which values are turned: those that every peer expects to be, or all that are numbers.
enum class Values { k32Bits, kAllNumbers };

template <class Number, class From, class To>
void translate_number(std::byte *at) {
  To::put(at, From::template get<Number>(at));
}

// A 64-bit quantity may have been given any length, and is a number with its own one only.
bool is_wide_number(std::uint32_t format, std::uint32_t length) {
  return (format == AAA_ATTR_FMT_ULONGLONG || format == AAA_ATTR_FMT_UTC) && length == sizeof(std::uint64_t);
}

template <class From, class To, Values kValues>
void translate_record(BasicRecord<From> from) {
  BasicRecord<To> to(from.bytes());
  const std::uint32_t format = format_of(from.type());
  if (is_number(format)) translate_number<std::uint32_t, From, To>(from.value());
  if (kValues == Values::kAllNumbers && is_wide_number(format, from.length()))
    translate_number<std::uint64_t, From, To>(from.value());
  if (from.has_meta()) translate_meta(from.meta(), BasicMeta<To>(from.meta_bytes()));
  to.set_type(from.type());
  to.set_flags(from.flags());
  to.set_length(from.length());
}

template <class From, class To>
void translate_header(BasicBlock<From> from) {
  BasicBlock<To> to(from.bytes());
  to.set_magic(from.magic());
  to.set_flags(from.flags());
  to.set_block_count(from.block_count());
  to.set_record_count(from.record_count());
  to.set_free_bytes(from.free_bytes());
  to.set_used(from.used());
}

template <class From, class To, Values kValues>
Error translate(std::byte *list, std::uint64_t length) {
  if (!TranslatableReader<From>(list, length).read_to_end()) return AAA_ATTR_ERR_BAD_BUFFER;
  FlatReader<From, FlatRules::kWhole> reader(list, length);
  while (reader.next()) {
    const BasicBlock<From> block = writable(reader.block(), list);
    // The scan is a step ahead of the record that it hands out, and the header is rewritten last.
    for (BasicRecordScan<From> scan(block, reader.header_size()); scan.next();)
      translate_record<From, To, kValues>(scan.record());
    translate_header<From, To>(block);
  }
  return 0;
}

template <Values kValues>
Error translate_buffer(char *buffer, std::uint64_t length, cdm_endian_tran_type direction) {
  if (buffer == nullptr || length == 0) return AAA_ATTR_ERR_BAD_ARG;
  auto *bytes = reinterpret_cast<std::byte *>(buffer);
  if (bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return AAA_ATTR_ERR_BAD_ARG;
  if (direction == CDM_ENDIAN_TRAN_HTON)
    return translate<HostForm, NetworkForm, kValues>(bytes + kMarkerSize, length - kMarkerSize);
  if (direction == CDM_ENDIAN_TRAN_NTOH)
    return translate<NetworkForm, HostForm, kValues>(bytes + kMarkerSize, length - kMarkerSize);
  return AAA_ATTR_ERR_BAD_ARG;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attrs_buffer_tran(char *buffer, cdm_endian_tran_type direction) noexcept {
  return translate_buffer<Values::k32Bits>(buffer, kUnknownLength, direction).code;
}

aaa_attr_cerrno aaa_attrs_buffer_tran_v1(char *buffer, std::uint32_t length, cdm_endian_tran_type direction) noexcept {
  return translate_buffer<Values::k32Bits>(buffer, length, direction).code;
}

aaa_attr_cerrno aaa_attrs_buffer_tran_v2(char *buffer, std::uint32_t length, cdm_endian_tran_type direction) noexcept {
  return translate_buffer<Values::kAllNumbers>(buffer, length, direction).code;
}
