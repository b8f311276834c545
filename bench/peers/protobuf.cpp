// Protocol Buffers: a message with a repeated field of attributes, each with its type and one value. Two programs: the
// messages on the heap, and, with BENCH_PROTOBUF_ARENA, each list on an arena of its own. Names are those of an
// enumeration made from the dictionary.
#include <google/protobuf/arena.h>
#include <google/protobuf/text_format.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "attr_type.pb.h"
#include "attributes.pb.h"
#include "names.h"
#include "type_index.h"
#include "workloads.h"

namespace {

using bench::pb::Attr;
using bench::pb::AttrList;

#ifdef BENCH_PROTOBUF_ARENA

constexpr char kName[] = "Protobuf arena";

class List {
 public:
  AttrList *operator->() const { return message_; }
  AttrList &operator*() const { return *message_; }

 private:
  std::unique_ptr<google::protobuf::Arena> arena_ = std::make_unique<google::protobuf::Arena>();
  AttrList *message_ = google::protobuf::Arena::CreateMessage<AttrList>(arena_.get());
};

#else

constexpr char kName[] = "Protobuf";

class List {
 public:
  AttrList *operator->() { return &message_; }
  const AttrList *operator->() const { return &message_; }
  AttrList &operator*() { return message_; }
  const AttrList &operator*() const { return message_; }

 private:
  AttrList message_;
};

#endif

class Protobuf {
 public:
  using List = ::List;

  static const char *name() { return kName; }

  static List build(const bench::Attributes &attributes) {
    List list;
    add_all(*list, attributes);
    return list;
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    constexpr std::uint32_t kGroupType = 473;
    List list;
    for (const bench::Attributes &attributes : groups) {
      Attr *group = list->add_attrs();
      group->set_type(kGroupType);
      add_all(*group->mutable_group(), attributes);
    }
    return list;
  }

  static void destroy(List &list) { List spent = std::move(list); }

  static bool find(const List &list, std::uint32_t type) {
    const auto &attrs = list->attrs();
    return std::any_of(attrs.begin(), attrs.end(), [type](const Attr &attr) { return attr.type() == type; });
  }

  static std::size_t encode(const List &list, std::byte *buffer, std::size_t size) {
    if (!list->SerializeToArray(buffer, static_cast<int>(size))) return 0;
    return static_cast<std::size_t>(list->GetCachedSize());
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    List list;
    if (!list->ParseFromArray(bytes, static_cast<int>(size))) list->Clear();
    return list;
  }

  static List copy(const List &list) {
    List made;
    *made = *list;
    return made;
  }

  static void merge(List &into, const List &from) {
    bench::TypeIndex<Attr *> present;
    for (Attr &attr : *into->mutable_attrs()) present.add(attr.type(), &attr);
    for (const Attr &attr : from->attrs()) {
      Attr *const *found = present.find(attr.type());
      *(found != nullptr ? *found : into->add_attrs()) = attr;
    }
  }

  static void remove(List &from, const List &types) {
    const Index unwanted = index(types);
    auto *attrs = from->mutable_attrs();
    int kept = 0;
    for (int i = 0; i < attrs->size(); ++i)
      if (!unwanted.has(attrs->Get(i).type())) attrs->SwapElements(kept++, i);
    attrs->DeleteSubrange(kept, attrs->size() - kept);
  }

  static bool equal(const List &list1, const List &list2) {
    return Index::equal(index(list1), index(list2), [](const Attr *a, const Attr *b) {
      if (a->value_case() != b->value_case()) return false;
      switch (a->value_case()) {
        case Attr::kNumber:
          return a->number() == b->number();
        case Attr::kText:
          return a->text() == b->text();
        case Attr::kAddress:
          return a->address() == b->address();
        case Attr::kOctets:
          return a->octets() == b->octets();
        default:
          return a->SerializeAsString() == b->SerializeAsString();
      }
    });
  }

  static std::uint32_t number_of(const std::string &name) {
    bench::pb::AttrType type = bench::pb::none;
    return bench::pb::AttrType_Parse(name, &type) ? static_cast<std::uint32_t>(type) : 0;
  }

  static std::string spelled(const std::string &name) { return bench::with_underscores(name); }

  static const char *name_of(std::uint32_t type) {
    return bench::pb::AttrType_Name(static_cast<bench::pb::AttrType>(type)).c_str();
  }

  static std::size_t render(const List &list, char *text, std::size_t size) {
    static const google::protobuf::TextFormat::Printer &printer = *make_printer();
    std::size_t done = 0;
    std::string line;
    for (const Attr &attr : list->attrs()) {
      printer.PrintToString(attr, &line);
      done += line.copy(text + done, size - done);
    }
    return done;
  }

 private:
  using Index = bench::TypeIndex<const Attr *>;

  static void add_all(AttrList &list, const bench::Attributes &attributes) {
    for (const bench::Attribute &attribute : attributes) {
      Attr *attr = list.add_attrs();
      attr->set_type(attribute.type);
      switch (attribute.kind) {
        case bench::Kind::kNumber:
        case bench::Kind::kEnum:
          attr->set_number(attribute.number);
          break;
        case bench::Kind::kText:
          attr->set_text(attribute.value);
          break;
        case bench::Kind::kAddress: {
          std::uint32_t address = 0;
          std::memcpy(&address, attribute.value.data(), sizeof address);
          attr->set_address(address);
          break;
        }
        default:
          attr->set_octets(attribute.value);
      }
    }
  }

  static Index index(const List &list) {
    Index made;
    for (const Attr &attr : list->attrs()) made.add(attr.type(), &attr);
    return made;
  }

  static google::protobuf::TextFormat::Printer *make_printer() {
    auto *made = new google::protobuf::TextFormat::Printer;
    made->SetSingleLineMode(true);
    return made;
  }
};

}  // namespace

BENCH_MAIN(Protobuf)
