// Which code called the library: the first return address on the stack that lies neither in it nor here.
#pragma once

#include <cstddef>
#include <cstdint>

namespace attrmgr::checked {

// Where the library lies. Asked once at the start, and with an address in it if it was not loaded by then.
void find_library();
void find_library(const void *address_in_it);
bool library_found();
bool in_library(const void *address);

// The calls that led here from outside the library, innermost first: the addresses that they return to. Fills at most
// max of them and null for the rest. By unwinding, which takes a microsecond or so.
void find_calls(const void **calls, std::size_t max);

// By the frame pointers that the library is compiled with, in nanoseconds; frame is the frame of the function that the
// library called. Null where the library turns out to have none.
const void *caller_by_frames(const void *frame);

}  // namespace attrmgr::checked
