#include "aaa_attr/list_ops/add_or_replace.h"

#include <cstring>

#include <attrmgr/aaa_attr.h>

#include "aaa_attr/list_ops/find.h"
#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/store/add_attribute.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"

namespace attrmgr {
namespace {

// Service, protocol, tag and the mandatory bit say what an attribute is for, so that they must agree for one to replace
// the other; the client and the other flag bits do not.
bool replaces(MetaView newer, MetaView older) {
  return newer.service() == older.service() && newer.protocol() == older.protocol() && newer.tag() == older.tag() &&
         newer.mandatory() == older.mandatory();
}

bool meta_agrees(RecordView found, const NewAttribute &attribute) {
  if (found.has_meta() != (attribute.meta != nullptr)) return false;
  if (attribute.meta == nullptr) return true;
  std::byte meta[kMetaSize];
  std::memcpy(meta, attribute.meta, sizeof meta);
  return replaces(MetaView(meta), found.meta());
}

// Both agree on having meta and on the length, so that the record keeps its size.
void overwrite(RecordView found, const NewAttribute &attribute) {
  if (attribute.meta != nullptr) std::memmove(found.meta_bytes(), attribute.meta, kMetaSize);
  std::memmove(found.value(), attribute.value, attribute.length);
}

Error append_noted(ListEnd &list, const NewAttribute &attribute, const NewRecord &record, TypeIndex *index) {
  const Error error = append_checked(list, attribute, record);
  if (!error && index != nullptr) index->appended(list.last, static_cast<std::size_t>(record.size));
  return error;
}

// Removes the found record and appends the attribute.
Error supersede(ListEnd &list, RecordView found, const NewAttribute &attribute, const NewRecord &record,
                TypeIndex *index) {
  remove_record(list.head, found);
  return append_noted(list, attribute, record, index);
}

// A copy of the value and meta of a Grouped attribute: they may lie in the very sub-list that is about to be freed.
class Taken {
 public:
  explicit Taken(NewAttribute *attribute) {
    std::memcpy(handle_, attribute->value, sizeof handle_);
    attribute->value = handle_;
    if (attribute->meta == nullptr) return;
    std::memcpy(meta_, attribute->meta, sizeof meta_);
    attribute->meta = meta_;
  }
  Taken(const Taken &) = delete;
  Taken &operator=(const Taken &) = delete;

  aaa_attr_list_handle handle() const { return load<aaa_attr_list_handle>(handle_); }

 private:
  std::byte handle_[kHandleSize];
  std::byte meta_[kMetaSize];
};

// Frees the sub-list of the found record, unless the new value names that very list.
Error replace_grouped(ListEnd &list, RecordView found, NewAttribute attribute, const NewRecord &record, bool in_place,
                      TypeIndex *index) {
  const Taken taken(&attribute);
  const aaa_attr_list_handle owned = owned_list(found);
  if (!name_one_list(owned, taken.handle())) free_list(owned);
  if (!in_place) return supersede(list, found, attribute, record, index);
  overwrite(found, attribute);
  return 0;
}

Error add_or_replace(aaa_attr_list_handle handle, const NewAttribute &attribute, OnOtherMeta on_other_meta) {
  if (attribute.type >= AAA_ATTR_TYPE_COUNT || attribute.value == nullptr) return AAA_ATTR_ERR_NOT_FOUND;
  const auto [head, error] = resolve(handle);
  if (error) return error;
  ListEnd list(head);
  return add_or_replace(list, attribute, on_other_meta);
}

}  // namespace

Error add_or_replace(ListEnd &list, NewAttribute attribute, OnOtherMeta on_other_meta, TypeIndex *index) {
  // Everything that adding would refuse later is refused here, while the list is as it was.
  if (const Error error = check_presence(attribute)) return error;
  const NewRecord record = measure(attribute);
  if (const Error error = check_length(attribute, record)) return error;
  if (adds_to_itself(list.head, attribute, record)) return AAA_ATTR_ERR_BAD_ARG;

  const auto type = static_cast<std::uint16_t>(attribute.type);
  const RecordView found = index != nullptr ? index->first(type) : find_first(list.head, type);
  if (!found) return append_noted(list, attribute, record, index);
  const bool same = meta_agrees(found, attribute);
  const bool alongside = !same && on_other_meta == OnOtherMeta::kAddAlongside;
  const bool in_place = same && reported_length(found) == attribute.length;
  if (record.is_grouped()) {
    if (!alongside) return replace_grouped(list, found, attribute, record, in_place, index);
    // Two records would own the sub-list.
    if (name_one_list(owned_list(found), list_in(attribute))) return AAA_ATTR_ERR_BAD_ARG;
  }
  if (alongside) return append_noted(list, attribute, record, index);
  if (!in_place) return supersede(list, found, attribute, record, index);
  overwrite(found, attribute);
  return 0;
}

}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_add_or_replace(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                        std::uint32_t length, const aaa_attr_meta *meta) noexcept {
  return add_or_replace(list, {type, value, length, meta, 0}, OnOtherMeta::kSupersede).code;
}

aaa_attr_cerrno aaa_attr_add_or_replace_v1(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                           std::uint32_t length, const aaa_attr_meta *meta) noexcept {
  return add_or_replace(list, {type, value, length, meta, 0}, OnOtherMeta::kAddAlongside).code;
}

aaa_attr_cerrno aaa_attr_add_or_replace_v2(aaa_attr_list_handle list, std::uint32_t type, const void *value,
                                           std::uint32_t length, const aaa_attr_meta *meta,
                                           std::uint32_t client_type) noexcept {
  return add_or_replace(list, {type, value, length, meta, client_type}, OnOtherMeta::kSupersede).code;
}
