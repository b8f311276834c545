// Long lists, where a type is searched for and looked up in ways that short ones never see: against what a cursor's
// walk and one call at a time say of the same lists.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "support/hostile.h"

namespace {

constexpr std::uint32_t kTypes[] = {type::kUlong, type::kIpv4, type::kBinary, type::kString,          128,
                                    256,          300,         307,           AAA_ATTR_TYPE_COUNT - 1};

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t below(std::uint32_t bound) { return static_cast<std::uint32_t>(engine_()) % bound; }

 private:
  std::mt19937 engine_;
};

// A value that its type takes, often with the two bytes of another type in it.
void add_any(List &list, Random &random) {
  const std::uint32_t type = kTypes[random.below(std::size(kTypes))];
  const std::uint32_t bait = kTypes[random.below(std::size(kTypes))];
  const aaa_attr_meta meta{1, 2, 3, 0, 4};
  const aaa_attr_meta *maybe = random.below(8) == 0 ? &meta : nullptr;
  std::string value(1 + random.below(random.below(20) == 0 ? 900 : 40), static_cast<char>(random.below(3)));
  std::memcpy(value.data(), &bait, std::min<std::size_t>(value.size(), 2));
  // Either is refused where the type has its own length.
  (void)aaa_attr_add(list, type, value.data(), static_cast<std::uint32_t>(value.size()), maybe);
  const std::uint32_t number = random.below(4) << 16 | bait;
  (void)aaa_attr_add(list, type, &number, sizeof number, maybe);
}

List long_list(std::uint32_t seed, int adds, std::uint32_t removed_type = 0) {
  Random random(seed);
  List list;
  for (int i = 0; i < adds; ++i) add_any(list, random);
  if (removed_type != 0) aaa_attr_remove(list, removed_type);
  return list;
}

using Values = std::map<std::uint32_t, std::vector<const void *>>;

// Calls visit(cursor, type) for every attribute.
template <class Visit>
void walk(const List &list, Visit visit) {
  aaa_cursor *cursor = nullptr;
  ASSERT_EQ(aaa_cursor_alloc(list, &cursor), 0);
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) visit(cursor, type);
  aaa_cursor_free(cursor);
}

Values walked(const List &list) {
  Values values;
  walk(list, [&](aaa_cursor *cursor, std::uint32_t type) {
    std::uint32_t length;
    values[type].push_back(aaa_cursor_get(cursor, &length));
  });
  return values;
}

Values searched(const List &list) {
  Values values;
  for (std::uint32_t type = 0; type < 70000; type += type < 700 ? 1 : 64) {
    const void *value;
    std::uint32_t length;
    for (std::uint16_t n = 0; aaa_attr_get_nth(list, type, &value, &length, n) == 0; ++n) values[type].push_back(value);
    std::uint16_t count = 0;
    aaa_attr_find_attr_type_number(list, type, &count);
    EXPECT_EQ(count, values.contains(type) ? values[type].size() : 0) << type;
  }
  return values;
}

TEST(LongList, IsSearchedAsItIsWalked) {
  for (std::uint32_t seed = 0; seed < 50; ++seed) {
    const List list = long_list(seed, 150, kTypes[seed % std::size(kTypes)]);
    EXPECT_EQ(searched(list), walked(list)) << seed;
  }
}

// Over ten thousand records in hundreds of blocks, and a group after them.
TEST(LongList, GoesThroughBuffersAndBack) {
  List list = long_list(3, 12'000);
  const std::uint32_t number = 7;
  must(aaa_attr_add(list.group(type::kGrouped), type::kUlong, &number, sizeof number, nullptr), "adding to a group");
  ASSERT_GT(aaa_attr_list_attr_count(list), 10'000u);
  const std::string expected = outline(list);
  for (const Bytes &buffer : {flat_buffer(list), tlv_buffer(list)}) {
    const char *const form = buffer[0] == AAA_MARSHAL_TLV ? "TLV" : "flat";
    List back;
    ASSERT_EQ(decode(buffer, &back), 0u) << form;
    EXPECT_TRUE(outline(back) == expected) << form << ": another list";
    EXPECT_EQ(aaa_attr_list_eq(list, back), 1) << form;
  }
}

// After a record of type 0 nothing is found, in whatever block it stands. The first of a process tells it for good:
// the two ways in which it can come have a test each.
TEST(LongList, EndsAtTypeZeroThatWasAdded) {
  List list = long_list(1, 100);
  list.number(0, 1);
  ASSERT_EQ(aaa_attr_list_append_list(list, long_list(2, 50)), 0u);
  list.number(AAA_ATTR_TYPE_INNER_VLAN_ID, 1);
  EXPECT_EQ(searched(list), walked(list));
  // What is merged in is not found again, and so not replaced by what comes after it.
  List source;
  for (const std::uint32_t type : {301u, 302u, 303u, 304u, 302u}) source.number(type, 2);
  const std::uint32_t records = aaa_attr_list_attr_count(list);
  ASSERT_EQ(aaa_attr_list_merge_with_replace(list, source), 0);
  EXPECT_EQ(aaa_attr_list_attr_count(list), records + 5);
}

TEST(LongList, EndsAtTypeZeroThatCameInABuffer) {
  List list = long_list(1, 100);
  list.number(AAA_ATTR_TYPE_VPI, 0x1234);
  ASSERT_EQ(aaa_attr_list_append_list(list, long_list(2, 50)), 0u);
  list.number(AAA_ATTR_TYPE_INNER_VLAN_ID, 1);
  Bytes buffer = flat_buffer(list);
  const Bytes record = join({in_host_order<std::uint16_t>(AAA_ATTR_TYPE_VPI), in_host_order<std::uint16_t>(0),
                             in_host_order<std::uint32_t>(4), in_host_order<std::uint32_t>(0x1234)});
  const auto at = std::search(buffer.begin(), buffer.end(), record.begin(), record.end());
  ASSERT_NE(at, buffer.end());
  at[0] = at[1] = 0;
  ASSERT_EQ(decode(buffer, &list), 0);
  EXPECT_EQ(searched(list), walked(list));
}

// The list's bytes without addresses.
Bytes bytes_of(const List &list) {
  Bytes bytes = flat_buffer(list);
  EXPECT_EQ(aaa_attr_buffer_scrub(bytes.data(), static_cast<std::uint32_t>(bytes.size())), 0);
  return bytes;
}

TEST(LongList, IsMergedAsOneByOne) {
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    const List source = long_list(seed + 100, 80);
    List merged = long_list(seed, 80, kTypes[seed % std::size(kTypes)]);
    List one_by_one(0);
    ASSERT_EQ(aaa_attr_list_copy(merged, one_by_one.out()), 0u);
    ASSERT_EQ(aaa_attr_list_merge_with_replace(merged, source), 0);
    walk(source, [&](aaa_cursor *cursor, std::uint32_t type) {
      std::uint32_t length;
      const void *value = aaa_cursor_get(cursor, &length);
      EXPECT_EQ(aaa_attr_add_or_replace(one_by_one, type, value, length, aaa_cursor_get_meta(cursor)), 0u);
    });
    EXPECT_EQ(bytes_of(merged), bytes_of(one_by_one)) << seed;
  }
}

TEST(LongList, WithoutAttributesIsMergedIntoWhateverItIs) {
  List source = long_list(1, 20);
  for (const std::uint32_t type : kTypes) aaa_attr_remove(source, type);
  constexpr aaa_attr_list_handle kNowhere = 16;
  EXPECT_EQ(aaa_attr_list_merge_with_replace(kNowhere, source), 0);
  EXPECT_EQ(aaa_attr_list_merge_double_dip(kNowhere, source), 0);
}

// The list's attributes in another order.
List shuffled(const List &list, Random &random) {
  std::vector<std::uint32_t> types;
  for (const auto &[type, values] : walked(list)) types.push_back(type);
  for (std::size_t i = types.size(); i > 1; --i)
    std::swap(types[i - 1], types[random.below(static_cast<std::uint32_t>(i))]);
  List made;
  for (const std::uint32_t type : types) EXPECT_EQ(aaa_attr_list_copy_by_type(list, made, type), 0u);
  return made;
}

TEST(LongList, EqualsItselfShuffledAndNothingElse) {
  Random random(1);
  for (std::uint32_t first_type : {1u, 500u}) {
    for (const bool repeated : {false, true}) {
      List list;
      for (std::uint32_t type = first_type; type < first_type + 120; ++type)
        (void)aaa_attr_add(list, type, &type, sizeof type, nullptr);  // most take a number
      if (repeated)
        list.number(type::kUlong, 1)
            .number(AAA_ATTR_TYPE_PHYSICAL_CHANNEL, 7)
            .number(AAA_ATTR_TYPE_PHYSICAL_CHANNEL, 8);
      List other = shuffled(list, random);
      EXPECT_TRUE(aaa_attr_list_eq(list, other) && aaa_attr_list_eq(other, list));
      other.number(AAA_ATTR_TYPE_PHYSICAL_CHANNEL, 7);
      EXPECT_EQ(aaa_attr_list_eq(list, other), repeated) << "lists are equal as sets";
      other.number(AAA_ATTR_TYPE_PHYSICAL_CHANNEL, 9);
      EXPECT_FALSE(aaa_attr_list_eq(list, other) || aaa_attr_list_eq(other, list));
    }
  }
}

}  // namespace
