// An attribute list without its blocks: a vector of records, and the operations written the way their meaning reads.
// What the library does fast this does plainly; operations.h holds the two against each other.
#pragma once

#include <algorithm>
#include <optional>

#include "support/lists.h"

namespace model {

using Code = aaa_attr_cerrno;
using Handle = aaa_attr_list_handle;
using Meta = std::optional<aaa_attr_meta>;

struct List;
struct Attr {
  std::uint32_t type = 0;
  Bytes value;  // as the caller gives it; a sub-list's handle is in sub
  Meta meta;
  std::uint32_t client_type = 0;
  std::vector<List> sub;  // of a Grouped record: the one list that it owns; if deleted: that it leaves to the client
  bool deleted = false;
};
struct List {
  operator Handle() const { return handle; }
  Handle handle = 0;  // the library's; 0 of a sub-list that an operation has copied, until it is seen
  std::vector<Attr> records;
};

// The types in use: every format of the dictionary, some twice. The six frequent ones come first; the last two are type
// 0, which may be added and ends every walk that reaches it, and no type at all.
struct Type {
  std::uint32_t number, format, length = 0, other_length = 0;  // the lengths that its format is held to; 0 for any
};
inline constexpr Type kTypes[] = {{type::kUlong, AAA_ATTR_FMT_ULONG, 4},
                                  {type::kString, AAA_ATTR_FMT_STRING},
                                  {type::kGrouped, AAA_ATTR_FMT_GROUPED, 8},
                                  {277, AAA_ATTR_FMT_STRING},

                                  {type::kOtherGrouped, AAA_ATTR_FMT_GROUPED, 8},
                                  {278, AAA_ATTR_FMT_STRING},
                                  {type::kBinary, AAA_ATTR_FMT_BINARY},
                                  {type::kEnum, AAA_ATTR_FMT_ENUM, 4},
                                  {type::kIpv4, AAA_ATTR_FMT_IPV4, 4},
                                  {type::kIpv6, AAA_ATTR_FMT_IPV6, 16},
                                  {type::kAddress, AAA_ATTR_FMT_ADDRESS, 4, 16},
                                  {type::kBoolean, AAA_ATTR_FMT_BOOLEAN, 1},
                                  {type::kUlonglong, AAA_ATTR_FMT_ULONGLONG},
                                  {type::kUtc, AAA_ATTR_FMT_UTC},
                                  {0, AAA_ATTR_FMT_ULONG, 4},
                                  {AAA_ATTR_TYPE_COUNT, AAA_ATTR_FMT_STRING}};

// After a record of type 0 nothing is found: what happens without any has to be seen, too.
inline constexpr std::size_t kTypeZeroAt = std::size(kTypes) - 2;
static_assert(kTypes[kTypeZeroAt].number == 0);

inline const Type &row(const Attr &a) {
  return *std::find_if(std::begin(kTypes), std::end(kTypes), [&](const Type &t) { return t.number == a.type; });
}
inline bool grouped(const Attr &a) { return row(a).format == AAA_ATTR_FMT_GROUPED; }
inline Bytes handle_bytes(Handle handle) {
  const auto *bytes = reinterpret_cast<const std::uint8_t *>(&handle);
  return Bytes(bytes, bytes + sizeof handle);
}
inline Bytes value_of(const Attr &a) { return a.sub.empty() ? a.value : handle_bytes(a.sub[0]); }
inline bool same_value(const Attr &a, const Attr &b) { return a.type == b.type && value_of(a) == value_of(b); }

// What a walk visits: live records, with a filter only those whose meta matches it; type 0 is the end.
using Attrs = std::vector<Attr *>;
inline Attrs live(List &list, const aaa_attr_meta &filter = {}) {
  Attrs found;
  for (Attr &a : list.records) {
    const bool named = a.meta && a.meta->service == filter.service && a.meta->protocol == filter.protocol;
    if (a.deleted || ((filter.service || filter.protocol) && !named)) continue;
    if (a.type == 0) break;
    found.push_back(&a);
  }
  return found;
}
inline Attrs all(List &list, auto wanted) {
  Attrs found = live(list);
  std::erase_if(found, [&](Attr *a) { return !wanted(*a); });
  return found;
}
inline Attrs of_type(List &list, std::uint32_t type) {
  return all(list, [=](auto &a) { return a.type == type; });
}

// ---- Adding ----

inline Code refusal(const Attr &given) {
  if (given.type >= AAA_ATTR_TYPE_COUNT) return AAA_ATTR_ERR_NOT_FOUND;
  const Type &t = row(given);
  const std::size_t length = value_of(given).size(), nul = t.format == AAA_ATTR_FMT_STRING ? 1 : 0;
  const bool suits = t.length ? length == t.length || (t.other_length && length == t.other_length) : length > 0;
  return suits && 24 + 8 + (given.meta ? 8 : 0) + length + nul <= 65535 ? 0 : AAA_ATTR_ERR_BAD_ARG;
}
inline Code add(List &list, Attr given) {
  if (const Code code = refusal(given)) return code;
  given.client_type &= 0x7F;
  list.records.push_back(std::move(given));
  return 0;
}
enum SubList { kFreed, kLeft };  // what becomes of it: kLeft to the client
inline void erase(Attr &a, SubList sub) {
  a.deleted = true;
  if (sub == kFreed) a.sub.clear();
}
inline bool replaces(const Meta &a, const Meta &b) {
  if (!a || !b) return !a && !b;
  return a->service == b->service && a->protocol == b->protocol && a->tag == b->tag &&
         ((a->flags ^ b->flags) & AAA_ATTR_META_MANDATORY) == 0;
}
// The first version takes no client type, and adds beside an attribute with another meta.
template <int version>
Code replace(List &list, Attr given) {
  if (const Code code = refusal(given)) return code;
  if (version == 1) given.client_type = 0;
  if (const Attrs old = of_type(list, given.type); !old.empty()) {
    const bool same = replaces(old[0]->meta, given.meta);
    if (same && value_of(*old[0]).size() == value_of(given).size()) {
      given.client_type = old[0]->client_type;
      *old[0] = given;
      return 0;
    }
    if (same || version != 1) erase(*old[0], kFreed);
  }
  return add(list, given);
}
inline Code double_dip(List &list, Attr a) { return (a.type == 277 || a.type == 278 ? add : replace<2>)(list, a); }

// ---- Removing ----

inline Code remove_if(List &list, SubList sub, auto wanted) {
  for (Attr *a : all(list, wanted)) erase(*a, sub);
  return 0;
}
inline Code remove_types_of(List &list1, List &list2) {
  return remove_if(list1, kFreed, [&](auto &a) { return !of_type(list2, a.type).empty(); });
}
inline Code remove_values_of(List &list1, List &list2) {
  const auto listed = [&](auto &a) { return !all(list2, [&](auto &b) { return same_value(a, b); }).empty(); };
  return remove_if(list1, kLeft, listed);
}
inline Code remove_common(List &list1, List &list2) {
  for (Attr *a : live(list1)) {
    const Attrs others = of_type(list2, a->type);
    if (!others.empty() && same_value(*a, *others[0])) erase(*others[0], kLeft);
    if (!others.empty()) erase(*a, kLeft);
  }
  return 0;
}

// ---- Copying, combining ----

inline List copy(const List &source) {
  List result{0, source.records};
  for (Attr &a : result.records)
    for (List &sub : a.sub) sub = copy(sub);
  return result;
}
// What a TLV buffer carries of the list.
inline List through_tlv(List &list) {
  List result;
  for (Attr *a : live(list)) {
    result.records.push_back({a->type, a->value, a->meta, 0, {}});
    for (List &sub : a->sub) result.records.back().sub.push_back(through_tlv(sub));
  }
  return result;
}
using Write = Code (*)(List &, Attr);
template <Write write, bool keep_client_type>
Code take_all(List &destination, List &source) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  List given = copy(source);
  for (Attr *a : live(given)) {
    if (!keep_client_type) a->client_type = 0;
    write(destination, *a);
  }
  return 0;
}
inline Code copy_by_type(List &source, List &destination, std::uint32_t type) {
  List wanted = source;
  remove_if(wanted, kFreed, [type](auto &a) { return a.type != type; });
  return take_all<add, false>(destination, &destination == &source ? source : wanted);
}
inline Code replace_and_add(List &destination, List &source) {
  if (&destination != &source) remove_types_of(destination, source);
  return take_all<add, false>(destination, source);
}
inline Code replace_and_add_v1(List &list1, List &list2) {
  if (&list1 != &list2) remove_types_of(list1, list2);
  std::swap(list1.records, list2.records);
  return take_all<add, true>(list1, list2);
}
inline Code merge_list(List &destination, List &source) {
  if (&destination == &source) return AAA_ATTR_ERR_BAD_ARG;
  for (Attr &a : std::exchange(source.records, {})) destination.records.push_back(std::move(a));
  return 0;
}
inline Code stamp(List &list, std::uint32_t client_type, bool only_unstamped) {
  for (Attr *a : live(list)) {
    if (client_type < 1 || client_type > 23) return AAA_ATTR_ERR_BAD_ARG;
    if (!only_unstamped || a->client_type < 1 || a->client_type > 23) a->client_type = client_type;
  }
  return 0;
}

// ---- Asking ----

inline bool covers(List &list1, List &list2) {
  const auto matches = [](Attr &a, Attr &b) {
    if (grouped(a)) return a.type == b.type && covers(a.sub[0], b.sub[0]) && covers(b.sub[0], a.sub[0]);
    const bool same_meta = a.meta && b.meta ? std::memcmp(&*a.meta, &*b.meta, sizeof *a.meta) == 0 : !a.meta && !b.meta;
    return same_value(a, b) && same_meta;
  };
  return all(list1, [&](auto &a) { return all(list2, [&](auto &b) { return matches(a, b); }).empty(); }).empty();
}

}  // namespace model
