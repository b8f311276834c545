// Which code called the library: the first return address on the stack that lies neither in it nor here.
#pragma once

#include <cstdint>

namespace attrmgr::checked {

// Where the library lies. Asked once at the start, and with an address in it if it was not loaded by then.
void find_library();
void find_library(const void *address_in_it);
bool library_found();
bool in_library(const void *address);

// By unwinding, which takes a microsecond or so; null when it leads nowhere.
const void *caller_by_unwinding();

// By the frame pointers that the library is compiled with, in nanoseconds; frame is the frame of the function that the
// library called. Null where the library turns out to have none.
const void *caller_by_frames(const void *frame);

}  // namespace attrmgr::checked
