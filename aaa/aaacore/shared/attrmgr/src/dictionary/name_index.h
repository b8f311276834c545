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
    for (std::size_t slot = slot_of(name); slots_[slot] != kEmpty; slot = (slot + 1) % kSlots)
      if (found(slots_[slot])) return slots_[slot];
    return 0;
  }

 private:
  static constexpr unsigned kSlotBits = 12;  // a sixth full: most names are found at the first probe
  static constexpr std::size_t kSlots = 1 << kSlotBits;
  static constexpr std::uint16_t kEmpty = 0xFFFF;
  static_assert(kSlots / 6 >= AAA_ATTR_TYPE_COUNT);

  // Up to eight characters as a number.
  static constexpr std::uint64_t word(std::string_view name) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < name.size(); ++i)
      value |= std::uint64_t{static_cast<unsigned char>(name[i])} << (8 * i);
    return value;
  }

  // Names differ at their ends, so that those are enough of them: the first eight characters and the last eight.
  static constexpr std::size_t slot_of(std::string_view name) {
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    constexpr std::uint64_t kMix1 = 0x9E3779B97F4A7C15;  // the golden ratio, and a number as irregular
    constexpr std::uint64_t kMix2 = 0xC2B2AE3D27D4EB4F;
    std::uint64_t first = 0;
    std::uint64_t last = name.size();
    if (name.size() >= kWord) {
      first = word(std::string_view(name.data(), kWord));
      last += word(std::string_view(name.data() + name.size() - kWord, kWord));
    } else {
      first = word(name);
    }
    const std::uint64_t mixed = first * kMix1 + last * kMix2;
    return static_cast<std::size_t>((mixed ^ (mixed >> 32)) * kMix1 >> (64 - kSlotBits));
  }

  template <class Rows>
  constexpr void insert(const Rows &rows, std::uint16_t type) {
    const std::string_view name = rows[type].name;
    std::size_t slot = slot_of(name);
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
