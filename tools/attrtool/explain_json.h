// What explain and check have in common in JSON.
#pragma once

#include <nlohmann/json.hpp>

#include "explain_model.h"

namespace attrtool {

// Of the form of all objects here; a field may be added without a new one.
inline constexpr int kJsonVersion = 1;

// In ASCII; bytes of file names that are no UTF-8 are replaced. indent: -1 for one line.
std::string json_line(const nlohmann::ordered_json &json, int indent);

nlohmann::ordered_json counts_json(const Counts &counts);

// A reader's answer; field: the name of what the refused byte is part of.
nlohmann::ordered_json verdict_json(const Verdict &verdict, const std::string &field);

}  // namespace attrtool
