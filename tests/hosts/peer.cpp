// One of two processes on different hosts that send each other a list in every form; exchange.sh joins them by pipes.
//
//   attrmgr_peer ask      sends its list, and reads what the other made of it
//   attrmgr_peer answer   reads a list, and sends back what it made of it
//
// Both know the list that the other has made, and hold what arrives against it: the list, its text, and the answer to
// what must not be read. What is sent is "NAME SIZE\n" and so many bytes, on standard output.
#include <attrmgr/attrmgr.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>

#include "support/lists.h"

namespace {

[[noreturn]] void fail(const std::string &what) {
  std::cerr << "attrmgr_peer: " << what << '\n';
  std::exit(1);
}

void expect(bool holds, const std::string &what) {
  if (!holds) fail(what);
}

// ---- The list ----

// The values of 64 bits: as they are, or as a host of the other byte order reads those that nobody translated.
enum class Wide { kAsTheyAre, kTurned };

std::uint64_t wide(std::uint64_t number, Wide way) { return way == Wide::kTurned ? __builtin_bswap64(number) : number; }

void add(aaa_attr_list_handle list, std::uint32_t type, const void *value, std::size_t size,
         const aaa_attr_meta *meta = nullptr, std::uint32_t client_type = 0) {
  must(aaa_attr_add_v1(list, type, value, static_cast<std::uint32_t>(size), meta, client_type), "adding");
}

// One attribute of every format that a type has, most with a meta, each with a client type of its own.
void add_formats(aaa_attr_list_handle list, Wide way) {
  const aaa_attr_meta meta = {4, 3, 0x1234, host_meta_flags(0x4001), 0x0102};
  const std::uint32_t number = 0x01020304, start = AAA_ACCT_STATUS_TYPE_START;
  const std::uint64_t octets = wide(0x0102030405060708, way), time = wide(1'700'000'000, way);
  const std::uint8_t ip[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 1, 0, 2, 0, 3, 0, 4, 0, 5, 0, 6};
  const std::uint8_t yes = 1, prefix[18] = {0, 32, 0x20, 0x01, 0x0d, 0xb8};
  add(list, type::kUlong, &number, sizeof number, &meta, 1);
  add(list, type::kEnum, &start, sizeof start, &meta, 2);
  add(list, type::kUlonglong, &octets, sizeof octets, &meta, 3);
  add(list, type::kUtc, &time, sizeof time, nullptr, 5);
  add(list, type::kIpv4, ip, 4, &meta, 6);
  add(list, type::kIpv6, ip, sizeof ip, &meta, 7);
  add(list, type::kAddress, ip, 4, nullptr, 8);
  add(list, type::kAddress, ip, sizeof ip, &meta, 9);
  add(list, type::kBoolean, &yes, sizeof yes, &meta, 10);
  add(list, type::kBinary, "\1\2\3\0\4", 5, &meta, 11);
  add(list, type::kString, "bob", 3, &meta, 23);
  add(list, type::kPrefix, prefix, sizeof prefix, nullptr, 127);
}

// Several blocks, in two of which lists are nested, three deep; removed attributes in each.
List made(Wide way) {
  List list;
  add_formats(list, way);
  list.group(type::kOtherGrouped);
  aaa_attr_remove(list, type::kOtherGrouped);
  for (const char *name : {"outer", "inner", "innermost"}) {
    List group(list.group(type::kGrouped));
    add_formats(group, way);
    List deeper(group.group(type::kOtherGrouped));
    deeper.text(type::kString, name).number(type::kUlong, 7).number(type::kEnum, 1);
    List(deeper.group(type::kGrouped)).text(type::kString, name).release();
    aaa_attr_remove(deeper, type::kEnum);
    deeper.release();
    group.release();
    list.text(type::kBinary, std::string(400, 'x'));
  }
  List(list.group(type::kGrouped)).release();
  aaa_attr_remove(list, type::kUlong);
  return list;
}

// The list as it is displayed, without what is a handle, and without the bytes that a Ulonglong is shown as.
std::string text_of(aaa_attr_list_handle list) {
  std::string text;
  const aaa_attr_output_fn keep = [](char *line, std::uint64_t context) {
    std::string shown = line;
    for (const char *before : {"Attribute List: ", "Grouped Attribute: ", "AVP      len=  8  ", "AVP len=  8  ",
                               "Input octets    len=  8  "})
      if (const std::size_t at = shown.find(before); at != std::string::npos) shown.resize(at + std::strlen(before));
    *reinterpret_cast<std::string *>(static_cast<std::uintptr_t>(context)) += shown + '\n';
    return 0;
  };
  aaa_attr_list_display(list, keep, reinterpret_cast<std::uintptr_t>(&text));
  return text;
}

// ---- What is sent ----

Bytes translated(Bytes buffer, decltype(aaa_attrs_buffer_tran_v1) *translate, cdm_endian_tran_type direction) {
  must(translate(reinterpret_cast<char *>(buffer.data()), static_cast<std::uint32_t>(buffer.size()), direction),
       "translating");
  return buffer;
}

void send(const char *name, const Bytes &bytes) {
  std::printf("%s %zu\n", name, bytes.size());
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

void send_all(aaa_attr_list_handle list) {
  Bytes flat = flat_buffer(list);
  must(aaa_attr_buffer_scrub(flat.data(), static_cast<std::uint32_t>(flat.size())), "scrubbing");
  const std::string text = text_of(list);
  const std::uint8_t order = kBigEndianHost ? 'b' : 'l';
  send("order", {order});
  send("v1", translated(flat, aaa_attrs_buffer_tran_v1, CDM_ENDIAN_TRAN_HTON));
  send("v2", translated(flat, aaa_attrs_buffer_tran_v2, CDM_ENDIAN_TRAN_HTON));
  send("flat", flat);
  send("tlv", tlv_buffer(list));
  send("text", Bytes(text.begin(), text.end()));
  std::fflush(stdout);
}

// ---- What arrives ----

Bytes receive(const std::string &name) {
  char arrived[16] = "";
  std::size_t size = 0;
  expect(std::scanf("%15s %zu", arrived, &size) == 2 && std::getchar() == '\n', "nothing came for " + name);
  expect(arrived == name, "there came " + std::string(arrived) + " for " + name);
  Bytes bytes(size);
  expect(std::fread(bytes.data(), 1, size, stdin) == size, name + " was cut short");
  return bytes;
}

void expect_list(const Bytes &buffer, const char *form, const List &expected) {
  List list(0);
  must(decode(buffer, &list), form);
  const std::string what = std::string("what came as ") + form + " is not what was sent";
  expect(outline(list) == outline(expected), what + ":\n" + outline(list) + "\n" + outline(expected));
  expect(aaa_attr_list_eq(list, expected) == 1 && aaa_attr_list_eq(expected, list) == 1, what + ", by equality");
  expect(text_of(list) == text_of(expected), what + ", by its text:\n" + text_of(list) + text_of(expected));
}

// Of the other byte order it is refused, with the code; of this one it is the list.
void expect_refused(const Bytes &buffer, const char *form, bool same_order, aaa_attr_cerrno code,
                    const List &expected) {
  if (same_order) return expect_list(buffer, form, expected);
  List list(0);
  expect(decode(buffer, &list) == code, std::string(form) + " of the other byte order was not refused as such");
}

// Gives the list that arrived, with removed attributes and all.
List receive_all() {
  const bool same_order = receive("order") == Bytes{kBigEndianHost ? std::uint8_t{'b'} : std::uint8_t{'l'}};
  const List expected = made(Wide::kAsTheyAre);
  const List as_stored = made(same_order ? Wide::kAsTheyAre : Wide::kTurned);

  expect_list(translated(receive("v1"), aaa_attrs_buffer_tran_v1, CDM_ENDIAN_TRAN_NTOH), "v1", as_stored);
  const Bytes all_numbers = translated(receive("v2"), aaa_attrs_buffer_tran_v2, CDM_ENDIAN_TRAN_NTOH);
  expect_list(all_numbers, "v2", expected);
  expect_refused(receive("flat"), "a flat buffer", same_order, AAA_ATTR_ERR_BAD_BUFFER, expected);

  const Bytes tlv = receive("tlv");
  if (same_order) {
    List list(0);  // whose attributes have no client types
    must(decode(tlv, &list), "a TLV buffer");
    expect(aaa_attr_list_eq(list, expected) == 1, "what came as a TLV buffer is not what was sent");
  } else {
    expect_refused(tlv, "a TLV buffer", false, AAA_ATTR_ERR_BAD_LENGTH, expected);
  }

  const Bytes text = receive("text");
  expect(text_of(expected) == std::string(text.begin(), text.end()), "the other host shows another text");
  List list(0);
  must(decode(all_numbers, &list), "decoding once more");
  expect(aaa_attr_list_attr_count(list) == aaa_attr_list_attr_count(expected), "removed attributes did not travel");
  return list;
}

}  // namespace

int main(int argc, char **argv) {
  setenv("TZ", "UTC", 1);
  tzset();
  const std::string part = argc == 2 ? argv[1] : "";
  if (part == "ask") {
    send_all(made(Wide::kAsTheyAre));
    receive_all();
    std::cerr << "attrmgr_peer: " << text_of(made(Wide::kAsTheyAre)).size() << " bytes of text are the same on both\n";
  } else if (part == "answer") {
    send_all(receive_all());
  } else {
    fail("ask or answer?");
  }
}
