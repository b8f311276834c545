// Look-ups over the type table and the format names, and the LI set.
#include <gtest/gtest.h>

#include <map>

#include "support/lists.h"

namespace {

TEST(Lookup, EveryNameLeadsBackToItsType) {
  const std::map<std::uint32_t, std::uint32_t> lower_of_two = {{455, 453}, {456, 454}, {475, 474}};
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::string name = aaa_attr_get_name_from_type(type);
    const std::uint32_t found = aaa_attr_get_type_from_name(name.c_str());
    EXPECT_EQ(found, lower_of_two.contains(type) ? lower_of_two.at(type) : type) << name;
    EXPECT_EQ(aaa_attr_get_type_from_name((name + " ").c_str()), 0u) << name << " and a blank";
  }
}

TEST(Lookup, NamesThatAreNone) {
  EXPECT_EQ(aaa_attr_get_type_from_name("Acct-Status-Type"), 3u);
  for (const char *name : {"acct-status-type", "ACL", "", "Unknown AAA Attribute"})
    EXPECT_EQ(aaa_attr_get_type_from_name(name), 0u) << name;
  EXPECT_EQ(aaa_attr_get_type_from_name(nullptr), 0u);
}

TEST(Lookup, NumbersThatAreNoType) {
  for (const std::uint32_t type : {623u, 0x10003u, 0x80000000u, UINT32_MAX}) {
    EXPECT_STREQ(aaa_attr_get_name_from_type(type), "Unknown AAA Attribute") << type;
    EXPECT_EQ(aaa_attr_get_format_from_type(type), 0u) << type;
  }
  EXPECT_STREQ(aaa_attr_get_name_from_type(622), "nd-ra-initial");
}

TEST(Lookup, FormatNames) {
  const char *const names[] = {"<invalid>",         "String",       "Binary",        "Ulong",         "Ulonglong",
                               "Grouped",           "Enum",         "IPv4 Address",  "IPv6 Address",  "Address",
                               "String Attribute",  "UTC",          "Boolean",       "Opaque Binary", "Special",
                               "Ipx Network",       "<unknown>",    "<unknown>",     "<unknown>",     "<unknown>",
                               "diameter_identity", "IPFilterrule", "QosFilterRule", "<unknown>"};
  for (std::uint32_t format = 0; format < std::size(names); ++format)
    EXPECT_STREQ(aaa_attr_get_format_string(format), names[format]) << format;
  EXPECT_STREQ(aaa_attr_get_format_string(UINT32_MAX), "<unknown>");
}

// Leaves the debug-LI flag clear for whatever runs next.
class LiSet : public testing::Test {
 protected:
  ~LiSet() override { aaa_attr_set_debug_li(0); }
};

TEST_F(LiSet, TypesWhateverTheFlag) {
  for (const std::uint32_t flag : {0u, 1u}) {
    aaa_attr_set_debug_li(flag);
    for (std::uint32_t type = 0; type < 1000; ++type)
      EXPECT_EQ(aaa_attr_is_attr_type_li(type), type >= 288 && type <= 293) << type << ", flag " << flag;
    EXPECT_EQ(aaa_attr_is_attr_type_li(0x10000 + 288), 0);
  }
}

TEST_F(LiSet, TextsWhileTheFlagIsClear) {
  const struct {
    const char *why, *text;
    int li;
  } rows[] = {
      {"name and value", "intercept-id=4711", 1},
      {"no value yet", "md-port=", 1},
      {"the first of the set", "md-ip-addr=10.0.0.1", 1},
      {"a longer name that begins like another", "md-ipv6-addr=::1", 1},
      {"a second sign belongs to the value", "md-dscp==", 1},
      {"a name alone", "intercept-id", 0},
      {"the name goes on", "intercept-id2=1", 0},
      {"a blank before the sign", "li-action =1", 0},
      {"not at the beginning", " li-action=1", 0},
      {"another case", "LI-ACTION=1", 0},
      {"another attribute", "addr=10.0.0.1", 0},
      {"empty", "", 0},
      {"null", nullptr, 0},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(aaa_attr_is_li_attr(row.text), row.li);
    // Any value but 0 counts as set.
    for (const std::uint32_t flag : {1u, 2u, 0x100u, 0x80000000u}) {
      aaa_attr_set_debug_li(flag);
      EXPECT_EQ(aaa_attr_is_li_attr(row.text), 0) << flag;
    }
    aaa_attr_set_debug_li(0);
  }
}

}  // namespace
