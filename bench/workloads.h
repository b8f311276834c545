// The workloads, once for everyone. A subject is a class of static functions over a list type of its own; it takes part
// in the workloads whose functions it has:
//
//   const char *name()
//   List build(const Attributes &)                  a list of the attributes, in their order
//   void destroy(List &)
//   bool find(const List &, std::uint32_t type)     whether there is an attribute of the type
//   std::size_t encode(const List &, std::byte *buffer, std::size_t size)        the bytes written
//   std::size_t size_and_encode(List &, ...)        packs, asks for the size, and encodes; else encode() stands for it
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
// one line, of one name. Every workload goes round num_lists(N) lists that differ. What a subject answers is checked
// before it is timed.
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

  // The lists that a workload goes round, made by make(0), make(1) and so on. They destroy themselves.
  class Lists {
   public:
    template <class Make>
    Lists(std::size_t count, Make make) {
      for (std::size_t i = 0; i < count; ++i) lists_.push_back(make(i));
    }
    ~Lists() {
      for (List &list : lists_) Subject::destroy(list);
    }
    Lists(const Lists &) = delete;
    Lists &operator=(const Lists &) = delete;

    std::size_t size() const { return lists_.size(); }
    List &operator[](std::size_t i) { return lists_[i]; }

    template <class Check>
    bool all(Check check) {
      for (std::size_t i = 0; i < lists_.size(); ++i)
        if (!check(i)) return false;
      return true;
    }

   private:
    std::vector<List> lists_;
  };

  // The data of num_lists(n) lists.
  static std::vector<Attributes> data_of(std::size_t n) {
    std::vector<Attributes> data;
    for (std::size_t i = 0; i < num_lists(n); ++i) data.push_back(attributes(n, i));
    return data;
  }

  static List list_of(std::size_t n, std::size_t i) { return Subject::build(attributes(n, i)); }

  // Times operate(0) to operate(count - 1), again and again.
  template <class Operate>
  static void go_round(benchmark::State &state, std::size_t count, Operate operate) {
    for (std::size_t i = 0; auto _ : state) {
      operate(i);
      if (++i == count) i = 0;
    }
  }

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
  // operate(list, other): with the other list of the same number.
  template <class Expected, class Other, class Operate>
  static void add_consuming(const std::string &name, Expected expected, Other other, Operate operate) {
    constexpr std::size_t kBatch = 16;  // the lists stay in the first-level cache
    constexpr std::size_t kBatches = 128;
    const auto measure = [expected, other, operate](benchmark::State &state) {
      const std::size_t count = num_lists(128);
      Lists others(count, [other](std::size_t i) { return Subject::build(other(i)); });
      for (std::size_t i = 0; i < count; ++i) {
        Owned list(list_of(128, i));
        Owned right(Subject::build(expected(i)));
        operate(*list, others[i]);
        if (!Subject::equal(*list, *right)) return state.SkipWithError("makes a wrong list");
      }
      std::vector<double> times;
      for (std::size_t first = 0; state.KeepRunningBatch(kBatch); first = (first + kBatch) % count) {
        Lists lists(kBatch, [first](std::size_t i) { return list_of(128, first + i); });
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t i = 0; i < kBatch; ++i) operate(lists[i], others[first + i]);
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
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
          const std::vector<Attributes> data = data_of(n);
          go_round(state, data.size(), [&data](std::size_t i) {
            List list = Subject::build(data[i]);
            keep(list);
            Subject::destroy(list);
          });
        });
      add("build_secret/32", [](benchmark::State &state) {
        std::vector<Attributes> data;
        for (std::size_t i = 0; i < num_lists(32); ++i) data.push_back(attributes_with_secret(32, i));
        go_round(state, data.size(), [&data](std::size_t i) {
          List list = Subject::build(data[i]);
          keep(list);
          Subject::destroy(list);
        });
      });
      add("memory/32", [](benchmark::State &state) {
        const std::vector<Attributes> data = data_of(32);
        for (auto _ : state) {
          std::vector<List> lists;
          lists.reserve(data.size());
          const std::size_t before = mallinfo2().uordblks;
          for (const Attributes &attributes : data) lists.push_back(Subject::build(attributes));
          state.counters["bytes"] =
              static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(data.size()) + sizeof(List);
          for (List &list : lists) Subject::destroy(list);
        }
      });
    }
  }

  static void add_find(const std::string &name, std::size_t n, std::size_t place, std::uint32_t type) {
    add(name, [n, place, type](benchmark::State &state) {
      Lists lists(num_lists(n),
                  [n, place](std::size_t i) { return Subject::build(attributes_with_wanted(n, place, i)); });
      if (!lists.all([&](std::size_t i) { return Subject::find(lists[i], type) == (type == kWantedType); }))
        return state.SkipWithError("finds wrongly");
      go_round(state, lists.size(), [&](std::size_t i) { benchmark::DoNotOptimize(Subject::find(lists[i], type)); });
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

  // The wire forms. Their functions are only looked at where the subject has them.
  struct Plain {
    static constexpr const char *kSuffix = "";
    static std::size_t encode(List &list, Buffer &to) { return Subject::encode(list, to.data(), to.size()); }
    static List decode(const Buffer &from) { return Subject::decode(from.data(), from.size()); }
  };
  struct Tlv {
    static constexpr const char *kSuffix = "_tlv";
    static std::size_t encode(List &list, Buffer &to) { return Subject::encode_tlv(list, to.data(), to.size()); }
    static List decode(const Buffer &from) { return Subject::decode_tlv(from.data(), from.size()); }
  };
  // As a client sends that has yet to allocate the buffer.
  struct Sized {
    static constexpr const char *kSuffix = "_v1";
    static std::size_t encode(List &list, Buffer &to) {
      if constexpr (requires { Subject::size_and_encode(list, to.data(), to.size()); }) {
        return Subject::size_and_encode(list, to.data(), to.size());
      } else {
        return Subject::encode(list, to.data(), to.size());
      }
    }
  };

  template <class Form>
  static Buffer encoded(List &list) {
    static Buffer large(kBufferSize);
    const std::size_t size = Form::encode(list, large);
    return Buffer(large.begin(), large.begin() + static_cast<std::ptrdiff_t>(size));
  }

  template <class Form>
  static std::vector<Buffer> all_encoded(Lists &lists) {
    std::vector<Buffer> buffers;
    for (std::size_t i = 0; i < lists.size(); ++i) buffers.push_back(encoded<Form>(lists[i]));
    return buffers;
  }

  // Encodes lists that make(0), make(1) and so on make.
  template <class Form, class Make>
  static void add_encode(const std::string &prefix, const std::string &suffix, std::size_t n, Make make) {
    add(prefix + "encode" + Form::kSuffix + suffix, [n, make](benchmark::State &state) {
      Lists lists(num_lists(n), make);
      Buffer buffer(kBufferSize);
      if (!lists.all([&](std::size_t i) { return Form::encode(lists[i], buffer) != 0; }))
        return state.SkipWithError("does not encode");
      go_round(state, lists.size(), [&](std::size_t i) {
        benchmark::DoNotOptimize(Form::encode(lists[i], buffer));
        benchmark::ClobberMemory();
      });
    });
  }

  // Both ways of a wire form. What was decoded must encode to as many bytes again.
  template <class Form, class Make>
  static void add_wire_form(const std::string &prefix, const std::string &suffix, std::size_t n, Make make) {
    add_encode<Form>(prefix, suffix, n, make);
    add(prefix + "decode" + Form::kSuffix + suffix, [n, make](benchmark::State &state) {
      std::vector<Buffer> buffers;
      {
        Lists lists(num_lists(n), make);
        buffers = all_encoded<Form>(lists);
      }
      for (const Buffer &buffer : buffers) {
        Owned decoded(Form::decode(buffer));
        if (encoded<Form>(*decoded).size() != buffer.size()) return state.SkipWithError("decodes wrongly");
      }
      go_round(state, buffers.size(), [&buffers](std::size_t i) {
        List decoded = Form::decode(buffers[i]);
        keep(decoded);
        Subject::destroy(decoded);
      });
    });
  }

  // What a message costs at both ends.
  static void add_exchange(std::size_t n) {
    add(with("exchange", n), [n](benchmark::State &state) {
      std::vector<Attributes> data;
      for (std::size_t i = 0; i < num_lists(n); ++i) data.push_back(attributes_with_wanted(n, n / 2, i));
      Buffer buffer(kBufferSize);
      const auto exchange = [&data, &buffer](std::size_t i) {
        List sent = Subject::build(data[i]);
        const std::size_t size = Sized::encode(sent, buffer);
        Subject::destroy(sent);
        List received = Subject::decode(buffer.data(), size);
        const bool found = Subject::find(received, kWantedType);
        Subject::destroy(received);
        return found;
      };
      for (std::size_t i = 0; i < data.size(); ++i)
        if (!exchange(i)) return state.SkipWithError("loses an attribute");
      go_round(state, data.size(), [&exchange](std::size_t i) { benchmark::DoNotOptimize(exchange(i)); });
    });
  }

  static void add_read_in_place(std::size_t n) {
    add(with("read_in_place", n), [n](benchmark::State &state) {
      Lists lists(num_lists(n), [n](std::size_t i) { return Subject::build(attributes_with_wanted(n, n / 2, i)); });
      const std::vector<Buffer> buffers = all_encoded<Plain>(lists);
      const auto read = [&buffers](std::size_t i) {
        return Subject::read(buffers[i].data(), buffers[i].size(), kWantedType);
      };
      if (!lists.all(read)) return state.SkipWithError("reads wrongly");
      go_round(state, buffers.size(), [&read](std::size_t i) { benchmark::DoNotOptimize(read(i)); });
    });
  }

  static void add_translate(std::size_t n) {
    add(with("translate", n), [n](benchmark::State &state) {
      Lists lists(num_lists(n), [n](std::size_t i) { return list_of(n, i); });
      std::vector<Buffer> buffers = all_encoded<Plain>(lists);
      const std::vector<Buffer> originals = buffers;
      const auto translate_all = [&buffers](bool there) {
        for (Buffer &buffer : buffers) Subject::translate(buffer.data(), buffer.size(), there);
      };
      translate_all(true);
      const bool changed = buffers != originals;
      translate_all(false);
      if (!changed || buffers != originals) return state.SkipWithError("translates wrongly");
      bool there = true;
      go_round(state, buffers.size(), [&](std::size_t i) {
        Subject::translate(buffers[i].data(), buffers[i].size(), there);
        if (i + 1 == buffers.size()) there = !there;
      });
    });
  }

  static void marshal() {
    if constexpr (requires(const List &l, std::byte *b) { Subject::encode(l, b, 0); }) {
      for (const std::size_t n : {8u, 32u, 128u, 1024u}) {
        const auto make = [n](std::size_t i) { return list_of(n, i); };
        add_encode<Sized>("", with("", n), n, make);
        add_wire_form<Plain>("", with("", n), n, make);
        if constexpr (requires(const List &l, std::byte *b) { Subject::encode_tlv(l, b, 0); })
          add_wire_form<Tlv>("", with("", n), n, make);
      }
      if constexpr (requires(const List &l) { Subject::find(l, 1u); }) add_exchange(32);
      if constexpr (requires(const std::byte *b) { Subject::read(b, 0, 1u); })
        for (const std::size_t n : {32u, 128u}) add_read_in_place(n);
      if constexpr (requires(std::byte * b) { Subject::translate(b, 0, true); }) add_translate(128);
    }
  }

  static std::vector<Attributes> groups(std::size_t list) {
    std::vector<Attributes> four;
    for (std::size_t i = 0; i < 4; ++i) four.push_back(attributes(8, list, 8 * i));
    return four;
  }

  static void nested() {
    if constexpr (requires(const std::vector<Attributes> &g) { Subject::build_nested(g); }) {
      constexpr std::size_t kAttributes = 32;
      add("nested_build/4x8", [](benchmark::State &state) {
        std::vector<std::vector<Attributes>> data;
        for (std::size_t i = 0; i < num_lists(kAttributes); ++i) data.push_back(groups(i));
        go_round(state, data.size(), [&data](std::size_t i) {
          List list = Subject::build_nested(data[i]);
          keep(list);
          Subject::destroy(list);
        });
      });
      const auto make = [](std::size_t i) { return Subject::build_nested(groups(i)); };
      if constexpr (requires(const List &l, std::byte *b) { Subject::encode(l, b, 0); })
        add_wire_form<Plain>("nested_", "/4x8", kAttributes, make);
      if constexpr (requires(const List &l, std::byte *b) { Subject::encode_tlv(l, b, 0); })
        add_wire_form<Tlv>("nested_", "/4x8", kAttributes, make);
    }
  }

  // What can't be compared is taken to be right.
  static bool is_equal(const List &list1, const List &list2) {
    if constexpr (requires { Subject::equal(list1, list2); }) return Subject::equal(list1, list2);
    return true;
  }

  static void add_copy(std::size_t n) {
    add(with("copy", n), [n](benchmark::State &state) {
      Lists lists(num_lists(n), [n](std::size_t i) { return list_of(n, i); });
      const auto copies = [&lists](std::size_t i) {
        Owned copy(Subject::copy(lists[i]));
        return is_equal(lists[i], *copy);
      };
      if (!lists.all(copies)) return state.SkipWithError("copies wrongly");
      go_round(state, lists.size(), [&lists](std::size_t i) {
        List copy = Subject::copy(lists[i]);
        keep(copy);
        Subject::destroy(copy);
      });
    });
  }

  static void two_lists() {
    if constexpr (requires(const List &l) { Subject::copy(l); })
      for (const std::size_t n : {32u, 128u, 1024u}) add_copy(n);
    if constexpr (requires(List & l) { Subject::merge(l, l); })
      add_consuming("merge/32_into_128", after_merge, merged_in,
                    [](List &list, const List &from) { Subject::merge(list, from); });
    if constexpr (requires(List & l) { Subject::remove(l, l); })
      add_consuming("remove/32_from_128", after_remove, removed,
                    [](List &list, const List &types) { Subject::remove(list, types); });
    if constexpr (requires(const List &l) { Subject::equal(l, l); })
      for (const std::size_t n : {32u, 128u}) {
        add_equal(with("equal_same_order", n), n, [n](std::size_t i) { return attributes(n, i); });
        add_equal(with("equal_shuffled", n), n, [n](std::size_t i) { return shuffled(attributes(n, i), i); });
      }
  }

  template <class Other>
  static void add_equal(const std::string &name, std::size_t n, Other other_data) {
    add(name, [n, other_data](benchmark::State &state) {
      Lists lists(num_lists(n), [n](std::size_t i) { return list_of(n, i); });
      Lists others(num_lists(n), [other_data](std::size_t i) { return Subject::build(other_data(i)); });
      const auto compares = [&lists, &others, n](std::size_t i) {
        Owned different(Subject::build(attributes_with_wanted(n, n - 1, i)));
        return Subject::equal(lists[i], others[i]) && !Subject::equal(lists[i], *different);
      };
      if (!lists.all(compares)) return state.SkipWithError("compares wrongly");
      go_round(state, lists.size(),
               [&](std::size_t i) { benchmark::DoNotOptimize(Subject::equal(lists[i], others[i])); });
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
        const Attributes order = attributes(512, 0);
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
