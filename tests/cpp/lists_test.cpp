// Lists through the C++ interface: walking as ranges, ownership, combining, bytes. The C interface tells who owns what:
// the address sanitizer's run finds what is freed twice or not at all.
#include <gtest/gtest.h>
#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <numeric>
#include <ranges>
#include <vector>

namespace {

namespace attr = attrmgr::attr;
using attrmgr::attribute;
using attrmgr::flat_view;
using attrmgr::list;
using attrmgr::list_ref;
using attrmgr::list_view;

static_assert(std::forward_iterator<attrmgr::iterator>);
static_assert(std::sentinel_for<std::default_sentinel_t, attrmgr::iterator>);
static_assert(std::ranges::forward_range<list> && std::ranges::forward_range<const list>);
static_assert(std::ranges::view<list_view> && std::ranges::borrowed_range<list_view>);
static_assert(!std::ranges::view<list> && !std::ranges::borrowed_range<list>);
static_assert(std::ranges::forward_range<flat_view> && std::ranges::forward_range<attrmgr::attributes>);
static_assert(std::ranges::forward_range<decltype(list_view().all(attr::route))>);
static_assert(!std::copyable<list> && std::movable<list> && std::is_nothrow_move_constructible_v<list>);
static_assert(std::is_trivially_copyable_v<attribute> && sizeof(attribute) == sizeof(void *) + 8);
static_assert(sizeof(list) == sizeof(aaa_attr_list_handle));

list sample() {
  list made;
  made.add(attr::username, "bob");
  for (const std::uint32_t mtu : {1500u, 1492u, 9000u}) made.add(attr::framed_mtu, mtu);
  list_ref group = made.add_group(attr::subscription_id);
  group.add(attr::subscription_id_type, "end-user-imsi");
  group.add(attr::subscription_id_data, "100-2277");
  return made;
}

template <class Operation>
aaa_attr_cerrno thrown(Operation operation) {
  try {
    operation();
  } catch (const attrmgr::error &failure) {
    return static_cast<aaa_attr_cerrno>(failure.code().value());
  }
  return 0;
}

TEST(CppWalk, VisitsAttributesInOrder) {
  const list made = sample();
  std::vector<std::uint32_t> types;
  for (const attribute a : made) types.push_back(a.type());
  EXPECT_EQ(types, (std::vector<std::uint32_t>{197, 72, 72, 72, 485}));

  const auto big = std::ranges::find_if(made, [](attribute a) { return a.value(attr::framed_mtu).value_or(0) > 1500; });
  ASSERT_NE(big, made.end());
  EXPECT_EQ(big->value<std::uint32_t>(), 9000u);
  EXPECT_EQ(std::ranges::count(made, attr::framed_mtu, &attribute::type), 3);
  const auto same_type = std::ranges::adjacent_find(made, {}, &attribute::type);  // needs two iterators at once
  EXPECT_EQ(same_type->value<std::uint32_t>(), 1500u);

  const auto mtus = made.all(attr::framed_mtu);
  EXPECT_EQ(std::accumulate(mtus.begin(), std::ranges::next(mtus.begin(), mtus.end()), 0u), 11992u);
  EXPECT_EQ(std::ranges::distance(list()), 0);

  std::vector<std::string> names;
  for (const attribute a : made)
    if (const auto group = a.group())
      for (const attribute inner : *group) names.emplace_back(inner.name());
  EXPECT_EQ(names, (std::vector<std::string>{"Subscription Id type", "Subscription ID Data"}));
  EXPECT_STREQ(made.get(attr::subscription_id)->begin()->value_name(), "end-user-imsi");
}

TEST(CppLists, AreMovedAndOwnWhatTheyHold) {
  list first = sample();
  const aaa_attr_list_handle handle = first.handle();
  list second = std::move(first);
  EXPECT_EQ(second.handle(), handle);
  EXPECT_EQ(thrown([&] { (void)first.begin(); }), AAA_ATTR_ERR_BAD_LIST) << "a moved-from list is no list";
  first = std::move(second);
  list &self = first;
  first = std::move(self);
  EXPECT_EQ(first.handle(), handle);

  list inner;
  inner.add(attr::username, "eve");
  first.add(attr::failed_avp, std::move(inner));
  EXPECT_EQ(inner.handle(), 0u) << "the group owns it";
  EXPECT_EQ(first.get(attr::failed_avp)->get(attr::username), "eve");

  list kept;
  EXPECT_EQ(first.try_add(attr::failed_avp, std::move(first)).code(), AAA_ATTR_ERR_BAD_ARG) << "not into itself";
  EXPECT_EQ(first.handle(), handle) << "what was not added is not taken";

  first.group(attr::failed_avp)->set(attr::username, "mallory");
  std::optional<list> taken = first.take(attr::failed_avp);
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->get(attr::username), "mallory");
  EXPECT_FALSE(first.take(attr::failed_avp));
  EXPECT_FALSE(first.contains(attr::failed_avp));

  const aaa_attr_list_handle given = first.release();
  EXPECT_EQ(list::adopt(given).count(attr::framed_mtu), 3);
}

TEST(CppLists, AreChanged) {
  list made = sample();
  made.remove(attr::framed_mtu, 1492);
  EXPECT_EQ(made.count(attr::framed_mtu), 2);
  made.remove_if([](attribute a) { return a.type() == attr::framed_mtu || a.has_group(); });  // the sub-list too
  EXPECT_EQ(std::ranges::distance(made), 1);
  made.pack();
  EXPECT_EQ(aaa_attr_list_attr_count(made.handle()), 1u);

  list other = sample();
  made.append(other);
  EXPECT_EQ(made.count(attr::username), 2);
  made.append(other, attr::subscription_id);
  EXPECT_EQ(made.count(attr::subscription_id), 2);
  EXPECT_NE(made.get(attr::subscription_id)->handle(), other.get(attr::subscription_id)->handle()) << "a copy";
  made.replace_types_of(other);
  EXPECT_TRUE(made == other);
  made.set(attr::username, "eve");
  made.remove_values_of(other);
  EXPECT_EQ(std::ranges::distance(made), 2) << "another name, and a group of its own";
  made.merge(other);
  EXPECT_EQ(made.get(attr::username), "bob");
  for (const attribute a : list_view(other)) made.add(a);
  EXPECT_EQ(made.count(attr::subscription_id), 2);
  made.remove_types_of(other);
  EXPECT_TRUE(made.empty());

  made.add(attr::route, "a");
  made.splice(std::move(other));
  EXPECT_EQ(other.handle(), 0u);
  EXPECT_EQ(std::ranges::distance(made), 6);
  made.keep(attr::route, attr::username);
  EXPECT_EQ(std::ranges::distance(made), 2);
  made.keep();
  EXPECT_TRUE(made.empty());
  EXPECT_EQ(thrown([&] { made.splice(std::move(made)); }), AAA_ATTR_ERR_BAD_ARG);
  made.add(attr::route, "b");
  EXPECT_TRUE(made.copy() == made);
  made.init_producer_client_type(3);
  made.set_producer_client_type(4);
  EXPECT_EQ(made.begin()->producer_client_type(), 4u);
}

TEST(CppBytes, ComeBackAsTheSameList) {
  list made = sample();
  const std::vector<std::byte> flat = made.to_flat();
  EXPECT_TRUE(list::from_bytes(flat) == made);
  EXPECT_TRUE(list::from_bytes(made.to_tlv()) == made);
  EXPECT_EQ(made.to_flat_as_it_stands().size(), flat.size());
  EXPECT_EQ(made.flat_size(), flat.size());

  std::vector<std::byte> memory(flat.size());
  EXPECT_EQ(made.to_flat(std::span(memory)).size(), flat.size());
  EXPECT_EQ(thrown([&] { (void)made.to_flat(std::span(memory).first(10)); }), AAA_ATTR_ERR_BAD_FORMAT);

  std::vector<std::byte> gathered;
  for (const std::span<const std::byte> piece : made.to_pieces())
    gathered.insert(gathered.end(), piece.begin(), piece.end());
  EXPECT_TRUE(list::from_bytes(gathered) == made);
}

TEST(CppBytes, AreReadInPlaceOnceTheyAreChecked) {
  list made = sample();
  const std::vector<std::byte> flat = made.to_flat();
  const flat_view view = flat_view::check(flat);
  EXPECT_EQ(std::ranges::distance(view), 5);
  EXPECT_EQ(view.get(attr::username), "bob");
  EXPECT_FALSE(view.get(attr::route));
  EXPECT_EQ(std::ranges::count(view, attr::framed_mtu, &attribute::type), 3);
  const auto group = view.find(attr::subscription_id);
  EXPECT_TRUE(group && !group->group()) << "a handle in a buffer means nothing";
  EXPECT_EQ(group->try_value<list_view>().code(), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_TRUE(view.to_list() == made);
  list copied;
  copied.add(*view.begin());
  EXPECT_EQ(copied.get(attr::username), "bob");
  EXPECT_EQ(thrown([&] { copied.add(*group); }), AAA_ATTR_ERR_BAD_ARG);

  for (std::size_t size = 0; size < flat.size(); ++size)
    ASSERT_FALSE(flat_view::try_check(std::span(flat).first(size))) << size << " bytes";
  EXPECT_FALSE(attrmgr::fault_of(flat, AAA_ATTR_READER_IN_PLACE));
  const auto fault = attrmgr::fault_of(std::span(flat).first(20));
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->code, attrmgr::errc::bad_buffer);
  EXPECT_EQ(fault->rule, AAA_ATTR_RULE_USED_MAX);
  EXPECT_EQ(fault->offset, 11u);
  EXPECT_STREQ(fault->sentence(), "a block's used bytes must end within the buffer");
  EXPECT_EQ(flat_view::try_check(made.to_tlv()).code(), AAA_ATTR_ERR_BAD_ARG);
}

}  // namespace
