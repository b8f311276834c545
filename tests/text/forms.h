// Lists as the two forms, and back.
#pragma once

#include <sstream>
#include <string>

#include "text/json_reader.h"
#include "text/json_writer.h"
#include "text/text_reader.h"
#include "text/text_writer.h"

inline std::string text_of(attrmgr::list_view list, const attrtext::Secrets &secrets = {}) {
  std::ostringstream out;
  attrtext::write_text(list, secrets, out);
  return out.str();
}

inline std::string json_of(attrmgr::list_view list, const attrtext::Secrets &secrets = {}) {
  std::ostringstream out;
  attrtext::write_json(list, secrets, nullptr, out);
  return out.str();
}

using Read = std::variant<attrmgr::list, attrtext::BadPlace>;

// "3:1: expected ..."; empty for a list.
inline std::string error_of(const Read &read) {
  const auto *bad = std::get_if<attrtext::BadPlace>(&read);
  return bad == nullptr ? "" : to_string(*bad);
}
