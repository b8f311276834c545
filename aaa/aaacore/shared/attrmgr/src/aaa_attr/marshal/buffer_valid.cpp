// Telling what a flat buffer is: fit to be read in place or not, of the foreign layout; and taking addresses out of it.
#include <cstring>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/walk/flat_reader.h"
#include "dictionary/type_table.h"

namespace {

using namespace attrmgr;

aaa_attr_cerrno check_buffer(const void *buffer, std::uint32_t length) {
  const auto *bytes = static_cast<const std::byte *>(buffer);
  if (bytes == nullptr || length == 0 || bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return AAA_ATTR_ERR_BAD_ARG;
  FlatReader<HostForm> reader(bytes + 1, length - 1, FlatRules::kValid);
  while (reader.next()) {
  }
  return reader.complete() ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
}

void scrub_block(BlockView block) {
  block.set_reserved(0);
  store(block.bytes() + kNextAt, std::uint64_t{block.next() ? 1u : 0u});
  for (RecordScan scan(block); scan.next();)
    if (format_of(scan.record().type()) == AAA_ATTR_FMT_GROUPED)
      std::memset(scan.record().value(), 0, scan.record().length());
}

}  // namespace

int is_aaa_attr_buffer_valid(const void *buffer, std::uint32_t length, aaa_attr_cerrno *code) {
  if (code == nullptr) return 0;
  *code = check_buffer(buffer, length);
  return *code == 0;
}

aaa_attr_cerrno aaa_attr_buffer_scrub(void *buffer, std::uint32_t length) {
  if (const aaa_attr_cerrno code = check_buffer(buffer, length)) return code;
  FlatReader<HostForm> reader(static_cast<std::byte *>(buffer) + 1, length - 1, FlatRules::kValid);
  while (reader.next()) scrub_block(reader.block());
  return 0;
}

int aaa_attr_buffer_is_alien(const void *buffer, std::uint32_t length) {
  const auto *bytes = static_cast<const std::byte *>(buffer);
  if (bytes == nullptr || length < 1 + kHeaderSize || bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return 0;
  return BlockView(const_cast<std::byte *>(bytes + 1)).foreign();
}
