// What an internal step that can fail returns: 0, or one of the AAA_ATTR_ERR codes. A type of its own, so that the
// compiler speaks up where one is dropped, and none is taken for a length or for the 1 that stands for yes. It is the
// code in a register and costs nothing. Exported functions return its code.
#pragma once

#include <attrmgr/aaa_attr_types.h>

namespace attrmgr {

struct [[nodiscard]] Error {
  constexpr Error() = default;
  constexpr Error(aaa_attr_cerrno of) : code(of) {}  // implicit: a step returns 0 or the code's constant

  // Whether the step failed: if (const Error error = step()) return error;
  constexpr explicit operator bool() const { return code != 0; }
  friend constexpr bool operator==(Error, Error) = default;

  aaa_attr_cerrno code = 0;
};
static_assert(sizeof(Error) == sizeof(aaa_attr_cerrno));

}  // namespace attrmgr
