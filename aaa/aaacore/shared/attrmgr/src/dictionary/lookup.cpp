// The exported look-ups over the type table.
#include <string_view>

#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_values.h>

#include "dictionary/name_index.h"
#include "dictionary/type_table.h"

using namespace attrmgr;

std::uint32_t aaa_attr_get_format_from_type(std::uint32_t type) { return format_of(type); }

const char *aaa_attr_get_name_from_type(std::uint32_t type) {
  const TypeRow *row = row_of(type);
  return row != nullptr ? row->name.data() : "Unknown AAA Attribute";
}

std::uint32_t aaa_attr_get_type_from_name(const char *name) {
  if (name == nullptr) return 0;
  const std::string_view wanted = name;
  return kNameIndex.probe(wanted, [wanted](std::uint32_t type) { return kTypes[type].name == wanted; });
}

const char *aaa_attr_get_enum_name_from_type(std::uint32_t type, std::uint32_t value) {
  const TypeRow *row = row_of(type);
  return row != nullptr ? value_name(*row, value) : nullptr;
}

const char *aaa_attr_get_interface_from_type(std::uint32_t value) {
  // The table has more names; the three behind this one are reached through the table only.
  constexpr std::uint32_t kLastInterface = 43;
  return value <= kLastInterface ? name_interface_type[value] : "unknown";
}
