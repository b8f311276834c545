// The flags of a meta as they are written: the same number on every host, its bit 0 the mandatory one. On a big-endian
// host that is the top bit of what a meta holds.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include <bit>
#include <cstdint>

namespace attrtext {

inline constexpr unsigned kWrittenMandatory = 1;
inline constexpr int kMandatoryBit = std::countr_zero(AAA_ATTR_META_MANDATORY);

constexpr std::uint16_t written_flags(std::uint16_t flags) { return std::rotr(flags, kMandatoryBit); }
constexpr std::uint16_t flags_written(std::uint16_t number) { return std::rotl(number, kMandatoryBit); }

static_assert(written_flags(AAA_ATTR_META_MANDATORY) == kWrittenMandatory);

}  // namespace attrtext
