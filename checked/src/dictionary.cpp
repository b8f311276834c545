#include "dictionary.h"

#include <attrmgr/aaa_attr_dict.h>

#include <iterator>

namespace attrmgr::checked {
namespace {

constexpr std::uint32_t OPAQUE = AAA_ATTR_TYPE_OPAQUE;

// The types that aaa_attr_is_attr_type_li knows.
constexpr std::uint32_t kLiFirst = 288;
constexpr std::uint32_t kLiLast = 293;

constexpr AttributeType make(std::uint32_t type, const char *name, std::uint32_t format, std::uint32_t flags) {
  const bool li = type >= kLiFirst && type <= kLiLast;
  return {name, format == AAA_ATTR_FMT_GROUPED, li || (flags & OPAQUE) != 0};
}

constexpr AttributeType kTypes[] = {
#define ATTR(type, name, format, flags, class_mask) make(type, name, AAA_ATTR_FMT_##format, flags),
#define ENUM(type, name, table, flags, class_mask) make(type, name, AAA_ATTR_FMT_ENUM, flags),
#include "dictionary/attr_types.def"
#undef ATTR
#undef ENUM
};

static_assert(std::size(kTypes) == AAA_ATTR_TYPE_COUNT);

}  // namespace

const AttributeType *attribute_type(std::uint32_t type) { return type < std::size(kTypes) ? &kTypes[type] : nullptr; }

}  // namespace attrmgr::checked
