// Attributes as lines in the full and in the brief form, and whole lists as text: every display, numbering, nested
// lists, LI attributes, summaries, buffers of every size.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>

#include "support/hostile.h"

namespace {

using namespace std::literals;

// Everything that a call hands out, each line after a '|'.
template <class Call>
std::string handed(Call call, aaa_attr_list_handle list) {
  std::string text;
  const aaa_attr_output_fn collect = [](char *line, std::uint64_t context) {
    *reinterpret_cast<std::string *>(context) += "|"s + line;
    return 1;  // ignored
  };
  call(list, collect, reinterpret_cast<std::uintptr_t>(&text));
  return text;
}

void summarize(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  aaa_display_summ_attr_list_fn(list, 7, output, context);
}

template <class Subject>
std::string printed(void (*call)(Subject), std::type_identity_t<Subject> subject) {
  testing::internal::CaptureStdout();
  call(subject);
  return testing::internal::GetCapturedStdout();
}

// What the call leaves in a buffer of this size, which is allocated to size.
std::string in_buffer(aaa_attr_list_handle list, std::size_t size) {
  std::vector<char> buffer(size, '~');
  aaa_attr_list_print_to_output_buffer(list, buffer.data(), static_cast<std::int32_t>(size));
  return std::string(buffer.data(), strnlen(buffer.data(), size));
}

std::string in_hex(std::uint64_t number) { return (std::ostringstream() << std::hex << number).str(); }

const std::string kAddress = "\x20\x01\x0d\xb8\0\0\0\0\0\0\0\0\0\0\0\1"s;

// As a sender may write them: values shorter than their formats need cannot be added, but received.
TEST(AttributeLine, EveryFormat) {
  setenv("TZ", "UTC", 1);
  tzset();
  const std::string kTooLong = "Data length exceeds buffer size";
  std::string octets;
  while (octets.size() < 300) octets += "78 ";
  const struct {
    const char *what;
    std::uint32_t type;
    std::string value, header, text;
    std::optional<std::string> brief = {};  // where it is not "value= " and the text
  } rows[] = {
      {"text up to its first NUL", type::kString, "a\0b\0"s, "username        len=  3  ", "a"},
      {"long name, empty text", 13, "\0"s, "Stateful-IPv6-Address-Pool len=  0  ", ""},
      {"short number", type::kUlong, "\1\2", "ipv4-icmp-unreachable len=  2  ",
       kBigEndianHost ? "16908288(1020000)" : "513(201)"},
      {"enum", type::kEnum, "\7\0\0\0"s, "Acct-Status-Type len=  4  ", "Accounting-On"},
      {"IPv4", type::kIpv4, "\x0a\0\xff\1"s, "addr            len=  4  ", "10.0.255.1"},
      {"IPv6", 11, kAddress, "addrv6          len= 16  ", "2001:db8::1"},
      {"Address of 4 bytes", type::kAddress, "\x0a\0\0\1"s, "HOST IP Address len=  4  ", "10.0.0.1"},
      {"Address of 5 bytes", type::kAddress, "\x20\1\x0d\xb8\1", "HOST IP Address len=  5  ", "2001:db8:100::"},
      {"year 10000", type::kUtc, "\x80\x41\xf4\xff\x3a\0\0\0"s, "start_time      len=  8  ", "253402300800"},
      {"true", type::kBoolean, "\x80", "force-local-chap len=  1  ", "true"},
      {"secret", type::kSecret, "1234", "password        len=  4  ", "<opaque value>"},
      {"prefix", type::kPrefix, "\0\x20"s + kAddress, "prefix          len= 18  ", "2001:db8::/32"},
      {"prefix of 129 bits", AAA_ATTR_TYPE_DELEGATED_PREFIX, "\0\x81"s + kAddress, "delegated-prefix len= 18  ", ""},
      {"client id with a NUL, a blank and \\xff", type::kClientId, "\1a\0 \xff\0"s, "dhcp-client-id  len=  5  ",
       "0x01-0x61-0x00-0x20-0xff(type :0x01, a* *)", "value= \1a"},
      {"longest value shown", type::kString, std::string(230, 'x') + '\0', "username        len=230  ",
       std::string(230, 'x'), "value= " + std::string(223, 'x')},
      {"value too long", type::kString, std::string(231, 'x') + '\0', "username        len=231  ", kTooLong, kTooLong},
      {"octets cut at the line's end", type::kBinary, std::string(100, 'x'), "user-data       len=100  ",
       octets.substr(0, 230), "value= " + octets.substr(0, 223)},
      {"unknown type", 9999, "abc", "\nBAD TYPE 9999 length 3", "", ""},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.what);
    List list;
    ASSERT_EQ(decode(flat({block(kHead | kLast, 1, {record(row.type, row.value)})}), &list), 0u);
    const std::string full = handed(aaa_attr_list_display, list), brief = handed(aaa_attr_list_display_brief, list);
    EXPECT_EQ(full.substr(full.rfind('|')), "|\n1:  " + row.header + row.text);
    EXPECT_EQ(brief.substr(brief.rfind('|')), "|\n1:  " + row.header + row.brief.value_or("value= " + row.text));
  }
}

TEST(ListText, NestedLists) {
  const aaa_attr_meta meta = {255, 2, 0xFFFF, host_meta_flags(3), 0xFFFF};
  List list;
  List inner(list.text(type::kString, "bob", &meta).number(AAA_ATTR_TYPE_ACL, 0).group(type::kGrouped));
  aaa_attr_remove(list, 4);
  ASSERT_EQ(aaa_attr_add(list, 445, &kNoList, sizeof kNoList, nullptr), 0u);
  const aaa_attr_list_handle sub = inner.number(2, 1, &meta).release();
  const auto low = [](std::uint64_t handle) {  // the half of it that lies first
    const std::uint64_t n = kBigEndianHost ? handle >> 32 : handle & 0xFFFFFFFF;
    return std::to_string(n) + "(" + in_hex(n) + ")";
  };
  const std::string L = in_hex(list), S = in_hex(sub), B = in_hex(kNoList);
  const std::string failed = "2:  Failed AVP      len=  8  ", result = "3:  Experimental result AVP len=  8  ";
  const std::string meta_text = "svc<255> prot<2> tag<65535> mand<1> client<0xffff>";
  const std::string bob = "1:  username        len=  3  " + meta_text + "bob";
  const std::string one = "1:  ipv4-icmp-unreachable len=  4  " + meta_text + "1(1)";
  EXPECT_EQ(printed(aaa_attr_list_print, list),
            "\nAttribute list: " + L + "\n" + bob + "\n" + failed + low(sub) + "\nGrouped attribute: " + S +
                "\n\nAttribute list: " + S + "\n" + one + "\nEnd of group list: " + S + "\n" + result + low(kNoList) +
                "\nGrouped attribute: " + B + "\n\nBad List " + B + "End of group list: " + B + "\n");
  EXPECT_EQ(handed(aaa_attr_list_display, list), "|Attribute List: 0x" + L + "|\n" + bob + "|\n" + failed + low(sub) +
                                                     "|Grouped Attribute: " + S + "|Attribute List: 0x" + S + "|\n" +
                                                     one + "|\n" + result + low(kNoList) + "|Grouped Attribute: " + B +
                                                     "|Bad List: " + B);
  EXPECT_EQ(handed(aaa_attr_list_display_brief, list),
            "| Attribute List: 0x" + L + "|\n1:  username        len=  3  value= bob|\n" + failed +
                "value= " + low(sub) + "|Grouped Attribute: " + std::to_string(sub) + "|Attribute List: 0x" + S +
                "|\n" + one + "|\n" + result + "value= " + low(kNoList) +
                "|Grouped Attribute: " + std::to_string(kNoList) + "|Bad List: " + B);
  EXPECT_EQ(handed(summarize, list), "|Total attribute size 19 for 3 attributes, max_size 8 for attr " +
                                         failed.substr(4) + low(sub) + " min_size 3 for attr " + bob.substr(4));
  const std::string whole = "\n" + bob + "\n\n" + failed + low(sub) + "\n\nGrouped attribute: " + S + "\n\n" + one +
                            "\n\n" + result + low(kNoList) + "\n\nGrouped attribute: " + B + "\n\nBad List " + B;
  for (std::size_t size = 1; size < whole.size() + 3; ++size)
    EXPECT_EQ(in_buffer(list, size), whole.substr(0, size - 1));
}

TEST(ListText, EmptyListsAndBadOnes) {
  const List list;
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 0 for 0 attributes, max_size 0 for attr  min_size 0 for attr ");
  EXPECT_EQ(in_buffer(list, 4), "~~~~") << "left as it was";
  EXPECT_EQ(handed(aaa_attr_list_display_brief, kNoList), "|Bad List: " + std::to_string(kNoList));
  EXPECT_EQ(handed(summarize, kNoList), "");
  EXPECT_EQ(handed(summarize, 0), "");
}

TEST(ListText, SummaryNamesTheFirstOfEquals) {
  List list;
  list.text(30, "12345").text(197, "abc").text(31, "123").text(26, "12345");
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 16 for 4 attributes, max_size 5 for attr user-data       len=  5  "
            "31 32 33 34 35  min_size 3 for attr username        len=  3  abc");
  // An empty value does not stay the shortest; an empty list would name none.
  ASSERT_EQ(decode(flat({block(kHead | kLast, 1, {record(197, "\0"sv), record(2, "\4\0\0\0"sv)})}), &list), 0u);
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 4 for 2 attributes, max_size 4 for attr ipv4-icmp-unreachable len=  4  4(4) "
            "min_size 4 for attr ipv4-icmp-unreachable len=  4  4(4)");
  EXPECT_EQ(handed(summarize, list.text(197, std::string(200, 'x'))).size(), 1 + 255u) << "cut";
}

// LI attributes are neither shown nor counted, in no display, until the flag is set.
TEST(ListText, LiAttributesAreHidden) {
  List list;
  list.number(2, 1).text(type::kLi, "li").number(3, 2);
  const Bytes buffer = flat_buffer(list);
  for (const std::uint32_t flag : {0u, 1u, 0u}) {
    SCOPED_TRACE(flag);
    aaa_attr_set_debug_li(flag);
    for (const std::string &text : {printed(aaa_attr_list_print, list), handed(aaa_attr_list_display, list),
                                    handed(aaa_attr_list_display_brief, list), in_buffer(list, 500),
                                    printed(aaa_attr_list_buffer_print, buffer.data())}) {
      EXPECT_EQ(text.find("2:  intercept-id    len=  2  ") != std::string::npos, flag != 0) << text;
      EXPECT_NE(text.find((flag ? "3"s : "2"s) + ":  Acct-Status-Type"), std::string::npos) << text;
    }
    EXPECT_NE(handed(summarize, list).find(flag ? "10 for 3 attributes" : "8 for 2 attributes"), std::string::npos);
  }
}

// Showing a prefix clears the bits after its length: in a list for good, in a buffer for the eye only.
TEST(ListText, PrefixesAreMasked) {
  const std::string value = "\0\x3c"s + std::string(16, '\xff'), shown = "ffff:ffff:ffff:fff0::/60";
  for (const auto display : {aaa_attr_list_display, aaa_attr_list_display_brief, summarize}) {
    List list;
    EXPECT_NE(handed(display, list.text(AAA_ATTR_TYPE_DELEGATED_PREFIX, value)).find(shown), std::string::npos);
    EXPECT_EQ(outline(list), "336=003cfffffffffffffff0ffffffffffffffff");
  }
  const Bytes buffer = flat({block(kHead | kLast, 1, {record(AAA_ATTR_TYPE_DELEGATED_PREFIX, value)})}),
              before = buffer;
  EXPECT_NE(printed(aaa_attr_list_buffer_print, buffer.data()).find(shown), std::string::npos);
  EXPECT_EQ(buffer, before);
}

// A handle with the number in both halves: the line shows the one that lies first, what comes after it the lower one.
std::string handle_with(std::uint64_t number) {
  const Bytes bytes = in_host_order(number << 32 | number);
  return std::string(bytes.begin(), bytes.end());
}

// The k-th Grouped record of a block owns the k-th list after it.
TEST(BufferPrint, NestedListsOfTheirRecords) {
  const auto grouped = [](std::uint32_t n, unsigned flags = 0) {
    return record(type::kGrouped, handle_with(n), flags);
  };
  const auto list_of_one = [](unsigned flags, char n) { return block(flags, 1, {record(2, n + "\0\0\0"s)}); };
  const Bytes buffer = flat({block(kHead | kGroups, 2, {grouped(1), grouped(9, 2), grouped(2)}),
                             block(kHead | kLast | kGroups, 1, {grouped(3)}), list_of_one(kHead | kLast, 1),
                             list_of_one(kHead | kLast, 2), list_of_one(kLast, 3)});
  const auto title = [&buffer](unsigned offset) {
    return "\nAttribute list: " + std::to_string(reinterpret_cast<std::uintptr_t>(buffer.data()) + offset);
  };
  const std::string group = ":  Failed AVP      len=  8  ", number = ":  ipv4-icmp-unreachable len=  4  ";
  EXPECT_EQ(printed(aaa_attr_list_buffer_print, buffer.data()),
            title(0) + "\n1" + group + "1(1)\nGrouped attribute: 1" + title(72) + "\n1" + group +
                "3(3)\nGrouped attribute: 3" + title(112) + "\n1" + number + "1(1)\n2" + group +
                "2(2)\nGrouped attribute: 2" + title(148) + "\n1" + number + "2(2)\n3" + number + "3(3)");
}

// Where a nested list ends in the middle of a record, neither it nor a list after it can be told from other bytes.
TEST(BufferPrint, EndsAtANestedListThatDoesNotHoldTogether) {
  const auto grouped = [](std::uint32_t n) { return record(type::kGrouped, handle_with(n)); };
  Bytes damaged = grouped(3);
  damaged[4] = 99;  // its length
  const Bytes buffer = flat({block(kHead | kLast | kGroups, 2, {grouped(1), grouped(2)}),
                             block(kHead | kLast | kGroups, 1, {damaged}), block(kHead | kLast, 0, {})});
  const std::string group = ":  Failed AVP      len=  8  ";
  EXPECT_EQ(printed(aaa_attr_list_buffer_print, buffer.data()),
            "\nAttribute list: " + std::to_string(reinterpret_cast<std::uintptr_t>(buffer.data())) + "\n1" + group +
                "1(1)\nGrouped attribute: 1\n2" + group + "2(2)\nGrouped attribute: 2");
}

TEST(BinToStr, FillsTheRoomThereIs) {
  const std::uint8_t bytes[] = {0x0A, 0xFF, 0x00};
  std::uint32_t length = 77;
  for (std::uint32_t size = 1; size < 9; ++size) {
    std::vector<char> text(size, '~');
    EXPECT_EQ(aaa_attr_bin_to_str(bytes, 3, text.data(), size, &length), 0u);
    EXPECT_EQ(text.data(), std::string("0aff00").substr(0, size - 1)) << size;
    EXPECT_EQ(length, std::min(size - 1, 6u));
  }
  char text[] = "~";
  EXPECT_EQ(aaa_attr_bin_to_str(bytes, 0, text, 2, &length), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_bin_to_str(bytes, -1, text, 2, &length), 0u);
  EXPECT_EQ(text + std::to_string(length), "~0");
}

}  // namespace
