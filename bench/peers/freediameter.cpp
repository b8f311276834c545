// freeDiameter (libfdproto): a message with a tree of AVPs, each with its model in a dictionary of the types, which
// have no vendor. The wire form is Diameter's. A message is encoded into a buffer of its own, which is copied to where
// the bytes are wanted; the decoder takes a copy of the bytes, parses it and resolves each AVP in the dictionary.
#include <attrmgr/aaa_attr_dict.h>
#include <freeDiameter/freeDiameter-host.h>
#include <freeDiameter/libfdproto.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "names.h"
#include "type_index.h"
#include "workloads.h"

namespace {

constexpr std::uint32_t kCommandCode = 8388000;
constexpr std::uint32_t kValuesTried = 64;  // of each enumeration
constexpr std::uint32_t kGroupType = 473;

void check(int error) {
  if (error == 0) return;
  std::fprintf(stderr, "freeDiameter: %s\n", std::strerror(error));
  std::exit(1);
}

dict_avp_basetype base_type(std::uint32_t format) {
  switch (format) {
    case AAA_ATTR_FMT_GROUPED:
      return AVP_TYPE_GROUPED;
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
      return AVP_TYPE_UNSIGNED32;
    default:
      return AVP_TYPE_OCTETSTRING;
  }
}

// The dictionary, and what is used of it.
class Dictionary {
 public:
  Dictionary() {
    check(fd_libproto_init());
    fd_log_handler_register([](int, const char *, va_list) {});
    check(fd_dict_init(&dictionary_));
    std::string command_name = "Bench-Request";
    dict_cmd_data command = {kCommandCode, command_name.data(), CMD_FLAG_REQUEST, CMD_FLAG_REQUEST};
    check(fd_dict_new(dictionary_, DICT_COMMAND, &command, nullptr, &command_));
    make_types();
    bench::for_each_name([](const std::string &name) { return name; },
                         [this](std::string name, std::uint32_t type) { define(type, name); });
  }

  dictionary *get() const { return dictionary_; }
  dict_object *command() const { return command_; }
  dict_object *model(std::uint32_t type) const { return models_[type]; }
  bool is_number(std::uint32_t type) const { return is_number_[type]; }

 private:
  // What says how values are shown; the rest are octets.
  void make_types() {
    address_ = new_type(AVP_TYPE_OCTETSTRING, "Address", fd_dictfct_Address_dump);
    text_ = new_type(AVP_TYPE_OCTETSTRING, "UTF8String", fd_dictfct_UTF8String_dump);
  }

  dict_object *new_type(dict_avp_basetype base, const std::string &type_name,
                        decltype(dict_type_data::type_dump) dump) {
    std::string name = type_name;
    dict_type_data data = {base, name.data(), nullptr, nullptr, dump, nullptr, nullptr};
    dict_object *made = nullptr;
    check(fd_dict_new(dictionary_, DICT_TYPE, &data, nullptr, &made));
    return made;
  }

  dict_object *new_enumeration(std::uint32_t type, const std::string &name) {
    dict_object *made = new_type(AVP_TYPE_UNSIGNED32, "Enumerated(" + name + ")", nullptr);
    for (std::uint32_t value = 0; value < kValuesTried; ++value)
      if (const char *found = aaa_attr_get_enum_name_from_type(type, value)) {
        std::string value_name = found;
        dict_enumval_data data{};
        data.enum_name = value_name.data();
        data.enum_value.u32 = value;
        fd_dict_new(dictionary_, DICT_ENUMVAL, &data, made, nullptr);  // refuses a name that is there already
      }
    return made;
  }

  dict_object *type_of(std::uint32_t type, const std::string &name) {
    switch (aaa_attr_get_format_from_type(type)) {
      case AAA_ATTR_FMT_STRING:
        return text_;
      case AAA_ATTR_FMT_IPV4:
      case AAA_ATTR_FMT_IPV6:
        return address_;
      case AAA_ATTR_FMT_ENUM:
        return new_enumeration(type, name);
      default:
        return nullptr;
    }
  }

  void define(std::uint32_t type, std::string &name) {
    dict_avp_data data = {type, 0, name.data(), AVP_FLAG_VENDOR, 0, base_type(aaa_attr_get_format_from_type(type))};
    is_number_[type] = data.avp_basetype == AVP_TYPE_UNSIGNED32;
    check(fd_dict_new(dictionary_, DICT_AVP, &data, type_of(type, name), &models_[type]));
  }

  dictionary *dictionary_ = nullptr;
  dict_object *command_ = nullptr;
  dict_object *address_ = nullptr;
  dict_object *text_ = nullptr;
  std::array<dict_object *, AAA_ATTR_TYPE_COUNT> models_{};
  std::array<bool, AAA_ATTR_TYPE_COUNT> is_number_{};
};

const Dictionary &dict() {
  static const Dictionary made;
  return made;
}

avp *step(msg_or_avp *from, msg_brw_dir direction) {
  msg_or_avp *found = nullptr;
  return fd_msg_browse_internal(from, direction, &found, nullptr) == 0 ? static_cast<avp *>(found) : nullptr;
}

avp_hdr *header(avp *attribute) {
  avp_hdr *found = nullptr;
  fd_msg_avp_hdr(attribute, &found);
  return found;
}

class Freediameter {
 public:
  using List = msg *;

  static const char *name() { return "freeDiameter"; }

  static List build(const bench::Attributes &attributes) {
    List list = empty();
    for (const bench::Attribute &attribute : attributes) append(list, make(attribute));
    return list;
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    List list = empty();
    for (const bench::Attributes &attributes : groups) {
      avp *group = new_avp(kGroupType);
      for (const bench::Attribute &attribute : attributes) append(group, make(attribute));
      append(list, group);
    }
    return list;
  }

  static void destroy(List list) { fd_msg_free(list); }

  static bool find(List list, std::uint32_t type) {
    avp *found = nullptr;
    return fd_msg_search_avp(list, dict().model(type), &found) == 0 && found != nullptr;
  }

  static std::size_t encode(List list, std::byte *buffer, std::size_t size) {
    std::uint8_t *made = nullptr;
    std::size_t length = 0;
    if (fd_msg_bufferize(list, &made, &length) != 0 || length > size) return 0;
    std::memcpy(buffer, made, length);
    std::free(made);
    return length;
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    auto *copy = static_cast<std::uint8_t *>(std::malloc(size));
    std::memcpy(copy, bytes, size);
    List list = nullptr;
    if (fd_msg_parse_buffer(&copy, size, &list) != 0) return nullptr;
    check(fd_msg_parse_dict(list, dict().get(), nullptr));
    return list;
  }

  static void merge(List into, List from) {
    const Index present = index(into);
    for (avp *attribute = step(from, MSG_BRW_FIRST_CHILD); attribute != nullptr;
         attribute = step(attribute, MSG_BRW_NEXT)) {
      const avp_hdr *wanted = header(attribute);
      if (avp *const *found = present.find(wanted->avp_code)) {
        fd_msg_avp_setvalue(*found, wanted->avp_value);
      } else {
        avp *made = new_avp(wanted->avp_code);
        fd_msg_avp_setvalue(made, wanted->avp_value);
        append(into, made);
      }
    }
  }

  static void remove(List from, List types) {
    const Index unwanted = index(types);
    for (avp *attribute = step(from, MSG_BRW_FIRST_CHILD); attribute != nullptr;) {
      avp *next = step(attribute, MSG_BRW_NEXT);
      if (unwanted.has(header(attribute)->avp_code)) fd_msg_free(attribute);
      attribute = next;
    }
  }

  static bool equal(List list1, List list2) {
    return Index::equal(index(list1), index(list2), [](avp *one, avp *other) {
      const avp_hdr *a = header(one);
      const avp_hdr *b = header(other);
      if (dict().is_number(a->avp_code)) return a->avp_value->u32 == b->avp_value->u32;
      return fd_os_cmp(a->avp_value->os.data, a->avp_value->os.len, b->avp_value->os.data, b->avp_value->os.len) == 0;
    });
  }

  static std::uint32_t number_of(const std::string &name) {
    dict_object *found = nullptr;
    fd_dict_search(dict().get(), DICT_AVP, AVP_BY_NAME, name.c_str(), &found, 0);
    dict_avp_data data{};
    return found != nullptr && fd_dict_getval(found, &data) == 0 ? data.avp_code : 0;
  }

  static const char *name_of(std::uint32_t type) {
    dict_object *found = nullptr;
    fd_dict_search(dict().get(), DICT_AVP, AVP_BY_CODE, &type, &found, 0);
    dict_avp_data data{};
    return found != nullptr && fd_dict_getval(found, &data) == 0 ? data.avp_name : nullptr;
  }

  static std::size_t render(List list, char *text, std::size_t size) {
    std::size_t done = 0;
    for (avp *attribute = step(list, MSG_BRW_FIRST_CHILD); attribute != nullptr;
         attribute = step(attribute, MSG_BRW_NEXT)) {
      static char *line = nullptr;
      static std::size_t capacity = 0;
      std::size_t length = 0;
      if (fd_msg_dump_summary(&line, &capacity, &length, attribute, nullptr, 0, 0) == nullptr) return 0;
      length = std::min(length, size - done);
      std::memcpy(text + done, line, length);
      done += length;
    }
    return done;
  }

 private:
  using Index = bench::TypeIndex<avp *>;

  static List empty() {
    List made = nullptr;
    check(fd_msg_new(dict().command(), 0, &made));
    return made;
  }

  static avp *new_avp(std::uint32_t type) {
    avp *made = nullptr;
    check(fd_msg_avp_new(dict().model(type), 0, &made));
    return made;
  }

  static avp *make(const bench::Attribute &attribute) {
    avp_value value{};
    std::array<std::uint8_t, 2 + 16> address{};  // begins with the number of its family
    switch (attribute.kind) {
      case bench::Kind::kNumber:
      case bench::Kind::kEnum:
        value.u32 = attribute.number;
        break;
      case bench::Kind::kAddress:
      case bench::Kind::kAddress6:
        address[1] = attribute.kind == bench::Kind::kAddress ? 1 : 2;
        std::memcpy(&address[2], attribute.value.data(), attribute.value.size());
        value.os = {address.data(), 2 + attribute.value.size()};
        break;
      default:
        value.os = {reinterpret_cast<std::uint8_t *>(const_cast<char *>(attribute.value.data())),
                    attribute.value.size()};
    }
    avp *made = new_avp(attribute.type);
    check(fd_msg_avp_setvalue(made, &value));
    return made;
  }

  static void append(msg_or_avp *parent, avp *attribute) {
    check(fd_msg_avp_add(parent, MSG_BRW_LAST_CHILD, attribute));
  }

  static Index index(List list) {
    Index made;
    for (avp *attribute = step(list, MSG_BRW_FIRST_CHILD); attribute != nullptr;
         attribute = step(attribute, MSG_BRW_NEXT))
      made.add(header(attribute)->avp_code, attribute);
    return made;
  }
};

}  // namespace

BENCH_MAIN(Freediameter)
