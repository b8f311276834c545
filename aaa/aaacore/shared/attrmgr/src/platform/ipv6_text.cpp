// IPv6 addresses as text, RFC 5952: lowercase, no leading zeros, "::" for the longest run of two or more zero groups
// (the first of equals), and dotted decimal for an IPv4 address that a well-known prefix of RFC 4291 section 2.5.5
// embeds.
#include <charconv>
#include <cstddef>
#include <cstdint>

#include <attrmgr/aaa_platform.h>

#include "platform/replaceable.h"

namespace {

constexpr int kGroups = 8;

struct ZeroRun {
  int first = 0;
  int length = 0;
};

ZeroRun longest_zero_run(const unsigned (&groups)[kGroups]) {
  ZeroRun longest;
  ZeroRun run;
  for (int i = 0; i < kGroups; ++i) {
    if (groups[i] != 0) {
      run.length = 0;
      continue;
    }
    if (run.length == 0) run.first = i;
    if (++run.length > longest.length) longest = run;
  }
  return longest;
}

// ::a.b.c.d and ::ffff:a.b.c.d, but not :: and ::1.
bool embeds_ipv4(const unsigned (&groups)[kGroups], ZeroRun zeros) {
  if (zeros.first != 0) return false;
  return zeros.length == 6 || (zeros.length == 5 && groups[5] == 0xFFFF);
}

// Every call has room: the text is at most 45 characters long.
char *put(char *at, unsigned number, int base) { return std::to_chars(at, at + 4, number, base).ptr; }

char *put_ipv4(char *at, const std::uint8_t *bytes) {
  for (int i = 0; i < 4; ++i) {
    if (i > 0) *at++ = '.';
    at = put(at, bytes[i], 10);
  }
  return at;
}

}  // namespace

ATTRMGR_REPLACEABLE char *ipv6_address_to_string(const std::uint8_t *address, char *text) {
  if (address == nullptr || text == nullptr) return text;
  unsigned groups[kGroups];
  for (std::size_t i = 0; i < kGroups; ++i) groups[i] = unsigned{address[2 * i]} << 8 | address[2 * i + 1];
  ZeroRun zeros = longest_zero_run(groups);
  const bool mixed = embeds_ipv4(groups, zeros);
  if (zeros.length < 2) zeros = {kGroups, 0};

  char *at = text;
  const int hex_groups = mixed ? 6 : kGroups;
  for (int i = 0; i < hex_groups;) {
    if (i == zeros.first) {
      *at++ = ':';
      i += zeros.length;
      if (i == kGroups) *at++ = ':';
      continue;
    }
    if (i > 0) *at++ = ':';
    at = put(at, groups[i++], 16);
  }
  if (mixed) {
    *at++ = ':';
    at = put_ipv4(at, address + 12);
  }
  *at = '\0';
  return text;
}
