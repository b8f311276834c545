#include <cstdint>
#include <iterator>

#include <attrmgr/aaa_attr_dict.h>

namespace {

// By format code; null where no format has the code.
constexpr const char *kFormatNames[] = {
    "<invalid>",          // 0
    "String",             // 1
    "Binary",             // 2
    "Ulong",              // 3
    "Ulonglong",          // 4
    "Grouped",            // 5
    "Enum",               // 6
    "IPv4 Address",       // 7
    "IPv6 Address",       // 8
    "Address",            // 9
    "String Attribute",   // 10
    "UTC",                // 11
    "Boolean",            // 12
    "Opaque Binary",      // 13
    "Special",            // 14
    "Ipx Network",        // 15
    nullptr,              // 16
    nullptr,              // 17
    nullptr,              // 18
    nullptr,              // 19
    "diameter_identity",  // 20
    "IPFilterrule",       // 21
    "QosFilterRule",      // 22
};
static_assert(std::size(kFormatNames) == AAA_ATTR_FMT_QOS_FILTER_RULE + 1);

}  // namespace

const char *aaa_attr_get_format_string(std::uint32_t format) noexcept {
  const char *name = format < std::size(kFormatNames) ? kFormatNames[format] : nullptr;
  return name != nullptr ? name : "<unknown>";
}
