// An attribute that a reader has read the parts of.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <optional>
#include <string_view>

#include "values.h"

namespace attrtext {

struct AttributeDraft {
  std::uint32_t type = 0;
  std::optional<attrmgr::meta> meta;
  std::uint32_t producer = 0;  // producer client type
};

// The largest producer client type that a record has room for.
inline constexpr std::uint32_t kProducerMax = 127;

// Adds the attribute. place: the value, for the sentence that says why the library refuses it. Throws BadText.
void add(attrmgr::list_ref list, const AttributeDraft &draft, const Bytes &value, std::string_view place);

// Adds it as a group, which owns the sub-list from then on, and returns the sub-list.
attrmgr::list_ref add_group(attrmgr::list_ref list, const AttributeDraft &draft, attrmgr::list sub_list,
                            std::string_view place);

// Throws BadText when one more group around the place would make lists nest deeper than any receiver takes.
void check_nesting(std::size_t depth, std::string_view place);

// The type of the name in the dictionary, or that the name is the number of. Throws BadText.
std::uint32_t type_from_name(std::string_view name);

// The number of a service or protocol: its name, or a number up to 255. Throws BadText.
std::uint8_t number_of_name(const aaa_attr_value_table &table, std::string_view text);

}  // namespace attrtext
