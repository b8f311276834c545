// Replacing the first attribute of a type: in place, by removing and appending, or beside it.
#include <gtest/gtest.h>

#include <functional>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

enum Outcome { kInPlace, kSupersede, kAlongside };

std::string entry(const aaa_attr_meta *meta, std::uint32_t client_type, std::string_view value) {
  const List list;
  aaa_attr_add_v1(list, type::kString, value.data(), static_cast<std::uint32_t>(value.size()), meta, client_type);
  return outline(list);
}

TEST(AddOrReplace, MetaAndLengthDecide) {
  const aaa_attr_meta meta = {3, 7, 9, 1, 11};
  const aaa_attr_meta service = {4, 7, 9, 1, 11}, protocol = {3, 8, 9, 1, 11}, tag = {3, 7, 10, 1, 11};
  const aaa_attr_meta optional = {3, 7, 9, 0, 11}, flags = {3, 7, 9, 3, 11}, client = {3, 7, 9, 1, 12};
  const struct {
    const char *why;
    const aaa_attr_meta *old_meta;
    const aaa_attr_meta *new_meta;
    const char *new_value;
    Outcome v1, v2;
  } rows[] = {
      {"no meta", nullptr, nullptr, "new", kInPlace, kInPlace},
      {"another length", nullptr, nullptr, "newer", kSupersede, kSupersede},
      {"as long as the old value with its NUL", nullptr, nullptr, "newX", kSupersede, kSupersede},
      {"equal meta", &meta, &meta, "new", kInPlace, kInPlace},
      {"equal meta, another length", &meta, &meta, "newer", kSupersede, kSupersede},
      {"other flags", &meta, &flags, "new", kInPlace, kInPlace},
      {"other client", &meta, &client, "new", kInPlace, kInPlace},
      {"other service", &meta, &service, "new", kAlongside, kSupersede},
      {"other protocol", &meta, &protocol, "new", kAlongside, kSupersede},
      {"other tag", &meta, &tag, "new", kAlongside, kSupersede},
      {"no longer mandatory", &meta, &optional, "new", kAlongside, kSupersede},
      {"meta lost", &meta, nullptr, "new", kAlongside, kSupersede},
      {"meta gained", nullptr, &meta, "new", kAlongside, kSupersede},
      {"meta and length differ", &meta, &tag, "newer", kAlongside, kSupersede},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    const auto length = static_cast<std::uint32_t>(std::strlen(row.new_value));
    const struct {
      std::function<aaa_attr_cerrno(aaa_attr_list_handle)> call;
      std::uint32_t client_type;  // of a record that the form adds
      Outcome outcome;
    } forms[] = {
        {[&](auto l) { return aaa_attr_add_or_replace_v1(l, type::kString, row.new_value, length, row.new_meta); }, 0,
         row.v1},
        {[&](auto l) { return aaa_attr_add_or_replace_v2(l, type::kString, row.new_value, length, row.new_meta, 9); },
         9, row.v2},
        {[&](auto l) { return aaa_attr_add_or_replace(l, type::kString, row.new_value, length, row.new_meta); }, 0,
         row.v2},
    };
    for (const auto &form : forms) {
      const List list = list_of("!T=dead");
      EXPECT_EQ(aaa_attr_add_v1(list, type::kString, "old", 3, row.old_meta, 5), 0u);
      EXPECT_EQ(aaa_attr_add(list, type::kString, "2nd", 3, nullptr), 0u);
      EXPECT_EQ(form.call(list), 0u);
      const std::string second = entry(nullptr, 0, "2nd");
      const std::string added = second + ' ' + entry(row.new_meta, form.client_type, row.new_value);
      EXPECT_EQ(outline(list), form.outcome == kInPlace     ? entry(row.new_meta, 5, row.new_value) + ' ' + second
                               : form.outcome == kSupersede ? added
                                                            : entry(row.old_meta, 5, "old") + ' ' + added);
      EXPECT_EQ(aaa_attr_list_attr_count(list), form.outcome == kInPlace ? 3u : 4u);
      EXPECT_EQ(flaws(list), "");
    }
  }
}

TEST(AddOrReplace, RefusedLengthsLeaveTheOldAttribute) {
  const struct {
    std::uint32_t type, old_length, new_length;
  } rows[] = {{type::kUlong, 4, 8},   {type::kIpv6, 16, 4},   {type::kAddress, 16, 6},
              {type::kBoolean, 1, 0}, {type::kBoolean, 1, 2}, {type::kBinary, 3, 0},
              {type::kGrouped, 8, 4}, {type::kEnum, 4, 0},    {type::kString, 3, 65503}};
  const Bytes value(65503);
  for (const auto &row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type));
    const List list;
    EXPECT_EQ(aaa_attr_add(list, row.type, value.data(), row.old_length, nullptr), 0u);
    const Bytes before = Block(list).bytes();
    for (const auto replace : {aaa_attr_add_or_replace, aaa_attr_add_or_replace_v1})
      EXPECT_EQ(replace(list, row.type, value.data(), row.new_length, nullptr), AAA_ATTR_ERR_BAD_ARG);
    EXPECT_EQ(Block(list).bytes(), before);
  }
}

TEST(AddOrReplace, AddsWhatIsNotThere) {
  const List list = list_of("!T=dead 0=null");
  EXPECT_EQ(aaa_attr_add_or_replace_v2(list, type::kString, "x", 1, &kMeta, 9), 0u);
  EXPECT_EQ(aaa_attr_add_or_replace_v1(list, 0, "llun", 4, nullptr), 0u) << "type 0 is never found";
  EXPECT_EQ(aaa_attr_list_attr_count(list), 4u);
  EXPECT_EQ(aaa_attr_add_or_replace(0, type::kString, "x", 1, nullptr), AAA_ATTR_ERR_BAD_LIST);
}

// The leak checker sees a sub-list that is forgotten, the address checker one that is freed too early.
TEST(AddOrReplace, OwnsTheSubListsThatItsRecordsHold) {
  const auto replace = [](aaa_attr_list_handle list, aaa_attr_list_handle sub_list, const aaa_attr_meta *meta) {
    return aaa_attr_add_or_replace(list, type::kGrouped, &sub_list, sizeof sub_list, meta);
  };
  const List list = list_of("G{T=old H{}}");
  const aaa_attr_list_handle in_place = list_of("T=new H{}").release();
  EXPECT_EQ(replace(list, in_place, nullptr), 0u);
  EXPECT_EQ(replace(list, in_place, nullptr), 0u) << "its own sub-list again";
  EXPECT_EQ(outline(list), outline_of("G{T=new H{}}"));
  EXPECT_EQ(replace(list, in_place, &kMeta), 0u) << "moved to a record with meta";
  EXPECT_EQ(outline(list), outline_of("G+{T=new H{}}"));
  EXPECT_EQ(replace(list, list_of("U=x").release(), nullptr), 0u) << "superseded";
  EXPECT_EQ(outline(list), outline_of("G{U=x}"));
  const aaa_attr_list_handle beside = list_of("V=y").release();
  EXPECT_EQ(aaa_attr_add_or_replace_v1(list, type::kGrouped, &beside, 8, &kMeta), 0u);
  EXPECT_EQ(outline(list), outline_of("G{U=x} G+{V=y}"));
}

}  // namespace
