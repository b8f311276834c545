// How an attribute is written in both forms, and what other ways to write it a reader takes.
#include <gtest/gtest.h>

#include "forms.h"
#include "support/any_list.h"

namespace {

struct Row {
  const char *text;     // as it is written
  const char *json;     // its object, with type and name left out
  const char *other{};  // another way to write it as text
};

const Row kRows[] = {
    // Texts: quotes where a blank at an end, a first character or what a terminal would not show needs them
    {"username = mira holt", R"("value": "mira holt")", "  username=\"mira holt\"  "},
    {"username = \" x \"", R"("value": " x ")"},
    {"username = \"<x>\"", R"("value": "<x>")", "197 = <3c 78 3e>"},
    {"username = \"{\"", R"("value": "{")"},
    {"username = x=\"[a]\" # b", R"("value": "x=\"[a]\" # b")"},
    {R"(username = "\x1b[2J\x00\x0a\"\\")", R"("value": "\u001b[2J\u0000\u000a\"\\")",
     R"(username = "\x1b[2J\x00\n\"\\")"},
    {"username = caf\xC3\xA9", "\"value\": \"caf\xC3\xA9\""},
    {R"(username = "a\xe2\x80\xaeb")", R"("value": "a\u202eb")"},
    {R"(username = "\xf3\xa0\x80\x81")", R"("value": "\udb40\udc01")"},
    {R"(username = "\xff\xfe")", R"("bytes": "fffe")"},
    {R"(username = "\xed\xa0\x80")", R"("bytes": "eda080")"},  // half of a pair of UTF-16
    // Numbers, also beyond what a double holds
    {"Framed-MTU = 4294967295", R"("value": 4294967295)", "Framed-MTU = 0xffffffff"},
    {"455 = 9007199254740992", R"("value": 9007199254740992)"},
    {"455 = 9007199254740993", R"("value": "9007199254740993")"},
    {"455 = 18446744073709551615", R"("value": "18446744073709551615")"},
    {"455 = <01 02>", R"("bytes": "0102")"},
    {"Acct-Status-Type = Stop", R"("value": "Stop")", "3 = \"2\""},
    {"Acct-Status-Type = 99", R"("value": 99)"},
    {"connect-progress = 3", R"("value": 3)"},
    {"is-session-idle = true", R"("value": true)"},
    {"is-session-idle = <02>", R"("bytes": "02")"},
    // Addresses, prefixes, bytes
    {"addr = 203.0.113.7", R"("value": "203.0.113.7")"},
    {"addrv6 = 2001:db8::7", R"("value": "2001:db8::7")", "addrv6 = 2001:DB8:0::7"},
    {"HOST IP Address = 203.0.113.7", R"("value": "203.0.113.7")"},
    {"prefix = 2001:db8:40::/56", R"("value": "2001:db8:40::/56")"},
    {"prefix = 01 38 20 01", R"("bytes": "01382001")"},
    {"class = 62 6e 67", R"("bytes": "626e67")", "class = 626E:67"},
    // Times
    {"start_time = 2026-11-22T06:14:05Z", R"("value": "2026-11-22T06:14:05Z")", "start_time = 1795328045"},
    {"start_time = 253402300800", R"("value": 253402300800)"},
    {"start_time = -9223372036854775808", R"("value": "-9223372036854775808")"},
    {"start_time = <01>", R"("bytes": "01")"},
    // Notes
    {"class [service=ppp protocol=ip tag=7 mandatory flags=32768 client=9 producer=5] = 00",
     R"("meta": {"service": "ppp", "protocol": "ip", "tag": 7, "mandatory": true, "flags": 32768, "client": 9}, )"
     R"("producer": 5, "bytes": "00")",
     "class [flags=0x8001 producer=5 client=9 tag=7 protocol=3 service=4] = 00"},
    {"class [service=200] = 00", R"("meta": {"service": 200}, "bytes": "00")"},
    {"class [tag=0] = 00", R"("meta": {}, "bytes": "00")", "class [] = 00"},
    {"class [producer=127] = 00", R"("producer": 127, "bytes": "00")"},
    // Groups
    {"Failed AVP [tag=1] = {\n  Failed AVP = {\n  }\n  class = 00\n}",
     "\"meta\": {\"tag\": 1}, \"attributes\": [\n    {\"type\": 444, \"name\": \"Failed AVP\", \"attributes\": []},\n"
     "    {\"type\": 173, \"name\": \"class\", \"bytes\": \"00\"}]",
     "# more\r\n444 [tag=1]={\r\nFailed AVP={\r\n}\r\n\r\nclass=0 0\r\n}"},
};

TEST(Written, AsTextAndAsJson) {
  for (const Row &row : kRows) {
    SCOPED_TRACE(row.text);
    const Read read = attrtext::list_from_text(row.text);
    ASSERT_EQ(error_of(read), "");
    const auto &list = std::get<attrmgr::list>(read);
    EXPECT_EQ(text_of(list), std::string(row.text) + '\n');
    const std::string type = std::to_string((*list.begin()).type());
    EXPECT_EQ(json_of(list), "{\"version\": 1, \"attributes\": [\n  {\"type\": " + type + ", \"name\": \"" +
                                 (*list.begin()).name() + "\", " + row.json + "}]}\n");
    if (row.other == nullptr) continue;
    const Read other = attrtext::list_from_text(row.other);
    ASSERT_EQ(error_of(other), "") << row.other;
    EXPECT_TRUE(same_lists(list, std::get<attrmgr::list>(other))) << row.other;
  }
}

TEST(Written, JsonMembersInAnyOrder) {
  const Read read = attrtext::list_from_json(
      R"({"attributes": [{"attributes": [{"bytes": "626F62", "name": "username"}], "meta": {}, "type": 444},
          {"value": 2, "producer": 0, "type": 3}, {"value": "0x10", "type": 72}], "$schema": "x", "version": 1})");
  ASSERT_EQ(error_of(read), "");
  EXPECT_EQ(text_of(std::get<attrmgr::list>(read)),
            "Failed AVP [tag=0] = {\n  username = bob\n}\nAcct-Status-Type = Stop\nFramed-MTU = 16\n");
}

// LI attributes are not mentioned at all; of a secret there is the attribute.
TEST(Written, WithoutSecrets) {
  const Read read = attrtext::list_from_text(
      "tunnel-password [tag=1] = 9a41\nintercept-id = 00\nFailed AVP = {\nli-action = 1\ntunnel-password = 01\n}\n");
  ASSERT_EQ(error_of(read), "");
  const auto &list = std::get<attrmgr::list>(read);
  const attrtext::Secrets secrets = {
      .is_opaque = [](std::uint32_t type) { return type == AAA_ATTR_TYPE_TUNNEL_PASSWORD; }, .hide_li = true};
  EXPECT_EQ(text_of(list, secrets),
            "tunnel-password [tag=1] = <opaque value>\nFailed AVP = {\n  tunnel-password = <opaque value>\n}\n");
  EXPECT_EQ(json_of(list, secrets),
            "{\"version\": 1, \"attributes\": [\n"
            "  {\"type\": 268, \"name\": \"tunnel-password\", \"meta\": {\"tag\": 1}, \"hidden\": true},\n"
            "  {\"type\": 444, \"name\": \"Failed AVP\", \"attributes\": [\n"
            "    {\"type\": 268, \"name\": \"tunnel-password\", \"hidden\": true}]}]}\n");
}

// What a decoder takes and adding would refuse: a later version's type, a value that is not of its format.
TEST(Written, WhatNoReaderTakes) {
  attrmgr::list list;
  list.add(attrmgr::attr::framed_mtu, 1500u);
  list.add(attrmgr::attr::username, "bob");
  attrmgr::bytes buffer = list.to_flat();
  constexpr std::size_t kFirstRecord = 1 + 24, kValue = 4, kHeader = 8;
  const std::uint16_t later_type = 700;
  std::memcpy(buffer.data() + kFirstRecord, &later_type, sizeof later_type);
  std::memcpy(buffer.data() + kFirstRecord + kHeader + kValue, "\x48\x00", 2);  // a Ulong of 4 bytes, "bob" and NUL
  const attrmgr::list decoded = attrmgr::list::from_bytes(buffer);
  const std::string text = text_of(decoded);
  EXPECT_TRUE(text.starts_with("700 = <")) << text;
  EXPECT_NE(error_of(attrtext::list_from_text(text)), "");
  EXPECT_NE(json_of(decoded).find("{\"type\": 700, \"bytes\": \""), std::string::npos) << json_of(decoded);
}

}  // namespace
