// Attribute lists as text, one attribute a line:
//
//   # a comment, alone on its line
//   username = mira.holt@fibre.example
//   Acct-Status-Type = Stop
//   455 = 52000
//   addr [service=ppp protocol=ip tag=1 mandatory client=7] = 203.0.113.7
//   Subscription ID = {
//     Subscription ID Data = 100-2277
//   }
//
// An attribute is named as in the dictionary, or by its type number, which two attributes of the same name need. The
// note in brackets is its meta: service and protocol by name or number. values.h tells how values are written.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <istream>
#include <string>
#include <variant>

struct BadLine {
  unsigned line;
  std::string reason;
};

// The list that the text describes, or its first line that is no good.
std::variant<attrmgr::list, BadLine> list_from_text(std::istream &text);
