// radcli: a linked list of rc_value_pairs of one size, each with a copy of its attribute's name. Types are attributes
// of a vendor in a dictionary in its text form. An attribute is appended after the last one, where rc_avpair_add()
// would walk the whole list. It has no wire form of its own: requests are encoded as they are sent.
#include <attrmgr/aaa_attr_dict.h>
#include <radcli/radcli.h>

#include <arpa/inet.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "names.h"
#include "type_index.h"
#include "workloads.h"

namespace {

constexpr int kVendor = 64999;
constexpr std::uint32_t kValuesTried = 64;  // of each enumeration

const char *type_name(std::uint32_t format) {
  switch (format) {
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
      return "integer";
    case AAA_ATTR_FMT_IPV4:
      return "ipaddr";
    case AAA_ATTR_FMT_IPV6:
      return "ipv6addr";
    default:
      return "string";
  }
}

class Radcli {
 public:
  using List = VALUE_PAIR *;

  static const char *name() { return "radcli"; }

  static List build(const bench::Attributes &attributes) {
    List first = nullptr;
    VALUE_PAIR *last = nullptr;
    for (const bench::Attribute &attribute : attributes) append(first, last, make(attribute));
    return first;
  }

  static void destroy(List list) { rc_avpair_free(list); }

  static bool find(List list, std::uint32_t type) {
    return rc_avpair_get(list, static_cast<int>(type), kVendor) != nullptr;
  }

  static List copy(List list) { return rc_avpair_copy(list); }

  static void merge(List &into, List from) {
    const Index present = index(into);
    VALUE_PAIR *last = into;
    while (last->next != nullptr) last = last->next;
    for (VALUE_PAIR *pair = from; pair != nullptr; pair = pair->next) {
      if (VALUE_PAIR *const *found = present.find(ATTRID(pair->attribute))) {
        (*found)->lvalue = pair->lvalue;
        std::memcpy((*found)->strvalue, pair->strvalue, sizeof pair->strvalue);
      } else {
        VALUE_PAIR one = *pair;
        one.next = nullptr;
        append(into, last, rc_avpair_copy(&one));  // which would copy all after it
      }
    }
  }

  static void remove(List &from, List types) {
    const Index unwanted = index(types);
    for (VALUE_PAIR **link = &from; *link != nullptr;) {
      VALUE_PAIR *pair = *link;
      if (unwanted.has(ATTRID(pair->attribute))) {
        *link = pair->next;
        pair->next = nullptr;
        rc_avpair_free(pair);
      } else {
        link = &pair->next;
      }
    }
  }

  static bool equal(List list1, List list2) {
    return Index::equal(index(list1), index(list2), [](const VALUE_PAIR *a, const VALUE_PAIR *b) {
      return length_of(*a) == length_of(*b) &&
             std::memcmp(value_of(*a), value_of(*b), static_cast<std::size_t>(length_of(*a))) == 0;
    });
  }

  static std::uint32_t number_of(const std::string &name) {
    const DICT_ATTR *found = rc_dict_findattr(handle(), name.c_str());
    return found != nullptr ? static_cast<std::uint32_t>(ATTRID(found->value)) : 0;
  }

  static std::string spelled(const std::string &name) { return bench::with_underscores(name).substr(0, NAME_LENGTH); }

  static const char *name_of(std::uint32_t type) {
    const DICT_ATTR *found = rc_dict_getattr(handle(), static_cast<int>(type | unsigned{kVendor} << 16));
    return found != nullptr ? found->name : nullptr;
  }

  static std::size_t render(List list, char *text, std::size_t size) {
    std::size_t done = 0;
    for (VALUE_PAIR *pair = list; pair != nullptr; pair = pair->next) {
      if (rc_avpair_log(handle(), pair, text + done, size - done) == nullptr) return 0;
      done += std::strlen(text + done);
    }
    return done;
  }

 private:
  using Index = bench::TypeIndex<VALUE_PAIR *>;

  // radcli's context, with a dictionary of the types.
  static rc_handle *handle() {
    static rc_handle *const made = make_handle();
    return made;
  }

  static rc_handle *make_handle() {
    std::string text = "VENDOR Bench " + std::to_string(kVendor) + "\n";
    bench::for_each_name(spelled, [&text](const std::string &name, std::uint32_t type) {
      const std::uint32_t format = aaa_attr_get_format_from_type(type);
      text += "ATTRIBUTE " + name.substr(0, NAME_LENGTH) + " " + std::to_string(type) + " " + type_name(format) +
              " vendor=Bench\n";
      if (format != AAA_ATTR_FMT_ENUM) return;
      for (std::uint32_t value = 0; value < kValuesTried; ++value)
        if (const char *value_name = aaa_attr_get_enum_name_from_type(type, value))
          text +=
              "VALUE " + name.substr(0, NAME_LENGTH) + " " + spelled(value_name) + " " + std::to_string(value) + "\n";
    });
    rc_handle *made = rc_new();
    if (rc_read_dictionary_from_buffer(made, text.c_str(), text.size()) != 0) {
      std::fprintf(stderr, "radcli does not read its dictionary\n");
      std::exit(1);
    }
    return made;
  }

  static VALUE_PAIR *new_pair(int type, const void *value, int length) {
    return rc_avpair_new(handle(), type, value, length, kVendor);
  }

  static VALUE_PAIR *make(const bench::Attribute &attribute) {
    std::uint32_t number = attribute.number;
    switch (attribute.kind) {
      case bench::Kind::kAddress:  // in the order of the host
        std::memcpy(&number, attribute.value.data(), sizeof number);
        number = ntohl(number);
        [[fallthrough]];
      case bench::Kind::kNumber:
      case bench::Kind::kEnum:
        return new_pair(static_cast<int>(attribute.type), &number, sizeof number);
      default:
        return new_pair(static_cast<int>(attribute.type), attribute.value.data(),
                        static_cast<int>(attribute.value.size()));
    }
  }

  static void append(List &first, VALUE_PAIR *&last, VALUE_PAIR *pair) {
    rc_avpair_insert(last != nullptr ? &last : &first, nullptr, pair);
    last = pair;
  }

  static bool is_number(const VALUE_PAIR &pair) { return pair.type == PW_TYPE_INTEGER || pair.type == PW_TYPE_IPADDR; }

  static const void *value_of(const VALUE_PAIR &pair) {
    return is_number(pair) ? static_cast<const void *>(&pair.lvalue) : pair.strvalue;
  }

  // lvalue is the length of what is in strvalue.
  static int length_of(const VALUE_PAIR &pair) {
    return static_cast<int>(is_number(pair) ? sizeof pair.lvalue : pair.lvalue);
  }

  static Index index(List list) {
    Index made;
    for (VALUE_PAIR *pair = list; pair != nullptr; pair = pair->next) made.add(ATTRID(pair->attribute), pair);
    return made;
  }
};

}  // namespace

BENCH_MAIN(Radcli)
