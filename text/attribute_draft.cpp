#include "attribute_draft.h"

#include <limits>

#include "nearest.h"

namespace attrtext {
namespace {

// What adding asks of a value's length, in words.
const char *length_of(std::uint32_t format) {
  switch (format) {
    case AAA_ATTR_FMT_ULONG:
    case AAA_ATTR_FMT_ENUM:
    case AAA_ATTR_FMT_IPV4:
      return "4 bytes";
    case AAA_ATTR_FMT_IPV6:
      return "16 bytes";
    case AAA_ATTR_FMT_ADDRESS:
      return "4 or 16 bytes";
    case AAA_ATTR_FMT_BOOLEAN:
      return "1 byte";
    default:
      return "at least 1 byte";
  }
}

void check_added(aaa_attr_cerrno code, std::uint32_t type, std::size_t size, std::string_view place) {
  constexpr std::size_t kBlockMax = 65535;
  constexpr std::size_t kOverheadMax = 64;  // of a block and a record: more than there is
  if (code == 0) return;
  if (code == AAA_ATTR_ERR_BAD_ARG && size > kBlockMax - kOverheadMax)
    throw BadText("the value is too long: an attribute must fit 65,535 bytes", place);
  if (code == AAA_ATTR_ERR_BAD_ARG) {
    const std::uint32_t format = aaa_attr_get_format_from_type(type);
    throw BadText(std::string("expected a value of ") + length_of(format) + ", as format " +
                      aaa_attr_get_format_string(format) + " has, found " + std::to_string(size),
                  place);
  }
  throw BadText(std::string("the attribute cannot be added: ") + aaa_attr_cerrno_name(code), place);
}

aaa_attr_cerrno add_bytes(attrmgr::list_ref list, const AttributeDraft &draft, const void *value, std::size_t size) {
  const aaa_attr_meta meta = draft.meta ? aaa_attr_meta{draft.meta->service, draft.meta->protocol, draft.meta->tag,
                                                        draft.meta->flags, draft.meta->client}
                                        : aaa_attr_meta{};
  constexpr std::size_t kMost = std::numeric_limits<std::uint32_t>::max();
  return aaa_attr_add_v1(list.handle(), draft.type, value, static_cast<std::uint32_t>(std::min(size, kMost)),
                         draft.meta ? &meta : nullptr, draft.producer);
}

}  // namespace

void add(attrmgr::list_ref list, const AttributeDraft &draft, const Bytes &value, std::string_view place) {
  const Bytes none{0};
  check_added(add_bytes(list, draft, value.empty() ? none.data() : value.data(), value.size()), draft.type,
              value.size(), place);
}

attrmgr::list_ref add_group(attrmgr::list_ref list, const AttributeDraft &draft, attrmgr::list sub_list,
                            std::string_view place) {
  const aaa_attr_list_handle handle = sub_list.handle();
  check_added(add_bytes(list, draft, &handle, sizeof handle), draft.type, sizeof handle, place);
  return attrmgr::list_ref(sub_list.release());
}

void check_nesting(std::size_t depth, std::string_view place) {
  if (depth >= AAA_ATTR_NESTING_MAX)
    throw BadText("groups nest too deep: no receiver takes more than " + std::to_string(AAA_ATTR_NESTING_MAX), place);
}

std::uint32_t type_from_name(std::string_view name) {
  constexpr std::uint32_t kLast = AAA_ATTR_TYPE_COUNT - 1;
  const bool whole = name.find('\0') == std::string_view::npos;
  if (const std::uint32_t type = whole ? aaa_attr_get_type_from_name(std::string(name).c_str()) : 0) return type;
  if (const auto type = number_from_text(name, kLast); type && *type != 0) return static_cast<std::uint32_t>(*type);
  throw unexpected(
      "an attribute name" + such_as(nearest_types(name)) + ", or a type number from 1 to " + std::to_string(kLast),
      name);
}

std::uint8_t number_of_name(const aaa_attr_value_table &table, std::string_view text) {
  constexpr std::uint64_t kLast = 255;  // a byte of the meta
  std::vector<std::string_view> names(table.names, table.names + table.count);
  for (std::size_t value = 0; value < names.size(); ++value)
    if (text == names[value]) return static_cast<std::uint8_t>(value);
  if (const auto number = number_from_text(text, kLast)) return static_cast<std::uint8_t>(*number);
  throw unexpected("a name of the dictionary" + such_as(nearest(text, names)) + ", or a number from 0 to 255", text);
}

}  // namespace attrtext
