// The index from attribute names to types: an open-addressing hash table built at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <attrmgr/aaa_attr_dict.h>

namespace attrmgr {

class NameIndex {
 public:
  // Where two types share a name, the lower one is found.
  template <class Rows>
  constexpr explicit NameIndex(const Rows &rows) {
    for (std::size_t i = 0; i < std::size(rows); ++i) insert(rows, static_cast<std::uint16_t>(i));
  }

  // Calls found(type) for each type that may have the name, until it returns true. Returns that type, or 0.
  template <class Found>
  constexpr std::uint32_t probe(std::string_view name, Found found) const {
    for (std::size_t slot = hash(name) % kSlots; slots_[slot] != kEmpty; slot = (slot + 1) % kSlots)
      if (found(slots_[slot])) return slots_[slot];
    return 0;
  }

 private:
  static constexpr std::size_t kSlots = 2048;  // a third full: most names are found at the first probe
  static constexpr std::uint16_t kEmpty = 0xFFFF;
  static_assert(kSlots / 3 >= AAA_ATTR_TYPE_COUNT);

  // FNV-1a.
  static constexpr std::uint32_t hash(std::string_view name) {
    std::uint32_t value = 2166136261u;
    for (const char c : name)
      value = static_cast<std::uint32_t>((value ^ static_cast<unsigned char>(c)) * std::uint64_t{16777619});
    return value ^ (value >> 15);
  }

  template <class Rows>
  constexpr void insert(const Rows &rows, std::uint16_t type) {
    const std::string_view name = rows[type].name;
    std::size_t slot = hash(name) % kSlots;
    for (; slots_[slot] != kEmpty; slot = (slot + 1) % kSlots)
      if (rows[slots_[slot]].name == name) return;
    slots_[slot] = type;
  }

  std::array<std::uint16_t, kSlots> slots_ = filled();

  static constexpr std::array<std::uint16_t, kSlots> filled() {
    std::array<std::uint16_t, kSlots> slots{};
    slots.fill(kEmpty);
    return slots;
  }
};

extern const NameIndex kNameIndex;

}  // namespace attrmgr
