// The result of an internal step that can fail: 0, or one of the AAA_ATTR_ERR codes. It is a type of its own, so
// that the compiler warns where a result is ignored, and so that a code cannot be mistaken for a length or a
// count. It costs nothing: it is passed in a register, as the bare code would be. Exported functions return
// error.code.
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
