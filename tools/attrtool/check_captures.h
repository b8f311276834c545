// Whether captures are good, and why not: one answer a file, a summary of many.
#pragma once

#include <iosfwd>
#include <map>
#include <string>

#include "explain_model.h"

namespace attrtool {

// A capture that could be read. It is good when it can be decoded; to the strict, also when it can be read in place and
// translated.
struct Checked {
  std::string name;
  std::string form;
  std::size_t size = 0;
  Counts counts;
  std::vector<Verdict> verdicts;
  std::vector<const char *> places;  // for each verdict, the name of the field that the refused byte is part of
  const Verdict *refusal = nullptr;  // of a bad one

  const char *place_of(const Verdict &verdict) const {
    return places[static_cast<std::size_t>(&verdict - verdicts.data())];
  }
};

Checked check(std::string name, const Capture &capture, bool strict);

// One line: "FILE: flat buffer, 185 bytes: 3 lists, 4 blocks, 6 records", or why it is refused.
void write_text(const Checked &checked, std::ostream &out);
void write_json(const Checked &checked, std::ostream &out);

// What became of many captures.
class Tally {
 public:
  void add(const Checked &checked);
  void add_unreadable() { ++unreadable_; }
  std::size_t refused() const { return refused_; }
  std::size_t unreadable() const { return unreadable_; }
  std::size_t all() const { return good_ + refused_ + unreadable_; }

  // A sentence, and a line for each rule that was broken, the most frequent one first.
  void write_text(std::ostream &out) const;
  void write_json(std::ostream &out) const;

 private:
  std::vector<std::pair<std::uint32_t, std::size_t>> by_frequency() const;

  std::size_t good_ = 0, refused_ = 0, unreadable_ = 0;
  std::uint64_t bytes_ = 0;
  std::map<std::uint32_t, std::size_t> broken_;  // how often, by rule
};

}  // namespace attrtool
