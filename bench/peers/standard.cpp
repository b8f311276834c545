// What one would write without any library: a vector of structs with strings, a hash map for names, snprintf for text;
// an index by type for what has two lists.
#include <attrmgr/aaa_attr_dict.h>

#include <algorithm>
#include <cstdio>
#include <unordered_map>

#include "type_index.h"
#include "workloads.h"

namespace {

using bench::Attribute;
using bench::Kind;

const unsigned char *octets(const Attribute &attribute) {
  return reinterpret_cast<const unsigned char *>(attribute.value.data());
}

class Standard {
 public:
  using List = bench::Attributes;

  static const char *name() { return "std::vector"; }

  static List build(const bench::Attributes &attributes) {
    List list;
    for (const Attribute &attribute : attributes) list.push_back(attribute);
    return list;
  }

  static void destroy(List &list) { List().swap(list); }

  static bool find(const List &list, std::uint32_t type) {
    return std::find_if(list.begin(), list.end(), [type](const Attribute &a) { return a.type == type; }) != list.end();
  }

  static List copy(const List &list) { return list; }

  static void merge(List &into, const List &from) {
    bench::TypeIndex<std::size_t> places;
    for (std::size_t i = 0; i < into.size(); ++i) places.add(into[i].type, i);
    for (const Attribute &attribute : from) {
      if (const std::size_t *found = places.find(attribute.type)) {
        into[*found].value = attribute.value;
      } else {
        into.push_back(attribute);
      }
    }
  }

  static void remove(List &from, const List &types) {
    std::erase_if(from, [unwanted = index(types)](const Attribute &a) { return unwanted.has(a.type); });
  }

  static bool equal(const List &list1, const List &list2) {
    return Index::equal(index(list1), index(list2),
                        [](const Attribute *a, const Attribute *b) { return a->value == b->value; });
  }

  static std::uint32_t number_of(const std::string &name) {
    static const std::unordered_map<std::string, std::uint32_t> numbers = [] {
      std::unordered_map<std::string, std::uint32_t> made;
      for (std::uint32_t type = 1; type < AAA_ATTR_TYPE_COUNT; ++type)
        made.emplace(aaa_attr_get_name_from_type(type), type);
      return made;
    }();
    const auto found = numbers.find(name);
    return found != numbers.end() ? found->second : 0;
  }

  // The same lines as attrmgr's.
  static std::size_t render(const List &list, char *text, std::size_t size) {
    std::size_t done = 0;
    int number = 0;
    for (const Attribute &attribute : list)
      done += static_cast<std::size_t>(render_one(++number, attribute, text + done, size - done));
    return done;
  }

 private:
  using Index = bench::TypeIndex<const Attribute *>;

  static Index index(const List &list) {
    Index made;
    for (const Attribute &attribute : list) made.add(attribute.type, &attribute);
    return made;
  }

  static int render_one(int number, const Attribute &a, char *text, std::size_t size) {
    const char *name = aaa_attr_get_name_from_type(a.type);
    const unsigned char *b = octets(a);
    switch (a.kind) {
      case Kind::kText:
        return std::snprintf(text, size, "\n%d:  %-15s len=%3zu  %s\n", number, name, a.value.size(), a.value.c_str());
      case Kind::kEnum:
        return std::snprintf(text, size, "\n%d:  %-15s len=%3zu  %s\n", number, name, a.value.size(),
                             aaa_attr_get_enum_name_from_type(a.type, a.number));
      case Kind::kNumber:
        return std::snprintf(text, size, "\n%d:  %-15s len=%3zu  %u(%x)\n", number, name, a.value.size(), a.number,
                             a.number);
      case Kind::kAddress:
        return std::snprintf(text, size, "\n%d:  %-15s len=%3zu  %u.%u.%u.%u\n", number, name, a.value.size(), b[0],
                             b[1], b[2], b[3]);
      default:
        return std::snprintf(text, size, "\n%d:  %-15s len=%3zu  %x:%x:%x:%x:%x:%x:%x:%x\n", number, name,
                             a.value.size(), b[0] << 8 | b[1], b[2] << 8 | b[3], b[4] << 8 | b[5], b[6] << 8 | b[7],
                             b[8] << 8 | b[9], b[10] << 8 | b[11], b[12] << 8 | b[13], b[14] << 8 | b[15]);
    }
  }
};

}  // namespace

BENCH_MAIN(Standard)
