// A text that is no good is refused with the place, the reason, and what would be right.
#include <gtest/gtest.h>

#include "forms.h"
#include "text/nearest.h"

namespace {

struct Row {
  std::string text;
  std::string error;  // how it begins: line, column, reason
};

const std::string kLastType = std::to_string(AAA_ATTR_TYPE_COUNT - 1);

std::string repeated(const char *text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

template <class Rows>
void expect_errors(const Rows &rows, Read (*read)(std::string_view)) {
  for (const Row &row : rows) {
    const std::string error = error_of(read(row.text));
    EXPECT_TRUE(error.starts_with(row.error))
        << row.text.substr(0, 200) << "\n  expected " << row.error << "\n  got      " << error;
  }
}

TEST(BadText, Lines) {
  const Row rows[] = {
      {"# note\n\nuser-name = x\n", "3:1: expected an attribute name such as \"username\""},
      {"0 = 1", "1:1: expected an attribute name"},
      {"9999 = 1", "1:1: expected an attribute name, or a type number from 1 to " + kLastType + ", found \"9999\""},
      {"username x", "1:11: expected '=' after \"username x\", found nothing"},
      {"username =", "1:11: expected a value after '='"},
      {std::string("username = a\0b", 14), "1:13: expected text, found a zero byte"},
      // Text
      {"username = \"x", "1:12: expected a closing quote at the end of the line"},
      {"  username = \"x\" y", "1:17: expected nothing after the closing quote, found \" y\""},
      {"username = \"\"", "1:12: expected at least one character"},
      {"username = \"\xC3\xA9\\qb\"", "1:14: expected one of the escapes \\\" \\\\ \\n \\t \\xNN, found \"\\q\""},
      {"username = \"\\x4\"", "1:13: expected one of the escapes"},
      {"nosuch\x1bname = 1",
       "1:1: expected an attribute name, or a type number from 1 to " + kLastType + ", found \"nosuch\\x1bname\""},
      // Numbers, each just past its range
      {"Framed-MTU = 0x100000000", "1:14: expected a number from 0 to 4294967295, found \"0x100000000\""},
      {"453 = 18446744073709551616", "1:7: expected a number from 0 to 18446744073709551615"},
      {"Acct-Status-Type = stpo", "1:20: expected a number or a value name such as \"Stop\""},
      {"is-session-idle = 1", "1:19: expected true or false, found \"1\""},
      // Addresses and prefixes
      {"addr = 2001:db8::1", "1:8: expected an IPv4 address"},
      {"addrv6 = 192.0.2.1", "1:10: expected an IPv6 address"},
      {"HOST IP Address = host", "1:19: expected an IPv4 or IPv6 address"},
      {"prefix = 2001:db8::/129", "1:10: expected an IPv6 prefix"},
      {"prefix = 2001:db8::1/64", "1:10: expected zero bits after the prefix length"},
      // Times and bytes
      {"start_time = 2026-04-31T00:00:00Z", "1:14: expected a time such as"},
      {"start_time = 2026-04-30T00:00:60Z", "1:14: expected a time such as"},
      {"class = 0:1 2", "1:9: expected pairs of hexadecimal digits"},
      {"class = <0>", "1:9: expected pairs of hexadecimal digits between < and >"},
      {"class = <00", "1:9: expected pairs of hexadecimal digits between < and >"},
      {"class = <opaque value>", "1:9: the value is a secret that was left out here"},
      {"Framed-MTU = <00 01>", "1:14: expected a value of 4 bytes, as format Ulong has, found 2"},
      {"class = <>", "1:9: expected a value of at least 1 byte"},
      {"class = " + repeated("00", 70000), "1:9: the value is too long"},
      // The note
      {"addr [tag=1 = 192.0.2.1", "1:6: expected ']' after the note"},
      {"addr [tag=65536] = 192.0.2.1", "1:11: expected a number from 0 to 65535, found \"65536\""},
      {"addr [service=pppp] = 192.0.2.1", "1:15: expected a name of the dictionary such as \"ppp\""},
      {"addr [producer=128] = 192.0.2.1", "1:16: expected a number from 0 to 127"},
      {"addr [mandatory=1] = 192.0.2.1", "1:7: expected service=, "},
      // Groups
      {"Subscription ID = {\nFailed AVP = {\n}\n\n", "5:1: expected '}' for the group opened on line 1"},
      {"Failed AVP = {\n}\n}", "3:1: found '}', but no group is open"},
      {"Failed AVP = {\n} x", "2:3: expected nothing after '}', found \"x\""},
      {"Failed AVP = 1", "1:14: expected '{', since \"Failed AVP\" is a group"},
      {"username = {", "1:12: \"username\" is no group"},
      {repeated("Failed AVP = {\n", 129), "129:1: groups nest too deep"},
  };
  expect_errors(rows, attrtext::list_from_text);
}

std::string json(const std::string &attribute) { return "{\"version\": 1, \"attributes\": [\n{" + attribute + "}]}"; }

TEST(BadText, Json) {
  const Row rows[] = {
      {"", "1:1: this is no JSON: "},
      {"{\"version\": 1,\n \"attributes\": [}", "2:17: this is no JSON: "},
      {"{\"version\": 1, \"attributes\": []} x", "1:34: this is no JSON: "},
      {"\x1b[2J", "1:1: this is no JSON: syntax error while parsing value - invalid literal; last read: '<U+001B>'"},
      {"{\"\xff\x1b", "1:3: this is no JSON: syntax error while parsing object key - invalid string: ill-formed"},
      {"[]", "1:1: expected an object with \"version\" and \"attributes\""},
      {"1", "1:1: expected an object"},
      {"{\"version\": 2}", "1:13: expected version 1, found \"2\""},
      {"{\"attributes\": []}", "1:1: expected \"version\": 1 in the object"},
      {"{\"version\": 1}", "1:1: expected \"attributes\" in the object"},
      {"{\"version\": 1, \"version\": 1}", "1:16: the member stands here twice"},
      {"{\"version\": 1, \"attributes\": 1}", "1:30: expected an array"},
      {"{\"version\": 1, \"attributes\": [1]}", "1:31: expected an object"},
      {"{\"version\": 1, \"form\": {}}", "1:24: expected no array and no object for \"form\""},
      {json(R"("type": 3, "vlaue": 1)"), "2:13: expected one of the members type, name, "},
      {json(R"("value": 1)"), "2:1: expected \"type\" or \"name\" in the object"},
      {json(R"("type": 9999, "value": 1)"), "2:10: expected a number from 0 to " + kLastType + ", found \"9999\""},
      {json(R"("type": 3.0, "value": 1)"), "2:10: expected a number from 0 to " + kLastType + ", found \"3.0\""},
      {json(R"("type": 0, "bytes": "00")"), "2:10: expected a type number from 1 on"},
      {json(R"("name": "usernme", "value": "x")"), "2:10: expected an attribute name such as \"username\""},
      {json(R"("type": 3, "name": "username", "value": 1)"), "2:21: expected the name of type 3, \"Acct-Status-Type\""},
      {json(R"("type": 3)"), "2:1: expected either \"value\" or \"bytes\" for \"Acct-Status-Type\""},
      {json(R"("type": 3, "value": 1, "bytes": "00")"), "2:1: expected either \"value\" or \"bytes\""},
      {json(R"("type": 3, "attributes": [])"), "2:1: expected either \"value\" or \"bytes\""},
      {json(R"("type": 444, "value": 1)"), "2:1: expected \"attributes\", since \"Failed AVP\" is a group"},
      {json(R"("type": 3, "hidden": true)"), "2:23: the value is a secret that was left out here"},
      {json(R"("type": 3, "value": null)"), "2:22: expected a value of format Enum"},
      {json(R"("type": 72, "value": true)"), "2:23: expected a value of format Ulong"},
      {json(R"("type": 72, "value": 1.5)"), "2:23: expected a value of format Ulong"},
      {json(R"("type": 72, "value": 4294967296)"), "2:23: expected a number from 0 to 4294967295"},
      {json(R"("type": 7, "value": 1)"), "2:22: expected a string for format IPv4 Address"},
      {json(R"("type": 7, "value": "192.0.2.1\u0000x")"), "2:22: expected an IPv4 address"},
      {json(R"("type": 3, "value": "Stop\u0000x")"), "2:22: expected a number or a value name"},
      {json(R"("type": 197, "value": "")"), "2:24: expected a value of at least 1 byte"},
      {json(R"("type": 173, "bytes": "0")"), "2:24: expected pairs of hexadecimal digits"},
      {json(R"("type": 173, "bytes": 0)"), "2:24: expected a string"},
      {json(R"("type": 173, "bytes": "00", "producer": 128)"), "2:42: expected a number from 0 to 127"},
      {json(R"("type": 173, "bytes": "00", "meta": {"tag": -1})"), "2:46: expected a number from 0 to 65535"},
      {json(R"("type": 173, "bytes": "00", "meta": {"service": "pppp"})"), "2:50: expected a name of the dictionary"},
      {json(R"("type": 173, "bytes": "00", "meta": {"mandatory": 1})"), "2:52: expected true or false"},
      {json(R"("type": 173, "bytes": "00", "meta": [])"), "2:38: expected an object"},
      {"{\"version\": 1, \"attributes\": [" + repeated(R"({"type": 444, "attributes": [)", 129),
       "1:3771: groups nest too deep"},
  };
  expect_errors(rows, attrtext::list_from_json);
}

TEST(Nearest, NamesThatSomebodyMayHaveMeant) {
  EXPECT_EQ(attrtext::distance("kitten", "sitting"), 3u);
  EXPECT_EQ(attrtext::distance("", "abc"), 3u);
  EXPECT_EQ(attrtext::distance("stpo", "STOP"), 1u);
  EXPECT_EQ(attrtext::distance("nas ip_address", "nas-ip-address"), 0u);
  EXPECT_EQ(attrtext::nearest_types("frmaed mtu").at(0), "Framed-MTU");
  EXPECT_TRUE(attrtext::nearest_types("quite another thing altogether").empty());
}

}  // namespace
