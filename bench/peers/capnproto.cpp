// Cap'n Proto: a struct for each attribute, with a union for its value. A list is a message of its own, whose first
// segment is made for its size. Lists in a message have a fixed length, so that what changes one writes a new message.
// Decoding is copying the message with the checks of all its pointers; reading in place has them as it goes.
#include <capnp/message.h>
#include <capnp/schema.h>
#include <capnp/serialize.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "attr_type.capnp.h"
#include "attributes.capnp.h"
#include "names.h"
#include "type_index.h"
#include "workloads.h"

namespace {

using bench::cp::Attr;
using bench::cp::AttrList;

using Attrs = capnp::List<Attr>;

constexpr capnp::uint kWordsPerAttribute = 6;  // in a list of many texts; a message of one segment
constexpr capnp::uint kWordsPerList = 4;

bool has(Attrs::Reader attrs, std::uint32_t type) {
  for (const Attr::Reader attr : attrs)
    if (attr.getType() == type) return true;
  return false;
}

void set(Attr::Builder attr, const bench::Attribute &attribute) {
  attr.setType(static_cast<std::uint16_t>(attribute.type));
  const std::string &value = attribute.value;
  switch (attribute.kind) {
    case bench::Kind::kNumber:
    case bench::Kind::kEnum:
      attr.setNumber(attribute.number);
      break;
    case bench::Kind::kText:
      attr.setText({value.c_str(), value.size()});
      break;
    case bench::Kind::kAddress: {
      std::uint32_t address = 0;
      std::memcpy(&address, value.data(), sizeof address);
      attr.setAddress(address);
      break;
    }
    default:
      attr.setOctets({reinterpret_cast<const capnp::byte *>(value.data()), value.size()});
  }
}

class Capnproto {
 public:
  using Message = capnp::MallocMessageBuilder;
  using List = std::unique_ptr<Message>;

  static const char *name() { return "Cap'n Proto"; }

  static List build(const bench::Attributes &attributes) {
    List list = empty(attributes.size());
    const auto count = static_cast<capnp::uint>(attributes.size());
    set_all(list->initRoot<AttrList>().initAttrs(count), attributes);
    return list;
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    constexpr std::uint16_t kGroupType = 473;
    std::size_t count = groups.size();
    for (const bench::Attributes &group : groups) count += group.size();
    List list = empty(count);
    auto attrs = list->initRoot<AttrList>().initAttrs(static_cast<capnp::uint>(groups.size()));
    for (capnp::uint i = 0; i < attrs.size(); ++i) {
      attrs[i].setType(kGroupType);
      set_all(attrs[i].initGroup(static_cast<capnp::uint>(groups[i].size())), groups[i]);
    }
    return list;
  }

  static void destroy(List &list) { list.reset(); }

  static bool find(const List &list, std::uint32_t type) { return has(attrs_in(list), type); }

  static std::size_t encode(const List &list, std::byte *buffer, std::size_t size) {
    kj::ArrayOutputStream to({reinterpret_cast<kj::byte *>(buffer), size});
    capnp::writeMessage(to, *list);
    return to.getArray().size();
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    capnp::FlatArrayMessageReader from(words(bytes, size));
    auto list = std::make_unique<Message>(static_cast<capnp::uint>(size / sizeof(capnp::word)));
    list->setRoot(from.getRoot<AttrList>());
    return list;
  }

  static bool read(const std::byte *bytes, std::size_t size, std::uint32_t type) {
    capnp::FlatArrayMessageReader from(words(bytes, size));
    return has(from.getRoot<AttrList>().getAttrs(), type);
  }

  static List copy(const List &list) {
    auto made = std::make_unique<Message>(static_cast<capnp::uint>(list->sizeInWords()));
    made->setRoot(list->getRoot<AttrList>().asReader());
    return made;
  }

  static void merge(List &into, const List &from) {
    const Index newer = index(from);
    const Index old = index(into);
    std::vector<Attr::Reader> all;
    for (const Attr::Reader attr : attrs_in(into)) {
      const Attr::Reader *found = newer.find(attr.getType());
      all.push_back(found != nullptr ? *found : attr);
    }
    for (const Attr::Reader attr : attrs_in(from))
      if (!old.has(attr.getType())) all.push_back(attr);
    into = message_of(all);
  }

  static void remove(List &from, const List &types) {
    const Index unwanted = index(types);
    std::vector<Attr::Reader> kept;
    for (const Attr::Reader attr : attrs_in(from))
      if (!unwanted.has(attr.getType())) kept.push_back(attr);
    from = message_of(kept);
  }

  static bool equal(const List &list1, const List &list2) {
    if (same_bytes(list1->getSegmentsForOutput(), list2->getSegmentsForOutput())) return true;
    return Index::equal(index(list1), index(list2), [](Attr::Reader a, Attr::Reader b) {
      if (a.which() != b.which()) return false;
      switch (a.which()) {
        case Attr::NUMBER:
          return a.getNumber() == b.getNumber();
        case Attr::ADDRESS:
          return a.getAddress() == b.getAddress();
        case Attr::TEXT:
          return a.getText() == b.getText();
        case Attr::OCTETS:
          return a.getOctets() == b.getOctets();
        default:
          return capnp::AnyStruct::Reader(a) == capnp::AnyStruct::Reader(b);
      }
    });
  }

  static std::uint32_t number_of(const std::string &name) {
    KJ_IF_MAYBE (found, schema().findEnumerantByName(name)) {
      return found->getOrdinal();
    }
    return 0;
  }

  static std::string spelled(const std::string &name) { return bench::in_camel_case(name); }

  static const char *name_of(std::uint32_t type) { return schema().getEnumerants()[type].getProto().getName().cStr(); }

  static std::size_t render(const List &list, char *text, std::size_t size) {
    std::size_t done = 0;
    for (const Attr::Reader attr : attrs_in(list)) {
      const kj::String line = kj::str(attr);
      const std::size_t length = std::min(line.size(), size - done);
      std::memcpy(text + done, line.cStr(), length);
      done += length;
    }
    return done;
  }

 private:
  using Index = bench::TypeIndex<Attr::Reader>;

  static capnp::EnumSchema schema() {
    static const capnp::EnumSchema all = capnp::Schema::from<bench::cp::AttrType>();
    return all;
  }

  static List empty(std::size_t count) {
    return std::make_unique<Message>(kWordsPerList + kWordsPerAttribute * static_cast<capnp::uint>(count));
  }

  static Attrs::Reader attrs_in(const List &list) { return list->getRoot<AttrList>().asReader().getAttrs(); }

  using Segments = kj::ArrayPtr<const kj::ArrayPtr<const capnp::word>>;

  static bool same_bytes(Segments one, Segments other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](const auto &a, const auto &b) {
      return a.size() == b.size() && std::memcmp(a.begin(), b.begin(), a.asBytes().size()) == 0;
    });
  }

  static kj::ArrayPtr<const capnp::word> words(const std::byte *bytes, std::size_t size) {
    return {reinterpret_cast<const capnp::word *>(bytes), size / sizeof(capnp::word)};
  }

  static void set_all(Attrs::Builder attrs, const bench::Attributes &attributes) {
    for (capnp::uint i = 0; i < attrs.size(); ++i) set(attrs[i], attributes[i]);
  }

  static List message_of(const std::vector<Attr::Reader> &all) {
    List made = empty(all.size());
    auto attrs = made->initRoot<AttrList>().initAttrs(static_cast<capnp::uint>(all.size()));
    for (capnp::uint i = 0; i < attrs.size(); ++i) attrs.setWithCaveats(i, all[i]);
    return made;
  }

  static Index index(const List &list) {
    Index made;
    for (const Attr::Reader attr : attrs_in(list)) made.add(attr.getType(), attr);
    return made;
  }
};

}  // namespace

BENCH_MAIN(Capnproto)
