#include "nearest.h"

#include <attrmgr/aaa_attr_dict.h>

#include <algorithm>
#include <numeric>

#include "bad_text.h"

namespace attrtext {
namespace {

constexpr std::size_t kLongest = 64;  // of the texts that are compared; the longest name is shorter
constexpr std::size_t kMost = 3;

char folded(char c) {
  if (c >= 'A' && c <= 'Z') return static_cast<char>(c - 'A' + 'a');
  return c == '_' || c == ' ' ? '-' : c;
}

// Half of a short name, a quarter of a long one may be wrong.
std::size_t tolerated(std::size_t length) { return length < 6 ? length / 2 : 1 + length / 4; }

}  // namespace

// The rows of the usual table for three lengths of `one`: two before the current one, the one before, the current one.
std::size_t distance(std::string_view one, std::string_view other, std::size_t limit) {
  one = one.substr(0, kLongest);
  other = other.substr(0, kLongest);
  std::size_t rows[3][kLongest + 1] = {};
  std::iota(rows[0], rows[0] + other.size() + 1, std::size_t{0});
  for (std::size_t i = 1; i <= one.size(); ++i) {
    const std::size_t *two_before = rows[(i + 1) % 3], *before = rows[(i - 1) % 3];
    std::size_t *current = rows[i % 3];
    current[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const bool same = folded(one[i - 1]) == folded(other[j - 1]);
      current[j] = std::min({before[j] + 1, current[j - 1] + 1, before[j - 1] + (same ? 0 : 1)});
      if (i > 1 && j > 1 && folded(one[i - 1]) == folded(other[j - 2]) && folded(one[i - 2]) == folded(other[j - 1]))
        current[j] = std::min(current[j], two_before[j - 2] + 1);
    }
    // An exchange of neighbours comes from two rows before, and costs one.
    const std::size_t least = *std::min_element(current, current + other.size() + 1);
    if (least > limit && *std::min_element(before, before + other.size() + 1) >= limit) return least;
  }
  return rows[one.size() % 3][other.size()];
}

std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view> &names) {
  struct Candidate {
    std::size_t distance;
    std::string_view name;
  };
  std::vector<Candidate> candidates;
  for (const std::string_view name : names) {
    const auto [shorter, longer] = std::minmax({text.size(), name.size()});
    const std::size_t limit = tolerated(longer);
    if (longer - shorter > limit) continue;  // without a look at the characters
    if (const std::size_t far = distance(text, name, limit); far <= limit) candidates.push_back({far, name});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate &one, const Candidate &other) { return one.distance < other.distance; });
  std::vector<std::string_view> found;
  for (const Candidate &candidate : candidates)
    if (found.size() < kMost && std::find(found.begin(), found.end(), candidate.name) == found.end())
      found.push_back(candidate.name);
  return found;
}

std::vector<std::string_view> nearest_types(std::string_view text) {
  std::vector<std::string_view> names;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type)
    names.emplace_back(aaa_attr_get_name_from_type(type));
  return nearest(text, names);
}

std::vector<std::string_view> nearest_values(std::uint32_t type, std::string_view text) {
  std::vector<std::string_view> names;
  for (std::uint32_t value = 0; const char *name = aaa_attr_get_enum_name_from_type(type, value); ++value)
    names.emplace_back(name);
  std::vector<std::string_view> found = nearest(text, names);
  if (found.empty() && !names.empty()) found.push_back(names.back());  // the first ones are often placeholders
  return found;
}

std::string such_as(const std::vector<std::string_view> &names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i)
    text += (i == 0 ? " such as " : i + 1 == names.size() ? " or " : ", ") + in_quotes(names[i]);
  return text;
}

}  // namespace attrtext
