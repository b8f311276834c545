// Attribute lists out of the JSON that json_writer.h writes and docs/attrs.schema.json describes.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <string_view>
#include <variant>

#include "bad_text.h"

namespace attrtext {

// The list that the JSON text describes, or its first place that is no good.
std::variant<attrmgr::list, BadPlace> list_from_json(std::string_view text);

}  // namespace attrtext
