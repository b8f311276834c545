// Attribute lists out of text, one attribute a line:
//
//   # a comment, alone on its line
//   username = mira.holt@fibre.example
//   Acct-Status-Type = Stop
//   455 = 52000
//   addr [service=ppp protocol=ip tag=1 mandatory client=7 producer=5] = 203.0.113.7
//   Subscription ID = {
//     Subscription ID Data = 100-2277
//   }
//
// docs/text-format.md has the grammar, values.h tells how values are written, text_writer.h writes such text.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <string_view>
#include <variant>

#include "bad_text.h"

namespace attrtext {

// The list that the text describes, or its first place that is no good.
std::variant<attrmgr::list, BadPlace> list_from_text(std::string_view text);

}  // namespace attrtext
