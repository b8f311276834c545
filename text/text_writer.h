// Attribute lists as the text that text_reader.h reads.
#pragma once

#include <attrmgr/attrmgr.hpp>

#include <iosfwd>
#include <string>

namespace attrtext {

// What is not written.
struct Secrets {
  // Types whose values are written as "<opaque value>", which no reader takes; null for none.
  bool (*is_opaque)(std::uint32_t type) = nullptr;
  // Leaves LI attributes out, and so the lists that they hold.
  bool hide_li = false;

  bool hides(std::uint32_t type) const { return hide_li && aaa_attr_is_attr_type_li(type) != 0; }
  bool hides_value(std::uint32_t type) const { return is_opaque != nullptr && is_opaque(type); }
};

// Writes the attributes, one a line, nested ones two blanks further to the right. The memory that it takes does not
// grow with the list. Types that the dictionary does not know are written by number; no reader takes those.
void write_text(attrmgr::list_view list, const Secrets &secrets, std::ostream &out);

// ---- The parts of a line

// The name of the type, or its number where a reader would not find the type by its name.
std::string name_for_text(std::uint32_t type);

// " [service=ppp tag=1 producer=5]"; nothing without meta and producer client type.
void append_note(const attrmgr::attribute &attribute, std::string *to);

// The value of an attribute that is no group.
void append_value(const attrmgr::attribute &attribute, const Secrets &secrets, std::string *to);

}  // namespace attrtext
