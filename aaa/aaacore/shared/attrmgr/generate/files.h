// The files that are written from the dictionary, each to the standard output.
#pragma once

namespace generate {

void write_c_constants();      // include/attrmgr/aaa_attr_names.h
void write_cpp_attributes();   // include/attrmgr/cpp/attributes.hpp
void write_cpp_value_names();  // include/attrmgr/cpp/value_names.hpp
void write_page();             // docs/dictionary.md
void write_facts();            // what attrtool shows; made by the build, not kept

}  // namespace generate
