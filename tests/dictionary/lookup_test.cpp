// Look-ups over types, formats and values at their edges, and the LI set.
#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "support/lists.h"

namespace {

TEST(Lookup, TypesAndNames) {
  const std::map<std::uint32_t, std::uint32_t> lower_of_two = {{455, 453}, {456, 454}, {475, 474}};
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::string name = aaa_attr_get_name_from_type(type);
    const std::uint32_t found = aaa_attr_get_type_from_name(name.c_str());
    EXPECT_EQ(found, lower_of_two.contains(type) ? lower_of_two.at(type) : type) << name;
    EXPECT_EQ(aaa_attr_get_type_from_name((name + " ").c_str()), 0u) << name << " and a blank";
  }
  for (const char *name : {"acct-status-type", "ACL", "", "Unknown AAA Attribute", static_cast<const char *>(nullptr)})
    EXPECT_EQ(aaa_attr_get_type_from_name(name), 0u) << (name ? name : "null");
  for (const std::uint32_t type : {std::uint32_t{AAA_ATTR_TYPE_COUNT}, 0x10003u, UINT32_MAX}) {
    EXPECT_STREQ(aaa_attr_get_name_from_type(type), "Unknown AAA Attribute") << type;
    EXPECT_EQ(aaa_attr_get_format_from_type(type), 0u) << type;
  }
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

TEST(Lookup, Values) {
  for (const auto &[type, value] :
       {std::pair(0u, 0u), {2, 0}, {96, 47}, {96, UINT32_MAX}, {AAA_ATTR_TYPE_COUNT, 0}, {0x10003, 7}})
    EXPECT_EQ(aaa_attr_get_enum_name_from_type(type, value), nullptr) << type;
  // The interface look-up ends before its table does.
  for (std::uint32_t value = 0; value < value_interface_type.count + 2; ++value)
    EXPECT_STREQ(aaa_attr_get_interface_from_type(value), value <= 43 ? name_interface_type[value] : "unknown")
        << value;
}

TEST(Lookup, ValuesByName) {
  const std::tuple<const char *, std::uint32_t, const char *, std::uint32_t> rows[] = {
      {"a value", AAA_ATTR_TYPE_ACCT_STATUS_TYPE, "Stop", AAA_ACCT_STATUS_TYPE_STOP},
      {"the last of a table", AAA_ATTR_TYPE_CONNECT_PROGRESS, "Session lcp open forwarded", 253},
      {"a placeholder", AAA_ATTR_TYPE_ACCT_STATUS_TYPE, "noval4", 4},
      {"the lowest of three", AAA_ATTR_TYPE_TERMINATION_CAUSE, "none", 0},
      {"a trailing blank counts", AAA_ATTR_TYPE_PORT_TYPE, "Virtual PPPoE over QinQ ", 37},
  };
  for (const auto &[why, type, name, expected] : rows) {
    std::uint32_t value = 4711;
    EXPECT_EQ(aaa_attr_get_value_from_enum_name(type, name, &value), 0u) << why;
    EXPECT_EQ(value, expected) << why;
  }
  const std::tuple<const char *, std::uint32_t, const char *> misses[] = {
      {"another case", AAA_ATTR_TYPE_ACCT_STATUS_TYPE, "stop"},
      {"the beginning of a name", AAA_ATTR_TYPE_ACCT_STATUS_TYPE, "Sto"},
      {"no name", AAA_ATTR_TYPE_ACCT_STATUS_TYPE, ""},
      {"no Enum type", AAA_ATTR_TYPE_USERNAME, "Stop"},
      {"no type", AAA_ATTR_TYPE_COUNT, "Stop"},
  };
  for (const auto &[why, type, name] : misses) {
    std::uint32_t value = 4711;
    EXPECT_EQ(aaa_attr_get_value_from_enum_name(type, name, &value), AAA_ATTR_ERR_NOT_FOUND) << why;
    EXPECT_EQ(value, 4711u) << why << ": the value stays as it was";
  }
}

TEST(LiSet, TypesWhateverTheFlagTextsWhileItIsClear) {
  for (const std::uint32_t flag : {0x80000000u, 1u, 0u}) {
    aaa_attr_set_debug_li(flag);
    for (const char *text : {"intercept-id=4711", "md-ip-addr=", "md-ipv6-addr=::1", "md-dscp=="})
      EXPECT_EQ(aaa_attr_is_li_attr(text), flag == 0) << text;
    for (const char *text : {"intercept-id", "intercept-id2=1", " li-action=1", "LI-ACTION=1", "addr=10.0.0.1", ""})
      EXPECT_EQ(aaa_attr_is_li_attr(text), 0) << text;
    for (std::uint32_t type = 0; type < 0x10000 + 300; ++type)
      EXPECT_EQ(aaa_attr_is_attr_type_li(type), type >= 288 && type <= 293) << type << ", flag " << flag;
  }
  EXPECT_EQ(aaa_attr_is_li_attr(nullptr), 0);
}

}  // namespace
