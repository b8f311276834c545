// What one writes beside a container that finds attributes only by looking at all of them: an index by type, made for
// one operation on two lists.
#pragma once

#include <attrmgr/aaa_attr_dict.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace bench {

template <class Item>  // a pointer or another small handle of an attribute
class TypeIndex {
 public:
  TypeIndex() { entries_.reserve(kUsualSize); }

  void add(std::uint32_t type, Item item) {
    entries_.push_back({type, last_[type], std::move(item)});
    last_[type] = static_cast<std::uint32_t>(entries_.size());
  }

  bool has(std::uint32_t type) const { return last_[type] != 0; }

  // The last attribute of the type, or null.
  const Item *find(std::uint32_t type) const { return has(type) ? &entries_[last_[type] - 1].item : nullptr; }

  // Whether both have the same attributes as sets. Lists in the same order are told without a look-up.
  template <class Same>
  static bool equal(const TypeIndex &one, const TypeIndex &other, Same same) {
    const auto alike = [same](const Entry &a, const Entry &b) { return a.type == b.type && same(a.item, b.item); };
    if (std::equal(one.entries_.begin(), one.entries_.end(), other.entries_.begin(), other.entries_.end(), alike))
      return true;
    return one.has_all_of(other, same) && other.has_all_of(one, same);
  }

 private:
  static constexpr std::size_t kUsualSize = 128;

  struct Entry {
    std::uint32_t type;
    std::uint32_t before;  // the place + 1 of the one of the same type before it, or 0
    Item item;
  };

  template <class Same>
  bool has_all_of(const TypeIndex &other, Same same) const {
    return std::all_of(other.entries_.begin(), other.entries_.end(), [this, same](const Entry &wanted) {
      for (std::uint32_t at = last_[wanted.type]; at != 0; at = entries_[at - 1].before)
        if (same(entries_[at - 1].item, wanted.item)) return true;
      return false;
    });
  }

  std::array<std::uint32_t, AAA_ATTR_TYPE_COUNT> last_{};  // the place + 1 in entries_ of the last one of each type
  std::vector<Entry> entries_;
};

}  // namespace bench
