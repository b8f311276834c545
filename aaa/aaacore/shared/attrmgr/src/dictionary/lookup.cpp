// The exported look-ups over the type table.
#include <string_view>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_values.h>

#include "dictionary/name_index.h"
#include "dictionary/type_table.h"

using namespace attrmgr;

std::uint32_t aaa_attr_get_format_from_type(std::uint32_t type) noexcept { return format_of(type); }

const char *aaa_attr_get_name_from_type(std::uint32_t type) noexcept { return type_name(type); }

std::uint32_t aaa_attr_get_type_from_name(const char *name) noexcept {
  if (name == nullptr) return 0;
  const std::string_view wanted = name;
  return kNameIndex.probe(wanted, [wanted](std::uint32_t type) { return kTypes[type].name == wanted; });
}

const char *aaa_attr_get_enum_name_from_type(std::uint32_t type, std::uint32_t value) noexcept {
  const TypeRow *row = row_of(type);
  return row != nullptr ? value_name(*row, value) : nullptr;
}

aaa_attr_cerrno aaa_attr_get_value_from_enum_name(std::uint32_t type, const char *name, std::uint32_t *value) noexcept {
  if (name == nullptr || value == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  const TypeRow *row = row_of(type);
  if (row == nullptr) return AAA_ATTR_ERR_NOT_FOUND;
  const std::string_view wanted = name;
  std::uint32_t reached = 0;
  while (const char *known = value_name(*row, reached)) {
    if (wanted == known) {
      *value = reached;
      return 0;
    }
    ++reached;
  }
  return AAA_ATTR_ERR_NOT_FOUND;
}

const char *aaa_attr_get_interface_from_type(std::uint32_t value) noexcept {
  // The table has three more names after this one, which only value_interface_type gives.
  constexpr std::uint32_t kLastInterface = 43;
  return value <= kLastInterface ? name_interface_type[value] : "unknown";
}
