// FlatBuffers: a table for each attribute, with a field for each kind of value. A list is a finished buffer of its
// exact size, made by a builder that is used again and again, as its documentation advises. What changes a list writes
// it anew. Decoding is copying what the Verifier accepts; reading in place trusts the bytes, as it does for everyone.
#include <attrmgr/aaa_attr_dict.h>
#include <flatbuffers/flatbuffers.h>
#include <flatbuffers/minireflect.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "attr_type_generated.h"
#include "attributes_generated.h"
#include "type_index.h"
#include "workloads.h"

namespace {

using bench::fb::Attr;
using bench::fb::AttrList;
using flatbuffers::Offset;

using Attrs = flatbuffers::Vector<Offset<Attr>>;

const Attrs &attrs_in(const void *bytes) { return *flatbuffers::GetRoot<AttrList>(bytes)->attrs(); }

bool has(const Attrs &attrs, std::uint32_t type) {
  return std::any_of(attrs.begin(), attrs.end(), [type](const Attr *attr) { return attr->type() == type; });
}

// Writes one buffer.
class Writer {
 public:
  void add(const bench::Attribute &attribute) {
    const auto type = static_cast<std::uint16_t>(attribute.type);
    const std::string &value = attribute.value;
    switch (attribute.kind) {
      case bench::Kind::kText:
        offsets_.push_back(bench::fb::CreateAttr(builder(), type, 0, builder().CreateString(value)));
        break;
      case bench::Kind::kOctets:
      case bench::Kind::kAddress6: {
        const auto octets = builder().CreateVector(reinterpret_cast<const std::uint8_t *>(value.data()), value.size());
        offsets_.push_back(bench::fb::CreateAttr(builder(), type, 0, 0, octets));
        break;
      }
      default: {
        std::uint32_t number = 0;
        std::memcpy(&number, value.data(), sizeof number);
        offsets_.push_back(bench::fb::CreateAttr(builder(), type, number));
      }
    }
  }

  // One of another buffer, which has no group.
  void add(const Attr &attr) {
    Offset<flatbuffers::String> text;
    Offset<flatbuffers::Vector<std::uint8_t>> octets;
    if (attr.text() != nullptr) text = builder().CreateString(attr.text());
    if (attr.octets() != nullptr) octets = builder().CreateVector(attr.octets()->data(), attr.octets()->size());
    offsets_.push_back(bench::fb::CreateAttr(builder(), attr.type(), attr.number(), text, octets));
  }

  void add_group(std::uint16_t type, const bench::Attributes &attributes) {
    std::vector<Offset<Attr>> outer;
    outer.swap(offsets_);
    for (const bench::Attribute &attribute : attributes) add(attribute);
    const auto group = builder().CreateVector(offsets_);
    offsets_.swap(outer);
    offsets_.push_back(bench::fb::CreateAttr(builder(), type, 0, 0, 0, group));
  }

  std::vector<std::uint8_t> finish() {
    builder().Finish(bench::fb::CreateAttrList(builder(), builder().CreateVector(offsets_)));
    std::vector<std::uint8_t> made(builder().GetBufferPointer(), builder().GetBufferPointer() + builder().GetSize());
    builder().Clear();
    return made;
  }

 private:
  static flatbuffers::FlatBufferBuilder &builder() {
    static flatbuffers::FlatBufferBuilder one;
    return one;
  }

  std::vector<Offset<Attr>> offsets_;
};

class Flatbuffers {
 public:
  using List = std::vector<std::uint8_t>;

  static const char *name() { return "FlatBuffers"; }

  static List build(const bench::Attributes &attributes) {
    Writer writer;
    for (const bench::Attribute &attribute : attributes) writer.add(attribute);
    return writer.finish();
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    constexpr std::uint16_t kGroupType = 473;
    Writer writer;
    for (const bench::Attributes &attributes : groups) writer.add_group(kGroupType, attributes);
    return writer.finish();
  }

  static void destroy(List &list) { List().swap(list); }

  static bool find(const List &list, std::uint32_t type) { return has(attrs_in(list.data()), type); }

  static std::size_t encode(const List &list, std::byte *buffer, std::size_t size) {
    if (list.size() > size) return 0;
    std::memcpy(buffer, list.data(), list.size());
    return list.size();
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    const auto *from = reinterpret_cast<const std::uint8_t *>(bytes);
    flatbuffers::Verifier verifier(from, size);
    return verifier.VerifyBuffer<AttrList>(nullptr) ? List(from, from + size) : List();
  }

  static bool read(const std::byte *bytes, std::size_t, std::uint32_t type) { return has(attrs_in(bytes), type); }

  static List copy(const List &list) { return list; }

  static void merge(List &into, const List &from) {
    const Attrs &present = attrs_in(into.data());
    bench::TypeIndex<const Attr *> newer = index(from);
    Writer writer;
    for (const Attr *attr : present) {
      const Attr *const *found = newer.find(attr->type());
      writer.add(found != nullptr ? **found : *attr);
    }
    const Index old = index(into);
    for (const Attr *attr : attrs_in(from.data()))
      if (!old.has(attr->type())) writer.add(*attr);
    into = writer.finish();
  }

  static void remove(List &from, const List &types) {
    const Index unwanted = index(types);
    Writer writer;
    for (const Attr *attr : attrs_in(from.data()))
      if (!unwanted.has(attr->type())) writer.add(*attr);
    from = writer.finish();
  }

  static bool equal(const List &list1, const List &list2) {
    if (list1 == list2) return true;
    const auto alike = [](const auto *a, const auto *b) {
      if (a == nullptr || b == nullptr) return a == b;
      return a->size() == b->size() && std::memcmp(a->Data(), b->Data(), a->size()) == 0;
    };
    return Index::equal(index(list1), index(list2), [alike](const Attr *a, const Attr *b) {
      return a->number() == b->number() && alike(a->text(), b->text()) && alike(a->octets(), b->octets());
    });
  }

  static const char *name_of(std::uint32_t type) {
    return bench::fb::EnumNameAttrType(static_cast<bench::fb::AttrType>(type));
  }

  static std::size_t render(const List &list, char *text, std::size_t size) {
    std::size_t done = 0;
    for (const Attr *attr : attrs_in(list.data())) {
      flatbuffers::ToStringVisitor visitor(" ");
      flatbuffers::IterateObject(reinterpret_cast<const std::uint8_t *>(attr), bench::fb::AttrTypeTable(), &visitor);
      done += visitor.s.copy(text + done, size - done);
    }
    return done;
  }

 private:
  using Index = bench::TypeIndex<const Attr *>;

  static Index index(const List &list) {
    Index made;
    for (const Attr *attr : attrs_in(list.data())) made.add(attr->type(), attr);
    return made;
  }
};

}  // namespace

BENCH_MAIN(Flatbuffers)
