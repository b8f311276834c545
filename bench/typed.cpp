// What the C++ interface costs over the C calls, which should be nothing: both build, search and walk the same lists,
// in turn, in one run. Many lists that differ, for one list repeated teaches the branch predictor. Prints for each
// operation the nanoseconds an attribute of both and the median of the rounds' ratios.
//
//   bench_typed [BOUND]      fails when a ratio is above the bound
#include <attrmgr/attrmgr.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

namespace attr = attrmgr::attr;
using attrmgr::list;

constexpr std::size_t kLists = 512;
constexpr std::size_t kPerList = 32;
constexpr int kRounds = 401;

// One attribute to add: of one of three types, in an order that no list shares with another.
struct Item {
  enum { kUser, kMtu, kAddress } kind;
  std::string text;
  std::uint32_t number;
  in_addr address;
};
using Items = std::vector<Item>;

std::vector<Items> all_items() {
  std::uint64_t state = 4711;
  const auto random = [&state] {
    state = state * 6364136223846793005U + 1442695040888963407U;  // a linear congruential sequence of 64 bits
    return static_cast<std::uint32_t>(state >> 32);
  };
  std::vector<Items> all(kLists);
  for (Items &items : all)
    for (std::size_t i = 0; i < kPerList; ++i) {
      const std::uint32_t number = random();
      items.push_back({decltype(Item::kind)(random() % 3), std::string(8 + random() % 17, 'x'), number, {number}});
    }
  return all;
}

// The two sides. Functions that are not in line, so that neither side sees more than the other.
#define SIDE [[gnu::noinline]]

SIDE void add_c(aaa_attr_list_handle to, const Items &items) {
  for (const Item &item : items) {
    switch (item.kind) {
      case Item::kUser:
        (void)aaa_attr_add(to, AAA_ATTR_TYPE_USERNAME, item.text.data(), static_cast<std::uint32_t>(item.text.size()),
                           nullptr);
        break;
      case Item::kMtu:
        (void)aaa_attr_add(to, AAA_ATTR_TYPE_FRAMED_MTU, &item.number, sizeof item.number, nullptr);
        break;
      case Item::kAddress:
        (void)aaa_attr_add(to, AAA_ATTR_TYPE_ADDR, &item.address, sizeof item.address, nullptr);
        break;
    }
  }
}

SIDE void add_cpp(list &to, const Items &items) {
  for (const Item &item : items) {
    switch (item.kind) {
      case Item::kUser:
        to.add(attr::username, item.text);
        break;
      case Item::kMtu:
        to.add(attr::framed_mtu, item.number);
        break;
      case Item::kAddress:
        to.add(attr::addr, item.address);
        break;
    }
  }
}

SIDE std::uint64_t find_c(aaa_attr_list_handle in) {
  std::uint64_t sum = 0;
  std::uint32_t number = 0;
  std::uint32_t length = 0;
  const void *text = nullptr;
  if (aaa_attr_get_uint32_t(in, AAA_ATTR_TYPE_FRAMED_MTU, &number) == 0) sum += number;
  if (aaa_attr_get(in, AAA_ATTR_TYPE_USERNAME, &text, &length) == 0) sum += length;
  if (aaa_attr_get_uint32_t(in, AAA_ATTR_TYPE_SESSION_TIMEOUT, &number) == 0) sum += number;
  return sum;
}

SIDE std::uint64_t find_cpp(const list &in) {
  std::uint64_t sum = 0;
  if (const auto number = in.get(attr::framed_mtu)) sum += *number;
  if (const auto text = in.get(attr::username)) sum += text->size();
  if (const auto number = in.get(attr::session_timeout)) sum += *number;
  return sum;
}

SIDE std::uint64_t walk_c(aaa_attr_list_handle over) {
  std::uint64_t sum = 0;
  aaa_cursor *cursor = nullptr;
  std::uint32_t type = 0;
  if (aaa_cursor_alloc(over, &cursor) == 0)
    while ((type = aaa_cursor_get_next(cursor)) != 0) {
      std::uint32_t length = 0;
      aaa_cursor_get(cursor, &length);
      sum += type + length;
    }
  aaa_cursor_free(cursor);
  return sum;
}

SIDE std::uint64_t walk_cpp(const list &over) {
  std::uint64_t sum = 0;
  for (const attrmgr::attribute a : over) sum += a.type() + a.bytes().size();
  return sum;
}

double seconds_of(auto operation) {
  const auto start = std::chrono::steady_clock::now();
  operation();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// Runs both sides in turn, each first in every other round, and prints. Returns the median of the ratios.
double compare(const char *name, auto c_side, auto cpp_side) {
  std::vector<double> c_times;
  std::vector<double> cpp_times;
  std::vector<double> ratios;
  for (int round = 0; round < kRounds; ++round) {
    double c = 0;
    double cpp = 0;
    if (round % 2 == 0) c = seconds_of(c_side);
    cpp = seconds_of(cpp_side);
    if (round % 2 != 0) c = seconds_of(c_side);
    c_times.push_back(c);
    cpp_times.push_back(cpp);
    ratios.push_back(cpp / c);
  }
  constexpr double kNanoseconds = 1e9 / (kLists * kPerList);
  const double ratio = median(ratios);
  std::printf("%-6s  C %6.2f ns  C++ %6.2f ns  ratio %.3f\n", name, median(c_times) * kNanoseconds,
              median(cpp_times) * kNanoseconds, ratio);
  return ratio;
}

}  // namespace

int main(int argc, char **argv) {
  const double bound = argc > 1 ? std::strtod(argv[1], nullptr) : 1000;
  const std::vector<Items> all = all_items();
  std::vector<list> lists;
  for (const Items &items : all) add_cpp(lists.emplace_back(), items);

  std::uint64_t c_sum = 0;
  std::uint64_t cpp_sum = 0;
  double worst = compare(
      "add",
      [&all] {
        for (const Items &items : all) {
          aaa_attr_list_handle made = 0;
          aaa_attr_list_alloc(&made);
          add_c(made, items);
          aaa_attr_list_free(made);
        }
      },
      [&all] {
        for (const Items &items : all) {
          list made;
          add_cpp(made, items);
        }
      });
  worst = std::max(worst, compare(
                              "find",
                              [&] {
                                for (const list &l : lists) c_sum += find_c(l.handle());
                              },
                              [&] {
                                for (const list &l : lists) cpp_sum += find_cpp(l);
                              }));
  worst = std::max(worst, compare(
                              "walk",
                              [&] {
                                for (const list &l : lists) c_sum += walk_c(l.handle());
                              },
                              [&] {
                                for (const list &l : lists) cpp_sum += walk_cpp(l);
                              }));
  if (c_sum != cpp_sum) {
    std::fprintf(stderr, "the two sides found different values\n");
    return 1;
  }
  if (worst <= bound) return 0;
  std::fprintf(stderr, "the C++ interface costs %.3f times the C calls; %.3f is allowed\n", worst, bound);
  return 1;
}
