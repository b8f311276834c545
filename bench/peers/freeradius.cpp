// FreeRADIUS 3 value pairs: a linked list of talloc'ed VALUE_PAIRs, a pool of talloc for each list as the server makes
// one for each packet. Types are attributes of a vendor whose types have two bytes, found in a table as a module keeps
// the definitions it uses. The wire form is that of RADIUS: one Vendor-Specific attribute for each.
#include <attrmgr/aaa_attr_dict.h>

#include <array>
#include <cstdlib>
#include <string>

#include "names.h"
#include "type_index.h"
#include "workloads.h"

// The header wants PCRE's for declarations not used here, and has names that are keywords of C++.
#include <freeradius/build.h>
#undef HAVE_PCRE
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define new new_
#define virtual virtual_
#include <freeradius/libradius.h>
#undef new
#undef virtual

namespace {

constexpr unsigned kVendor = 64999;         // in the dictionary that lies beside
constexpr std::size_t kPoolSize = 8192;     // the server's default for a packet
constexpr std::uint32_t kValuesTried = 64;  // of each enumeration
constexpr char kSecret[] = "secret";

PW_TYPE type_of(std::uint32_t format) {
  switch (format) {
    case AAA_ATTR_FMT_STRING:
      return PW_TYPE_STRING;
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
      return PW_TYPE_INTEGER;
    case AAA_ATTR_FMT_IPV4:
      return PW_TYPE_IPV4_ADDR;
    case AAA_ATTR_FMT_IPV6:
      return PW_TYPE_IPV6_ADDR;
    default:
      return PW_TYPE_OCTETS;
  }
}

const std::array<const DICT_ATTR *, AAA_ATTR_TYPE_COUNT> &definitions();

const DICT_ATTR *definition(std::uint32_t type) { return definitions()[type]; }

class Freeradius {
 public:
  struct List {
    TALLOC_CTX *pool = nullptr;
    VALUE_PAIR *first = nullptr;
  };

  static const char *name() { return "FreeRADIUS"; }

  static List build(const bench::Attributes &attributes) {
    List list = empty();
    vp_cursor_t cursor;
    fr_cursor_init(&cursor, &list.first);
    for (const bench::Attribute &attribute : attributes) fr_cursor_insert(&cursor, make(list.pool, attribute));
    return list;
  }

  static void destroy(List &list) { talloc_free(list.pool); }

  static bool find(const List &list, std::uint32_t type) {
    return fr_pair_find_by_da(list.first, definition(type), TAG_ANY) != nullptr;
  }

  static std::size_t encode(const List &list, std::byte *buffer, std::size_t size) {
    auto *at = reinterpret_cast<std::uint8_t *>(buffer);
    const std::uint8_t *end = at + size;
    for (const VALUE_PAIR *pair = list.first; pair != nullptr;) {
      const int length = rad_vp2attr(nullptr, nullptr, kSecret, &pair, at, static_cast<std::size_t>(end - at));
      if (length < 0) return 0;
      at += length;
    }
    return size - static_cast<std::size_t>(end - at);
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    List list = empty();
    vp_cursor_t cursor;
    fr_cursor_init(&cursor, &list.first);
    const auto *at = reinterpret_cast<const std::uint8_t *>(bytes);
    for (std::size_t left = size; left > 0;) {
      VALUE_PAIR *pair = nullptr;
      const ssize_t length = rad_attr2vp(list.pool, nullptr, nullptr, kSecret, at, left, &pair);
      if (length < 0) break;
      fr_cursor_merge(&cursor, pair);
      at += length;
      left -= static_cast<std::size_t>(length);
    }
    return list;
  }

  static List copy(const List &list) {
    List made = empty();
    made.first = fr_pair_list_copy(made.pool, list.first);
    return made;
  }

  static void merge(List &into, const List &from) {
    const Index present = index(into);
    vp_cursor_t cursor;
    fr_cursor_init(&cursor, &into.first);
    for (const VALUE_PAIR *pair = from.first; pair != nullptr; pair = pair->next) {
      if (VALUE_PAIR *const *found = present.find(pair->da->attr)) {
        assign(*found, *pair);
      } else {
        fr_cursor_insert(&cursor, fr_pair_copy(into.pool, pair));
      }
    }
  }

  static void remove(List &from, const List &types) {
    const Index unwanted = index(types);
    for (VALUE_PAIR **link = &from.first; *link != nullptr;) {
      VALUE_PAIR *pair = *link;
      if (unwanted.has(pair->da->attr)) {
        *link = pair->next;
        talloc_free(pair);
      } else {
        link = &pair->next;
      }
    }
  }

  static bool equal(const List &list1, const List &list2) {
    return Index::equal(index(list1), index(list2), [](const VALUE_PAIR *a, const VALUE_PAIR *b) {
      return value_data_cmp(a->da->type, &a->data, a->vp_length, b->da->type, &b->data, b->vp_length) == 0;
    });
  }

  static std::uint32_t number_of(const std::string &name) {
    const DICT_ATTR *found = dict_attrbyname(name.c_str());
    return found != nullptr ? found->attr : 0;
  }

  // Letters, digits and a few signs, among them the hyphen.
  static std::string spelled(std::string name) {
    for (char &c : name)
      if (c == ' ' || c == ',') c = '-';
    return name;
  }

  static const char *name_of(std::uint32_t type) {
    const DICT_ATTR *found = dict_attrbyvalue(type, kVendor);
    return found != nullptr ? found->name : nullptr;
  }

  static std::size_t render(const List &list, char *text, std::size_t size) {
    std::size_t done = 0;
    for (const VALUE_PAIR *pair = list.first; pair != nullptr; pair = pair->next)
      done += vp_prints(text + done, size - done, pair);
    return done;
  }

 private:
  using Index = bench::TypeIndex<VALUE_PAIR *>;

  static List empty() {
    definitions();  // which is not to be made from the pool
    return {talloc_pool(nullptr, kPoolSize), nullptr};
  }

  static VALUE_PAIR *make(TALLOC_CTX *context, const bench::Attribute &attribute) {
    VALUE_PAIR *pair = fr_pair_afrom_da(context, definition(attribute.type));
    const std::string &value = attribute.value;
    switch (pair->da->type) {
      case PW_TYPE_STRING:
        fr_pair_value_bstrncpy(pair, value.data(), value.size());
        break;
      case PW_TYPE_OCTETS:
        fr_pair_value_memcpy(pair, reinterpret_cast<const std::uint8_t *>(value.data()), value.size());
        break;
      default:  // in the pair itself
        pair->vp_length = value.copy(reinterpret_cast<char *>(&pair->data), sizeof pair->data);
    }
    return pair;
  }

  static void assign(VALUE_PAIR *pair, const VALUE_PAIR &from) {
    switch (from.da->type) {
      case PW_TYPE_STRING:
        fr_pair_value_bstrncpy(pair, from.vp_strvalue, from.vp_length);
        break;
      case PW_TYPE_OCTETS:
        fr_pair_value_memcpy(pair, from.vp_octets, from.vp_length);
        break;
      default:
        pair->data = from.data;
        pair->vp_length = from.vp_length;
    }
  }

  static Index index(const List &list) {
    Index made;
    for (VALUE_PAIR *pair = list.first; pair != nullptr; pair = pair->next) made.add(pair->da->attr, pair);
    return made;
  }
};

void check(int result) {
  if (result >= 0) return;
  fr_perror("FreeRADIUS dictionary");
  std::exit(1);
}

std::array<const DICT_ATTR *, AAA_ATTR_TYPE_COUNT> make_definitions() {
  check(dict_init(BENCH_FREERADIUS_DICTIONARY, "dictionary"));
  std::array<const DICT_ATTR *, AAA_ATTR_TYPE_COUNT> made{};
  bench::for_each_name(Freeradius::spelled, [&made](const std::string &name, std::uint32_t type) {
    const PW_TYPE format = type_of(aaa_attr_get_format_from_type(type));
    check(dict_addattr(name.c_str(), static_cast<int>(type), kVendor, format, ATTR_FLAGS{}));
    made[type] = dict_attrbyvalue(type, kVendor);
    if (format != PW_TYPE_INTEGER) return;
    for (std::uint32_t value = 0; value < kValuesTried; ++value)
      if (const char *value_name = aaa_attr_get_enum_name_from_type(type, value))
        dict_addvalue(value_name, name.c_str(), static_cast<int>(value));
  });
  return made;
}

const std::array<const DICT_ATTR *, AAA_ATTR_TYPE_COUNT> &definitions() {
  static const std::array<const DICT_ATTR *, AAA_ATTR_TYPE_COUNT> all = make_definitions();
  return all;
}

}  // namespace

BENCH_MAIN(Freeradius)
