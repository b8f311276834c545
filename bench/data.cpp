#include "data.h"

#include <attrmgr/aaa_attr_dict.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <utility>

namespace bench {
namespace {

// The same numbers everywhere: the engine is fixed by the language, its distributions are not.
class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t number() { return static_cast<std::uint32_t>(engine_()); }
  std::size_t below(std::size_t bound) { return engine_() % bound; }

  template <class T>
  void shuffle(std::vector<T> &items) {
    for (std::size_t i = items.size(); i > 1; --i) std::swap(items[i - 1], items[below(i)]);
  }

 private:
  std::mt19937 engine_;
};

constexpr std::uint32_t format_for(Kind kind) {
  switch (kind) {
    case Kind::kNumber:
      return AAA_ATTR_FMT_ULONG;
    case Kind::kText:
      return AAA_ATTR_FMT_STRING;
    case Kind::kAddress:
      return AAA_ATTR_FMT_IPV4;
    default:
      return AAA_ATTR_FMT_BINARY;
  }
}

// The types of a kind in the order in which the sequence takes them.
std::vector<std::uint32_t> types_of(Kind kind) {
  std::vector<std::uint32_t> types;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type)
    if (aaa_attr_get_format_from_type(type) == format_for(kind) && type != kWantedType && type != kMissingType)
      types.push_back(type);
  Random(static_cast<std::uint32_t>(kind)).shuffle(types);
  return types;
}

// Which kind comes when, for 20 attributes; then it begins again.
const std::vector<Kind> &pattern() {
  static const std::vector<Kind> kinds = [] {
    std::vector<Kind> made(20, Kind::kNumber);
    std::fill_n(made.begin(), 5, Kind::kText);
    std::fill_n(made.begin() + 5, 3, Kind::kAddress);
    std::fill_n(made.begin() + 8, 2, Kind::kOctets);
    Random(20).shuffle(made);
    return made;
  }();
  return kinds;
}

std::string octets_of(std::uint32_t number) {
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

std::string random_text(Random &random, std::size_t length) {
  std::string text;
  while (text.size() < length) text += static_cast<char>('a' + random.below(26));
  return text;
}

Attribute make(Kind kind, std::uint32_t type, Random &random) {
  Attribute made{type, kind, random.number(), {}};
  switch (kind) {
    case Kind::kText:
      made.value = random_text(random, 8 + random.below(17));
      break;
    case Kind::kOctets:
      made.value = random_text(random, 16 + random.below(49));
      break;
    default:
      made.value = octets_of(made.number);
  }
  return made;
}

}  // namespace

Attributes attributes(std::size_t count, std::size_t first, unsigned round) {
  static const std::array<std::vector<std::uint32_t>, 4> types = {types_of(Kind::kNumber), types_of(Kind::kText),
                                                                  types_of(Kind::kAddress), types_of(Kind::kOctets)};
  Random random(round);
  std::array<std::size_t, 4> used{};
  Attributes made;
  for (std::size_t i = 0; i < first + count; ++i) {
    const Kind kind = pattern()[i % pattern().size()];
    const auto k = static_cast<std::size_t>(kind);
    Attribute attribute = make(kind, types[k][used[k]++ % types[k].size()], random);
    if (i >= first) made.push_back(std::move(attribute));
  }
  return made;
}

Attributes attributes_with_wanted(std::size_t count, std::size_t place) {
  Attributes made = attributes(count);
  made[place] = {kWantedType, Kind::kNumber, 1, octets_of(1)};
  return made;
}

const std::vector<Sample> &samples() {
  static const std::vector<Sample> all = {
      {"string", {6, Kind::kText, 0, "auto-logon-name"}},
      {"enumeration", {3, Kind::kEnum, 2, octets_of(2)}},
      {"number", {300, Kind::kNumber, 3141592653, octets_of(3141592653)}},
      {"ipv4", {7, Kind::kAddress, 0, "\xc0\xa8\x11\x2a"}},
      {"ipv6", {11, Kind::kAddress6, 0, {"\x20\x01\x0d\xb8\0\0\0\0\0\x12\xab\xcd\x34\x56\x78\x9a", 16}}},
  };
  return all;
}

Attributes merged_in() { return attributes(32, 112, 1); }

Attributes after_merge() {
  Attributes made = attributes(128);
  for (const Attribute &newer : merged_in()) {
    std::erase_if(made, [&newer](const Attribute &old) { return old.type == newer.type; });
    made.push_back(newer);
  }
  return made;
}

Attributes removed() {
  const Attributes all = attributes(128);
  Attributes made;
  for (std::size_t i = 0; i < all.size(); i += 4) made.push_back(all[i]);
  return made;
}

Attributes after_remove() {
  Attributes made = attributes(128);
  for (const Attribute &unwanted : removed())
    std::erase_if(made, [&unwanted](const Attribute &a) { return a.type == unwanted.type; });
  return made;
}

Attributes shuffled(Attributes attributes) {
  Random(7).shuffle(attributes);
  return attributes;
}

const std::vector<std::string> &names() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> made;
    for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type)
      made.emplace_back(aaa_attr_get_name_from_type(type));
    Random(623).shuffle(made);
    return made;
  }();
  return all;
}

}  // namespace bench
