// Lists out of files, whatever the form.
#pragma once

#include <attrmgr/attrmgr.hpp>
#include <string>

#include "form.h"
#include "input.h"
#include "text/text_writer.h"

namespace attrtool {

struct Loaded {
  attrmgr::list list;
  std::string form;        // "flat buffer in network form", "text", "JSON"
  std::size_t size = 0;    // bytes of the buffer or the text
  std::size_t unread = 0;  // of which come after the outer list, and are not looked at
};

// Decodes a buffer. Throws Refusal with the file, the byte and the rule that is broken there.
Loaded load_buffer(const std::string &path, const Reading &reading);

// Reads a text, or JSON, which begins with '{'. Throws Refusal with the file, the line and the column.
Loaded load_text(const std::string &path);

// Either.
Loaded load(const std::string &path, const Reading &reading);

// What displays keep back.
attrtext::Secrets secrets(bool shown);

}  // namespace attrtool
