// Lists as bytes and back: the library's calls, with the memory that they fill or hand over. All throw
// std::runtime_error when the library refuses.
#pragma once

#include <attrmgr/aaa_attr_types.h>
#include <sys/uio.h>

#include <vector>

#include "owned_list.h"
#include "values.h"

// The list in one piece. flat_buffer first drops removed attributes from the list.
Bytes flat_buffer(aaa_attr_list_handle list);
Bytes tlv_buffer(aaa_attr_list_handle list);

// The bytes of the flat buffer, but where they lie in the list: good until the list changes.
std::vector<iovec> gather_list(aaa_attr_list_handle list);

// The list that a flat or TLV buffer holds; its first byte tells which it is. The bytes need not be trusted.
OwnedList list_from_buffer(const Bytes &buffer);

// The number of attributes of the outer list of a flat buffer, which is read in place. The bytes need not be trusted.
unsigned count_in_place(const Bytes &buffer);
