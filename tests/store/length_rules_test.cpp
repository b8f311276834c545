// Which lengths adding takes, how it stores them, and in which order it checks its arguments.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/blocks.h"
#include "support/list_text.h"

namespace {

constexpr std::uint32_t kAnyLength = 0xFFFF;

TEST(LengthRules, EveryTypeTakesTheLengthsOfItsFormat) {
  const struct {
    std::uint32_t format;
    std::vector<std::uint32_t> lengths;
    std::uint32_t nul;  // stored behind the value
  } rows[] = {
      {AAA_ATTR_FMT_STRING, {kAnyLength}, 1},
      {AAA_ATTR_FMT_BINARY, {kAnyLength}, 0},
      {AAA_ATTR_FMT_ULONG, {4}, 0},
      {AAA_ATTR_FMT_ULONGLONG, {kAnyLength}, 0},
      {AAA_ATTR_FMT_GROUPED, {8}, 0},
      {AAA_ATTR_FMT_ENUM, {4}, 0},
      {AAA_ATTR_FMT_IPV4, {4}, 0},
      {AAA_ATTR_FMT_IPV6, {16}, 0},
      {AAA_ATTR_FMT_ADDRESS, {4, 16}, 0},
      {AAA_ATTR_FMT_UTC, {kAnyLength}, 0},
      {AAA_ATTR_FMT_BOOLEAN, {1}, 0},
  };
  const Bytes zeros(512, 0);  // as a Grouped value the handle 0, which owns nothing
  for (std::uint32_t type = 0; type < AAA_ATTR_TYPE_COUNT; ++type) {
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    const auto *row = std::find_if(std::begin(rows), std::end(rows), [&](auto &r) { return r.format == format; });
    ASSERT_NE(row, std::end(rows)) << type;
    for (const std::uint32_t length : {0u, 1u, 2u, 3u, 4u, 5u, 7u, 8u, 9u, 15u, 16u, 17u, 300u}) {
      SCOPED_TRACE("type " + std::to_string(type) + ", length " + std::to_string(length));
      const bool any = row->lengths[0] == kAnyLength && length > 0;
      const bool suits = any || std::count(row->lengths.begin(), row->lengths.end(), length) != 0;
      List list;
      EXPECT_EQ(aaa_attr_add(list, type, zeros.data(), length, nullptr), suits ? 0 : AAA_ATTR_ERR_BAD_ARG);
      const Block block(list);
      EXPECT_EQ(block.record_count(), suits ? 1 : 0);
      if (suits) {
        EXPECT_EQ(block.get<std::uint32_t>(24 + 4), length + row->nul);
        EXPECT_EQ(block.used(), 24 + 8 + length + row->nul);
      }
    }
  }
}

TEST(LengthRules, RecordsStayBelowTheLargestBlock) {
  const struct {
    char type;
    const aaa_attr_meta *meta;
    std::uint32_t length;
    bool fits;
  } rows[] = {
      {'N', nullptr, 65503, true},      {'N', nullptr, 65504, false},      {'N', &kMeta, 65495, true},
      {'N', &kMeta, 65496, false},      {'T', nullptr, 65502, true},       {'T', nullptr, 65503, false},
      {'T', &kMeta, 65494, true},       {'T', &kMeta, 65495, false},       {'N', nullptr, 0xFFFFFFF8, false},
      {'N', &kMeta, 0xFFFFFFF0, false}, {'T', nullptr, 0xFFFFFFFF, false},
  };
  const Bytes value(65503, 'x');  // no longer: what is refused is not read either
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(1, row.type) + (row.meta != nullptr ? "+ " : " ") + std::to_string(row.length));
    List list;
    List replaced = list_of(std::string(1, row.type) + "=old");
    const aaa_attr_cerrno code = row.fits ? 0 : AAA_ATTR_ERR_BAD_ARG;
    EXPECT_EQ(aaa_attr_add(list, type_named(row.type), value.data(), row.length, row.meta), code);
    EXPECT_EQ(aaa_attr_add_or_replace(replaced, type_named(row.type), value.data(), row.length, row.meta), code);
    EXPECT_EQ(aaa_attr_list_attr_count(list), row.fits ? 1u : 0u);
    EXPECT_EQ(aaa_attr_list_attr_count(replaced), row.fits ? 2u : 1u);
    EXPECT_EQ(flaws(list) + flaws(replaced), "");
  }
}

TEST(LengthRules, ArgumentsAreCheckedInOrder) {
  const List list;
  const struct {
    const char *why;
    aaa_attr_list_handle list;
    std::uint32_t type;
    const char *value;
    std::uint32_t length;
    aaa_attr_cerrno add, add_or_replace;
  } rows[] = {
      {"the type comes first", 0, 623, nullptr, 0, AAA_ATTR_ERR_NOT_FOUND, AAA_ATTR_ERR_NOT_FOUND},
      {"not cut to 16 bits", list, 0x10000 + type::kBinary, "x", 1, AAA_ATTR_ERR_NOT_FOUND, AAA_ATTR_ERR_NOT_FOUND},
      {"no value", 0, type::kBinary, nullptr, 1, AAA_ATTR_ERR_BAD_ARG, AAA_ATTR_ERR_NOT_FOUND},
      {"no length", 0, type::kBinary, "x", 0, AAA_ATTR_ERR_BAD_ARG, AAA_ATTR_ERR_BAD_LIST},
      {"no length, good list", list, type::kBinary, "x", 0, AAA_ATTR_ERR_BAD_ARG, AAA_ATTR_ERR_BAD_ARG},
      {"the list before the format", 0, type::kUlong, "x", 1, AAA_ATTR_ERR_BAD_LIST, AAA_ATTR_ERR_BAD_LIST},
      {"the format last", list, type::kUlong, "x", 1, AAA_ATTR_ERR_BAD_ARG, AAA_ATTR_ERR_BAD_ARG},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(aaa_attr_add(row.list, row.type, row.value, row.length, nullptr), row.add);
    EXPECT_EQ(aaa_attr_add_v1(row.list, row.type, row.value, row.length, &kMeta, 5), row.add);
    EXPECT_EQ(aaa_attr_add_or_replace(row.list, row.type, row.value, row.length, nullptr), row.add_or_replace);
    EXPECT_EQ(aaa_attr_add_or_replace_v1(row.list, row.type, row.value, row.length, nullptr), row.add_or_replace);
    EXPECT_EQ(aaa_attr_add_or_replace_v2(row.list, row.type, row.value, row.length, &kMeta, 5), row.add_or_replace);
    EXPECT_EQ(aaa_attr_list_attr_count(list), 0u);
  }
}

}  // namespace
