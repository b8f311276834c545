// What operations cost as lists grow: linear wherever the allocator puts the blocks, and one list against another
// without the square of their lengths, whatever their order. Linked with the static library, so that blocks can be put
// far apart.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <functional>

#include "support/large.h"

namespace {

// Two stretches of addresses, farther apart than a list can remember the distance of its blocks.
class FarApart {
 public:
  static constexpr std::size_t kDistance = std::size_t{40} << 30;
  static constexpr std::size_t kSize = std::size_t{256} << 20;

  FarApart() {
    const int flags = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
    void *mapped = mmap(nullptr, kDistance + kSize, PROT_NONE, flags, -1, 0);
    if (mapped == MAP_FAILED) return;
    begin_ = static_cast<std::byte *>(mapped);
    for (std::byte *stretch : {begin_, begin_ + kDistance}) mprotect(stretch, kSize, PROT_READ | PROT_WRITE);
  }

  // Blocks come from the two in turn; null when they are used up.
  void *take(std::size_t size) {
    std::size_t &used = used_[turn_];
    size = (size + 15) / 16 * 16;
    if (begin_ == nullptr || used + size > kSize) return nullptr;
    void *taken = begin_ + turn_ * kDistance + used;
    used += size;
    turn_ = 1 - turn_;
    return taken;
  }
  bool owns(const void *memory) const { return memory >= begin_ && memory < begin_ + kDistance + kSize; }
  void take_all_back() { used_[0] = used_[1] = 0; }

 private:
  std::byte *begin_ = nullptr;
  std::size_t used_[2] = {0, 0};
  std::size_t turn_ = 0;
};

bool far_apart = false;

FarApart &stretches() {
  static FarApart made;
  return made;
}

}  // namespace

extern "C" {
void *__real_malloc(std::size_t size);
void __real_free(void *memory);

void *__wrap_malloc(std::size_t size) { return far_apart ? stretches().take(size) : __real_malloc(size); }
void __wrap_free(void *memory) {
  if (!stretches().owns(memory)) __real_free(memory);
}
}

namespace {

constexpr std::uint32_t kGrowth = 8;
constexpr double kGrowthMax = 2.5 * kGrowth;  // a square grows by 64

// The least time of three runs, each on what prepare() makes anew.
template <class Prepare, class Run>
double least_time(Prepare prepare, Run run) {
  double least = 1e9;
  for (int i = 0; i < 3; ++i) {
    auto prepared = prepare();
    const double begin = cpu_seconds();
    run(prepared);
    least = std::min(least, cpu_seconds() - begin);
  }
  return least;
}

// A list of three attributes to a block, of two types, and the same as a TLV buffer.
struct Source {
  explicit Source(std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i)
      list.text(i % 2 != 0 ? type::kBinary : type::kClientId, std::string(140, 'x'));
    tlv = tlv_buffer(list);
  }
  List list;
  Bytes tlv;
};

const std::tuple<const char *, aaa_attr_cerrno (*)(const Source &, List &)> kAppending[] = {
    {"aaa_attr_list_append_list",
     [](const Source &source, List &to) { return aaa_attr_list_append_list(to, source.list); }},
    {"aaa_attr_list_replace_and_add",
     [](const Source &source, List &to) { return aaa_attr_list_replace_and_add(to, source.list); }},
    {"aaa_attr_list_copy_by_type",
     [](const Source &source, List &to) { return aaa_attr_list_copy_by_type(source.list, to, type::kBinary); }},
    {"aaa_attr_buffer_to_list", [](const Source &source, List &to) { return decode(source.tlv, &to); }},
    {"aaa_attr_filter_on_type",
     [](const Source &source, List &to) {
       const std::uint32_t kept[] = {type::kBinary};
       const aaa_attr_cerrno code = aaa_attr_list_copy(source.list, to.out());
       return code != 0 ? code : aaa_attr_filter_on_type(to.out(), kept, 1);
     }},
};

TEST(Growth, IsLinearWhereverTheBlocksLie) {
  constexpr std::uint32_t kCount = 2000;
  const Source small(kCount), large(kGrowth * kCount);
  for (const auto &[name, append] : kAppending) {
    // A busy machine may slow one of the two down: what grows by a square does so every time.
    double times[2] = {};
    for (int attempt = 0; attempt < 3 && (attempt == 0 || times[1] > kGrowthMax * times[0]); ++attempt)
      for (const Source *source : {&small, &large})
        times[source == &large] = least_time(
            [] {
              stretches().take_all_back();
              return 0;
            },
            [&, call = append](int) {
              far_apart = true;
              {
                List to(0);
                aaa_attr_list_alloc(to.out());
                EXPECT_EQ(call(*source, to), 0u) << name;
                EXPECT_GT(aaa_attr_list_attr_count(to), 0u) << name;
              }
              far_apart = false;
            });
    EXPECT_LE(times[1], kGrowthMax * times[0]) << name << " of " << kGrowth << " times as many attributes";
    std::printf("%-32s %8.3f ms, %5.1f times that of an eighth\n", name, times[1] * 1e3, times[1] / times[0]);
  }
}

// How many times as long as decoding them two lists may keep a call busy; their square is tens of thousands.
constexpr double kDecodingsMax = 500;

// Records in order, and the same in opposite order, each the outer list of a buffer.
struct Pair {
  const char *what;
  Bytes there, back;
  bool has_groups = false;
};

Pair pair_of(const char *what, std::uint32_t count, const std::function<Bytes(std::uint32_t)> &record) {
  Bytes records[2];
  for (std::uint32_t i = 0; i < count; ++i) {
    append(&records[0], record(i));
    append(&records[1], record(count - 1 - i));
  }
  const auto wrap = [count](const Bytes &packed) {  // as many records of one size as fit a block
    const std::size_t size = packed.size() / count, per_block = (65'535 - 24) / size;
    Bytes buffer =
        join({{AAA_MARSHAL_BUFFER}, block(kHead, static_cast<unsigned>(1 + (count + per_block - 1) / per_block), {})});
    for (std::size_t at = 0; at < packed.size(); at += per_block * size) {
      const Bytes part(packed.begin() + static_cast<std::ptrdiff_t>(at),
                       packed.begin() + static_cast<std::ptrdiff_t>(std::min(packed.size(), at + per_block * size)));
      Bytes made = block(at + part.size() == packed.size() ? kLast : 0u, 1, {part});
      std::copy_n(little(part.size() / size, 2).data(), 2, &made[6]);
      append(&buffer, made);
    }
    return host_form(buffer);
  };
  return {what, wrap(records[0]), wrap(records[1])};
}

// Groups of one number each, which differ, as a TLV buffer.
Pair groups(std::uint32_t count) {
  Bytes records[2];
  for (std::uint32_t i = 0; i < count; ++i)
    for (const std::size_t way : {0u, 1u}) {
      const Bytes number = tlv_record(type::kUlong, join({little(4, 4), little(way == 0 ? i : count - 1 - i, 4)}));
      append(&records[way], tlv_record(type::kGrouped, join({little(number.size() + 4, 4), number})));
    }
  return {"groups", tlv_of(records[0]), tlv_of(records[1]), true};
}

// Lists nested in each other, each with numbers of its own before the one or, in opposite order, after it.
Pair levels(std::uint32_t depth, std::uint32_t numbers) {
  Bytes bodies[2];
  for (std::uint32_t level = 0; level <= depth; ++level)
    for (const std::size_t way : {0u, 1u}) {
      Bytes group, records;
      if (level > 0) group = tlv_record(type::kGrouped, join({little(bodies[way].size() + 4, 4), bodies[way]}));
      if (way == 1) append(&records, group);
      for (std::uint32_t i = 0; i < numbers; ++i)
        append(&records, tlv_record(type::kUlong, join({little(4, 4), little(way == 0 ? i : numbers - 1 - i, 4)})));
      if (way == 0) append(&records, group);
      bodies[way] = records;
    }
  return {"nested lists", tlv_of(bodies[0]), tlv_of(bodies[1]), true};
}

// Sub-lists that have nearly everything in common.
Pair nearly_the_same(std::uint32_t groups, std::uint32_t numbers) {
  Bytes common, records[2];
  for (std::uint32_t i = 0; i < numbers; ++i)
    append(&common, tlv_record(type::kUlong, join({little(4, 4), little(i, 4)})));
  for (std::uint32_t i = 0; i < groups; ++i)
    for (const std::size_t way : {0u, 1u}) {
      const std::uint32_t own = numbers + (way == 0 ? i : groups - 1 - i);
      const Bytes number = tlv_record(type::kUlong, join({little(4, 4), little(own, 4)}));
      const Bytes all = way == 0 ? join({common, number}) : join({number, common});
      append(&records[way], tlv_record(type::kGrouped, join({little(all.size() + 4, 4), all})));
    }
  return {"nearly the same groups", tlv_of(records[0]), tlv_of(records[1]), true};
}

using TwoLists = std::pair<List, List>;

TEST(Growth, OneListAgainstAnotherIsNoSquare) {
  const auto numbered = [](std::uint32_t type) {
    return [type](std::uint32_t i) {
      const Bytes value = little(i, 4);
      return record(type, {reinterpret_cast<const char *>(value.data()), value.size()});
    };
  };
  const Pair pairs[] = {
      pair_of("numbers of one type", 65'536, numbered(type::kUlong)),
      pair_of("unknown types", 64'000, [&](std::uint32_t i) { return numbered(1000 + i)(i); }),
      pair_of("one-byte values", 100'000,
              [](std::uint32_t i) { return record(700 + i / 256, std::string(1, static_cast<char>(i))); }),
      // Whatever a hash does with type and value: this undoes an exclusive or of the two.
      pair_of("values that undo types", 40'000,
              [](std::uint32_t i) {
                const Bytes value = little(7 | ((700 + i) ^ 0x1234) << 8, 3);
                return record(700 + i, {reinterpret_cast<const char *>(value.data()), value.size()});
              }),
      groups(20'000),
      levels(20, 3000),
      nearly_the_same(24, 2500),
  };
  const std::tuple<const char *, bool, void (*)(TwoLists &)> calls[] = {
      // The flag: what it removes leaves its sub-list to nobody, and is not to have one here.
      {"aaa_attr_list_eq", false, [](TwoLists &lists) { EXPECT_EQ(aaa_attr_list_eq(lists.first, lists.second), 1); }},
      {"aaa_attr_list_remove_list", false,
       [](TwoLists &lists) { EXPECT_EQ(aaa_attr_list_remove_list(lists.first, lists.second), 0u); }},
      {"aaa_attr_list_remove_list_on_match", false,
       [](TwoLists &lists) { EXPECT_EQ(aaa_attr_list_remove_list_on_match(lists.first, lists.second), 0u); }},
      {"aaa_attr_list_remove_common_attrs", true,
       [](TwoLists &lists) { EXPECT_EQ(aaa_attr_list_remove_common_attrs(lists.first, lists.second), 0u); }},
  };
  for (const Pair &pair : pairs) {
    const auto decoded = [&pair] {
      TwoLists lists{List(0), List(0)};
      EXPECT_EQ(decode(pair.there, &lists.first), 0u) << pair.what;
      EXPECT_EQ(decode(pair.back, &lists.second), 0u) << pair.what;
      return lists;
    };
    const double decoding = least_time([] { return 0; }, [&](int) { decoded(); });
    for (const auto &[name, leaves_sub_lists, call] : calls) {
      if (leaves_sub_lists && pair.has_groups) continue;
      const double time = least_time(decoded, call);
      EXPECT_LE(time, kDecodingsMax * decoding) << name << ", " << pair.what;
      std::printf("%-36s %-20s %8.3f ms, %5.1f times their decoding\n", name, pair.what, time * 1e3, time / decoding);
    }
  }
}

}  // namespace
