// Attribute lists as JSON (RFC 8259). docs/attrs.schema.json describes it, json_reader.h reads it.
//
//   {"version": 1, "form": "flat buffer", "size": 187, "attributes": [
//     {"type": 3, "name": "Acct-Status-Type", "value": "Stop"},
//     {"type": 7, "name": "addr", "meta": {"service": "ppp", "mandatory": true}, "value": "203.0.113.7"},
//     {"type": 485, "name": "Subscription ID", "attributes": []}]}
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

#include "text_writer.h"

namespace attrtext {

// Of the form of the objects; it changes when something that was there means something else.
inline constexpr int kJsonVersion = 1;

// Where a list comes from: what a buffer's form is called, and how many bytes it has.
struct JsonOrigin {
  std::string_view form;
  std::uint64_t size = 0;
};

// Writes the list as one object, one attribute a line. origin: null for none. The memory that it takes does not grow
// with the list.
void write_json(attrmgr::list_view list, const Secrets &secrets, const JsonOrigin *origin, std::ostream &out);

// Writes one attribute as an object, without a line end after it. indent: of the attributes of a group.
void write_json_attribute(const attrmgr::attribute &attribute, const Secrets &secrets, std::size_t indent,
                          std::ostream &out);

// A text as a JSON string, with an escape for every character that a terminal would not show; bytes that are no UTF-8
// become U+FFFD.
void append_json_string(std::string_view text, std::string *to);

}  // namespace attrtext
