#include "aaa_attr/marshal/buffer_fault.h"

#include "aaa_attr/marshal/tlv_reader.h"
#include "aaa_attr/marshal/translatable.h"
#include "aaa_attr/walk/flat_reader.h"

namespace attrmgr {
namespace {

// A buffer after its marker.
struct Body {
  const std::byte *at;
  std::uint64_t length;
};

struct Answer {
  Error error;
  Named fault;  // without one, where the outer list ends
};

template <class Reader>
Answer read_flat(Body body) {
  Reader reader(body.at, body.length);
  if (reader.read_to_end()) return {0, {AAA_ATTR_RULE_NONE, reader.after()}};
  return {AAA_ATTR_ERR_BAD_BUFFER, reader.fault()};
}

Answer read_tlv(Body body) {
  TlvReader<Named> reader(body.at, body.length);
  if (reader.read_to_end()) return {0, {AAA_ATTR_RULE_NONE, reader.after()}};
  return {reader.error(), reader.fault()};
}

Answer read_list(int marker, Body body) {
  if (marker == AAA_MARSHAL_TLV) return read_tlv(body);
  // To the decoder no bytes are an empty list.
  if (body.length == 0) return {0, {AAA_ATTR_RULE_NONE, body.at}};
  return read_flat<FlatReader<HostForm, FlatRules::kDecodable, Named>>(body);
}

bool is_known(aaa_attr_reader reader) { return reader >= AAA_ATTR_READER_LIST && reader <= AAA_ATTR_READER_NTOH; }

bool takes_marker(aaa_attr_reader reader, int marker) {
  if (marker == AAA_MARSHAL_BUFFER) return true;
  return reader == AAA_ATTR_READER_LIST && (marker == 0 || marker == AAA_MARSHAL_TLV);
}

Answer read_as(aaa_attr_reader reader, const std::byte *buffer, std::uint32_t length) {
  const int marker = std::to_integer<int>(buffer[0]);
  if (!takes_marker(reader, marker)) return {AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_MARKER, buffer}};
  const Body body = {buffer + kMarkerSize, std::uint64_t{length} - kMarkerSize};
  switch (reader) {
    case AAA_ATTR_READER_LIST:
      return read_list(marker, body);
    case AAA_ATTR_READER_IN_PLACE:
      return read_flat<FlatReader<HostForm, FlatRules::kValid, Named>>(body);
    case AAA_ATTR_READER_HTON:
      return read_flat<TranslatableReader<HostForm, Named>>(body);
    case AAA_ATTR_READER_NTOH:
      return read_flat<TranslatableReader<NetworkForm, Named>>(body);
  }
  return {AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_NONE, buffer}};
}

}  // namespace

Error find_fault(const std::byte *buffer, std::uint32_t length, aaa_attr_reader reader, aaa_attr_fault *fault) {
  *fault = {AAA_ATTR_RULE_NONE, 0};
  if (buffer == nullptr || length == 0 || !is_known(reader)) return AAA_ATTR_ERR_BAD_ARG;
  const Answer answer = read_as(reader, buffer, length);
  *fault = {static_cast<std::uint32_t>(answer.fault.rule), static_cast<std::uint32_t>(answer.fault.at - buffer)};
  return answer.error;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_buffer_fault(const void *buffer, std::uint32_t length, aaa_attr_reader reader,
                                      aaa_attr_fault *fault) noexcept {
  if (fault == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  return find_fault(static_cast<const std::byte *>(buffer), length, reader, fault).code;
}
