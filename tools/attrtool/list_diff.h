// What differs between two lists as sets: neither the order of attributes counts nor how often one comes back, and
// producer client types are not compared, as with aaa_attr_list_eq.
#pragma once

#include <attrmgr/attrmgr.hpp>
#include <memory>
#include <optional>
#include <vector>

namespace attrtool {

enum class ChangeKind {
  kAdded,
  kRemoved,
  kChanged,  // another value
  kMeta,     // the same value, another meta
  kNested,   // a group: what it holds differs, and perhaps its meta
};

struct Change {
  ChangeKind kind;
  std::optional<attrmgr::attribute> before, after;
  std::vector<Change> nested;
};

// with_li: whether LI attributes are compared.
std::vector<Change> difference(attrmgr::list_view before, attrmgr::list_view after, bool with_li);

}  // namespace attrtool
