// Buffers that do not hold together, one row a rule: the tests read the table, the fuzz targets start from it, and
// docs/malformed.md is made from it.
#pragma once

#include "support/hostile.h"

namespace malformed {

struct Other {
  char who;
  aaa_attr_fault fault;
};

struct Case {
  const char *what;
  Bytes buffer;
  aaa_attr_cerrno decode, check, translate;  // translate: from the form that the section's buffers are in
  aaa_attr_fault fault;                      // what is broken, to whoever refuses the buffer
  const char *reason;
  std::vector<Other> others;  // who finds something else first

  aaa_attr_fault fault_to(char who) const {
    for (const Other &other : others)
      if (other.who == who) return other.fault;
    return fault;
  }
};

// What is no flat buffer, and what is in network form, is so at once to those who take neither.
inline constexpr aaa_attr_fault kNoFault = {AAA_ATTR_RULE_NONE, 0}, kOtherMarker = {AAA_ATTR_RULE_MARKER, 0},
                                kOtherByteOrder = {AAA_ATTR_RULE_MAGIC, 1};

struct Section {
  const char *title;
  cdm_endian_tran_type direction;
  std::vector<Case> cases;
};

// A flat buffer and who refuses it: D the decoder, V the check for reading in place, T the translation.
inline Case flat_case(const char *what, Bytes buffer, std::string_view refused_by, aaa_attr_fault fault,
                      const char *reason, std::vector<Other> others = {}) {
  const auto answer = [refused_by](char who) {
    return refused_by.find(who) == std::string_view::npos ? aaa_attr_cerrno{0} : AAA_ATTR_ERR_BAD_BUFFER;
  };
  return {what, std::move(buffer), answer('D'), answer('V'), answer('T'), fault, reason, std::move(others)};
}

inline Case nested(const char *what, const char *patches, std::string_view refused_by, aaa_attr_fault fault,
                   const char *reason, std::vector<Other> others = {}) {
  return flat_case(what, golden_buffer(golden::kNested, patches), refused_by, fault, reason, std::move(others));
}

// Only the decoder reads what is not marked as flat.
inline Case other_case(const char *what, Bytes buffer, aaa_attr_cerrno decode, aaa_attr_fault fault,
                       const char *reason) {
  return {what,
          std::move(buffer),
          decode,
          AAA_ATTR_ERR_BAD_ARG,
          AAA_ATTR_ERR_BAD_ARG,
          fault,
          reason,
          {{'V', kOtherMarker}, {'T', kOtherMarker}}};
}

inline Case tlv(const char *what, const char *patches, aaa_attr_cerrno decode, aaa_attr_fault fault,
                const char *reason) {
  return other_case(what, golden_buffer(golden::kTlvNested, patches), decode, fault, reason);
}

// In network form.
inline Case network(const char *what, const char *patches, std::string_view refused_by, aaa_attr_fault fault,
                    const char *reason) {
  return flat_case(what, patched(network_form(hex(golden::kNested)), patches), refused_by, fault, reason,
                   {{'D', kOtherByteOrder}, {'V', kOtherByteOrder}});
}

// Lists nested in lists, `depth` levels below the outer one.
inline Bytes nested_lists(unsigned depth) {
  const Bytes level = block(kHead | kLast | kGroups, 1, {record(type::kGrouped, "handle 1")});
  Bytes levels;
  for (unsigned i = 0; i < depth; ++i) levels.insert(levels.end(), level.begin(), level.end());
  return flat({levels, block(kHead | kLast, 1, {})});
}

inline Bytes nested_tlv(unsigned depth) {
  Bytes body = little(4, 4);
  for (unsigned i = 0; i < depth; ++i) body = join({little(body.size() + 12, 4), little(type::kGrouped, 8), body});
  return host_form(join({{AAA_MARSHAL_TLV}, body}));
}

inline Bytes tlv_binary(std::size_t length) {
  return tlv_of(join({little(type::kBinary, 8), little(length, 4), Bytes(length)}));
}

// A list of one record, in a block of either layout; as the first block, or after an empty one.
inline Bytes lone(unsigned flags, const Bytes &record) { return flat({block(kHead | kLast | flags, 1, {record})}); }
inline Bytes chained(unsigned flags, const Bytes &record) {
  return flat({block(kHead | flags, 2, {}), block(kLast | flags, 1, {record})});
}

// A native block and a foreign one.
inline Bytes mixed() {
  const Bytes number = record(type::kUlong, "abcd");
  return flat({block(kHead, 2, {number}), block(kLast | kForeignHeader, 1, {number})});
}

inline Bytes binary(std::size_t length) { return record(type::kBinary, std::string(length, 'x')); }

inline std::vector<Case> block_cases() {
  return {
      flat_case("the header is cut short", head_of(golden_buffer(golden::kNested), 12), "DVT",
                {AAA_ATTR_RULE_BLOCK_HEADER, 1}, "11 bytes do not reach the block's length"),
      flat_case("the header of the foreign layout is cut short", head_of(golden_buffer(golden::kForeign, "11=0e"), 15),
                "DVT", {AAA_ATTR_RULE_USED_MIN, 11}, "`next` and the records would be read past the end of the buffer",
                {{'V', {AAA_ATTR_RULE_NATIVE_LAYOUT, 4}}}),
      nested("no magic, in a nested list", "73=00", "DVT", {AAA_ATTR_RULE_MAGIC, 73},
             "nothing else tells that a block begins here"),
      nested("used bytes below the header", "11=1700", "DVT", {AAA_ATTR_RULE_USED_MIN, 11},
             "the next block would begin in this header"),
      nested("used bytes above what remains", "171=1900", "DVT", {AAA_ATTR_RULE_USED_MAX, 171},
             "records would be read past the end of the buffer"),
      nested("a record more than there are", "7=0400", "DVT", {AAA_ATTR_RULE_RECORD_COUNT, 7},
             "the next block would be read as a record"),
      nested("a record less than there are", "7=0200", "DVT", {AAA_ATTR_RULE_RECORD_COUNT, 7},
             "a reader that goes by the bytes would see what one that counts does not"),
      flat_case("a first block with more records than 512 bytes hold", lone(kForeignHeader, binary(481)), "DV",
                {AAA_ATTR_RULE_BLOCK_ROOM, 11},
                "the decoder's list begins with a block of 512 bytes, and its header is the longer one",
                {{'V', {AAA_ATTR_RULE_NATIVE_LAYOUT, 4}}}),
      flat_case("a first block that is full", lone(kForeignHeader, binary(480)), "V", {AAA_ATTR_RULE_NATIVE_LAYOUT, 4},
                "the foreign layout alone"),
      flat_case("a chained block with more records than 65,535 bytes hold", chained(kForeignHeader, binary(65504)),
                "DV", {AAA_ATTR_RULE_BLOCK_ROOM, 27}, "with a header of 24 bytes, its length would not fit the field",
                {{'V', {AAA_ATTR_RULE_NATIVE_LAYOUT, 4}}}),
      flat_case("a chained block that is full", chained(kForeignHeader, binary(65503)), "V",
                {AAA_ATTR_RULE_NATIVE_LAYOUT, 4}, "the foreign layout alone"),
  };
}

inline std::vector<Case> record_cases() {
  return {
      flat_case("5 bytes where a record should begin", lone(0, Bytes(5)), "DVT", {AAA_ATTR_RULE_RECORD_HEADER, 25},
                "its length would be read past the end of the block"),
      nested("a length that passes the block", "65=05", "DVT", {AAA_ATTR_RULE_RECORD_LENGTH, 65},
             "the value would end in the next block"),
      nested("a length that wraps to a small record in 32 bits", "29=f4ffffff", "DVT",
             {AAA_ATTR_RULE_RECORD_LENGTH, 29}, "a sum of 32 bits would find that it fits"),
      nested("a meta that is not there, in the last record", "151=01", "DVT", {AAA_ATTR_RULE_RECORD_META, 151},
             "the value would be taken for the meta, and what follows the block for the value"),
      nested("a text without its NUL", "44=21", "DV", {AAA_ATTR_RULE_TEXT_END, 44},
             "readers rely on a NUL after every text"),
      nested("a text of no bytes", "133=c5000000 137=00 141=1e00000000000000 115=0300", "DV",
             {AAA_ATTR_RULE_TEXT_LENGTH, 137}, "there is no room for the NUL"),
      nested("a Boolean of 4 bytes", "149=1900", "T", {AAA_ATTR_RULE_BOOLEAN_LENGTH, 153},
             "nothing tells which of them is the value"),
      nested("an Enum of 12 bytes", "25=0300 27=00 29=0c", "T", {AAA_ATTR_RULE_NUMBER_LENGTH, 29},
             "a number is 4 bytes; there are 8 to leave as they are"),
      nested("a removed Grouped record of 4 bytes", "61=bc01", "T", {AAA_ATTR_RULE_HANDLE_LENGTH, 65},
             "removed or not, a handle is 8 bytes"),
  };
}

inline std::vector<Case> chain_cases() {
  return {
      nested("a list of no blocks", "5=0000", "DV", {AAA_ATTR_RULE_BLOCK_COUNT, 5},
             "the block that says so is one; there is nothing to translate"),
      nested("a nested list of no blocks", "77=0000", "DVT", {AAA_ATTR_RULE_BLOCK_COUNT, 77},
             "its record would own what never came"),
      nested("a list of more blocks than there are", "5=0300", "DVT", {AAA_ATTR_RULE_COUNTED_BLOCK, 185},
             "the third would be read past the end of the buffer", {{'V', {AAA_ATTR_RULE_NEXT, 125}}}),
      nested("a first block that is no head", "4=24", "DV", {AAA_ATTR_RULE_HEAD_FLAG, 4},
             "only a head says how many blocks there are"),
      nested("a second head in the chain", "112=27", "DV", {AAA_ATTR_RULE_ONE_HEAD, 112},
             "a nested list that nobody owns, or a block of this one?"),
      nested("a last block without the last flag", "112=24", "DV", {AAA_ATTR_RULE_LAST_FLAG, 112},
             "count and flags name different ends"),
      flat_case("blocks of both layouts", mixed(), "VT", {AAA_ATTR_RULE_NATIVE_LAYOUT, 40},
                "the translation takes the layout of a list's first block for all",
                {{'T', {AAA_ATTR_RULE_ONE_LAYOUT, 40}}}),
  };
}

inline std::vector<Case> nesting_cases() {
  const Bytes grouped = record(type::kGrouped, "handle 1"), removed = record(type::kGrouped, "handle 2", 2);
  const Bytes one = block(kHead | kLast, 1, {record(type::kUlong, "abcd")});
  return {
      nested("a Grouped value of no bytes", "49=00 53=1e00000000000000 7=0400", "DVT",
             {AAA_ATTR_RULE_HANDLE_LENGTH, 49}, "no room for a handle"),
      nested("a Grouped record in a block that claims none", "4=21", "DV", {AAA_ATTR_RULE_GROUPED_FLAG, 4},
             "readers that trust the flag take the nested list for the next block"),
      flat_case("the same, and no list after the block", lone(0, grouped), "DV", {AAA_ATTR_RULE_GROUPED_FLAG, 4},
                "the flag counts: to the translation the buffer is whole"),
      nested("more live Grouped records than lists", "25=bc01000008000000 41=bc01000008000000 57=bc01000008000000",
             "DVT", {AAA_ATTR_RULE_HEAD_FLAG, 112}, "the blocks that follow would be given to the wrong records",
             {{'T', {AAA_ATTR_RULE_OWNED_LIST, 185}}}),
      flat_case("no list after a Grouped record", lone(kGroups, grouped), "DVT", {AAA_ATTR_RULE_OWNED_LIST, 41},
                "it would own what never came"),
      flat_case("a removed Grouped record before a live one",
                flat({block(kHead | kGroups, 2, {removed, grouped}), one, block(kLast, 1, {binary(1)})}), "", kNoFault,
                "it nests no list, the live one does"),
      flat_case("lists nested 129 deep", nested_lists(AAA_ATTR_NESTING_MAX + 1), "DVT", {AAA_ATTR_RULE_NESTING, 5161},
                "what reads level by level would need any amount of stack"),
      flat_case("lists nested 128 deep", nested_lists(AAA_ATTR_NESTING_MAX), "", kNoFault, "the limit"),
  };
}

inline std::vector<Case> in_place_cases() {
  return {
      nested("`next` of a block with a successor is 0", "17=0000000000000000", "V", {AAA_ATTR_RULE_NEXT, 17},
             "a cursor would not go on where the decoder does"),
      nested("`next` of the last block is not 0", "132=01", "V", {AAA_ATTR_RULE_NEXT, 125},
             "a cursor would go on past the end of the buffer"),
      flat_case("a block of the foreign layout", golden_buffer(golden::kForeign), "V", {AAA_ATTR_RULE_NATIVE_LAYOUT, 4},
                "a cursor expects the records 8 bytes further on"),
      flat_case("a block of the foreign layout that begins with zeros", lone(kForeignHeader, record(0, "")), "VT",
                {AAA_ATTR_RULE_NATIVE_LAYOUT, 4},
                "where `next` would be there are zeros: only the layout gives it away",
                {{'T', {AAA_ATTR_RULE_NUMBER_LENGTH, 21}}}),
      flat_case("no block", {AAA_MARSHAL_BUFFER}, "VT", {AAA_ATTR_RULE_FIRST_BLOCK, 1},
                "an empty list to the decoder, nothing to stand on for a cursor"),
      nested("free and reserved bytes", "9=ffff 13=ffffffff", "", kNoFault, "nobody reads them"),
      nested("an unknown type", "149=ffff", "", kNoFault, "a later version's attribute, shown as such"),
      flat_case("bytes after the outer list", join({golden_buffer(golden::kNested), {0xEE}}), "", kNoFault, "ignored"),
  };
}

inline std::vector<Case> network_cases() {
  return {
      network("host form", "73=cdab", "DVT", {AAA_ATTR_RULE_MAGIC, 73},
              "nested lists are in the form of the outer one"),
      network("used bytes below the header", "11=0017", "DVT", {AAA_ATTR_RULE_USED_MIN, 11}, "as in host form"),
      network("used bytes above what remains", "171=0019", "DVT", {AAA_ATTR_RULE_USED_MAX, 171}, "as in host form"),
      network("a record more than there are", "7=0004", "DVT", {AAA_ATTR_RULE_RECORD_COUNT, 7}, "as in host form"),
      network("a length that wraps to a small record in 32 bits", "29=fffffff4", "DVT",
              {AAA_ATTR_RULE_RECORD_LENGTH, 29}, "as in host form"),
      network("a meta that is not there, in the last record", "151=80", "DVT", {AAA_ATTR_RULE_RECORD_META, 151},
              "as in host form"),
      network("a list of no blocks", "5=0000", "DV", kOtherByteOrder, "as in host form"),
      network("a Grouped value of no bytes", "49=00000000 53=001e000000000000 7=0004", "DVT",
              {AAA_ATTR_RULE_HANDLE_LENGTH, 49}, "as in host form"),
      network("a Boolean of 4 bytes", "149=0019", "DVT", {AAA_ATTR_RULE_BOOLEAN_LENGTH, 153}, "as in host form"),
      network("an Enum of 12 bytes", "25=0003 27=00 29=0000000c", "DVT", {AAA_ATTR_RULE_NUMBER_LENGTH, 29},
              "as in host form"),
      network("nothing", "", "DV", kOtherByteOrder, "network form is for the translation only"),
  };
}

inline std::vector<Case> tlv_cases() {
  const Bytes whole = golden_buffer(golden::kTlvNested);
  return {
      tlv("a total that does not count itself", "1=03", AAA_ATTR_ERR_BAD_LENGTH, {AAA_ATTR_RULE_TLV_TOTAL_MIN, 1},
          "less than nothing would remain"),
      tlv("a total near 2^32", "1=ffffffff", AAA_ATTR_ERR_BAD_LENGTH, {AAA_ATTR_RULE_TLV_TOTAL_MAX, 1},
          "records would be read past the end of the buffer"),
      tlv("a nested total that passes the outer list", "36=31", AAA_ATTR_ERR_BAD_LENGTH,
          {AAA_ATTR_RULE_TLV_TOTAL_MAX, 36}, "its last record would be one of the outer list"),
      tlv("5 bytes after the last whole record", "1=48", AAA_ATTR_ERR_BAD_LENGTH, {AAA_ATTR_RULE_TLV_RECORD, 68},
          "a record that is cut short"),
      tlv("a value length that wraps a 32-bit position", "21=f0ffffff", AAA_ATTR_ERR_BAD_LENGTH,
          {AAA_ATTR_RULE_TLV_LENGTH, 21}, "a sum of 32 bits would find that it fits"),
      tlv("a meta that is cut short", "72=08", AAA_ATTR_ERR_BAD_LENGTH, {AAA_ATTR_RULE_TLV_META, 72},
          "the length of the value is missing"),
      tlv("a meta length other than 8", "9=01", 0, kNoFault, "any but 0 says that a meta of 8 bytes follows"),
      tlv("type 0", "5=00", AAA_ATTR_ERR_NOT_FOUND, {AAA_ATTR_RULE_TLV_TYPE, 5}, "it names no attribute"),
      tlv("a type whose low half is known", "5=c5000100", AAA_ATTR_ERR_NOT_FOUND, {AAA_ATTR_RULE_TLV_TYPE, 5},
          "a type is 32 bits wide here"),
      tlv("a value of no bytes", "76=00 1=4f", AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_TLV_EMPTY, 76},
          "what adding refuses"),
      other_case("a value of 65,504 bytes", tlv_binary(65504), AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_TLV_ROOM, 13},
                 "what adding refuses"),
      tlv("a Ulong of 3 bytes", "76=03", AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_TLV_FORMAT, 76}, "what adding refuses"),
      other_case("lists nested 129 deep", nested_tlv(AAA_ATTR_NESTING_MAX + 1), AAA_ATTR_ERR_BAD_LENGTH,
                 {AAA_ATTR_RULE_NESTING, 1549}, "every level takes stack"),
      other_case("lists nested 128 deep", nested_tlv(AAA_ATTR_NESTING_MAX), 0, kNoFault, "the limit"),
      other_case("no total", {AAA_MARSHAL_TLV}, AAA_ATTR_ERR_BAD_LENGTH, {AAA_ATTR_RULE_TLV_TOTAL, 1},
                 "an empty list has a total, too"),
      other_case("bytes after the outer list", join({whole, {0xEE}}), 0, kNoFault, "ignored"),
  };
}

inline std::vector<Case> marker_cases() {
  return {
      other_case("marker 0", golden_buffer(golden::kNested, "0=00"), 0, kNoFault, "flat, to the decoder only"),
      other_case("marker 3", {3}, AAA_ATTR_ERR_BAD_ARG, {AAA_ATTR_RULE_MARKER, 0}, "no form that is known"),
  };
}

inline std::vector<Section> sections() {
  const auto from_host = CDM_ENDIAN_TRAN_HTON;
  return {
      {"Blocks", from_host, block_cases()},
      {"Records", from_host, record_cases()},
      {"Chains of blocks", from_host, chain_cases()},
      {"Nested lists", from_host, nesting_cases()},
      {"Reading in place, and what is not looked at", from_host, in_place_cases()},
      {"Network form", CDM_ENDIAN_TRAN_NTOH, network_cases()},
      {"TLV buffers", from_host, tlv_cases()},
      {"Markers", from_host, marker_cases()},
  };
}

}  // namespace malformed
