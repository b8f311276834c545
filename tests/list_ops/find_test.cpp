// Looking attributes up by type.
#include <gtest/gtest.h>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

// Everything the look-ups say of a type, with 99 where an out-parameter was left alone.
std::string found(aaa_attr_list_handle list, std::uint32_t type) {
  std::uint16_t count = 99;
  std::uint32_t length = 99, nth_length = 99, text_length = 99, number = 99;
  std::uint64_t wide = 99;
  const void *value = nullptr;
  const char *text = "99";
  aaa_attr_cerrno codes[] = {
      aaa_attr_find_attr_type_number(list, type, &count),   aaa_attr_get(list, type, &value, &length),
      aaa_attr_get_nth(list, type, &value, &nth_length, 1), aaa_attr_get_string(list, type, &text, &text_length),
      aaa_attr_get_uint32_t(list, type, &number),           aaa_attr_get_uint64_t(list, type, &wide)};
  char line[128];
  std::snprintf(line, sizeof line,
                "%d x%u, length %u, second %u, text %s %u, u32 %x, u64 %lx:", aaa_attr_is_present(list, type), count,
                length, nth_length, text, text_length, number, wide);
  std::string all = line;
  for (const aaa_attr_cerrno code : codes) all += ' ' + std::string(code == 0 ? "0" : aaa_attr_cerrno_name(code) + 13);
  return all;
}

TEST(Find, LookUpsAgreeOnTheLiveAttributes) {
  List list = list_of("!T=dead T+=abc T=de N=12345678 G{} U=x !V=y");
  list.text(type::kAddress, "sixteen bytes of").text(type::kAddress, "four");
  list.text(type::kSecret, "xx");
  Block(list).put(Block(list).used() - 8 - 2u, 700);  // a type that only a buffer can bring
  list.number(0, 1).number(type::kUlong, 5);
  std::uint64_t sub_list = 0;
  EXPECT_EQ(aaa_attr_get_uint64_t(list, type::kGrouped, &sub_list), 0u);
  EXPECT_EQ(outline(sub_list), "");
  char grouped[32];
  std::snprintf(grouped, sizeof grouped, "%lx", sub_list);
  const std::string none = "0 x0, length 99, second 99, text 99 99, u32 63, u64 63: 0 NOT_FOUND NOT_FOUND ";
  const struct {
    std::uint32_t type;
    std::string found;
  } rows[] = {
      {type::kString, "1 x2, length 3, second 2, text abc 3, u32 636261, u64 63: 0 0 0 0 0 BAD_ARG"},
      {type::kBinary,
       "1 x1, length 8, second 99, text 99 99, u32 63, u64 3837363534333231: "
       "0 0 NOT_FOUND BAD_ARG BAD_ARG 0"},
      {type::kGrouped, "1 x1, length 8, second 99, text 99 99, u32 63, u64 " + std::string(grouped) +
                           ": 0 0 NOT_FOUND BAD_ARG BAD_ARG 0"},
      {type_named('U'), "1 x1, length 1, second 99, text x 1, u32 63, u64 63: 0 0 NOT_FOUND 0 BAD_ARG BAD_ARG"},
      {type_named('V'), none + "NOT_FOUND NOT_FOUND NOT_FOUND"},
      {type::kAddress, "1 x2, length 16, second 4, text 99 99, u32 63, u64 63: 0 0 0 BAD_ARG BAD_ARG BAD_ARG"},
      {700, "1 x1, length 2, second 99, text 99 99, u32 63, u64 63: 0 0 NOT_FOUND BAD_ARG BAD_ARG BAD_ARG"},
      {0, none + "BAD_ARG NOT_FOUND NOT_FOUND"},
      {type::kUlong, none + "BAD_ARG NOT_FOUND NOT_FOUND"},  // a record of type 0 ends the walk before it
      {623, none + "BAD_ARG NOT_FOUND NOT_FOUND"},
      {0x10000 + type::kString, none + "BAD_ARG NOT_FOUND NOT_FOUND"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type));
    EXPECT_EQ(found(list, row.type), row.found);
  }
  const std::string refused = "0 x99, length 99, second 99, text 99 99, u32 63, u64 63:";
  std::string codes;
  for (int call = 0; call < 6; ++call) codes += " BAD_LIST";
  EXPECT_EQ(found(0, type::kString), refused + codes);
  EXPECT_EQ(found(0, type::kUlong), refused + " BAD_LIST BAD_LIST BAD_LIST BAD_ARG BAD_LIST BAD_LIST");
}

TEST(Find, NthCountsLiveAttributesOfTheType) {
  const List list = list_of("T=a U=x T=b !T=c T=* T=d");
  const char first[] = {'a', 'b', '*', 'd'};
  const void *value = nullptr;
  std::uint32_t length = 0;
  for (std::uint16_t n = 0; n < 4; ++n) {
    EXPECT_EQ(aaa_attr_get_nth(list, type::kString, &value, &length, n), 0u);
    EXPECT_EQ(*static_cast<const char *>(value), first[n]);
  }
  EXPECT_EQ(aaa_attr_get_nth(list, type::kString, &value, &length, 4), AAA_ATTR_ERR_NOT_FOUND);
  EXPECT_EQ(aaa_attr_get_nth(list, type::kString, &value, &length, 0xFFFF), AAA_ATTR_ERR_NOT_FOUND);
}

}  // namespace
