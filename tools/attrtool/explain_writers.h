// An explanation as text for a terminal, as JSON for programs, as a page to look at.
#pragma once

#include <iosfwd>

#include "explain_model.h"

namespace attrtool {

// 80 columns. name: of the file.
void write_text(const Explanation &explanation, const std::string &name, bool colours, std::ostream &out);

// One object; docs/attrtool.md describes it.
void write_json(const Explanation &explanation, const std::string &name, std::ostream &out);

// One HTML page that needs nothing but itself.
void write_page(const Explanation &explanation, const std::string &name, std::ostream &out);

// A field's bytes in hexadecimal, ".." for those of a secret, blanks between them.
std::string hex_text(const Explanation &explanation, const Field &field, std::uint32_t offset, std::uint32_t size,
                     const char *between = " ");

}  // namespace attrtool
