#include "dictionary/li_set.h"

#include <atomic>
#include <cstring>
#include <string_view>

#include <attrmgr/aaa_attr_dict.h>

#include "dictionary/known_types.h"
#include "dictionary/type_table.h"

namespace attrmgr {
namespace {

constexpr std::uint32_t kLiTypes[] = {kTypeMdIpAddr, kTypeMdIpv6Addr, kTypeMdPort,
                                      kTypeMdDscp,   kTypeLiAction,   kTypeInterceptId};

std::atomic<std::uint32_t> debug_li{0};

bool debug_li_set() { return debug_li.load(std::memory_order_relaxed) != 0; }

}  // namespace

bool is_li_type(std::uint32_t type) {
  for (const std::uint32_t li_type : kLiTypes)
    if (type == li_type) return true;
  return false;
}

bool hidden_from_display(std::uint32_t type) { return is_li_type(type) && !debug_li_set(); }

}  // namespace attrmgr

using namespace attrmgr;

void aaa_attr_set_debug_li(std::uint32_t on) noexcept { debug_li.store(on, std::memory_order_relaxed); }

int aaa_attr_is_attr_type_li(std::uint32_t type) noexcept { return is_li_type(type); }

int aaa_attr_is_li_attr(const char *text) noexcept {
  if (text == nullptr || debug_li_set()) return 0;
  for (const std::uint32_t type : kLiTypes) {
    const std::string_view name = kTypes[type].name;
    if (std::strncmp(text, name.data(), name.size()) == 0 && text[name.size()] == '=') return 1;
  }
  return 0;
}
