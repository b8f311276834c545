// Finding attributes by type and reading them.
#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/find.h"
#include "aaa_attr/store/attribute.h"
#include "aaa_attr/store/handle_check.h"

namespace attrmgr {
namespace {

// The n-th record of the type, or an error and a null record.
struct [[nodiscard]] Found {
  RecordView record;
  Error error;
};

Found find(aaa_attr_list_handle list, std::uint32_t type, std::uint32_t n) {
  const auto [head, error] = resolve(list);
  if (error) return {{}, error};
  const RecordView record = find_nth(head, type, n);
  return {record, record ? 0 : AAA_ATTR_ERR_NOT_FOUND};
}

Error get(aaa_attr_list_handle list, std::uint32_t type, std::uint32_t n, const void **value, std::uint32_t *length) {
  const auto [record, error] = find(list, type, n);
  if (!record) return error;
  *value = record.value();
  *length = reported_length(record);
  return 0;
}

// A number whose stored value has exactly its size, whatever the format.
template <class T>
Error get_number(aaa_attr_list_handle list, std::uint32_t type, T *value) {
  if (value == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const auto [record, error] = find(list, type, 0);
  if (!record) return error;
  if (record.length() != sizeof(T)) return AAA_ATTR_ERR_BAD_ARG;
  *value = load<T>(record.value());
  return 0;
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

int aaa_attr_is_present(aaa_attr_list_handle list, std::uint32_t type) noexcept {
  return static_cast<bool>(find(list, type, 0).record);
}

aaa_attr_cerrno aaa_attr_find_attr_type_number(aaa_attr_list_handle list, std::uint32_t type,
                                               std::uint16_t *count) noexcept {
  if (count == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const auto [head, error] = resolve(list);
  if (error) return error.code;
  std::uint32_t found = 0;
  for ([[maybe_unused]] const RecordView record : RecordsOfType(head, type)) ++found;
  *count = static_cast<std::uint16_t>(found);
  return 0;
}

aaa_attr_cerrno aaa_attr_get(aaa_attr_list_handle list, std::uint32_t type, const void **value,
                             std::uint32_t *length) noexcept {
  if (value == nullptr || length == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  return get(list, type, 0, value, length).code;
}

aaa_attr_cerrno aaa_attr_get_nth(aaa_attr_list_handle list, std::uint32_t type, const void **value,
                                 std::uint32_t *length, std::uint16_t n) noexcept {
  if (value == nullptr || length == nullptr) return AAA_ATTR_ERR_NOT_FOUND;
  return get(list, type, n, value, length).code;
}

aaa_attr_cerrno aaa_attr_get_string(aaa_attr_list_handle list, std::uint32_t type, const char **text,
                                    std::uint32_t *length) noexcept {
  if (format_of(type) != AAA_ATTR_FMT_STRING || text == nullptr || length == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const void *value = nullptr;
  const Error error = get(list, type, 0, &value, length);
  if (!error) *text = static_cast<const char *>(value);
  return error.code;
}

aaa_attr_cerrno aaa_attr_get_uint32_t(aaa_attr_list_handle list, std::uint32_t type, std::uint32_t *value) noexcept {
  return get_number(list, type, value).code;
}

aaa_attr_cerrno aaa_attr_get_uint64_t(aaa_attr_list_handle list, std::uint32_t type, std::uint64_t *value) noexcept {
  return get_number(list, type, value).code;
}
