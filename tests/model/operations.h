// The operations of the interface, each done by the library and by the model. World runs steps on three lists; both
// sides must answer the same and then hold the same. Throws where they do not; any source of bytes can drive it.
#pragma once

#include <array>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include "model/model.h"

namespace model {

// Metas that differ in what replacing compares, in what it does not, and in what a cursor filters by; mostly none.
inline constexpr aaa_attr_meta kMetas[] = {{},
                                           {},
                                           {},
                                           {},
                                           {3, 7, 0, 0, 0},
                                           {3, 7, 0, 0, 0},
                                           {3, 7, 0, 2, 9},
                                           {3, 7, 0, 1, 0},
                                           {3, 7, 5, 0, 0},
                                           {3, 8, 0, 0, 0},
                                           {4, 7, 0, 0, 0}};
inline constexpr std::uint32_t kClientTypes[] = {0, 1, 5, 23, 24, 127, 133};
// Short, of medium size, and about the largest that a block takes; beyond 17 for types of any length only.
inline constexpr std::uint32_t kLengths[] = {0,   1,   2,   3,   4,   5,    7,     8,     9,     15,    16,    17,
                                             100, 200, 464, 480, 481, 1000, 65494, 65495, 65496, 65502, 65503, 65504};

inline constexpr std::uint32_t kHeaviest = 250'000;

// One step, as bytes to be generated and shrunk: any bytes are a step. Not every operation uses all of it.
struct Step {
  std::size_t operation() const;                      // into kOperations
  std::size_t list() const { return bytes[1] % 3u; }  // the one that changes first
  std::size_t other() const { return bytes[2] % 3u; }
  int depth() const { return list() != other() ? kDepths[bytes[3] % 8] : 0; }
  int other_depth() const { return list() != other() ? kDepths[bytes[4] % 8] : 0; }
  const Type &type() const { return kTypes[bytes[5] % 35 < 17 ? bytes[5] % 35 : bytes[5] % 6]; }
  const aaa_attr_meta &meta() const { return kMetas[bytes[6] % 11]; }
  std::uint32_t length() const {
    const std::uint32_t length = kLengths[bytes[7] < 250 ? bytes[7] % 18 : 18 + bytes[7] % 6];
    const bool suitable = bytes[7] < 128 || (type().length && length > 17);
    return !suitable ? length : type().length ? type().length : 2;
  }
  std::uint32_t client_type() const { return kClientTypes[bytes[8] % 7]; }
  unsigned choice() const { return bytes[9] + 256u * bytes[10]; }  // of sub-lists, attributes, types, bytes
  static constexpr int kDepths[] = {0, 0, 0, 0, 0, 1, 1, 2};  // sub-lists down; a list is not used with its own ones
  std::array<std::uint8_t, 11> bytes;
};

inline void agree(const char *what, std::uint64_t library, std::uint64_t model) {
  if (library != model)
    throw std::logic_error(std::string(what) + ": " + std::to_string(library) + ", model: " + std::to_string(model));
}

// A cursor of the library.
struct Walk {
  ~Walk() { aaa_cursor_free(cursor); }
  aaa_cursor *cursor = nullptr;
};
inline bool holds(const void *value, std::uint32_t length, const Bytes &expected) {
  return length == expected.size() && std::memcmp(value, expected.data(), length) == 0;
}

inline Attr given_by(const Step &s) {
  Attr a{s.type().number, {}, {}, s.client_type(), {}};
  if (s.meta().service) a.meta = s.meta();
  a.value.reserve(1);  // not null when it is empty
  for (std::uint32_t i = 0; i < s.length(); ++i) a.value.push_back(static_cast<std::uint8_t>(s.choice() % 3 + i % 7));
  return a;
}

// What a step comes to.
struct Call {
  bool chosen(std::size_t n) const { return step.choice() >> n % 16 & 1; }
  std::uint32_t length() const { return static_cast<std::uint32_t>(given.value.size()); }
  const aaa_attr_meta *meta() const { return given.meta ? &*given.meta : nullptr; }
  // Where the library puts a new list.
  Handle *out() { return (made = ::List(0)).out(); }

  const Step &step;
  List &outer, &other_outer, &list, &other;  // list and other: the outer lists, or sub-lists in them
  Attr given = given_by(step);               // of the adding operations; of a Grouped type: without the list
  ::List made = {};                          // to be given away, or to take a list's place; else freed with the call
  std::vector<Attr> inside = {};             // what is in it
  Left left = {};                            // sub-lists that the client has back, freed after the call
};

// ---- The library's side ----

template <auto library>
Code adding(Call &c) {
  if (grouped(c.given) && c.length() == sizeof(Handle)) c.given.value = handle_bytes(c.made);
  return library(c.list, c.given.type, c.given.value.data(), c.length(), c.meta(), c.given.client_type);
}
inline Code add_or_replace_v1(Handle list, std::uint32_t type, const void *value, std::uint32_t length,
                              const aaa_attr_meta *meta, std::uint32_t) {
  return aaa_attr_add_or_replace_v1(list, type, value, length, meta);
}
// A new list, or another whole list. The handle is the value, whatever the type: others store it as mere bytes.
inline Code add_group_list(Call &c) {
  const Code code = aaa_attr_add_group_list(c.list, c.out(), c.given.type, c.meta());
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
  return aaa_attr_add_existing_group_list(c.list, c.made, c.given.type, c.meta());
}
// By the value of an attribute of the other list, if it has so many, or else the call's own.
inline Code remove_on_match(Call &c) {
  const std::vector<Attr *> others = live(c.other);
  if (const std::size_t n = c.step.choice() % 5; n < others.size())
    c.given = {others[n]->type, value_of(*others[n]), {}, 0, {}};
  return aaa_attr_remove_on_match(c.list, c.given.type, c.given.value.data(), c.length());
}
// A filtered walk that removes the chosen attributes.
inline Code cursor_remove(Call &c) {
  const aaa_attr_meta &filter = c.step.meta();
  Walk walk;
  aaa_cursor_alloc_filtered(c.list, &walk.cursor, filter.service, filter.protocol);
  std::size_t n = 0;
  for (Attr *a : live(c.list, filter)) {
    agree("type of the walk", aaa_cursor_get_next(walk.cursor), a->type);
    if (!c.chosen(n++)) continue;
    aaa_cursor_remove(walk.cursor);
    erase(*a, &c.left);
  }
  return aaa_cursor_get_next(walk.cursor);
}
inline Code coalesce_library(Call &c) {
  std::uint32_t size = 0;
  const Code code = aaa_attr_list_buffer_coalesce_and_get_len(c.list, &size);
  const Bytes buffer = flat_buffer(c.list);
  agree("announced size", size, buffer.size());
  agree("validity of the buffer", static_cast<unsigned>(is_aaa_attr_buffer_valid(buffer.data(), size, &size)), 1);
  return code;
}
inline Code merge_list(Call &c) {
  const Code code = aaa_attr_list_merge_list(c.list, c.other_outer);
  if (code == 0) c.other_outer.handle = c.made.release();
  return code;
}
inline Code filter_on_type(Call &c) {
  std::vector<std::uint32_t> types;
  for (const Type &t : kTypes)
    if (c.chosen(static_cast<std::size_t>(&t - kTypes))) types.push_back(t.number);
  const auto count = static_cast<std::uint32_t>(types.size()) + 256 * (c.step.choice() % 3);  // its low byte counts
  filter_on_type(c.outer, types);
  return aaa_attr_filter_on_type(&c.outer.handle, types.data(), count);
}
inline Code find(Call &c) {
  std::uint16_t n = 0;
  std::uint32_t length = 0;
  const void *value = nullptr;
  for (const Attr *a : of_type(c.list, c.given.type)) {
    agree("finding", aaa_attr_get_nth(c.list, c.given.type, &value, &length, n++), 0);
    agree("found value", holds(value, length, value_of(*a)), true);
  }
  return aaa_attr_get_nth(c.list, c.given.type, &value, &length, n);
}
// A flat buffer carries removed records, too, is read in place, and comes back from the other byte order as it was.
inline Code flat(Call &c) {
  Bytes buffer = flat_buffer(c.outer);
  const auto length = static_cast<std::uint32_t>(buffer.size());
  std::uint32_t announced = 0;
  agree("measuring", aaa_attr_list_buffer_len(c.outer, &announced), 0);
  agree("announced size", announced, length);
  agree("validity", static_cast<unsigned>(is_aaa_attr_buffer_valid(buffer.data(), length, &announced)), 1);

  const Bytes before = buffer;
  char *bytes = reinterpret_cast<char *>(buffer.data());
  agree("translation", aaa_attrs_buffer_tran(bytes, CDM_ENDIAN_TRAN_HTON), 0);
  agree("other form", buffer != before, true);
  agree("translation back", aaa_attrs_buffer_tran_v1(bytes, length, CDM_ENDIAN_TRAN_NTOH), 0);
  agree("own form", buffer == before, true);

  Walk walk;
  aaa_cursor_alloc_from_buffer(buffer.data(), &walk.cursor);
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
// The first four fill lists and are run more often.
inline constexpr Operation kOperations[] = {
    {"add_v1", adding<aaa_attr_add_v1>, give<add>},
    {"add_group_list", add_group_list, give<add>},
    {"add_or_replace_v2", adding<aaa_attr_add_or_replace_v2>, give<replace_v2>},
    {"add_or_replace_v1", adding<add_or_replace_v1>, give<replace_v1>},
    {"add_existing_group_list", add_existing_group_list, give<add>},
    {"remove", [](Call &c) { return aaa_attr_remove(c.list, c.given.type); },
     [](Call &c) { return remove_if(c.list, nullptr, [&](const Attr &a) { return a.type == c.given.type; }); }},
    {"remove_on_match", remove_on_match,
     [](Call &c) { return remove_if(c.list, &c.left, [&](const Attr &a) { return same_value(a, c.given); }); }},
    {"remove_list", lists<aaa_attr_list_remove_list>, lists<remove_types_of>},
    {"remove_list_on_match", lists<aaa_attr_list_remove_list_on_match>,
     [](Call &c) { return remove_values_of(c.list, c.other, &c.left); }},
    {"remove_common_attrs", lists<aaa_attr_list_remove_common_attrs>,
     [](Call &c) { return remove_common(c.list, c.other, &c.left); }},
    {"cursor_remove", cursor_remove, nullptr},
    {"set_producer_client_type",
     [](Call &c) { return aaa_attr_list_set_producer_client_type(c.list, c.step.client_type()); },
     [](Call &c) { return stamp(c.list, c.step.client_type(), false); }},
    {"init_producer_client_type",
     [](Call &c) { return aaa_attr_list_init_producer_client_type(c.list, c.step.client_type()); },
     [](Call &c) { return stamp(c.list, c.step.client_type(), true); }},
    {"coalesce", coalesce_library, [](Call &c) { return coalesce(c.list); }},
    {"copy", [](Call &c) { return aaa_attr_list_copy(c.other, c.out()); },
     [](Call &c) { return take_place(c, c.other, copy(c.other)); }},
    {"copy_by_type", [](Call &c) { return aaa_attr_list_copy_by_type(c.other, c.list, c.given.type); },
     [](Call &c) { return copy_by_type(c.other, c.list, c.given.type); }},
    {"append_list", lists<aaa_attr_list_append_list>, lists<take_over<add, true>>},
    {"merge_with_replace", lists<aaa_attr_list_merge_with_replace>, lists<take_over<replace_v2, true>>},
    {"merge_double_dip", lists<aaa_attr_list_merge_double_dip>, lists<take_over<double_dip, false>>},
    {"replace_and_add", lists<aaa_attr_list_replace_and_add>, lists<replace_and_add>},
    {"replace_and_add_v1",
     [](Call &c) { return aaa_attr_list_replace_and_add_v1(&c.outer.handle, &c.other_outer.handle); },
     [](Call &c) { return replace_and_add_v1(c.outer, c.other_outer); }},
    {"merge_list", merge_list, [](Call &c) { return merge_list(c.list, c.other_outer); }},
    {"filter_on_type", filter_on_type, nullptr},
    {"list_eq", [](Call &c) { return Code(aaa_attr_list_eq(c.list, c.other)); },
     [](Call &c) { return Code(covers(c.list, c.other) && covers(c.other, c.list)); }},
    {"find", find, [](Call &) { return Code(AAA_ATTR_ERR_NOT_FOUND); }},
    {"flat", flat, [](Call &c) { return take_place(c, c.outer, copy(c.outer)); }},
    {"tlv", [](Call &c) { return decode(tlv_buffer(c.outer), &c.made); },
     [](Call &c) { return take_place(c, c.outer, through_tlv(c.outer)); }},
};

// ---- Running ----

inline std::size_t Step::operation() const {
  const std::size_t n = bytes[0] % 42;
  return n < std::size(kOperations) ? n : n % 4;
}
inline std::ostream &operator<<(std::ostream &out, const Step &s) {
  const aaa_attr_meta &m = s.meta();
  return out << "\n  " << kOperations[s.operation()].name << " list " << s.list() << '/' << s.depth() << " other "
             << s.other() << '/' << s.other_depth() << " type " << s.type().number << " meta " << +m.service << ','
             << +m.protocol << ',' << +m.tag << ',' << +m.flags << " length " << s.length() << " client type "
             << s.client_type() << " choice " << s.choice();
}

// The library's list holds what the model's does, in the same records. New sub-lists are seen here.
inline void compare(List &list) {
  Code code = 0;
  agree("validity", static_cast<unsigned>(is_aaa_attr_list_valid(list, &code)), 1);
  agree("records", aaa_attr_list_attr_count(list), list.records.size());
  Walk walk;
  aaa_cursor_alloc(list, &walk.cursor);
  for (Attr *a : live(list)) {
    agree("type", aaa_cursor_get_next(walk.cursor), a->type);
    agree("client type", aaa_cursor_get_producer_client_type(walk.cursor), a->client_type);
    const aaa_attr_meta *meta = aaa_cursor_get_meta(walk.cursor);
    agree("presence of a meta", meta != nullptr, a->meta.has_value());
    agree("meta", !meta || std::memcmp(meta, &*a->meta, sizeof *meta) == 0, true);
    for (List &sub : a->sub) {
      if (!sub.handle) aaa_cursor_get_grouped_attr_handle(walk.cursor, &sub.handle);
      compare(sub);
    }
    std::uint32_t length = 0;
    const void *value = aaa_cursor_get(walk.cursor, &length);
    agree("value", holds(value, length, value_of(*a)), true);
  }
  agree("end", aaa_cursor_get_next(walk.cursor), 0);
}

struct World {
  ~World() {
    for (List &list : lists) aaa_attr_list_free(list);
  }
  void run(const Step &s) {
    for (List &list : lists) limit(list);
    List &outer = lists[s.list()], &other = lists[s.other()];
    Call call{s, outer, other, down(outer, s.depth(), s.choice()), down(other, s.other_depth(), s.choice())};
    const Operation &operation = kOperations[s.operation()];
    const Code code = operation.library(call);
    agree("code", code, operation.model ? operation.model(call) : 0);
    for (const Handle handle : call.left) aaa_attr_list_free(handle);
    for (List &list : lists) compare(list);
  }
  // An empty list takes the place of one that has grown large.
  static void limit(List &list) {
    std::uint32_t size = 0;
    if (aaa_attr_list_buffer_len(list, &size) == 0 && size < kHeaviest) return;
    aaa_attr_list_free(list);
    list = {::List().release(), {}};
  }
  static List &down(List &list, int depth, unsigned choice) {
    const std::vector<Attr *> subs = all(list, grouped);
    return depth == 0 || subs.empty() ? list : down(subs[choice % subs.size()]->sub[0], depth - 1, choice);
  }
  std::array<List, 3> lists;
};

}  // namespace model
