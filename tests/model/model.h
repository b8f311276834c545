// An attribute list without its blocks: a vector of records, and every operation written the way its meaning reads.
// What the library does fast this does plainly; model_test.cpp holds the two against each other.
#pragma once

#include <algorithm>
#include <optional>
#include <set>

#include "support/lists.h"

namespace model {

using Code = aaa_attr_cerrno;
using Meta = std::optional<aaa_attr_meta>;

struct List;
struct Attr {
  std::uint32_t type = 0;
  Bytes value;  // as stored: a String with its NUL; for Grouped 8 bytes that no other sub-list has, like a handle
  Meta meta;
  std::uint32_t client_type = 0;
  std::vector<List> sub;  // of a live Grouped record: the one list that it owns
  bool deleted = false;
};
struct List {
  std::vector<Attr> records;
};

// The types in use: every format of the dictionary, some twice. The frequent ones come first; the last two are type 0,
// which may be added and ends every walk that reaches it, and no type at all.
struct Type {
  std::uint32_t number, format, length = 0, other_length = 0;  // the lengths that its format is held to; 0 for any
};
inline constexpr Type kTypes[] = {{type::kUlong, AAA_ATTR_FMT_ULONG, 4},
                                  {type::kString, AAA_ATTR_FMT_STRING},
                                  {type::kGrouped, AAA_ATTR_FMT_GROUPED, 8},
                                  {277, AAA_ATTR_FMT_STRING},
                                  {type::kOtherGrouped, AAA_ATTR_FMT_GROUPED, 8},
                                  {type::kBinary, AAA_ATTR_FMT_BINARY},
                                  {278, AAA_ATTR_FMT_STRING},
                                  {198, AAA_ATTR_FMT_STRING},
                                  {type::kEnum, AAA_ATTR_FMT_ENUM, 4},
                                  {type::kIpv4, AAA_ATTR_FMT_IPV4, 4},
                                  {type::kIpv6, AAA_ATTR_FMT_IPV6, 16},
                                  {type::kAddress, AAA_ATTR_FMT_ADDRESS, 4, 16},
                                  {type::kBoolean, AAA_ATTR_FMT_BOOLEAN, 1},
                                  {type::kUlonglong, AAA_ATTR_FMT_ULONGLONG},
                                  {type::kUtc, AAA_ATTR_FMT_UTC},
                                  {0, AAA_ATTR_FMT_ULONG, 4},
                                  {AAA_ATTR_TYPE_COUNT, AAA_ATTR_FMT_STRING}};

inline const Type &row(const Attr &a) {
  return *std::find_if(std::begin(kTypes), std::end(kTypes), [&](const Type &t) { return t.number == a.type; });
}
inline bool grouped(const Attr &a) { return row(a).format == AAA_ATTR_FMT_GROUPED; }
inline int nul(const Attr &a) { return row(a).format == AAA_ATTR_FMT_STRING ? 1 : 0; }
inline Bytes reported(const Attr &a) { return Bytes(a.value.begin(), a.value.end() - nul(a)); }

// Visits live records, with a filter only those whose meta matches it; type 0 is the end.
struct Cursor {
  Attr *next() {
    while (at < list.records.size()) {
      Attr &a = list.records[at++];
      const bool passes =
          (!service && !protocol) || (a.meta && a.meta->service == service && a.meta->protocol == protocol);
      if (!a.deleted && passes) return a.type == 0 ? nullptr : &a;
    }
    return nullptr;
  }
  List &list;
  int service = 0, protocol = 0;
  std::size_t at = 0;
};
inline Attr *first(List &list, std::uint32_t type) {
  Cursor c{list};
  Attr *a = c.next();
  while (a && a->type != type) a = c.next();
  return a;
}

template <typename Handle>
Bytes handle_bytes(Handle handle) {
  const auto *bytes = reinterpret_cast<const std::uint8_t *>(&handle);
  return Bytes(bytes, bytes + sizeof handle);
}
inline Bytes fresh_handle() {
  static std::uint64_t last = 0;
  return handle_bytes(++last);
}

// ---- Adding: the value of a given attribute is the caller's, a String without its NUL ----

inline Code refusal(const Attr &given) {
  if (given.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
  const std::size_t length = given.value.size();
  const std::uint32_t fixed = row(given).length, other = row(given).other_length;
  const bool suits = fixed ? length == fixed || (other && length == other) : length > 0;
  const std::size_t block = 24 + 8 + (given.meta ? 8 : 0) + length + (nul(given) ? 1 : 0);
  return suits && block <= 65535 ? 0 : AAA_ATTR_ERR_BAD_ARG;
}
inline Code add(List &list, Attr given) {
  if (const Code code = refusal(given)) return code;
  if (nul(given)) given.value.push_back(0);
  given.client_type &= 0x7F;
  list.records.push_back(std::move(given));
  return 0;
}
inline void erase(Attr &a) {
  a.deleted = true;
  a.sub.clear();
}
inline bool same_meta(const Meta &a, const Meta &b) {
  if (!a || !b) return !a && !b;
  return a->service == b->service && a->protocol == b->protocol && a->tag == b->tag && a->flags % 2 == b->flags % 2;
}
inline Code add_or_replace(List &list, Attr given, bool beside_other_meta) {
  if (const Code code = refusal(given)) return code;
  Attr *old = first(list, given.type);
  if (!old) return add(list, std::move(given));
  const bool same = same_meta(old->meta, given.meta);
  if (!same && beside_other_meta) return add(list, std::move(given));
  if (same && reported(*old).size() == given.value.size()) {
    std::copy(given.value.begin(), given.value.end(), old->value.begin());
    old->meta = given.meta;
    old->sub = std::move(given.sub);
    return 0;
  }
  erase(*old);
  return add(list, std::move(given));
}
inline Code replace_v1(List &list, Attr given) {
  given.client_type = 0;
  return add_or_replace(list, std::move(given), true);
}
inline Code replace_v2(List &list, Attr given) { return add_or_replace(list, std::move(given), false); }
inline Code double_dip(List &list, Attr given) {
  return given.type == 277 || given.type == 278 ? add(list, std::move(given)) : replace_v2(list, std::move(given));
}

// ---- Removing ----

inline Code remove(List &list, std::uint32_t type) {
  for (Cursor c{list}; Attr *a = c.next();)
    if (a->type == type) erase(*a);
  return 0;
}
inline Code remove_on_match(List &list, std::uint32_t type, const Bytes &value) {
  for (Cursor c{list}; Attr *a = c.next();)
    if (a->type == type && reported(*a) == value) erase(*a);
  return 0;
}
inline Code remove_list(List &list1, List &list2) {
  for (Cursor c{list2}; Attr *a = c.next();) remove(list1, a->type);
  return 0;
}
inline Code remove_list_on_match(List &list1, List &list2) {
  for (Cursor c{list2}; Attr *a = c.next();) remove_on_match(list1, a->type, reported(*a));
  return 0;
}
inline Code remove_common_attrs(List &list1, List &list2) {
  for (Cursor c{list1}; Attr *a = c.next();) {
    Attr *b = first(list2, a->type);
    if (!b) continue;
    if (reported(*a) == reported(*b)) erase(*b);
    erase(*a);
  }
  return 0;
}

// ---- Combining ----

inline List copy(const List &source) {
  List result = source;
  for (Attr &a : result.records)
    if (!a.deleted && grouped(a)) a.value = fresh_handle(), a.sub[0] = copy(a.sub[0]);
  return result;
}
// The attribute as it is given to another list.
inline Attr given_from(const Attr &a, std::uint32_t client_type) {
  if (!grouped(a)) return {a.type, reported(a), a.meta, client_type, {}};
  return {a.type, fresh_handle(), a.meta, client_type, {copy(a.sub[0])}};
}
using Write = Code (*)(List &, Attr);
template <Write write, bool keep_client_type>
Code combine(List &destination, List &source) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  for (Cursor c{source}; Attr *a = c.next();)
    if (const Code code = write(destination, given_from(*a, keep_client_type ? a->client_type : 0))) return code;
  return 0;
}
inline Code copy_by_type(List &source, List &destination, std::uint32_t type) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  for (Cursor c{source}; Attr *a = c.next();)
    if (a->type == type) add(destination, given_from(*a, 0));
  return 0;
}
inline Code replace_and_add(List &destination, List &source) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  remove_list(destination, source);
  return combine<add, false>(destination, source);
}
inline Code replace_and_add_v1(List &list1, List &list2) {
  if (&list1 == &list2) return AAA_ATTR_ERR_BAD_ARG;
  remove_list(list1, list2);
  combine<add, true>(list2, list1);
  std::swap(list1, list2);
  return 0;
}
inline Code merge_list(List &destination, List &source) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  for (Attr &a : source.records) destination.records.push_back(std::move(a));
  source = {};
  return 0;
}
inline Code filter_on_type(List &list, const std::vector<std::uint32_t> &types) {
  List kept;
  for (Cursor c{list}; Attr *a = c.next();)
    if (std::count(types.begin(), types.end(), a->type)) kept.records.push_back(std::move(*a));
  list = std::move(kept);
  return 0;
}

// ---- Stamping, coalescing ----

inline Code stamp(List &list, std::uint32_t client_type, bool only_unstamped) {
  for (Cursor c{list}; Attr *a = c.next();) {
    if (client_type < 1 || client_type > 23) return AAA_ATTR_ERR_BAD_ARG;
    if (!only_unstamped || a->client_type < 1 || a->client_type > 23) a->client_type = client_type;
  }
  return 0;
}
inline void coalesce(List &list) {
  std::erase_if(list.records, [](const Attr &a) { return a.deleted; });
}

// ---- What a list holds ----

// The text that outline() of support/lists.h gives for the library's list.
inline std::string outline(List &list) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (Cursor c{list}; Attr *a = c.next();) {
    text += (text.empty() ? "" : " ") + std::to_string(a->type);
    if (const Meta &m = a->meta) {
      text += '[' + std::to_string(m->service);
      for (const int n : {+m->protocol, +m->tag, +m->flags, +m->client}) text += ',' + std::to_string(n);
      text += ']';
    }
    if (a->client_type) text += '@' + std::to_string(a->client_type);
    text += '=';
    if (grouped(*a)) text += '{' + outline(a->sub[0]) + '}';
    for (const unsigned byte : grouped(*a) ? Bytes() : reported(*a)) (text += kDigits[byte / 16]) += kDigits[byte % 16];
  }
  return text;
}

// The set of the list's attributes, the same for equal lists: no client types, no metas of Grouped attributes.
inline std::set<std::string> as_set(List &list) {
  std::set<std::string> attributes;
  for (Cursor c{list}; Attr *a = c.next();) {
    List alone{{{a->type, a->value, a->meta, 0, a->sub}}};
    std::string text = outline(alone);
    if (grouped(*a)) {
      text = std::to_string(a->type) + '{';
      for (const std::string &attribute : as_set(a->sub[0])) text += attribute + ' ';
      text += '}';
    }
    attributes.insert(text);
  }
  return attributes;
}

// What a TLV buffer carries of the list.
inline List through_tlv(List &list) {
  List result;
  for (Cursor c{list}; Attr *a = c.next();) {
    Attr given = given_from(*a, 0);
    if (grouped(*a)) given.sub[0] = through_tlv(a->sub[0]);
    add(result, std::move(given));
  }
  return result;
}

inline bool holds_type_0(const List &list) {
  return std::any_of(list.records.begin(), list.records.end(), [](const Attr &a) {
    return !a.deleted && (a.type == 0 || (grouped(a) && holds_type_0(a.sub[0])));
  });
}

// Records and kilobytes, sub-lists included.
inline std::size_t weight(const List &list) {
  std::size_t sum = 0;
  for (const Attr &a : list.records) sum += 1 + a.value.size() / 1024 + (a.sub.empty() ? 0 : weight(a.sub[0]));
  return sum;
}

}  // namespace model
