// Writes the names of the dictionary in another tool's language: for gperf, whose perfect hash is the lower bound of
// looking a name up, and as the enumeration of a schema for the peers that have one.
//
//   bench_names gperf|proto|fbs|capnp
#include "names.h"

#include <iostream>
#include <string>

namespace {

void write_gperf() {
  std::cout << "%language=C++\n%define class-name PerfectHash\n%define lookup-function-name find\n"
               "%compare-strncmp\n%readonly-tables\n%struct-type\n"
               "struct PerfectHashEntry { const char *name; unsigned type; };\n%%\n";
  bench::for_each_name(
      [](const std::string &name) { return name; },
      [](const std::string &name, unsigned type) { std::cout << '"' << name << "\", " << type << '\n'; });
}

void write_proto() {
  std::cout << "syntax = \"proto3\";\npackage bench.pb;\nenum AttrType {\n  none = 0;\n";
  bench::for_each_name(bench::with_underscores, [](const std::string &name, unsigned type) {
    std::cout << "  " << name << " = " << type << ";\n";
  });
  std::cout << "}\n";
}

void write_fbs() {
  std::cout << "namespace bench.fb;\nenum AttrType : ushort {\n  none = 0,\n";
  bench::for_each_name(bench::with_underscores, [](const std::string &name, unsigned type) {
    std::cout << "  " << name << " = " << type << ",\n";
  });
  std::cout << "}\n";
}

void write_capnp() {
  std::cout << "@0xd5e6a3c1b2f40917;\nusing Cxx = import \"/capnp/c++.capnp\";\n$Cxx.namespace(\"bench::cp\");\n"
               "enum AttrType {\n  none @0;\n";
  bench::for_each_name(bench::in_camel_case, [](const std::string &name, unsigned type) {
    std::cout << "  " << name << " @" << type << ";\n";
  });
  std::cout << "}\n";
}

}  // namespace

int main(int argc, char **argv) {
  const std::string language = argc > 1 ? argv[1] : "";
  if (language == "gperf") {
    write_gperf();
  } else if (language == "proto") {
    write_proto();
  } else if (language == "fbs") {
    write_fbs();
  } else if (language == "capnp") {
    write_capnp();
  } else {
    std::cerr << "usage: bench_names gperf|proto|fbs|capnp\n";
    return 2;
  }
  return 0;
}
