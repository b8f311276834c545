// Text that cannot be used: where it is, why, and what would be right.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace attrtext {

// Thrown inside a reader; readers hand out a BadPlace. what() tells the writer of the text why.
class BadText : public std::runtime_error {
 public:
  // place: the part of the text that is meant; it must be a view of that text for the column to be right.
  BadText(const std::string &reason, std::string_view place) : std::runtime_error(reason), place_(place.data()) {}
  const char *place() const { return place_; }

 private:
  const char *place_;
};

// The reason "expected ..., found ...", at what was found.
BadText unexpected(const std::string &expected, std::string_view found);

// The text in double quotes, cut where it is long, with no byte that drives a terminal.
std::string in_quotes(std::string_view text);

struct BadPlace {
  std::size_t line, column;  // in characters; both count from 1
  std::string reason;
};

// "3:12: expected ..."
std::string to_string(const BadPlace &bad);

// Where in the text the place is.
BadPlace bad_place(std::string_view text, const BadText &bad);

}  // namespace attrtext
