// Any bytes as a flat buffer: the forms of what the decoder accepts are fit for a terminal, and what a reader takes of
// them is the same list. Any bytes as the recipe of a list, too: those all come back.
#include "flat_mutator.h"
#include "text_forms.h"

namespace {

void write_decoded(const std::uint8_t *data, std::size_t size) {
  std::vector<std::uint8_t> bytes{AAA_MARSHAL_BUFFER};
  bytes.insert(bytes.end(), data, data + size);
  const auto list = attrmgr::list::try_from_bytes(std::as_bytes(std::span(bytes)));
  if (!list) return;
  const std::string text = text_forms::text_of(*list), json = text_forms::json_of(*list);
  text_forms::require_printable(text);
  text_forms::require_printable(json);
  const text_forms::Read from_text = attrtext::list_from_text(text), from_json = attrtext::list_from_json(json);
  REQUIRE(from_text.index() == from_json.index());
  if (const auto *again = std::get_if<attrmgr::list>(&from_text)) REQUIRE(same_lists(*list, *again));
  if (const auto *again = std::get_if<attrmgr::list>(&from_json)) REQUIRE(same_lists(*list, *again));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  write_decoded(data, size);
  text_forms::require_round_trip(AnyList({data, size}).make());
  return 0;
}
