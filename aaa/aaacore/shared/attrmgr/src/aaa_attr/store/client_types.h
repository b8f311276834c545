// Which producer client types may be stamped on a record. Adding stores any that it is given.
#pragma once

#include <cstdint>

#include <attrmgr/aaa_attr_types.h>

namespace attrmgr {

inline bool is_valid_client_type(std::uint32_t client_type) {
  return client_type >= AAA_ATTR_CLIENT_TYPE_MIN && client_type <= AAA_ATTR_CLIENT_TYPE_MAX;
}

}  // namespace attrmgr
