// The library itself, through its exported interface.
#include <attrmgr/attrmgr.h>

#include "workloads.h"

namespace {

class Attrmgr {
 public:
  using List = aaa_attr_list_handle;

  static const char *name() { return "attrmgr"; }

  static List build(const bench::Attributes &attributes) {
    List list;
    aaa_attr_list_alloc(&list);
    add_all(list, attributes);
    return list;
  }

  static List build_nested(const std::vector<bench::Attributes> &groups) {
    constexpr std::uint32_t kGroupType = 473;
    List list;
    aaa_attr_list_alloc(&list);
    for (const bench::Attributes &group : groups) {
      List sub_list;
      (void)aaa_attr_add_group_list(list, &sub_list, kGroupType, nullptr);
      add_all(sub_list, group);
    }
    return list;
  }

  static void destroy(List list) { aaa_attr_list_free(list); }

  static bool find(List list, std::uint32_t type) {
    const void *value;
    std::uint32_t length;
    return aaa_attr_get(list, type, &value, &length) == 0;
  }

  static std::size_t encode(List list, std::byte *buffer, std::size_t size) {
    auto length = static_cast<std::uint32_t>(size);
    return aaa_attr_list_to_buffer(list, buffer, &length) == 0 ? length : 0;
  }

  static std::size_t size_and_encode(List list, std::byte *buffer, std::size_t) {
    std::uint32_t length = 0;
    (void)aaa_attr_list_to_buffer_v1(list, nullptr, &length);
    return aaa_attr_list_to_buffer_v1(list, buffer, &length) == 0 ? length : 0;
  }

  static List decode(const std::byte *bytes, std::size_t size) {
    List list = 0;
    (void)aaa_attr_buffer_to_list(bytes, static_cast<std::uint32_t>(size), &list);
    return list;
  }

  static std::size_t encode_tlv(List list, std::byte *buffer, std::size_t size) {
    auto length = static_cast<std::uint32_t>(size);
    return aaa_attr_list_tlv_to_buffer(list, buffer, &length) == 0 ? length : 0;
  }

  static List decode_tlv(const std::byte *bytes, std::size_t size) { return decode(bytes, size); }

  static bool read(const std::byte *bytes, std::size_t, std::uint32_t type) {
    std::uint32_t format;
    std::uint32_t value;
    std::uint32_t size = sizeof value;
    return aaa_attr_get_from_buffer(bytes, type, &format, &value, &size) == 0;
  }

  static List copy(List list) {
    List made = 0;
    (void)aaa_attr_list_copy(list, &made);
    return made;
  }

  static void merge(List into, List from) { (void)aaa_attr_list_merge_with_replace(into, from); }
  static void remove(List from, List types) { aaa_attr_list_remove_list(from, types); }
  static bool equal(List list1, List list2) { return aaa_attr_list_eq(list1, list2) != 0; }

  static std::uint32_t number_of(const std::string &name) { return aaa_attr_get_type_from_name(name.c_str()); }
  static const char *name_of(std::uint32_t type) { return aaa_attr_get_name_from_type(type); }

  static std::size_t render(List list, char *text, std::size_t size) {
    aaa_attr_list_print_to_output_buffer(list, text, static_cast<std::int32_t>(size));
    return text[0] != '\0';
  }

  static void translate(std::byte *buffer, std::size_t, bool there) {
    (void)aaa_attrs_buffer_tran(reinterpret_cast<char *>(buffer), there ? CDM_ENDIAN_TRAN_HTON : CDM_ENDIAN_TRAN_NTOH);
  }

 private:
  static void add_all(List list, const bench::Attributes &attributes) {
    for (const bench::Attribute &attribute : attributes)
      (void)aaa_attr_add(list, attribute.type, attribute.value.data(),
                         static_cast<std::uint32_t>(attribute.value.size()), nullptr);
  }
};

}  // namespace

BENCH_MAIN(Attrmgr)
