// docs/dictionary.md: the dictionary for people.
#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_values.h>

#include <cstdio>

#include "dictionary/type_table.h"
#include "files.h"
#include "identifiers.h"
#include "rfc_names.h"

namespace generate {
namespace {

constexpr char kIntroduction[] = R"(# The dictionary

The attribute types that the library knows: their numbers, names and constants, what their values are, and which
attribute of RADIUS or Diameter they stand for where that is certain. `scripts/dictionary` writes this page and the
header `attrmgr/aaa_attr_names.h` from `src/dictionary/*.def`; the build compares.

- **constant** `AAA_ATTR_TYPE_X` of `attrmgr/aaa_attr_names.h`. In C++ the same name in small letters is the typed
  constant, `attrmgr::attr::username`, with an underscore after it where C++ has a keyword of that name (`class_`,
  `or_`).
- **format** what a value is, and how long: [docs of the formats](../aaa/aaacore/shared/attrmgr/include/attrmgr/aaa_attr_dict.h).
  An Enum leads to the names of its values.
- **flags** `secret` (0x4): no display shows the value; `LI`: left out of every display while the debug-LI flag is 0.
  Other bits are carried for clients.
- **class** the bits that `aaa_cursor_attr_is_class` tests; their meaning belongs to clients.
- **use** leads to the services and protocols that may use the type, for types that have an authorization bitmap.
- **elsewhere** RFC 2865 (RADIUS), 2866 (accounting), 2869 (extensions), 6733 (Diameter), 7155 (network access), 8506
  (credit control).
)";

std::string hexadecimal(std::uint32_t bits) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%X", bits);
  return text;
}

std::string flags_of(const attrmgr::TypeRow &row) {
  constexpr std::uint32_t kShownInOtherColumns = AAA_ATTR_TYPE_NO_AUTHOR | AAA_ATTR_TYPE_OPAQUE;
  std::string text;
  const auto add = [&text](const std::string &word) { text += (text.empty() ? "" : " ") + word; };
  if ((row.flags & AAA_ATTR_TYPE_OPAQUE) != 0) add("secret");
  if (aaa_attr_is_attr_type_li(row.type) != 0) add("LI");
  if ((row.flags & ~kShownInOtherColumns) != 0) add(hexadecimal(row.flags & ~kShownInOtherColumns));
  return text;
}

void put_types() {
  std::puts("\n## Types\n\n| number | name | constant | format | flags | class | use | elsewhere |");
  std::puts("|---|---|---|---|---|---|---|---|");
  for (const Type &type : types()) {
    const attrmgr::TypeRow &row = attrmgr::kTypes[type.number];
    const std::string number = std::to_string(type.number);
    const std::string format = aaa_attr_get_format_string(row.format);
    std::printf("| %s | %s | `%s` | %s | %s | %s | %s | %s |\n", number.c_str(), type.name.c_str(),
                constant_of(type).c_str(),
                type.values.empty() ? format.c_str() : ("[Enum](#values-" + number + ")").c_str(),
                flags_of(row).c_str(), row.class_mask != 0 ? hexadecimal(row.class_mask).c_str() : "",
                row.author_flags != nullptr ? ("[use](#use-" + number + ")").c_str() : "", elsewhere(type).c_str());
  }
}

void put_values() {
  std::puts("\n## Values\n\nA number without a meaning has a placeholder name and no constant.");
  for (const Type &type : types()) {
    if (type.values.empty()) continue;
    std::printf("\n### <a id=\"values-%u\"></a>%u %s\n\n| value | name | constant |\n|---|---|---|\n", type.number,
                type.number, type.name.c_str());
    for (const Value &value : type.values)
      if (!value.constant.empty())
        std::printf("| %u | %s | `%s` |\n", value.number, value.name.c_str(), value.constant.c_str());
  }
}

bool granted(const aaa_author_bitmap &bitmap, std::uint32_t service, std::uint32_t protocol) {
  const std::uint32_t bit = service * AAA_AUTHOR_PROTOCOLS + protocol;
  return (bitmap.bits[bit / 8] >> bit % 8 & 1) != 0;
}

// "ppp (ip, ipx)", or "ppp" where every protocol may; empty where none may.
std::string grant_of(const aaa_author_bitmap &bitmap, std::uint32_t service) {
  std::string protocols;
  std::uint32_t count = 0;
  for (std::uint32_t protocol = 0; protocol < AAA_AUTHOR_PROTOCOLS; ++protocol)
    if (granted(bitmap, service, protocol)) {
      protocols += std::string(count++ > 0 ? ", " : "") + name_protocol[protocol];
    }
  if (count == 0) return "";
  return name_service[service] + (count == AAA_AUTHOR_PROTOCOLS ? "" : " (" + protocols + ")");
}

void put_uses() {
  std::puts(
      "\n## Services and protocols\n\nThe services with which a type may be used, with the protocols in brackets "
      "where not every one may. Service \"none\"\nmay use all of them.\n\n| type | name | services |\n|---|---|---|");
  for (const Type &type : types()) {
    const aaa_author_bitmap *bitmap = attrmgr::kTypes[type.number].author_flags;
    if (bitmap == nullptr) continue;
    std::string services;
    for (std::uint32_t service = 1; service < AAA_AUTHOR_SERVICES; ++service) {
      const std::string grant = grant_of(*bitmap, service);
      if (!grant.empty()) services += (services.empty() ? "" : ", ") + grant;
    }
    std::printf("| <a id=\"use-%u\"></a>%u | %s | %s |\n", type.number, type.number, type.name.c_str(),
                services.empty() ? "none" : services.c_str());
  }
}

}  // namespace

void write_page() {
  std::fputs(kIntroduction, stdout);
  put_types();
  put_values();
  put_uses();
}

}  // namespace generate
