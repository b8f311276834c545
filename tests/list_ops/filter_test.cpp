// Cutting a list down to a set of types, and adding sub-lists.
#include "support/changes.h"

namespace {

TEST(Filter, KeepsTheTypesAndNoHoles) {
  const auto keep = [](std::vector<std::uint32_t> types, std::uint32_t count) {
    return [=](List &list) {
      const aaa_attr_list_handle old = list;
      const aaa_attr_cerrno code = aaa_attr_filter_on_type(list.out(), types.data(), count);
      EXPECT_NE(list, old);
      return code;
    };
  };
  constexpr std::uint32_t kT = type::kString, kG = type::kGrouped;
  const std::uint32_t kU = type_named('U'), kV = type_named('V');
  expect_changes({
      {"T=a U=b V=c U=d", keep({kT, kV}, 2), "T=a V=c", "order stays"},
      {"T=a !T=b U+@5=c", keep({kU, kT}, 2), "T=a U+@5=c", "holes go"},
      {"T=* U=* T=b", keep({kU}, 1), "U=*", "whole blocks go"},
      {"G{T=a H{}} H{T=b G{}} T=* G+{U=c}", keep({kG}, 1), "G{T=a H{}} G+{U=c}", "sub-lists move or go"},
      {"T=a 0=null G{T=b}", keep({kT, 0, kG}, 3), "T=a", "the walk ends at type 0"},
      {"T=a G{}", keep({}, 0), "", "nothing is wanted"},
      {"T=a", keep({kT}, 256), "", "8 bits of the count"},
      {"T=a U=b", keep({kU, kT}, 256 + 1), "U=b", "8 bits of the count"},
      {"T=a U=b", keep(std::vector<std::uint32_t>(255, kT), 255), "T=a", "as many types as there can be"},
      {"T=a", keep({0x10000 + kT, 623}, 2), "", "other types"},
      {"", keep({kT}, 1), "", "nothing to keep"},
  });
  aaa_attr_list_handle no_list = 0;
  EXPECT_EQ(aaa_attr_filter_on_type(&no_list, nullptr, 0), AAA_ATTR_ERR_BAD_LIST);
}

// The rebuild cannot add a type outside the dictionary, which a buffer can bring. Then the old list stays, with its
// sub-lists, and only what was not wanted is gone.
TEST(Filter, FailedRebuildLosesNothing) {
  List list = list_of("G{T=x} U=y H{} N=z N=w V=v");
  const aaa_attr_list_handle old = list;
  const Block block(list);
  const std::size_t at_z = 24 + 16 + 10 + 16, at_w = at_z + 9;
  block.put(at_z, 700);
  block.put(at_w, 701);
  const std::uint32_t types[] = {type::kGrouped, 700, type_named('V')};
  EXPECT_EQ(aaa_attr_filter_on_type(list.out(), types, 3), AAA_ATTR_ERR_NOT_FOUND);
  EXPECT_EQ(list, old);
  block.put(at_z, type::kBinary);
  EXPECT_EQ(outline(list), outline_of("G{T=x} N=z V=v"));
  EXPECT_EQ(aaa_attr_list_attr_count(list), 6u);
}

TEST(GroupList, IsAddedAsItsHandle) {
  const struct {
    std::uint32_t type;
    aaa_attr_cerrno code;
  } rows[] = {{type::kGrouped, 0},
              {type::kUlong, AAA_ATTR_ERR_BAD_ARG},
              {type::kIpv6, AAA_ATTR_ERR_BAD_ARG},
              {type::kBinary, 0},
              {623, AAA_ATTR_ERR_NOT_FOUND}};
  for (const auto &row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type));
    const List parent;
    aaa_attr_list_handle sub_list = 77;
    std::uint64_t value = 0;
    EXPECT_EQ(aaa_attr_add_group_list(parent, &sub_list, row.type, &kMeta), row.code);
    EXPECT_EQ(aaa_attr_get_uint64_t(parent, row.type, &value), row.code == 0 ? 0 : AAA_ATTR_ERR_NOT_FOUND);
    EXPECT_EQ(sub_list, value);
    List other = list_of("T=x");
    EXPECT_EQ(aaa_attr_add_existing_group_list(parent, other, row.type, nullptr), row.code);
    if (row.type == type::kGrouped) {
      EXPECT_EQ(aaa_attr_list_append_list(sub_list, list_of("U=y")), 0u);
      EXPECT_EQ(outline(parent), outline_of("G+{U=y} G{T=x}"));
      other.release();
    }
    if (row.type == type::kBinary) aaa_attr_list_free(sub_list);  // a number to the parent
  }
  aaa_attr_list_handle sub_list = 77;
  EXPECT_EQ(aaa_attr_add_group_list(0, &sub_list, type::kGrouped, nullptr), AAA_ATTR_ERR_BAD_LIST);
  EXPECT_EQ(sub_list, 0u);
}

}  // namespace
