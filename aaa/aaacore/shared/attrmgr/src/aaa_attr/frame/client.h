// What the process registered.
#pragma once

#include <cstdint>

namespace attrmgr {

// One registration a process; identifiers and name are kept for whoever inspects the process.
struct Client {
  bool registered;
  std::uint16_t ids[2];
  const char *name;
  std::uint16_t handle_table;
};

extern Client client;

// The handle table's number for the id_ calls; 0 before registration.
inline std::uint16_t handle_table() { return client.handle_table; }

}  // namespace attrmgr
