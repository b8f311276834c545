// Any bytes as the JSON of a list: what the reader takes comes back from both forms, what it refuses has a place.
#include "text_forms.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  exercise::Copy copy(data, size);
  const std::string_view text(reinterpret_cast<const char *>(copy.data()), size);
  text_forms::require_list_or_place(text, attrtext::list_from_json(text));
  return 0;
}
