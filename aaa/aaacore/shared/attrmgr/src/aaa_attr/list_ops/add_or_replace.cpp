#include "aaa_attr/list_ops/add_or_replace.h"

#include <cstring>

#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/release.h"
#include "aaa_attr/list_ops/search.h"
#include "aaa_attr/store/handle_check.h"

namespace attrmgr {
namespace {

// Service, protocol, tag and the mandatory bit; the client and the other flag bits are not what an attribute is
// replaced by.
bool same_meta(MetaView a, MetaView b) {
  return a.service() == b.service() && a.protocol() == b.protocol() && a.tag() == b.tag() &&
         ((a.flags() ^ b.flags()) & AAA_ATTR_META_MANDATORY) == 0;
}

bool meta_agrees(RecordView found, const NewAttribute &attribute) {
  if (found.has_meta() != (attribute.meta != nullptr)) return false;
  if (attribute.meta == nullptr) return true;
  std::byte meta[kMetaSize];
  std::memcpy(meta, attribute.meta, sizeof meta);
  return same_meta(found.meta(), MetaView(meta));
}

// The sub-list that the record gives up; one that it is about to be given again stays.
void release_sub_list(RecordView found, const NewAttribute &attribute) {
  if (format_of(attribute.type) != AAA_ATTR_FMT_GROUPED || found.length() != kHandleSize) return;
  if (std::memcmp(found.value(), attribute.value, kHandleSize) == 0) return;
  release_list(load<aaa_attr_list_handle>(found.value()));
}

// Both agree on having meta and on the length, so that the record keeps its size.
void overwrite(RecordView found, const NewAttribute &attribute) {
  if (attribute.meta != nullptr) std::memmove(found.meta_bytes(), attribute.meta, kMetaSize);
  std::memmove(found.value(), attribute.value, attribute.length);
}

aaa_attr_cerrno check(aaa_attr_list_handle list, const NewAttribute &attribute, BlockView *head, NewRecord *record) {
  if (attribute.type >= AAA_ATTR_TYPE_COUNT || attribute.value == nullptr) return AAA_ATTR_ERR_NOT_FOUND;
  if (const aaa_attr_cerrno code = resolve(list, head)) return code;
  // Everything that adding would refuse later is refused here, while the list is as it was.
  if (const aaa_attr_cerrno code = check_presence(attribute)) return code;
  *record = measure(attribute);
  return check_length(attribute, *record);
}

}  // namespace

aaa_attr_cerrno add_or_replace(aaa_attr_list_handle list, const NewAttribute &attribute, OnOtherMeta on_other_meta,
                               TypeIndex *index) {
  BlockView head;
  NewRecord record;
  if (const aaa_attr_cerrno code = check(list, attribute, &head, &record)) return code;
  const auto type = static_cast<std::uint16_t>(attribute.type);
  RecordView found = index != nullptr ? index->first(type) : find_first(head, type);
  if (found) {
    const bool same = meta_agrees(found, attribute);
    const bool superseded = same || on_other_meta == OnOtherMeta::kSupersede;
    if (superseded) release_sub_list(found, attribute);
    if (same && reported_length(found) == attribute.length) {
      overwrite(found, attribute);
      return 0;
    }
    if (superseded) found.mark_deleted();
  }
  const aaa_attr_cerrno code = append_record(head, attribute, record);
  if (code == 0 && index != nullptr) index->appended(static_cast<std::size_t>(record.size));
  return code;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_add_or_replace(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                        std::uint32_t length, const aaa_attr_meta *meta) {
  return add_or_replace(list, {type, value, length, meta, 0}, OnOtherMeta::kSupersede);
}

aaa_attr_cerrno aaa_attr_add_or_replace_v1(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                           std::uint32_t length, const aaa_attr_meta *meta) {
  return add_or_replace(list, {type, value, length, meta, 0}, OnOtherMeta::kAddAlongside);
}

aaa_attr_cerrno aaa_attr_add_or_replace_v2(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                           std::uint32_t length, const aaa_attr_meta *meta, std::uint32_t client_type) {
  return add_or_replace(list, {type, value, length, meta, client_type}, OnOtherMeta::kSupersede);
}
