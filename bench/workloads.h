// The workloads, once for everyone. A subject is a class of static functions over a list type of its own; it takes part
// in the workloads whose functions it has:
//
//   const char *name()
//   List build(const Attributes &)                  a list of the attributes, in their order
//   void destroy(List &)
//   bool find(const List &, std::uint32_t type)     whether there is an attribute of the type
//   std::size_t encode(const List &, std::byte *buffer, std::size_t size)        the bytes written
//   List decode(const std::byte *bytes, std::size_t size)                        with all checks that it has
//   bool read(const std::byte *bytes, std::size_t size, std::uint32_t type)      one attribute, in place
//   std::size_t encode_tlv(...)                     a second wire form, with the arguments of the first
//   List decode_tlv(...)
//   List build_nested(const std::vector<Attributes> &groups)
//   List copy(const List &)
//   bool equal(const List &, const List &)          as sets; the next two want it
//   void merge(List &into, const List &from)        replacing attributes of the same type
//   void remove(List &from, const List &types)      all attributes of a type that the second list has
//   std::uint32_t number_of(const std::string &name)
//   std::string spelled(const std::string &name)    a name as number_of() wants it; as it is if the subject has no such
//   const char *name_of(std::uint32_t type)
//   std::size_t render(const List &, char *text, std::size_t size)               one line an attribute; 0: none
//   void translate(std::byte *buffer, std::size_t size, bool there)              to network order and back
//
// A benchmark is named workload/N or workload/kind; the time is that of one operation on one list (of N attributes), of
// one line, of one name. What a subject answers is checked before it is timed.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>  // mallinfo2

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "data.h"

namespace bench {

inline constexpr std::size_t kBufferSize = 1 << 20;

template <class Subject>
class Workloads {
 public:
  static void register_all() {
    build();
    find();
    marshal();
    nested();
    two_lists();
    dictionary();
    render();
  }

 private:
  using List = typename Subject::List;
  using Buffer = std::vector<std::byte>;

  // A list that destroys itself.
  class Owned {
   public:
    explicit Owned(List list) : list_(std::move(list)) {}
    ~Owned() { Subject::destroy(list_); }
    Owned(const Owned &) = delete;
    Owned &operator=(const Owned &) = delete;
    List &operator*() { return list_; }

   private:
    List list_;
  };

  // As a constant: the overload for variables, which says that they are written, makes GCC 12 use another value after
  // it (its bug 105519), so that other lists would be destroyed than were made.
  static void keep(const List &list) { benchmark::DoNotOptimize(list); }

  template <class Body>
  static void add(const std::string &name, Body body) {
    benchmark::RegisterBenchmark(name.c_str(), body);
  }

  static std::string with(const char *name, std::size_t n) {
    return std::string(name).append("/").append(std::to_string(n));
  }

  // Times operations that turn a list of 128 attributes into one of those expected. Lists are prepared and destroyed
  // apart from the clock, and there is a fixed number of them, because preparing may take a hundred times as long.
  // The median of the batches counts, because the clock goes on while another program has the core.
  template <class Operate>
  static void add_consuming(const std::string &name, const Attributes &expected, Operate operate) {
    const auto prepare = [data = attributes(128)] { return Subject::build(data); };
    constexpr int kBatch = 16;  // the lists stay in the first-level cache
    constexpr int kBatches = 128;
    const auto measure = [prepare, expected, operate](benchmark::State &state) {
      {
        Owned list(prepare());
        Owned right(Subject::build(expected));
        operate(*list);
        if (!Subject::equal(*list, *right)) return state.SkipWithError("makes a wrong list");
      }
      std::vector<double> times;
      while (state.KeepRunningBatch(kBatch)) {
        std::vector<List> lists;
        for (int i = 0; i < kBatch; ++i) lists.push_back(prepare());
        const auto start = std::chrono::steady_clock::now();
        for (List &list : lists) operate(list);
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        for (List &list : lists) Subject::destroy(list);
        times.push_back(spent.count());
      }
      const auto median = times.begin() + kBatches / 2;
      std::nth_element(times.begin(), median, times.end());
      state.SetIterationTime(*median * kBatches);
    };
    benchmark::RegisterBenchmark(name.c_str(), measure)->UseManualTime()->Iterations(kBatch * kBatches);
  }

  static void build() {
    if constexpr (requires(const Attributes &a) { Subject::build(a); }) {
      for (const std::size_t n : {8u, 32u, 128u, 1024u, 8192u})
        add(with("build", n), [n](benchmark::State &state) {
          const Attributes data = attributes(n);
          for (auto _ : state) {
            List list = Subject::build(data);
            keep(list);
            Subject::destroy(list);
          }
        });
      add("memory/32", [](benchmark::State &state) {
        constexpr std::size_t kLists = 256;
        const Attributes data = attributes(32);
        for (auto _ : state) {
          std::vector<List> lists;
          lists.reserve(kLists);
          const std::size_t before = mallinfo2().uordblks;
          for (std::size_t i = 0; i < kLists; ++i) lists.push_back(Subject::build(data));
          state.counters["bytes"] =
              static_cast<double>(mallinfo2().uordblks - before) / kLists + static_cast<double>(sizeof(List));
          for (List &list : lists) Subject::destroy(list);
        }
      });
    }
  }

  static void add_find(const std::string &name, std::size_t n, std::size_t place, std::uint32_t type) {
    add(name, [n, place, type](benchmark::State &state) {
      Owned list(Subject::build(attributes_with_wanted(n, place)));
      if (Subject::find(*list, type) != (type == kWantedType)) return state.SkipWithError("finds wrongly");
      for (auto _ : state) benchmark::DoNotOptimize(Subject::find(*list, type));
    });
  }

  static void find() {
    if constexpr (requires(const List &l) { Subject::find(l, 1u); }) {
      for (const std::size_t n : {32u, 128u, 1024u}) {
        add_find(with("find_middle", n), n, n / 2, kWantedType);
        add_find(with("find_end", n), n, n - 1, kWantedType);
        add_find(with("find_miss", n), n, n - 1, kMissingType);
      }
    }
  }

  // The two wire forms. Their functions are only looked at where the subject has them.
  struct Plain {
    static std::size_t encode(const List &list, Buffer &to) { return Subject::encode(list, to.data(), to.size()); }
    static List decode(const Buffer &from) { return Subject::decode(from.data(), from.size()); }
  };
  struct Tlv {
    static std::size_t encode(const List &list, Buffer &to) { return Subject::encode_tlv(list, to.data(), to.size()); }
    static List decode(const Buffer &from) { return Subject::decode_tlv(from.data(), from.size()); }
  };

  template <class Form>
  static Buffer encoded(const List &list) {
    Buffer buffer(kBufferSize);
    buffer.resize(Form::encode(list, buffer));
    return buffer;
  }

  // Both ways of a wire form, for a list that make() makes. What was decoded must encode to as many bytes again.
  template <class Form, class Make>
  static void add_wire_form(const std::string &prefix, const std::string &suffix, Make make) {
    add(prefix + "encode" + suffix, [make](benchmark::State &state) {
      Owned list(make());
      Buffer buffer(kBufferSize);
      if (Form::encode(*list, buffer) == 0) return state.SkipWithError("does not encode");
      for (auto _ : state) {
        benchmark::DoNotOptimize(Form::encode(*list, buffer));
        benchmark::ClobberMemory();
      }
    });
    add(prefix + "decode" + suffix, [make](benchmark::State &state) {
      Owned list(make());
      const Buffer buffer = encoded<Form>(*list);
      {
        Owned decoded(Form::decode(buffer));
        if (encoded<Form>(*decoded).size() != buffer.size()) return state.SkipWithError("decodes wrongly");
      }
      for (auto _ : state) {
        List decoded = Form::decode(buffer);
        keep(decoded);
        Subject::destroy(decoded);
      }
    });
  }

  static void marshal() {
    if constexpr (requires(const List &l, std::byte *b) { Subject::encode(l, b, 0); }) {
      for (const std::size_t n : {8u, 32u, 128u, 1024u}) {
        const auto make = [n] { return Subject::build(attributes(n)); };
        add_wire_form<Plain>("", with("", n), make);
        if constexpr (requires(const List &l, std::byte *b) { Subject::encode_tlv(l, b, 0); })
          add_wire_form<Tlv>("", with("_tlv", n), make);
      }
      if constexpr (requires(const std::byte *b) { Subject::read(b, 0, 1u); })
        for (const std::size_t n : {32u, 128u})
          add(with("read_in_place", n), [n](benchmark::State &state) {
            Owned list(Subject::build(attributes_with_wanted(n, n / 2)));
            const Buffer buffer = encoded<Plain>(*list);
            if (!Subject::read(buffer.data(), buffer.size(), kWantedType)) return state.SkipWithError("reads wrongly");
            for (auto _ : state) benchmark::DoNotOptimize(Subject::read(buffer.data(), buffer.size(), kWantedType));
          });
      if constexpr (requires(std::byte * b) { Subject::translate(b, 0, true); })
        add("translate/128", [](benchmark::State &state) {
          Owned list(Subject::build(attributes(128)));
          const Buffer original = encoded<Plain>(*list);
          Buffer buffer = original;
          Subject::translate(buffer.data(), buffer.size(), true);
          const bool changed = buffer != original;
          Subject::translate(buffer.data(), buffer.size(), false);
          if (!changed || buffer != original) return state.SkipWithError("translates wrongly");
          for (bool there = true; auto _ : state) {
            Subject::translate(buffer.data(), buffer.size(), there);
            there = !there;
          }
        });
    }
  }

  static std::vector<Attributes> groups() {
    std::vector<Attributes> four;
    for (std::size_t i = 0; i < 4; ++i) four.push_back(attributes(8, 8 * i));
    return four;
  }

  static void nested() {
    if constexpr (requires(const std::vector<Attributes> &g) { Subject::build_nested(g); }) {
      add("nested_build/4x8", [](benchmark::State &state) {
        const std::vector<Attributes> data = groups();
        for (auto _ : state) {
          List list = Subject::build_nested(data);
          keep(list);
          Subject::destroy(list);
        }
      });
      const auto make = [] { return Subject::build_nested(groups()); };
      if constexpr (requires(const List &l, std::byte *b) { Subject::encode(l, b, 0); })
        add_wire_form<Plain>("nested_", "/4x8", make);
      if constexpr (requires(const List &l, std::byte *b) { Subject::encode_tlv(l, b, 0); })
        add_wire_form<Tlv>("nested_", "_tlv/4x8", make);
    }
  }

  // What can't be compared is taken to be right.
  static bool is_equal(const List &list1, const List &list2) {
    if constexpr (requires { Subject::equal(list1, list2); }) return Subject::equal(list1, list2);
    return true;
  }

  static void two_lists() {
    if constexpr (requires(const List &l) { Subject::copy(l); })
      for (const std::size_t n : {32u, 128u, 1024u})
        add(with("copy", n), [n](benchmark::State &state) {
          Owned list(Subject::build(attributes(n)));
          {
            Owned copy(Subject::copy(*list));
            if (!is_equal(*list, *copy)) return state.SkipWithError("copies wrongly");
          }
          for (auto _ : state) {
            List copy = Subject::copy(*list);
            keep(copy);
            Subject::destroy(copy);
          }
        });
    if constexpr (requires(List & l) { Subject::merge(l, l); })
      add_consuming(
          "merge/32_into_128", after_merge(),
          [from = std::make_shared<Owned>(Subject::build(merged_in()))](List &list) { Subject::merge(list, **from); });
    if constexpr (requires(List & l) { Subject::remove(l, l); })
      add_consuming(
          "remove/32_from_128", after_remove(),
          [types = std::make_shared<Owned>(Subject::build(removed()))](List &list) { Subject::remove(list, **types); });
    if constexpr (requires(const List &l) { Subject::equal(l, l); }) {
      add_equal("equal_same_order/128", attributes(128));
      add_equal("equal_shuffled/128", shuffled(attributes(128)));
    }
  }

  static void add_equal(const char *name, const Attributes &other_data) {
    add(name, [other_data](benchmark::State &state) {
      Owned list(Subject::build(attributes(128)));
      Owned other(Subject::build(other_data));
      Owned different(Subject::build(attributes_with_wanted(128, 127)));
      if (!Subject::equal(*list, *other) || Subject::equal(*list, *different))
        return state.SkipWithError("compares wrongly");
      for (auto _ : state) benchmark::DoNotOptimize(Subject::equal(*list, *other));
    });
  }

  static std::string spelled(const std::string &name) {
    if constexpr (requires { Subject::spelled(name); }) {
      return Subject::spelled(name);
    } else {
      return name;
    }
  }

  static void dictionary() {
    if constexpr (requires(const std::string &s) { Subject::number_of(s); })
      add("name_to_number", [](benchmark::State &state) {
        std::vector<std::string> known;
        for (const std::string &name : names())
          if (Subject::number_of(spelled(name)) != 0) known.push_back(spelled(name));
        if (known.size() < names().size() / 2) return state.SkipWithError("knows few names");
        for (std::size_t i = 0; auto _ : state) {
          benchmark::DoNotOptimize(Subject::number_of(known[i]));
          if (++i == known.size()) i = 0;
        }
      });
    if constexpr (requires { Subject::name_of(1u); })
      add("number_to_name", [](benchmark::State &state) {
        const Attributes order = attributes(512);
        for (std::size_t i = 0; auto _ : state) {
          benchmark::DoNotOptimize(Subject::name_of(order[i].type));
          if (++i == order.size()) i = 0;
        }
      });
  }

  static void render() {
    if constexpr (requires(const List &l, char *t) { Subject::render(l, t, 0); })
      for (const Sample &sample : samples())
        add(std::string("render/") + sample.name, [&sample](benchmark::State &state) {
          const Attributes one = {sample.attribute};
          Owned list(Subject::build(one));
          char text[512] = {};
          if (Subject::render(*list, text, sizeof text) == 0) return state.SkipWithError("renders nothing");
          state.SetLabel(text);
          for (auto _ : state) {
            benchmark::DoNotOptimize(Subject::render(*list, text, sizeof text));
            benchmark::ClobberMemory();
          }
        });
  }
};

}  // namespace bench

// The main function of a subject's program.
#define BENCH_MAIN(Subject)                                  \
  int main(int argc, char **argv) {                          \
    bench::Workloads<Subject>::register_all();               \
    benchmark::AddCustomContext("subject", Subject::name()); \
    benchmark::AddCustomContext("compiler", BENCH_COMPILER); \
    benchmark::Initialize(&argc, argv);                      \
    benchmark::RunSpecifiedBenchmarks();                     \
    benchmark::Shutdown();                                   \
    return 0;                                                \
  }
