// Telling what a flat buffer is: fit to be read in place or not, of the foreign layout; and taking addresses out of it.
#include <attrmgr/aaa_attr_marshal.h>

#include "aaa_attr/result/error.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/flat_reader.h"

namespace attrmgr {
namespace {

using ValidatingReader = FlatReader<HostForm, FlatRules::kValid>;

Error check_buffer(const void *buffer, std::uint32_t length) {
  const auto *bytes = static_cast<const std::byte *>(buffer);
  if (bytes == nullptr || length == 0 || bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return AAA_ATTR_ERR_BAD_ARG;
  return ValidatingReader(bytes + kMarkerSize, length - kMarkerSize).read_to_end() ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
}

void scrub_block(BlockView block) {
  block.set_own_word(0);
  store(block.bytes() + kNextAt, std::uint64_t{block.has_next()});
  for (RecordScan scan(block); scan.next();) forget_handle(scan.record());
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

int is_aaa_attr_buffer_valid(const void *buffer, std::uint32_t length, aaa_attr_cerrno *code) noexcept {
  if (code == nullptr) return 0;
  *code = check_buffer(buffer, length).code;
  return *code == 0;
}

aaa_attr_cerrno aaa_attr_buffer_scrub(void *buffer, std::uint32_t length) noexcept {
  if (const Error error = check_buffer(buffer, length)) return error.code;
  auto *const list = static_cast<std::byte *>(buffer) + kMarkerSize;
  ValidatingReader reader(list, length - kMarkerSize);
  while (reader.next()) scrub_block(writable(reader.block(), list));
  return 0;
}

int aaa_attr_buffer_is_alien(const void *buffer, std::uint32_t length) noexcept {
  const auto *bytes = static_cast<const std::byte *>(buffer);
  if (bytes == nullptr || length < kMarkerSize + kHeaderSize || bytes[0] != std::byte{AAA_MARSHAL_BUFFER}) return 0;
  return ConstBlockView(bytes + kMarkerSize).foreign();
}
