// The pool of the cursors that clients hold, made when the first is taken.
#pragma once

#include <attrmgr/aaa_cursor.h>

namespace attrmgr {

// A cursor with all bytes zero; null when memory is exhausted.
aaa_cursor *take_cursor();

// Null, or no pool, does nothing.
void return_cursor(aaa_cursor *cursor);

}  // namespace attrmgr
