// Whole lists as text: numbering, nested lists, LI attributes, summaries, and buffers of every size.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

using namespace std::literals;

int collect(char *line, std::uint64_t context) {
  *reinterpret_cast<std::string *>(context) += "|"s + line;
  return 0;
}

// Everything that a call hands out, each line behind a '|'.
template <class Call>
std::string handed(Call call, aaa_attr_list_handle list) {
  std::string text;
  call(list, collect, reinterpret_cast<std::uintptr_t>(&text));
  return text;
}

void summarize(aaa_attr_list_handle list, aaa_attr_output_fn output, std::uint64_t context) {
  aaa_display_summ_attr_list_fn(list, 7, output, context);
}

std::string printed(aaa_attr_list_handle list) {
  testing::internal::CaptureStdout();
  aaa_attr_list_print(list);
  return testing::internal::GetCapturedStdout();
}

std::string printed(const Bytes &buffer) {
  testing::internal::CaptureStdout();
  aaa_attr_list_buffer_print(buffer.data());
  return testing::internal::GetCapturedStdout();
}

// What the call leaves in a buffer of this size, which is allocated to size.
std::string in_buffer(aaa_attr_list_handle list, std::size_t size) {
  std::vector<char> buffer(size, '~');
  aaa_attr_list_print_to_output_buffer(list, buffer.data(), static_cast<std::int32_t>(size));
  return std::string(buffer.data(), strnlen(buffer.data(), size));
}

// The text with {x}, {d} and {low} after a letter in place of a handle: hexadecimal, decimal, low 32 bits in both.
std::string with_handles(std::string text, std::initializer_list<std::pair<const char *, std::uint64_t>> handles) {
  const auto hexadecimal = [](std::uint64_t number) {
    std::ostringstream digits;
    digits << std::hex << number;
    return digits.str();
  };
  for (const auto &[name, handle] : handles) {
    const std::uint64_t low = handle & 0xFFFFFFFF;
    const std::pair<std::string, std::string> forms[] = {
        {name + "{x}"s, hexadecimal(handle)},
        {name + "{d}"s, std::to_string(handle)},
        {name + "{low}"s, std::to_string(low) + "(" + hexadecimal(low) + ")"},
    };
    for (const auto &[from, to] : forms)
      for (std::size_t at; (at = text.find(from)) != std::string::npos;) text.replace(at, from.size(), to);
  }
  return text;
}

TEST(ListText, NestedLists) {
  const aaa_attr_meta meta = {1, 2, 3, 1, 4};
  List list;
  List inner(list.text(197, "bob", &meta).number(4, 0).group(444));
  aaa_attr_remove(list, 4);
  aaa_attr_add(list, 445, &kNoList, sizeof kNoList, nullptr);
  inner.number(2, 1, &meta).number(3, 2);
  const aaa_attr_list_handle sub_list = inner.release();
  const auto expected = [&](const char *text) {
    return with_handles(text, {{"L", list}, {"S", sub_list}, {"B", kNoList}});
  };
  EXPECT_EQ(printed(list), expected("\nAttribute list: L{x}\n"
                                    "1:  username        len=  3  svc<1> prot<2> tag<3> mand<1> client<0x4>bob\n"
                                    "2:  Failed AVP      len=  8  S{low}\n"
                                    "Grouped attribute: S{x}\n"
                                    "\nAttribute list: S{x}\n"
                                    "1:  ipv4-icmp-unreachable len=  4  svc<1> prot<2> tag<3> mand<1> client<0x4>1(1)\n"
                                    "2:  Acct-Status-Type len=  4  Stop\n"
                                    "End of group list: S{x}\n"
                                    "3:  Experimental result AVP len=  8  B{low}\n"
                                    "Grouped attribute: B{x}\n"
                                    "\nBad List B{x}End of group list: B{x}\n"));
  EXPECT_EQ(handed(aaa_attr_list_display, list),
            expected("|Attribute List: 0xL{x}"
                     "|\n1:  username        len=  3  svc<1> prot<2> tag<3> mand<1> client<0x4>bob"
                     "|\n2:  Failed AVP      len=  8  S{low}"
                     "|Grouped Attribute: S{x}"
                     "|Attribute List: 0xS{x}"
                     "|\n1:  ipv4-icmp-unreachable len=  4  svc<1> prot<2> tag<3> mand<1> client<0x4>1(1)"
                     "|\n2:  Acct-Status-Type len=  4  Stop"
                     "|\n3:  Experimental result AVP len=  8  B{low}"
                     "|Grouped Attribute: B{x}"
                     "|Bad List: B{x}"));
  EXPECT_EQ(handed(aaa_attr_list_display_brief, list),
            expected("| Attribute List: 0xL{x}"
                     "|\n1:  username        len=  3  value= bob"
                     "|\n2:  Failed AVP      len=  8  value= S{low}"
                     "|Grouped Attribute: S{d}"
                     "|Attribute List: 0xS{x}"
                     "|\n1:  ipv4-icmp-unreachable len=  4  svc<1> prot<2> tag<3> mand<1> client<0x4>1(1)"
                     "|\n2:  Acct-Status-Type len=  4  Stop"
                     "|\n3:  Experimental result AVP len=  8  value= B{low}"
                     "|Grouped Attribute: B{d}"
                     "|Bad List: B{x}"));
  EXPECT_EQ(handed(summarize, list),
            expected("|Total attribute size 19 for 3 attributes, max_size 8 for attr Failed AVP      len=  8  S{low} "
                     "min_size 3 for attr username        len=  3  svc<1> prot<2> tag<3> mand<1> client<0x4>bob"));

  const std::string whole = expected(
      "\n1:  username        len=  3  svc<1> prot<2> tag<3> mand<1> client<0x4>bob\n"
      "\n2:  Failed AVP      len=  8  S{low}\n"
      "\nGrouped attribute: S{x}\n"
      "\n1:  ipv4-icmp-unreachable len=  4  svc<1> prot<2> tag<3> mand<1> client<0x4>1(1)\n"
      "\n2:  Acct-Status-Type len=  4  Stop\n"
      "\n3:  Experimental result AVP len=  8  B{low}\n"
      "\nGrouped attribute: B{x}\n"
      "\nBad List B{x}");
  EXPECT_EQ(in_buffer(list, 10), "\n1:  user");
  for (std::size_t size = 1; size < whole.size() + 3; ++size)
    EXPECT_EQ(in_buffer(list, size), whole.substr(0, size - 1));
}

TEST(ListText, EmptyListsAndBadOnes) {
  const List list;
  EXPECT_EQ(printed(list), with_handles("\nAttribute list: L{x}\n", {{"L", list}}));
  EXPECT_EQ(handed(aaa_attr_list_display, list), with_handles("|Attribute List: 0xL{x}", {{"L", list}}));
  EXPECT_EQ(handed(aaa_attr_list_display_brief, list), with_handles("| Attribute List: 0xL{x}", {{"L", list}}));
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 0 for 0 attributes, max_size 0 for attr  min_size 0 for attr ");
  EXPECT_EQ(in_buffer(list, 4), "~~~~") << "left as it was";

  EXPECT_EQ(printed(0), "\nBad List 0");
  EXPECT_EQ(handed(aaa_attr_list_display, 0), "|Bad List: 0");
  EXPECT_EQ(handed(aaa_attr_list_display_brief, kNoList), with_handles("|Bad List: B{d}", {{"B", kNoList}}));
  EXPECT_EQ(handed(summarize, kNoList), "");
  EXPECT_EQ(handed(summarize, 0), "");
  EXPECT_EQ(in_buffer(0, 12), "\nBad List 0");
  EXPECT_EQ(in_buffer(0, 5), "\nBad");
  char text[] = "~~~";
  for (const std::int32_t size : {0, -1}) aaa_attr_list_print_to_output_buffer(0, text, size);
  EXPECT_STREQ(text, "~~~");
  for (const auto call : {aaa_attr_list_display, aaa_attr_list_display_brief, summarize}) call(list, nullptr, 0);
}

TEST(ListText, SummaryNamesTheFirstOfEquals) {
  List list;
  list.text(30, "12345").text(197, "abc").text(31, "123").text(26, "1234567");
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 18 for 4 attributes, max_size 7 for attr challenge       len=  7  "
            "31 32 33 34 35 36 37  min_size 3 for attr username        len=  3  abc");
  // An empty value does not stay the shortest; an empty list would name none.
  ASSERT_EQ(decode(flat({block(kHead | kLast, 1, {record(197, "\0"sv), record(2, "\4\0\0\0"sv)})}), &list), 0u);
  EXPECT_EQ(handed(summarize, list),
            "|Total attribute size 4 for 2 attributes, max_size 4 for attr ipv4-icmp-unreachable len=  4  4(4) "
            "min_size 4 for attr ipv4-icmp-unreachable len=  4  4(4)");
  List long_texts;
  EXPECT_EQ(handed(summarize, long_texts.text(197, std::string(200, 'x'))).size(), 1 + 255u) << "cut";
}

// LI attributes are neither shown nor counted, in no display, until the flag is set.
TEST(ListText, LiAttributesAreHidden) {
  List list;
  list.number(2, 1).text(type::kLi, "li").number(3, 2);
  const Bytes buffer = flat_buffer(list);
  const std::string li = "intercept-id    len=  2  ";
  for (const std::uint32_t flag : {0u, 1u, 0u}) {
    SCOPED_TRACE(flag);
    aaa_attr_set_debug_li(flag);
    const std::string texts[] = {printed(list), handed(aaa_attr_list_display, list),
                                 handed(aaa_attr_list_display_brief, list), in_buffer(list, 500), printed(buffer)};
    for (const std::string &text : texts) {
      EXPECT_EQ(text.find("2:  " + li) != std::string::npos, flag != 0) << text;
      EXPECT_NE(text.find((flag ? "3"s : "2"s) + ":  Acct-Status-Type"), std::string::npos) << text;
    }
    EXPECT_NE(handed(summarize, list).find(flag ? "10 for 3 attributes" : "8 for 2 attributes"), std::string::npos);
  }
}

// Showing a prefix clears the bits behind its length: in a list for good, in a buffer for the eye only.
TEST(ListText, PrefixesAreMasked) {
  const std::string value = "\0\x3c\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff"s;
  const auto stored = [](aaa_attr_list_handle list) { return outline(list).substr(4, 22); };
  for (const auto display : {aaa_attr_list_display, aaa_attr_list_display_brief, summarize}) {
    List list;
    list.text(336, value);
    EXPECT_EQ(stored(list), "003cffffffffffffffffff");
    EXPECT_NE(handed(display, list).find("ffff:ffff:ffff:fff0::/60"), std::string::npos);
    EXPECT_EQ(stored(list), "003cfffffffffffffff0ff");
  }
  const Bytes buffer = flat({block(kHead | kLast, 1, {record(336, value)})}), before = buffer;
  EXPECT_NE(printed(buffer).find("ffff:ffff:ffff:fff0::/60"), std::string::npos);
  EXPECT_EQ(buffer, before);
}

// The k-th Grouped record of a block owns the k-th list behind it.
TEST(BufferPrint, NestedListsOfTheirRecords) {
  const Bytes buffer = flat({
      block(kHead | kGroups, 2,
            {record(444, "\1\0\0\0hand"sv), record(444, "old one!", 2), record(445, "\2\0\0\0hand"sv)}),
      block(kHead | kLast | kGroups, 1, {record(444, "\3\0\0\0hand"sv)}),  // at 73
      block(kHead | kLast, 1, {record(2, "\1\0\0\0"sv)}),                  // at 113
      block(kHead | kLast, 1, {record(2, "\2\0\0\0"sv)}),                  // at 149
      block(kLast, 1, {record(2, "\3\0\0\0"sv)}),
  });
  const auto at = [&buffer](unsigned offset) { return reinterpret_cast<std::uintptr_t>(buffer.data()) + offset; };
  EXPECT_EQ(printed(buffer), with_handles("\nAttribute list: A{d}"
                                          "\n1:  Failed AVP      len=  8  1(1)"
                                          "\nGrouped attribute: 1"
                                          "\nAttribute list: M{d}"
                                          "\n1:  Failed AVP      len=  8  3(3)"
                                          "\nGrouped attribute: 3"
                                          "\nAttribute list: N{d}"
                                          "\n1:  ipv4-icmp-unreachable len=  4  1(1)"
                                          "\n2:  Experimental result AVP len=  8  2(2)"
                                          "\nGrouped attribute: 2"
                                          "\nAttribute list: O{d}"
                                          "\n1:  ipv4-icmp-unreachable len=  4  2(2)"
                                          "\n3:  ipv4-icmp-unreachable len=  4  3(3)",
                                          {{"A", at(0)}, {"M", at(72)}, {"N", at(112)}, {"O", at(148)}}));
  testing::internal::CaptureStdout();
  aaa_attr_list_buffer_print(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(BinToStr, Rows) {
  const std::uint8_t bytes[] = {0x0A, 0xFF, 0x00};
  std::uint32_t length = 77;
  for (std::uint32_t size = 1; size < 9; ++size) {
    std::vector<char> text(size, '~');
    EXPECT_EQ(aaa_attr_bin_to_str(bytes, 3, text.data(), size, &length), 0u);
    EXPECT_EQ(text.data(), std::string("0aff00").substr(0, size - 1)) << size;
    EXPECT_EQ(length, std::min(size - 1, 6u));
  }
  char text[9] = "~";
  length = 77;
  const auto refused = [&length](const std::uint8_t *from, std::int32_t count, char *to, std::uint32_t size) {
    return aaa_attr_bin_to_str(from, count, to, size, &length) == AAA_ATTR_ERR_BAD_ARG;
  };
  EXPECT_TRUE(refused(bytes, 2, text, 0) && refused(bytes, 0, text, 9) && refused(bytes, 2, nullptr, 9));
  EXPECT_TRUE(refused(nullptr, -1, text, 9)) << "looked at before the count";
  EXPECT_EQ(length, 77u);
  EXPECT_EQ(aaa_attr_bin_to_str(bytes, -1, text, 9, &length), 0u);
  EXPECT_EQ(length, 0u);
  EXPECT_STREQ(text, "~");
}

}  // namespace
