// The operations of the interface, each done by the library and by the model. World runs steps on three lists; both
// sides must answer the same and then hold the same. Throws where they do not; any source of bytes can drive it.
#pragma once

#include <array>
#include <map>
#include <sstream>
#include <stdexcept>

#include "model/model.h"

namespace model {

inline void agree(const char *what, std::uint64_t library, std::uint64_t model) {
  if (library != model)
    throw std::logic_error(std::string(what) + ": " + std::to_string(library) + ", model: " + std::to_string(model));
}
// A cursor of the library.
struct Walk {
  explicit Walk(Handle l, const aaa_attr_meta &m = {}) { aaa_cursor_alloc_filtered(l, &cursor, m.service, m.protocol); }
  explicit Walk(const Bytes &buffer) { aaa_cursor_alloc_from_buffer(buffer.data(), &cursor); }
  ~Walk() { aaa_cursor_free(cursor); }
  aaa_cursor *cursor = nullptr;
};

// Metas that differ in what replacing compares, in what it does not, and in what a cursor filters by.
inline constexpr aaa_attr_meta kMetas[] = {{},
                                           {3, 7, 0, 0, 0},
                                           {3, 7, 0, 2, 9},
                                           {3, 7, 0, AAA_ATTR_META_MANDATORY, 0},
                                           {3, 7, 5, 0, 0},
                                           {3, 8, 0, 0, 0},
                                           {4, 7, 0, 0, 0}};
inline constexpr std::uint32_t kClientTypes[] = {0, 1, 5, 23, 24, 127, 133};
// Short and of medium size; and about the largest that a block takes, for types of any length only.
inline constexpr std::uint32_t kLengths[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 100, 200, 464, 480, 481, 1000};
inline constexpr std::uint32_t kLargeLengths[] = {65494, 65495, 65496, 65502, 65503, 65504};

// One step. Any bytes are one, so that they can be generated and shrunk.
enum Field { kOperation, kList, kOther, kChoiceLow, kChoiceHigh, kDepth, kOtherDepth, kMeta, kClient, kType, kLength };
using Step = std::array<std::uint8_t, kLength + 1>;

// Which of `count` things a byte means. There are more slots than things: those that are left mean one of the first
// `frequent`, which come up more often so.
constexpr std::size_t pick(std::uint8_t byte, std::size_t count, std::size_t slots, std::size_t frequent) {
  return byte % slots < count ? byte % slots : byte % frequent;
}
inline std::size_t pick_type(const Step &s) { return pick(s[kType], std::size(kTypes), 35, 6); }
inline std::size_t pick_meta(const Step &s) { return pick(s[kMeta], std::size(kMetas), 11, 1); }

// A list, or a sub-list further down.
inline List &down(List &list, unsigned depth, unsigned choice) {
  const Attrs subs = all(list, grouped);
  return depth == 0 || subs.empty() ? list : down(subs[choice % subs.size()]->sub[0], depth - 1, choice);
}
// The step without attributes of type 0.
inline Step without_type_zero(Step step) {
  if (pick_type(step) == kTypeZeroAt) step[kType] = 0;
  return step;
}

// What a step comes to.
struct Call {
  // A list and its own sub-lists are not used together.
  unsigned depth(Field field) const {
    constexpr unsigned kDepths[] = {0, 0, 0, 0, 0, 1, 1, 2};
    return &outer == &other_outer ? 0 : kDepths[s[field] % std::size(kDepths)];
  }
  // Every other time the one that suits the type, and large ones seldom: they make the lists slow to compare.
  std::uint32_t any_length() const {
    constexpr std::uint8_t kSuits = 128, kLarge = 250;
    constexpr std::uint32_t kShortMax = 17, kOfAnyLength = 2;
    const std::uint8_t byte = s[kLength];
    const std::uint32_t length =
        byte < kLarge ? kLengths[byte % std::size(kLengths)] : kLargeLengths[byte % std::size(kLargeLengths)];
    if (byte >= kSuits && (type.length == 0 || length <= kShortMax)) return length;
    return type.length != 0 ? type.length : kOfAnyLength;
  }
  Attr attribute() const {
    const std::uint32_t length = any_length();
    Attr a{type.number, Bytes(length), meta.service ? Meta(meta) : Meta(), client_type, {}};
    for (std::uint32_t i = 0; i < length; ++i) a.value[i] = static_cast<std::uint8_t>(choice % 3 + i % 7);
    a.value.reserve(1);  // not null when it is empty
    if (grouped(a) && length == sizeof(Handle)) a.value = handle_bytes(made);
    return a;
  }
  std::uint32_t length() const { return static_cast<std::uint32_t>(given.value.size()); }
  const aaa_attr_meta *given_meta() const { return given.meta ? &*given.meta : nullptr; }
  // Where the library puts a new list.
  Handle *out() { return (made = ::List(0)).out(); }

  std::array<List, 3> &lists;
  const Step &s;
  List &outer = lists[s[kList] % std::size(lists)],
       &other_outer = lists[s[kOther] % std::size(lists)];  // changes second
  unsigned choice = s[kChoiceLow] + 256u * s[kChoiceHigh];  // of sub-lists, attributes, types, bytes
  List &list = down(outer, depth(kDepth), choice), &other = down(other_outer, depth(kOtherDepth), choice);
  const aaa_attr_meta &meta = kMetas[pick_meta(s)];
  std::uint32_t client_type = kClientTypes[s[kClient] % std::size(kClientTypes)];
  const Type &type = kTypes[pick_type(s)];
  ::List made = {};               // to be given away, or to take a list's place; else freed with the call
  std::vector<Attr> inside = {};  // what is in it
  Attr given = attribute();       // of the adding operations; of a Grouped type: without the list
};

// ---- The library's side ----

// With the client type, if the function takes one.
template <auto library, auto... client_type>
Code adding(Call &c) {
  return library(c.list, c.given.type, c.given.value.data(), c.length(), c.given_meta(), c.given.*client_type...);
}
// A new list, or another whole list. The handle is the value, whatever the type: others store it as mere bytes.
inline Code add_group_list(Call &c) {
  const Code code = aaa_attr_add_group_list(c.list, c.out(), c.given.type, c.given_meta());
  agree("sub-list on failure", c.made == 0u, code != 0u);
  c.given = {c.given.type, handle_bytes(c.made), c.given.meta, 0, {}};
  return code;
}
inline Code add_existing_group_list(Call &c) {
  if (&c.outer != &c.other_outer) {
    c.made = ::List(std::exchange(c.other_outer.handle, c.made.release()));
    c.inside = std::exchange(c.other_outer.records, {});
  }
  c.given = {c.given.type, handle_bytes(c.made), c.given.meta, 0, {}};
  return aaa_attr_add_existing_group_list(c.list, c.made, c.given.type, c.given_meta());
}
// By the value of an attribute of the other list, if it has so many, or else the call's own.
inline Code remove_on_match(Call &c) {
  const Attrs others = live(c.other);
  constexpr unsigned kReach = 5;
  if (const std::size_t n = c.choice % kReach; n < others.size())
    c.given = {others[n]->type, value_of(*others[n]), {}, 0, {}};
  return aaa_attr_remove_on_match(c.list, c.given.type, c.given.value.data(), c.length());
}
// A filtered walk that removes the chosen attributes.
inline Code cursor_remove(Call &c) {
  const Walk walk(c.list, c.meta);
  for (unsigned n = 0; Attr * a : live(c.list, c.meta)) {
    agree("type of the walk", aaa_cursor_get_next(walk.cursor), a->type);
    if (c.choice >> n++ % 16 & 1) continue;
    for (List &sub : a->sub) aaa_cursor_get_grouped_attr_handle(walk.cursor, &sub.handle);  // may lie after a type 0
    aaa_cursor_remove(walk.cursor);
    erase(*a, kLeft);
  }
  return aaa_cursor_get_next(walk.cursor);
}
inline Code coalesce(Call &c) {
  std::uint32_t size = 0;
  const Code code = aaa_attr_list_buffer_coalesce_and_get_len(c.list, &size);
  agree("announced size", size, flat_buffer(c.list).size());
  std::erase_if(c.list.records, [](const Attr &a) { return a.deleted; });
  return code;
}
inline Code merge_list(Call &c) {
  const Code code = aaa_attr_list_merge_list(c.list, c.other_outer);
  if (code == 0) c.other_outer.handle = c.made.release();
  return code;
}
inline Code filter_on_type(Call &c) {
  constexpr unsigned kCommon = 15;  // types that lists have often
  const std::uint32_t types[] = {c.type.number, kTypes[c.choice % kCommon].number,
                                 kTypes[c.choice / 16 % kCommon].number};
  std::vector<Attr> kept;
  for (Attr *a : all(c.outer, [&](auto &b) { return std::count(types, types + 3, b.type); })) kept.push_back(*a);
  c.outer.records = kept;
  const std::uint32_t unread = 256 * (c.choice % 3);  // of the count only the low byte is read
  return aaa_attr_filter_on_type(&c.outer.handle, types, unread + std::size(types));
}
// A flat buffer carries removed records, too, is read in place, and comes back from the other byte order as it was.
inline Code flat(Call &c) {
  std::uint32_t size = 0;
  Code code = aaa_attr_list_buffer_len(c.outer, &size);
  Bytes buffer = flat_buffer(c.outer);
  agree("announced size", size, buffer.size());
  agree("validity of the buffer", static_cast<unsigned>(is_aaa_attr_buffer_valid(buffer.data(), size, &code)), 1);

  const Bytes before = buffer;
  char *bytes = reinterpret_cast<char *>(buffer.data());
  agree("translation", aaa_attrs_buffer_tran(bytes, CDM_ENDIAN_TRAN_HTON) == 0 && (buffer != before) != kBigEndianHost,
        true);
  agree("and back", aaa_attrs_buffer_tran_v1(bytes, size, CDM_ENDIAN_TRAN_NTOH) == 0 && buffer == before, true);
  const Walk walk(buffer);
  for (const Attr *a : live(c.outer)) agree("type in place", aaa_cursor_get_next(walk.cursor), a->type);
  agree("end in place", aaa_cursor_get_next(walk.cursor), 0);
  return decode(buffer, &c.made);
}

// ---- The model's side ----

// A Grouped attribute is given the list that was made.
template <Write write>
Code give(Call &c) {
  const bool takes = grouped(c.given) && c.length() == sizeof(Handle);
  if (takes) c.given.sub.push_back({c.made, c.inside});
  const Code code = write(c.list, c.given);
  if (takes && code == 0) c.made.release();
  return code;
}
// The list that was made takes the place of the outer one.
inline Code take_place(Call &c, const List &original, List by) {
  agree("equality with the original", static_cast<unsigned>(aaa_attr_list_eq(original, c.made)), 1);
  std::swap(c.outer.handle, *c.made.out());
  c.outer.records = std::move(by.records);
  return 0;
}

template <auto function>
Code lists(Call &c) {
  return function(c.list, c.other);
}

// What the library is asked to do, and what that means. No model: the library's side has done both.
struct Operation {
  const char *name;
  Code (*library)(Call &);
  Code (*model)(Call &);
};
// The first ones fill lists and are run more often.
inline constexpr std::size_t kFillers = 4;
inline constexpr Operation kOperations[] = {
    {"add_v1", adding<aaa_attr_add_v1, &Attr::client_type>, give<add>},
    {"add_group_list", add_group_list, give<add>},
    {"add_or_replace_v2", adding<aaa_attr_add_or_replace_v2, &Attr::client_type>, give<replace<2>>},
    {"add_or_replace_v1", adding<aaa_attr_add_or_replace_v1>, give<replace<1>>},
    {"add_existing_group_list", add_existing_group_list, give<add>},
    {"remove", [](Call &c) { return aaa_attr_remove(c.list, c.type.number); },
     [](Call &c) { return remove_if(c.list, kFreed, [&](auto &a) { return a.type == c.type.number; }); }},
    {"remove_on_match", remove_on_match,
     [](Call &c) { return remove_if(c.list, kLeft, [&](auto &a) { return same_value(a, c.given); }); }},
    {"remove_list", lists<aaa_attr_list_remove_list>, lists<remove_types_of>},
    {"remove_list_on_match", lists<aaa_attr_list_remove_list_on_match>, lists<remove_values_of>},
    {"remove_common_attrs", lists<aaa_attr_list_remove_common_attrs>, lists<remove_common>},
    {"cursor_remove", cursor_remove, nullptr},
    {"set_client_type", [](Call &c) { return aaa_attr_list_set_producer_client_type(c.list, c.client_type); },
     [](Call &c) { return stamp(c.list, c.client_type, false); }},
    {"init_client_type", [](Call &c) { return aaa_attr_list_init_producer_client_type(c.list, c.client_type); },
     [](Call &c) { return stamp(c.list, c.client_type, true); }},
    {"coalesce", coalesce, nullptr},
    {"copy", [](Call &c) { return aaa_attr_list_copy(c.other, c.out()); },
     [](Call &c) { return take_place(c, c.other, copy(c.other)); }},
    {"copy_by_type", [](Call &c) { return aaa_attr_list_copy_by_type(c.other, c.list, c.given.type); },
     [](Call &c) { return copy_by_type(c.other, c.list, c.given.type); }},
    {"append_list", lists<aaa_attr_list_append_list>, lists<take_all<add, true>>},
    {"merge_with_replace", lists<aaa_attr_list_merge_with_replace>, lists<take_all<replace<2>, true>>},
    {"merge_double_dip", lists<aaa_attr_list_merge_double_dip>, lists<take_all<double_dip, false>>},
    {"replace_and_add", lists<aaa_attr_list_replace_and_add>, lists<replace_and_add>},
    {"replace_and_add_v1",
     [](Call &c) { return aaa_attr_list_replace_and_add_v1(&c.outer.handle, &c.other_outer.handle); },
     [](Call &c) { return replace_and_add_v1(c.outer, c.other_outer); }},
    {"merge_list", merge_list, [](Call &c) { return merge_list(c.list, c.other_outer); }},
    {"filter_on_type", filter_on_type, nullptr},
    {"list_eq", [](Call &c) { return Code(aaa_attr_list_eq(c.list, c.other)); },
     [](Call &c) { return Code(covers(c.list, c.other) && covers(c.other, c.list)); }},
    {"flat", flat, [](Call &c) { return take_place(c, c.outer, copy(c.outer)); }},
    {"tlv", [](Call &c) { return decode(tlv_buffer(c.outer), &c.made); },
     [](Call &c) { return take_place(c, c.outer, through_tlv(c.outer)); }},
};

// ---- Running ----

// The library's list holds what the model's does, in the same records. Before, the client frees the sub-lists that it
// was left; new ones are seen here.
inline void compare(List &list) {
  for (Attr &a : list.records)
    if (a.deleted && !a.sub.empty()) aaa_attr_list_free(std::exchange(a.sub, {})[0]);
  Code code = 0;
  agree("validity", static_cast<unsigned>(is_aaa_attr_list_valid(list, &code)), 1);
  agree("records", aaa_attr_list_attr_count(list), list.records.size());
  const Walk walk(list);
  for (std::map<std::uint32_t, std::uint16_t> counts; Attr * a : live(list)) {
    agree("type", aaa_cursor_get_next(walk.cursor), a->type);
    agree("client type", aaa_cursor_get_producer_client_type(walk.cursor), a->client_type);
    const aaa_attr_meta *meta = aaa_cursor_get_meta(walk.cursor);
    agree("meta", meta && a->meta ? std::memcmp(meta, &*a->meta, sizeof *meta) == 0 : !meta && !a->meta, true);
    for (List &sub : a->sub) {
      if (!sub.handle) aaa_cursor_get_grouped_attr_handle(walk.cursor, &sub.handle);
      compare(sub);
    }
    std::uint32_t length = 0;
    const auto *value = static_cast<const std::uint8_t *>(aaa_cursor_get(walk.cursor, &length));
    const void *found = nullptr;
    agree("value", Bytes(value, value + length) == value_of(*a), true);
    agree("found", aaa_attr_get_nth(list, a->type, &found, &length, counts[a->type]++) == 0 && found == value, true);
  }
  agree("end", aaa_cursor_get_next(walk.cursor), 0);
}

struct World {
  ~World() {
    for (List &list : lists) aaa_attr_list_free(list);
  }
  void run(const Step &step) {
    for (std::uint32_t size = 0; List & list : lists)  // an empty one takes the place of one that has grown large
      if (aaa_attr_list_buffer_len(list, &size) != 0 || size > 250'000)
        aaa_attr_list_free(std::exchange(list, {::List().release(), {}}));
    Call c{lists, step};
    const Operation &o = kOperations[pick(step[kOperation], std::size(kOperations), 42, kFillers)];
    history << "\n  " << o.name << " list " << &c.outer - lists.data() << '/' << c.depth(kDepth) << " other "
            << &c.other_outer - lists.data() << '/' << c.depth(kOtherDepth) << " type " << c.type.number << " length "
            << c.length() << " meta " << &c.meta - kMetas << " client type " << c.client_type << " choice " << c.choice;
    const Code code = o.library(c);
    agree("code", code, o.model ? o.model(c) : 0);
    for (List &list : lists) compare(list);
  }
  std::array<List, 3> lists;
  std::ostringstream history;  // the steps so far, as text
};

}  // namespace model
