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

// Passwords and the like: the library wipes the blocks that hold one, which a workload of its own shows.
constexpr std::uint32_t kSecretTypes[] = {28, 133, 145, 175, 214, 215, 216, 268, 275};

bool is_secret(std::uint32_t type) {
  return std::find(std::begin(kSecretTypes), std::end(kSecretTypes), type) != std::end(kSecretTypes);
}

// The types of a kind, in number order.
std::vector<std::uint32_t> types_of(Kind kind) {
  std::vector<std::uint32_t> types;
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type)
    if (aaa_attr_get_format_from_type(type) == format_for(kind) && type != kWantedType && type != kMissingType &&
        !is_secret(type))
      types.push_back(type);
  return types;
}

// The kinds and types of a list's attributes, one after another. Of 20 attributes in a row, 10 are numbers, 5 texts,
// 3 addresses and 2 octets.
class Sequence {
 public:
  explicit Sequence(std::uint32_t list) : random_(list) {
    static const std::array<std::vector<std::uint32_t>, 4> in_order = {
        types_of(Kind::kNumber), types_of(Kind::kText), types_of(Kind::kAddress), types_of(Kind::kOctets)};
    types_ = in_order;
    for (std::vector<std::uint32_t> &types : types_) random_.shuffle(types);
    std::fill_n(kinds_.begin(), 5, Kind::kText);
    std::fill_n(kinds_.begin() + 5, 3, Kind::kAddress);
    std::fill_n(kinds_.begin() + 8, 2, Kind::kOctets);
  }

  std::pair<Kind, std::uint32_t> next() {
    if (taken_ % kinds_.size() == 0) random_.shuffle(kinds_);
    const Kind kind = kinds_[taken_++ % kinds_.size()];
    const auto k = static_cast<std::size_t>(kind);
    return {kind, types_[k][used_[k]++ % types_[k].size()]};
  }

 private:
  Random random_;
  std::array<std::vector<std::uint32_t>, 4> types_;
  std::vector<Kind> kinds_ = std::vector<Kind>(20, Kind::kNumber);
  std::array<std::size_t, 4> used_{};
  std::size_t taken_ = 0;
};

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

Attributes attributes(std::size_t count, std::size_t list, std::size_t first, unsigned round) {
  constexpr std::uint32_t kRounds = 2;
  const auto number = static_cast<std::uint32_t>(list);
  Sequence sequence(number);
  Random values(number * kRounds + round + 1);
  Attributes made;
  for (std::size_t i = 0; i < first + count; ++i) {
    const auto [kind, type] = sequence.next();
    Attribute attribute = make(kind, type, values);
    if (i >= first) made.push_back(std::move(attribute));
  }
  return made;
}

Attributes attributes_with_wanted(std::size_t count, std::size_t place, std::size_t list) {
  Attributes made = attributes(count, list);
  made[place] = {kWantedType, Kind::kNumber, 1, octets_of(1)};
  return made;
}

Attributes attributes_with_secret(std::size_t count, std::size_t list) {
  constexpr std::uint32_t kPassword = 145;
  Attributes made = attributes(count, list);
  made[count / 2] = {kPassword, Kind::kOctets, 0, "correct horse battery"};
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

Attributes merged_in(std::size_t list) { return attributes(32, list, 112, 1); }

Attributes after_merge(std::size_t list) {
  Attributes made = attributes(128, list);
  for (const Attribute &newer : merged_in(list)) {
    std::erase_if(made, [&newer](const Attribute &old) { return old.type == newer.type; });
    made.push_back(newer);
  }
  return made;
}

Attributes removed(std::size_t list) {
  const Attributes all = attributes(128, list);
  Attributes made;
  for (std::size_t i = 0; i < all.size(); i += 4) made.push_back(all[i]);
  return made;
}

Attributes after_remove(std::size_t list) {
  Attributes made = attributes(128, list);
  for (const Attribute &unwanted : removed(list))
    std::erase_if(made, [&unwanted](const Attribute &a) { return a.type == unwanted.type; });
  return made;
}

Attributes shuffled(Attributes attributes, std::size_t list) {
  Random(static_cast<std::uint32_t>(list)).shuffle(attributes);
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
