#include "list_diff.h"

#include <deque>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace attrtool {
namespace {

// An attribute as text that is the same for equal ones.
struct Keyed {
  attrmgr::attribute attribute;
  std::string value, meta;

  bool operator==(const Keyed &other) const {
    return attribute.type() == other.attribute.type() && value == other.value && meta == other.meta;
  }
};

template <class Number>
void append(Number number, std::string *key) {
  key->append(reinterpret_cast<const char *>(&number), sizeof number);
}

std::vector<Keyed> keyed(attrmgr::list_view list, bool with_li);

// With its length in front, so that one key is never the beginning of another.
std::string whole_key(const Keyed &of) {
  std::string key;
  append(of.attribute.type(), &key);
  append(of.meta.size(), &key);
  append(of.value.size(), &key);
  return key + of.meta + of.value;
}

std::string value_key(const attrmgr::attribute &attribute, bool with_li) {
  const auto group = attribute.group();
  if (!group) {
    const auto bytes = attribute.bytes();
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
  }
  std::set<std::string> inside;
  for (const Keyed &each : keyed(*group, with_li)) inside.insert(whole_key(each));
  std::string key;
  for (const std::string &each : inside) key += each;
  return key;
}

std::string meta_key(const attrmgr::attribute &attribute) {
  std::string key;
  if (const auto meta = attribute.meta())
    for (const std::uint16_t field :
         {std::uint16_t{meta->service}, std::uint16_t{meta->protocol}, meta->tag, meta->flags, meta->client})
      append(field, &key);
  return key;
}

std::vector<Keyed> keyed(attrmgr::list_view list, bool with_li) {
  std::vector<Keyed> all;
  for (const attrmgr::attribute attribute : list)
    if (with_li || aaa_attr_is_attr_type_li(attribute.type()) == 0)
      all.push_back({attribute, value_key(attribute, with_li), meta_key(attribute)});
  return all;
}

// Those of one list that the other has not, each once.
std::vector<Keyed> only_in(const std::vector<Keyed> &list, const std::vector<Keyed> &other) {
  std::set<std::string> known;
  for (const Keyed &each : other) known.insert(whole_key(each));
  std::vector<Keyed> only;
  for (const Keyed &each : list)
    if (known.insert(whole_key(each)).second) only.push_back(each);
  return only;
}

class Pairing {
 public:
  Pairing(std::vector<Keyed> before, std::vector<Keyed> after, bool with_li)
      : before_(std::move(before)), after_(std::move(after)), with_li_(with_li) {}

  std::vector<Change> pair() {
    std::map<std::pair<std::uint32_t, std::string_view>, Candidates> by_value;
    std::map<std::uint32_t, Candidates> by_type;
    for (const Keyed &each : after_) {
      by_value[{each.attribute.type(), each.value}].push_back(&each);
      by_type[each.attribute.type()].push_back(&each);
    }
    // First those of which the value has stayed, so that no other takes their partner.
    std::vector<const Keyed *> partners;
    for (const Keyed &each : before_) partners.push_back(take_one(by_value[{each.attribute.type(), each.value}]));
    for (std::size_t i = 0; i < before_.size(); ++i)
      if (partners[i] == nullptr) partners[i] = take_one(by_type[before_[i].attribute.type()]);
    std::vector<Change> changes;
    for (std::size_t i = 0; i < before_.size(); ++i) changes.push_back(change_of(before_[i], partners[i]));
    for (const Keyed &each : after_)
      if (taken_.count(&each) == 0) changes.push_back({ChangeKind::kAdded, std::nullopt, each.attribute, {}});
    return changes;
  }

 private:
  using Candidates = std::deque<const Keyed *>;

  // The first that nobody has taken; null when there is none.
  const Keyed *take_one(Candidates &candidates) {
    while (!candidates.empty()) {
      const Keyed *first = candidates.front();
      candidates.pop_front();
      if (taken_.insert(first).second) return first;
    }
    return nullptr;
  }

  Change change_of(const Keyed &before, const Keyed *after) const {
    if (after == nullptr) return {ChangeKind::kRemoved, before.attribute, std::nullopt, {}};
    if (before.value == after->value) return {ChangeKind::kMeta, before.attribute, after->attribute, {}};
    const auto group_before = before.attribute.group(), group_after = after->attribute.group();
    if (!group_before || !group_after) return {ChangeKind::kChanged, before.attribute, after->attribute, {}};
    return {ChangeKind::kNested, before.attribute, after->attribute, difference(*group_before, *group_after, with_li_)};
  }

  const std::vector<Keyed> before_, after_;
  const bool with_li_;
  std::set<const Keyed *> taken_;
};

}  // namespace

std::vector<Change> difference(attrmgr::list_view before, attrmgr::list_view after, bool with_li) {
  const std::vector<Keyed> old_ones = keyed(before, with_li), new_ones = keyed(after, with_li);
  return Pairing(only_in(old_ones, new_ones), only_in(new_ones, old_ones), with_li).pair();
}

}  // namespace attrtool
