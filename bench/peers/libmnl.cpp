// libmnl: netlink attributes, padded to 4 bytes, in one message in one allocated buffer, which is doubled when it is
// full. A text carries its NUL, as usual there. The bytes of a list are its wire form; decoding is copying them and
// checking every attribute with mnl_attr_validate(). Types have no names and values no display.
#include <attrmgr/aaa_attr_dict.h>
#include <libmnl/libmnl.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "type_index.h"
#include "workloads.h"

namespace {

constexpr std::size_t kFirstSize = 1024;
constexpr std::uint16_t kGroupType = 473;

nlmsghdr *message(const void *bytes) { return static_cast<nlmsghdr *>(const_cast<void *>(bytes)); }

// The attributes of a message, as mnl_attr_for_each() visits them; visit() may overwrite them.
template <class Visit>
void for_each(const void *bytes, Visit visit) {
  const nlmsghdr *head = message(bytes);
  const auto *end = static_cast<const char *>(mnl_nlmsg_get_payload_tail(head));
  const auto *at = static_cast<const nlattr *>(mnl_nlmsg_get_payload(head));
  while (mnl_attr_ok(at, static_cast<int>(end - reinterpret_cast<const char *>(at)))) {
    const nlattr *next = mnl_attr_next(at);
    if (!visit(at)) return;
    at = next;
  }
}

bool has(const void *bytes, std::uint32_t type) {
  bool found = false;
  for_each(bytes, [type, &found](const nlattr *attr) { return !(found = mnl_attr_get_type(attr) == type); });
  return found;
}

// A message that grows.
class Message {
 public:
  Message() { mnl_nlmsg_put_header(buffer_); }

  void put(std::uint16_t type, std::size_t length, const void *value) {
    while (!mnl_attr_put_check(message(buffer_), size_, type, length, value)) grow();
  }

  void put(const bench::Attribute &attribute) {
    const std::size_t nul = attribute.kind == bench::Kind::kText ? 1 : 0;
    put(static_cast<std::uint16_t>(attribute.type), attribute.value.size() + nul, attribute.value.c_str());
  }

  void put(const nlattr *attr) {
    put(mnl_attr_get_type(attr), mnl_attr_get_payload_len(attr), mnl_attr_get_payload(attr));
  }

  void put_group(const bench::Attributes &attributes) {
    while (mnl_attr_nest_start_check(message(buffer_), size_, kGroupType) == nullptr) grow();
    const std::size_t start = message(buffer_)->nlmsg_len - sizeof(nlattr);
    for (const bench::Attribute &attribute : attributes) put(attribute);
    mnl_attr_nest_end(message(buffer_), reinterpret_cast<nlattr *>(static_cast<char *>(buffer_) + start));
  }

  void *release() { return std::exchange(buffer_, nullptr); }

 private:
  void grow() {
    size_ *= 2;
    buffer_ = std::realloc(buffer_, size_);
  }

  std::size_t size_ = kFirstSize;
  void *buffer_ = std::malloc(kFirstSize);
};

// How long the values of a type are.
mnl_attr_data_type data_type(std::uint32_t format) {
  switch (format) {
    case AAA_ATTR_FMT_STRING:
      return MNL_TYPE_NUL_STRING;
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
    case AAA_ATTR_FMT_IPV4:
      return MNL_TYPE_U32;
    case AAA_ATTR_FMT_GROUPED:
      return MNL_TYPE_NESTED;
    default:
      return MNL_TYPE_BINARY;
  }
}

// A callback of mnl_attr_parse(), as a program has for each of its messages.
int validate(const nlattr *attr, void *) {
  static const std::array<mnl_attr_data_type, AAA_ATTR_TYPE_COUNT> types = [] {
    std::array<mnl_attr_data_type, AAA_ATTR_TYPE_COUNT> made{};
    for (std::uint32_t type = 0; type < made.size(); ++type)
      made[type] = data_type(aaa_attr_get_format_from_type(type));
    return made;
  }();
  if (mnl_attr_type_valid(attr, AAA_ATTR_TYPE_COUNT - 1) < 0) return MNL_CB_ERROR;
  const mnl_attr_data_type type = types[mnl_attr_get_type(attr)];
  if (mnl_attr_validate(attr, type) < 0) return MNL_CB_ERROR;
  return type == MNL_TYPE_NESTED ? mnl_attr_parse_nested(attr, validate, nullptr) : MNL_CB_OK;
}

class Libmnl {
 public:
  using List = void *;

  static const char *name() { return "libmnl"; }

  static List build(const bench::Attributes &attributes) {
    Message made;
    for (const bench::Attribute &attribute : attributes) made.put(attribute);
    return made.release();
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    Message made;
    for (const bench::Attributes &attributes : groups) made.put_group(attributes);
    return made.release();
  }

  static void destroy(List list) { std::free(list); }

  static bool find(const void *list, std::uint32_t type) { return has(list, type); }

  static std::size_t encode(const void *list, std::byte *buffer, std::size_t size) {
    const std::size_t length = message(list)->nlmsg_len;
    if (length > size) return 0;
    std::memcpy(buffer, list, length);
    return length;
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    if (!mnl_nlmsg_ok(message(bytes), static_cast<int>(size))) return Message().release();
    List list = copy(bytes);
    if (mnl_attr_parse(message(list), 0, validate, nullptr) != MNL_CB_OK) mnl_nlmsg_put_header(list);
    return list;
  }

  static bool read(const std::byte *bytes, std::size_t, std::uint32_t type) { return has(bytes, type); }

  static List copy(const void *list) {
    const std::size_t length = message(list)->nlmsg_len;
    return std::memcpy(std::malloc(length), list, length);
  }

  static void merge(List &into, const void *from) {
    const Index newer = index(from);
    const Index old = index(into);
    Message made;
    for_each(into, [&](const nlattr *attr) {
      const nlattr *const *found = newer.find(mnl_attr_get_type(attr));
      made.put(found != nullptr ? *found : attr);
      return true;
    });
    for_each(from, [&](const nlattr *attr) {
      if (!old.has(mnl_attr_get_type(attr))) made.put(attr);
      return true;
    });
    std::free(into);
    into = made.release();
  }

  static void remove(List from, const void *types) {
    const Index unwanted = index(types);
    auto *kept = static_cast<char *>(mnl_nlmsg_get_payload(message(from)));
    for_each(from, [&](const nlattr *attr) {
      const nlattr *next = mnl_attr_next(attr);
      if (!unwanted.has(mnl_attr_get_type(attr))) {
        const auto size = reinterpret_cast<const char *>(next) - reinterpret_cast<const char *>(attr);
        std::memmove(kept, attr, static_cast<std::size_t>(size));
        kept += size;
      }
      return true;
    });
    message(from)->nlmsg_len = static_cast<std::uint32_t>(kept - static_cast<char *>(from));
  }

  static bool equal(const void *list1, const void *list2) {
    return same_order(list1, list2) || Index::equal(index(list1), index(list2), same);
  }

 private:
  using Index = bench::TypeIndex<const nlattr *>;

  // Not by the bytes of the whole lists, whose padding is not written.
  static bool same(const nlattr *a, const nlattr *b) {
    return a->nla_len == b->nla_len && std::memcmp(a, b, a->nla_len) == 0;
  }

  static bool same_order(const void *list1, const void *list2) {
    if (message(list1)->nlmsg_len != message(list2)->nlmsg_len) return false;
    const auto *other = static_cast<const nlattr *>(mnl_nlmsg_get_payload(message(list2)));
    bool all = true;
    for_each(list1, [&](const nlattr *attr) {
      all = same(attr, other);
      other = mnl_attr_next(other);
      return all;
    });
    return all;
  }

  static Index index(const void *list) {
    Index made;
    for_each(list, [&made](const nlattr *attr) {
      made.add(mnl_attr_get_type(attr), attr);
      return true;
    });
    return made;
  }
};

}  // namespace

BENCH_MAIN(Libmnl)
