// One attribute as a line, in the full and in the brief form: every format, and what may be wrong with a value.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>

#include "support/hostile.h"

namespace {

using namespace std::literals;

int collect(char *line, std::uint64_t context) {
  reinterpret_cast<std::vector<std::string> *>(context)->push_back(line);
  return 1;  // ignored
}

using Display = void (*)(aaa_attr_list_handle, aaa_attr_output_fn, std::uint64_t);

// The line of a list's only attribute, without its number.
std::string line_of(aaa_attr_list_handle list, Display display) {
  std::vector<std::string> lines;
  display(list, collect, reinterpret_cast<std::uintptr_t>(&lines));
  const std::string number = "\n1:  ";
  if (lines.size() != 2 || lines[1].substr(0, number.size()) != number) return "not one numbered line";
  return lines[1].substr(number.size());
}

const std::string kAddress = "\x20\x01\x0d\xb8\0\0\0\0\0\0\0\0\0\0\0\1"s;

// As a sender may write them: values shorter than their formats need cannot be added, but received.
TEST(AttributeLine, EveryFormat) {
  setenv("TZ", "UTC", 1);
  tzset();
  const std::string kTooLong = "Data length exceeds buffer size";
  std::string octets;
  for (int i = 0; i < 100; ++i) octets += "78 ";
  const struct {
    const char *what;
    std::uint32_t type;
    std::string value;  // behind the meta, if there is one
    std::string header, text;
    std::optional<std::string> brief = {};  // where it is not "value= " and the text
    std::string meta = "", meta_text = "";
  } rows[] = {
      {"text", 197, "bob\0"s, "username        len=  3  ", "bob"},
      {"meta", 197, "bob\0"s, "username        len=  3  ", "bob", "value= bob", "\1\2\0\0\1\0\x10\0"s,
       "svc<1> prot<2> tag<0> mand<1> client<0x10>"},
      {"meta at its limits", 197, "b\0"s, "username        len=  1  ", "b", "value= b",
       "\xff\xff\xff\xff\xfe\xff\xff\xff", "svc<255> prot<255> tag<65535> mand<0> client<0xffff>"},
      {"text up to its first NUL", 197, "a\0b\0"s, "username        len=  3  ", "a"},
      {"empty text", 197, "\0"s, "username        len=  0  ", ""},
      {"long name", 13, "x\0"s, "Stateful-IPv6-Address-Pool len=  1  ", "x"},
      {"number", 2, "\xff\0\0\0"s, "ipv4-icmp-unreachable len=  4  ", "255(ff)"},
      {"short number", 2, "\1\2", "ipv4-icmp-unreachable len=  2  ", "513(201)"},
      {"no number", 2, "", "ipv4-icmp-unreachable len=  0  ", "0(0)"},
      {"long number", 2, "\1\0\0\0\1\1"s, "ipv4-icmp-unreachable len=  6  ", "1(1)"},
      {"enum", 3, "\7\0\0\0"s, "Acct-Status-Type len=  4  ", "Accounting-On"},
      {"enum value without a name", 3, "\x0f\0\0\0"s, "Acct-Status-Type len=  4  ", "15"},
      {"short enum", 3, "\1", "Acct-Status-Type len=  1  ", "Start"},
      {"IPv4", 7, "\x0a\0\xff\1"s, "addr            len=  4  ", "10.0.255.1"},
      {"short IPv4", 7, "\x0a", "addr            len=  1  ", "10.0.0.0"},
      {"IPv6", 11, kAddress, "addrv6          len= 16  ", "2001:db8::1"},
      {"short IPv6", 11, "\x20\1", "addrv6          len=  2  ", "2001::"},
      {"Address of 4 bytes", 429, "\x0a\0\0\1"s, "HOST IP Address len=  4  ", "10.0.0.1"},
      {"Address of 5 bytes", 429, "\x20\1\x0d\xb8\1", "HOST IP Address len=  5  ", "2001:db8:100::"},
      {"Address of no bytes", 429, "", "HOST IP Address len=  0  ", "0.0.0.0"},
      {"epoch", 186, std::string(8, '\0'), "start_time      len=  8  ", "Thu Jan  1 00:00:00 1970"},
      {"before the epoch", 186, std::string(8, '\xff'), "start_time      len=  8  ", "Wed Dec 31 23:59:59 1969"},
      {"last time with a year of 4 digits", 186, "\x7f\x41\xf4\xff\x3a\0\0\0"s, "start_time      len=  8  ",
       "Fri Dec 31 23:59:59 9999"},
      {"year 10000", 186, "\x80\x41\xf4\xff\x3a\0\0\0"s, "start_time      len=  8  ", "253402300800"},
      {"short time", 186, "\x3c", "start_time      len=  1  ", "Thu Jan  1 00:01:00 1970"},
      {"false", 25, "\0"s, "force-local-chap len=  1  ", "false"},
      {"true", 25, "\x80", "force-local-chap len=  1  ", "true"},
      {"no Boolean", 25, "", "force-local-chap len=  0  ", "false"},
      {"binary", 30, "\0\xff\x41"s, "user-data       len=  3  ", "00 ff 41 "},
      {"Ulonglong", 453, "\1\2\3\4\5\6\7\x08", "Input octets    len=  8  ", "01 02 03 04 05 06 07 08 "},
      {"secret", 145, "1234", "password        len=  4  ", "<opaque value>"},
      {"prefix", 224, "\0\x20"s + kAddress, "prefix          len= 18  ", "2001:db8::/32"},
      {"prefix of 129 bits", 336, "\0\x81"s + kAddress, "delegated-prefix len= 18  ", ""},
      {"short prefix", 336, "\0\x7f\x20\1"s, "delegated-prefix len=  4  ", "2001::/127"},
      {"client id", 258, "\1AB\0"s, "dhcp-client-id  len=  3  ", "0x01-0x41-0x42(type :0x01, AB)", "value= \1AB"},
      {"client id with a NUL, a blank and \\xff", 258, "\0a\0 \xff\0"s, "dhcp-client-id  len=  5  ",
       "0x00-0x61-0x00-0x20-0xff(type :0x00, a* *)", "value= "},
      {"empty client id", 258, "\0"s, "dhcp-client-id  len=  0  ", "(type :0x00, )", "value= "},
      {"longest value shown", 197, std::string(230, 'x') + '\0', "username        len=230  ", std::string(230, 'x'),
       "value= " + std::string(223, 'x')},
      {"value too long", 197, std::string(231, 'x') + '\0', "username        len=231  ", kTooLong, kTooLong},
      {"value too long behind a meta", 197, std::string(190, 'x') + '\0', "username        len=190  ", kTooLong,
       "value= " + std::string(190, 'x'), std::string(8, '\0'), "svc<0> prot<0> tag<0> mand<0> client<0x0>"},
      {"octets cut at the line's end", 30, std::string(100, 'x'), "user-data       len=100  ", octets.substr(0, 230),
       "value= " + octets.substr(0, 223)},
      {"type behind the last", 623, "abc", "\nBAD TYPE 623 length 3", "", ""},
      {"largest type", 65535, "", "\nBAD TYPE 65535 length 0", "", ""},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.what);
    List list;
    const Bytes buffer =
        flat({block(kHead | kLast, 1, {record(row.type, row.meta + row.value, row.meta.empty() ? 0 : 1)})});
    ASSERT_EQ(decode(buffer, &list), 0u);
    EXPECT_EQ(line_of(list, aaa_attr_list_display), row.header + row.meta_text + row.text);
    EXPECT_EQ(line_of(list, aaa_attr_list_display_brief), row.header + row.brief.value_or("value= " + row.text));
  }
}

}  // namespace
