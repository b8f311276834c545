// One attribute as one line of text: name, length, meta, and the value as its format has it.
#pragma once

#include "aaa_attr/store/views.h"
#include "display/text_line.h"

namespace attrmgr {

enum class RenderMode {
  kList,       // a record of a list
  kListBrief,  // the same without meta, "value= " before the value
  kBuffer,     // a record of a buffer, which is not written to
};

// Writes the line into a fresh writer; a null record gives an empty text. Showing an IPv6 prefix clears the bits beyond
// its length in the last prefix byte of the record itself, unless the record is in a buffer.
void aaa_attr_to_string(RecordView record, TextWriter &line, RenderMode mode);

}  // namespace attrmgr
