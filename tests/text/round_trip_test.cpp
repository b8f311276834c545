// Every list comes back from its text and from its JSON as it was.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <fstream>
#include <iterator>

#include "forms.h"
#include "support/any_list.h"
#include "text/printable.h"

namespace {

// What a form does not keep of the list; empty when it keeps all of it.
std::string lost_by_text(attrmgr::list_view list) {
  const std::string text = text_of(list);
  const Read read = attrtext::list_from_text(text);
  if (!error_of(read).empty()) return "the text is refused: " + error_of(read) + "\n" + text;
  const attrmgr::list &again = std::get<attrmgr::list>(read);
  if (!same_lists(list, again)) return "the text gives another list:\n" + text;
  if (text_of(again) != text) return "the text is not written the same again:\n" + text;
  return "";
}

std::string lost_by_json(attrmgr::list_view list) {
  const std::string json = json_of(list);
  const Read read = attrtext::list_from_json(json);
  if (!error_of(read).empty()) return "the JSON is refused: " + error_of(read) + "\n" + json;
  const attrmgr::list &again = std::get<attrmgr::list>(read);
  if (!same_lists(list, again)) return "the JSON gives another list:\n" + json;
  return json_of(again) == json ? "" : "the JSON is not written the same again:\n" + json;
}

// No byte that a terminal would not show, but for line ends.
std::string driven_by(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = text.front() == '\n' ? 1 : attrtext::printable_length(text);
    if (length == 0) return "a character that is not shown before: " + attrtext::printable(text.substr(0, 40));
    text.remove_prefix(length);
  }
  return "";
}

void expect_kept(attrmgr::list_view list) {
  EXPECT_EQ(lost_by_text(list), "");
  EXPECT_EQ(lost_by_json(list), "");
}

TEST(RoundTrip, EveryTypeWithEveryLengthThatItTakes) {
  const std::uint8_t value[] = {0x00, 0x41, 0x7F, 0x22, 0xFF, 0x20, 0x01, 0x80, 0x0A, 0x5C, 0x00, 0x00,
                                0x00, 0x00, 0x00, 0x01, 0x20, 0x00, 0x33, 0x44, 0x55, 0x66, 0x77, 0x20};
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    if (aaa_attr_get_format_from_type(type) == AAA_ATTR_FMT_GROUPED) continue;
    attrmgr::list list;
    for (std::uint32_t length = 1; length <= sizeof value; ++length)
      for (std::size_t from = 0; from + length <= sizeof value; from += 7)
        static_cast<void>(aaa_attr_add(list.handle(), type, value + from, length, nullptr));
    ASSERT_FALSE(list.empty()) << type;
    expect_kept(list);
  }
}

TEST(RoundTrip, EveryValueOfEveryEnum) {
  for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type) {
    if (aaa_attr_get_format_from_type(type) != AAA_ATTR_FMT_ENUM) continue;
    attrmgr::list list;
    for (std::uint32_t value = 0; value < 300; ++value)
      ASSERT_EQ(aaa_attr_add(list.handle(), type, &value, sizeof value, nullptr), 0u);
    expect_kept(list);
  }
}

TEST(RoundTrip, EveryMetaAndProducer) {
  attrmgr::list list;
  for (unsigned i = 0; i < 256; ++i) {
    const auto byte = static_cast<std::uint8_t>(i);
    for (const aaa_attr_meta &meta : {aaa_attr_meta{byte, 0, 0, 0, 0}, aaa_attr_meta{0, byte, 0, 0, 0},
                                      aaa_attr_meta{0, 0, static_cast<std::uint16_t>(i * 257), 0, 0},
                                      aaa_attr_meta{0, 0, 0, static_cast<std::uint16_t>(i * 257), 0},
                                      aaa_attr_meta{byte, byte, byte, byte, static_cast<std::uint16_t>(i * 257)}})
      ASSERT_EQ(aaa_attr_add_v1(list.handle(), AAA_ATTR_TYPE_USERNAME, "bob", 3, &meta, i), 0u);
    ASSERT_EQ(aaa_attr_add_v1(list.handle(), AAA_ATTR_TYPE_USERNAME, "bob", 3, nullptr, i), 0u);
  }
  expect_kept(list);
}

TEST(RoundTrip, ListsNestedAsDeepAsADecoderTakes) {
  attrmgr::list list;
  attrmgr::list_ref innermost = list;
  for (int i = 0; i < AAA_ATTR_NESTING_MAX; ++i)
    innermost = innermost.add_group(attrmgr::attr::failed_avp, {.tag = static_cast<std::uint16_t>(i)});
  expect_kept(list);
}

TEST(RoundTrip, TheExample) {
  std::ifstream file(ATTRMGR_EXAMPLE);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const Read read = attrtext::list_from_text(text);
  ASSERT_EQ(error_of(read), "");
  const auto &list = std::get<attrmgr::list>(read);
  EXPECT_EQ(std::ranges::distance(list), 32);
  expect_kept(list);
}

RC_GTEST_PROP(RoundTrip, AnyList, ()) {
  const auto bytes = *rc::gen::scale(8, rc::gen::arbitrary<std::vector<std::uint8_t>>());
  const attrmgr::list list = AnyList(bytes).make();
  const std::string problem =
      lost_by_text(list) + lost_by_json(list) + driven_by(text_of(list)) + driven_by(json_of(list));
  if (!problem.empty()) RC_FAIL(problem);
}

}  // namespace
