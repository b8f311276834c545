// Random sequences of operations over three lists, each run on the library and on the model: after every operation both
// must have answered the same and hold the same. Sub-lists that a removal leaves to the client are freed as it would.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cstdlib>
#include <ostream>

#include "model/model.h"

namespace {

using model::Attr;
using Handle = aaa_attr_list_handle;
using Codes = std::pair<aaa_attr_cerrno, aaa_attr_cerrno>;  // the library's, the model's

constexpr std::size_t kLists = 3;
constexpr int kMostOperations = 60;
constexpr std::size_t kHeaviest = 250;  // a list that has grown beyond is replaced by an empty one

// None, then metas that differ in what replacing compares, in what it does not compare, and in what a cursor filters
// by.
constexpr aaa_attr_meta kMetas[] = {
    {}, {3, 7, 0, 0, 0}, {3, 7, 0, 2, 9}, {3, 7, 0, 1, 0}, {3, 7, 5, 0, 0}, {3, 8, 0, 0, 0}, {4, 7, 0, 0, 0}};
constexpr std::uint32_t kSuitable = 0xFFFFFFFF;  // the length that suits the type
constexpr std::uint32_t kLongestFixed = 17;      // longer ones are for types of any length only

// A list on both sides, and a place to find one: an outer list or a sub-list.
struct Both {
  List list;
  model::List model;
};
struct Place {
  operator Handle() const { return handle; }
  operator model::List &() const { return *model; }
  Handle handle;
  model::List *model;
};

// One operation as a value, so that a failing sequence can be shrunk and shown. Not every kind uses every field.
struct Operation {
  std::size_t kind, list, other;  // into kKinds; the lists, the one that changes first
  unsigned depth, other_depth;    // sub-lists down, in each
  std::size_t type, meta;         // into kTypes, kMetas
  std::uint32_t length, client_type;
  unsigned choice;  // of sub-lists, attributes, types, bytes
};

struct Step {
  const Operation &operation;
  Both &own, &other;
  Place p, q;  // own and other, or sub-lists in them
  std::uint32_t type;
  const aaa_attr_meta *meta;
};
struct Kind {
  const char *name;
  Codes (*run)(const Step &);
};
extern const Kind kKinds[];
extern const std::size_t kNumKinds;

std::ostream &operator<<(std::ostream &out, const Operation &o) {
  out << "\n  " << kKinds[o.kind].name << " list " << o.list << '/' << o.depth << " other " << o.other << '/'
      << o.other_depth << " type " << model::kTypes[o.type].number << " meta " << o.meta << " length ";
  return out << static_cast<std::int32_t>(o.length) << " client type " << o.client_type << " choice " << o.choice;
}

}  // namespace

template <>
struct rc::Arbitrary<Operation> {
  static Gen<Operation> arbitrary() {
    const auto below = [](std::size_t end) { return gen::inRange<std::size_t>(0, end); };
    const auto depth = gen::weightedElement<unsigned>({{5, 0}, {2, 1}, {1, 2}});
    const auto length =
        gen::weightedOneOf<std::uint32_t>({{30, gen::just(kSuitable)},
                                           {10, gen::element<std::uint32_t>(0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17)},
                                           {20, gen::element<std::uint32_t>(100, 200, 464, 480, 481, 1000)},
                                           {1, gen::element<std::uint32_t>(65494, 65495, 65496, 65502, 65503, 65504)}});
    const std::size_t types = std::size(model::kTypes);
    return gen::resize(
        kNominalSize,
        gen::build<Operation>(
            gen::set(&Operation::kind, gen::weightedOneOf<std::size_t>({{1, below(4)}, {2, below(kNumKinds)}})),
            gen::set(&Operation::list, below(kLists)), gen::set(&Operation::other, below(kLists)),
            gen::set(&Operation::depth, depth), gen::set(&Operation::other_depth, depth),
            gen::set(&Operation::type,
                     gen::weightedOneOf<std::size_t>(
                         {{24, below(6)}, {12, below(types - 2)}, {2, gen::inRange(types - 2, types)}})),
            gen::set(&Operation::meta,
                     gen::weightedOneOf<std::size_t>({{2, below(1)}, {2, below(3)}, {1, below(std::size(kMetas))}})),
            gen::set(&Operation::length, length),
            gen::set(&Operation::client_type, gen::element(0u, 1u, 5u, 23u, 24u, 127u, 133u)),
            gen::set(&Operation::choice, gen::inRange(0u, 1u << 16))));
  }
};

namespace {

std::vector<Handle> sub_lists(Handle list) {
  std::vector<Handle> handles;
  aaa_cursor *cursor = nullptr;
  RC_ASSERT(aaa_cursor_alloc(list, &cursor) == 0u);
  while (aaa_cursor_get_next(cursor))
    if (aaa_cursor_grouped(cursor)) aaa_cursor_get_grouped_attr_handle(cursor, &handles.emplace_back());
  aaa_cursor_free(cursor);
  return handles;
}
std::vector<Place> sub_places(const Place &place) {
  std::vector<Place> places;
  for (const Handle handle : sub_lists(place)) places.push_back({handle, nullptr});
  auto at = places.begin();
  for (model::Cursor c{*place.model}; Attr *a = c.next();)
    if (model::grouped(*a)) (at++)->model = &a->sub[0];
  return places;
}

void check_counts(const Place &place) {
  RC_ASSERT(aaa_attr_list_attr_count(place) == place.model->records.size());
  for (const Place &sub : sub_places(place)) check_counts(sub);
}
void check_same(const Place &place) {
  aaa_attr_cerrno code = 0;
  RC_ASSERT(is_aaa_attr_list_valid(place, &code) == 1);
  RC_ASSERT(outline(place) == model::outline(place));
  check_counts(place);
}

Place place_in(Both &both, unsigned depth, unsigned choice) {
  Place place{both.list, &both.model};
  for (; depth > 0; --depth)
    if (const std::vector<Place> subs = sub_places(place); !subs.empty()) place = subs[choice % subs.size()];
  return place;
}

void run(std::array<Both, kLists> &lists, const Operation &o) {
  for (Both &both : lists)
    if (model::weight(both.model) > kHeaviest) both = {};
  const bool apart = o.list != o.other;  // a list and its own sub-lists are never used together
  const Place p = place_in(lists[o.list], apart ? o.depth : 0, o.choice);
  const Place q = place_in(lists[o.other], apart ? o.other_depth : 0, o.choice);
  const auto [code, expected] = kKinds[o.kind].run(
      {o, lists[o.list], lists[o.other], p, q, model::kTypes[o.type].number, o.meta ? &kMetas[o.meta] : nullptr});
  RC_ASSERT(code == expected);
  for (Both &both : lists) check_same(place_in(both, 0, 0));
}

// ---- Kinds ----

// The attribute of the step, as it is given to the adding calls; the value of a Grouped one is no handle yet.
Attr attribute(const Step &s) {
  const Operation &o = s.operation;
  const std::uint32_t fixed = model::kTypes[o.type].length;
  const bool suitable = o.length == kSuitable || (fixed && o.length > kLongestFixed);
  const std::uint32_t length = !suitable ? o.length : fixed ? fixed : 2;
  Attr a{s.type, {}, {}, o.client_type, {}};
  if (s.meta) a.meta = *s.meta;
  a.value.reserve(1);  // not null when it is empty
  for (std::uint32_t i = 0; i < length; ++i) a.value.push_back(static_cast<std::uint8_t>(o.choice % 3 + i % 7));
  return a;
}
std::uint32_t length_of(const Attr &a) { return static_cast<std::uint32_t>(a.value.size()); }

aaa_attr_cerrno add_or_replace_v1(Handle list, std::uint32_t type, const void *value, std::uint32_t length,
                                  const aaa_attr_meta *meta, std::uint32_t) {
  return aaa_attr_add_or_replace_v1(list, type, value, length, meta);
}
template <auto library, model::Write plain>
Codes adding(const Step &s) {
  Attr given = attribute(s);
  const bool with_list = model::grouped(given) && given.value.size() == sizeof(Handle);
  List sub;
  const Bytes handle = model::handle_bytes<Handle>(sub);
  const aaa_attr_cerrno code =
      library(s.p, s.type, with_list ? handle.data() : given.value.data(), length_of(given), s.meta, given.client_type);
  if (with_list) given.value = model::fresh_handle(), given.sub.resize(1);
  if (with_list && code == 0) sub.release();
  return {code, plain(s.p, std::move(given))};
}

// A new sub-list, or another whole list as the sub-list. A type that is not Grouped stores the handle as mere bytes.
Codes add_group(const Step &s, List *list, model::List sub, aaa_attr_cerrno code) {
  Attr given{s.type, model::handle_bytes<Handle>(*list), attribute(s).meta, 0, {}};
  if (model::grouped(given)) given.value = model::fresh_handle(), given.sub = {std::move(sub)};
  if (model::grouped(given) && code == 0) list->release();
  return {code, model::add(s.p, std::move(given))};
}
Codes add_group_list(const Step &s) {
  List list(0);
  const aaa_attr_cerrno code = aaa_attr_add_group_list(s.p, list.out(), s.type, s.meta);
  RC_ASSERT((list == 0u) == (code != 0u));
  return add_group(s, &list, {}, code);
}
Codes add_existing_group_list(const Step &s) {
  if (&s.own == &s.other) return {};
  Both sub = std::exchange(s.other, {});
  return add_group(s, &sub.list, std::move(sub.model), aaa_attr_add_existing_group_list(s.p, sub.list, s.type, s.meta));
}

// A Grouped attribute is replaced by the sub-list that it holds.
Codes replace_by_itself(const Step &s) {
  const Attr *old = model::first(s.p, s.type);
  if (!old || !model::grouped(*old)) return {};
  Handle sub = 0;
  RC_ASSERT(aaa_attr_get_uint64_t(s.p, s.type, &sub) == 0u);
  const std::uint32_t client_type = s.operation.client_type;
  return {aaa_attr_add_or_replace_v2(s.p, s.type, &sub, sizeof sub, s.meta, client_type),
          model::replace_v2(s.p, {s.type, old->value, attribute(s).meta, client_type, old->sub})};
}

// Runs a removal that leaves sub-lists to the client, and frees those.
template <typename Removal>
aaa_attr_cerrno freeing_removed(const Step &s, Removal removal) {
  std::set<Handle> removed;
  for (const Place &place : {s.p, s.q})
    for (const Handle handle : sub_lists(place)) removed.insert(handle);
  const aaa_attr_cerrno code = removal();
  for (const Place &place : {s.p, s.q})
    for (const Handle handle : sub_lists(place)) removed.erase(handle);
  for (const Handle handle : removed) aaa_attr_list_free(handle);
  return code;
}

template <auto library, auto plain>
Codes two_lists(const Step &s) {
  return {library(s.p, s.q), plain(s.p, s.q)};
}
template <auto library, auto plain>
Codes two_lists_leaving_sub_lists(const Step &s) {
  return {freeing_removed(s, [&] { return library(s.p, s.q); }), plain(s.p, s.q)};
}

Codes remove(const Step &s) { return {aaa_attr_remove(s.p, s.type), model::remove(s.p, s.type)}; }

// By the value of an attribute of the other list, if it has so many, or else of the step's own.
Codes remove_on_match(const Step &s) {
  Attr wanted = attribute(s);
  Bytes value = wanted.value;
  aaa_cursor *cursor = nullptr;
  aaa_cursor_alloc(s.q, &cursor);
  unsigned n = s.operation.choice % 5;
  for (model::Cursor c{s.q}; const Attr *a = c.next();) {
    RC_ASSERT(aaa_cursor_get_next(cursor) == a->type);
    if (n-- != 0) continue;
    std::uint32_t length = 0;
    const auto *bytes = static_cast<const std::uint8_t *>(aaa_cursor_get(cursor, &length));
    value.assign(bytes, bytes + length);
    wanted = {a->type, model::reported(*a), {}, 0, {}};
  }
  aaa_cursor_free(cursor);
  return {
      freeing_removed(s, [&] { return aaa_attr_remove_on_match(s.p, wanted.type, value.data(), length_of(wanted)); }),
      model::remove_on_match(s.p, wanted.type, wanted.value)};
}

// A filtered walk that removes some attributes, and frees their sub-lists.
Codes cursor_remove(const Step &s) {
  const aaa_attr_meta &meta = kMetas[s.operation.meta];
  model::Cursor c{s.p, meta.service, meta.protocol};
  aaa_cursor *cursor = nullptr;
  RC_ASSERT(aaa_cursor_alloc_filtered(s.p, &cursor, meta.service, meta.protocol) == 0u);
  for (unsigned n = 0; Attr *a = c.next(); ++n) {
    RC_ASSERT(aaa_cursor_get_next(cursor) == a->type);
    if (s.operation.choice >> n % 16 & 1) continue;
    Handle sub = 0;
    if (model::grouped(*a)) RC_ASSERT(aaa_cursor_get_grouped_attr_handle(cursor, &sub) == 0u);
    aaa_cursor_remove(cursor);
    aaa_attr_list_free(sub);
    model::erase(*a);
  }
  RC_ASSERT(aaa_cursor_get_next(cursor) == 0u);
  return {aaa_cursor_free(cursor), 0};
}

template <auto library, bool only_unstamped>
Codes stamp(const Step &s) {
  const std::uint32_t client_type = s.operation.client_type;
  return {library(s.p, client_type), model::stamp(s.p, client_type, only_unstamped)};
}

Codes coalesce(const Step &s) {
  std::uint32_t size = 0;
  aaa_attr_cerrno valid = 0;
  const aaa_attr_cerrno code = aaa_attr_list_buffer_coalesce_and_get_len(s.p, &size);
  const Bytes buffer = flat_buffer(s.p);
  RC_ASSERT(size == buffer.size());
  RC_ASSERT(is_aaa_attr_buffer_valid(buffer.data(), size, &valid) == 1);
  model::coalesce(s.p);
  return {code, 0};
}

Codes copy(const Step &s) {
  List list(0);
  const aaa_attr_cerrno code = aaa_attr_list_copy(s.q, list.out());
  s.own = {std::move(list), model::copy(s.q)};
  return {code, 0};
}

Codes copy_by_type(const Step &s) {
  return {aaa_attr_list_copy_by_type(s.q, s.p, s.type), model::copy_by_type(s.q, s.p, s.type)};
}

// A new list takes the place of the source.
Codes merge_list(const Step &s) {
  const aaa_attr_cerrno code = aaa_attr_list_merge_list(s.p, s.other.list);
  if (code == 0) s.other.list.release(), s.other.list = List();
  return {code, model::merge_list(s.p, s.other.model)};
}

Codes replace_and_add_v1(const Step &s) {
  return {aaa_attr_list_replace_and_add_v1(s.own.list.out(), s.other.list.out()),
          model::replace_and_add_v1(s.own.model, s.other.model)};
}

Codes filter_on_type(const Step &s) {
  std::vector<std::uint32_t> types;
  for (std::size_t i = 0; i < std::size(model::kTypes); ++i)
    if (s.operation.choice >> i & 1) types.push_back(model::kTypes[i].number);
  const auto count = static_cast<std::uint32_t>(types.size()) + 256 * (s.operation.choice % 3);
  return {aaa_attr_filter_on_type(s.own.list.out(), types.data(), count), model::filter_on_type(s.own.model, types)};
}

// ---- Kinds that only look, or put what they have built in the list's place ----

// Also of the list and its own attributes in another order, then with another meta for one.
Codes equal(const Step &s) {
  RC_ASSERT(aaa_attr_list_eq(s.p, s.q) == (model::as_set(s.p) == model::as_set(s.q)));
  Both sorted;
  for (const model::Type &type : model::kTypes) {
    RC_ASSERT(aaa_attr_list_copy_by_type(s.p, sorted.list, type.number) == 0u);
    model::copy_by_type(s.p, sorted.model, type.number);
  }
  RC_ASSERT(aaa_attr_list_eq(s.p, sorted.list) == 1);
  const Attr *old = model::first(sorted.model, s.type);
  if (!old || model::grouped(*old)) return {};
  const Attr other{s.type, model::reported(*old), attribute(s).meta, 0, {}};
  RC_ASSERT(aaa_attr_add_or_replace(sorted.list, s.type, other.value.data(), length_of(other), s.meta) ==
            model::replace_v2(sorted.model, other));
  RC_ASSERT(aaa_attr_list_eq(sorted.list, s.p) == (model::as_set(sorted.model) == model::as_set(s.p)));
  return {};
}

Codes find(const Step &s) {
  for (const model::Type &type : model::kTypes) {
    std::vector<Bytes> expected, found;
    for (model::Cursor c{s.p}; Attr *a = c.next();)
      if (a->type == type.number) expected.push_back(model::grouped(*a) ? Bytes(sizeof(Handle)) : model::reported(*a));
    std::uint16_t count = 0xFFFF;
    RC_ASSERT(aaa_attr_find_attr_type_number(s.p, type.number, &count) == 0u);
    RC_ASSERT(count == expected.size());
    RC_ASSERT(aaa_attr_is_present(s.p, type.number) == !expected.empty());
    const void *value = nullptr;
    std::uint32_t length = 0;
    for (std::uint16_t n = 0; aaa_attr_get_nth(s.p, type.number, &value, &length, n) == 0; ++n) {
      const auto *bytes = static_cast<const std::uint8_t *>(value);
      found.push_back(type.format == AAA_ATTR_FMT_GROUPED ? Bytes(length) : Bytes(bytes, bytes + length));
    }
    RC_ASSERT(found == expected);
  }
  return {};
}

// A flat buffer carries removed records, too, and comes back from the other byte order as it was.
Codes flat(const Step &s) {
  Bytes buffer = flat_buffer(s.own.list);
  const auto length = static_cast<std::uint32_t>(buffer.size());
  std::uint32_t announced = 0;
  aaa_attr_cerrno code = 0;
  RC_ASSERT(aaa_attr_list_buffer_len(s.own.list, &announced) == 0u);
  RC_ASSERT(announced == length);
  RC_ASSERT(is_aaa_attr_buffer_valid(buffer.data(), length, &code) == 1);

  const Bytes before = buffer;
  char *bytes = reinterpret_cast<char *>(buffer.data());
  RC_ASSERT(aaa_attrs_buffer_tran(bytes, CDM_ENDIAN_TRAN_HTON) == 0u);
  RC_ASSERT(buffer != before);
  RC_ASSERT(aaa_attrs_buffer_tran_v1(bytes, length, CDM_ENDIAN_TRAN_NTOH) == 0u);
  RC_ASSERT(buffer == before);

  aaa_cursor *cursor = nullptr;
  RC_ASSERT(aaa_cursor_alloc_from_buffer(buffer.data(), &cursor) == 0u);
  for (model::Cursor c{s.own.model}; Attr *a = c.next();) RC_ASSERT(aaa_cursor_get_next(cursor) == a->type);
  RC_ASSERT(aaa_cursor_get_next(cursor) == 0u);
  aaa_cursor_free(cursor);

  List decoded(0);
  RC_ASSERT(decode(buffer, &decoded) == 0u);
  RC_ASSERT(aaa_attr_list_eq(s.own.list, decoded) == 1);
  s.own.list = std::move(decoded);
  return {};
}

Codes tlv(const Step &s) {
  if (model::holds_type_0(s.own.model)) return {};  // the decoder refuses type 0
  List decoded(0);
  RC_ASSERT(decode(tlv_buffer(s.own.list), &decoded) == 0u);
  RC_ASSERT(aaa_attr_list_eq(s.own.list, decoded) == 1);
  s.own = {std::move(decoded), model::through_tlv(s.own.model)};
  return {};
}

// The first four fill lists and are run more often.
const Kind kKinds[] = {
    {"add_v1", adding<aaa_attr_add_v1, model::add>},
    {"add_group_list", add_group_list},
    {"add_or_replace_v2", adding<aaa_attr_add_or_replace_v2, model::replace_v2>},
    {"add_or_replace_v1", adding<add_or_replace_v1, model::replace_v1>},
    {"add_existing_group_list", add_existing_group_list},
    {"replace_by_itself", replace_by_itself},
    {"remove", remove},
    {"remove_on_match", remove_on_match},
    {"remove_list", two_lists<aaa_attr_list_remove_list, model::remove_list>},
    {"remove_list_on_match",
     two_lists_leaving_sub_lists<aaa_attr_list_remove_list_on_match, model::remove_list_on_match>},
    {"remove_common_attrs", two_lists_leaving_sub_lists<aaa_attr_list_remove_common_attrs, model::remove_common_attrs>},
    {"cursor_remove", cursor_remove},
    {"set_producer_client_type", stamp<aaa_attr_list_set_producer_client_type, false>},
    {"init_producer_client_type", stamp<aaa_attr_list_init_producer_client_type, true>},
    {"coalesce", coalesce},
    {"copy", copy},
    {"copy_by_type", copy_by_type},
    {"append_list", two_lists<aaa_attr_list_append_list, model::combine<model::add, true>>},
    {"merge_with_replace", two_lists<aaa_attr_list_merge_with_replace, model::combine<model::replace_v2, true>>},
    {"merge_double_dip", two_lists<aaa_attr_list_merge_double_dip, model::combine<model::double_dip, false>>},
    {"replace_and_add", two_lists<aaa_attr_list_replace_and_add, model::replace_and_add>},
    {"replace_and_add_v1", replace_and_add_v1},
    {"merge_list", merge_list},
    {"filter_on_type", filter_on_type},
    {"equal", equal},
    {"find", find},
    {"flat", flat},
    {"tlv", tlv},
};
const std::size_t kNumKinds = std::size(kKinds);

// The number of sequences, unless the environment says otherwise.
[[maybe_unused]] const int kConfigured = setenv("RC_PARAMS", "max_success=1000", 0);

RC_GTEST_PROP(Model, LibraryAgreesAfterEveryOperation, ()) {
  std::array<Both, kLists> lists;
  for (const Operation &operation : *rc::gen::resize(kMostOperations, rc::gen::arbitrary<std::vector<Operation>>()))
    run(lists, operation);
}

}  // namespace
