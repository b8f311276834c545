// Registering the client process.
#include <cstring>

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_platform.h>

#include "platform/handle_table.h"

namespace attrmgr {
namespace {

// Sizing hints and name for the handle table.
constexpr std::uint32_t kTableInitial = 256;
constexpr std::uint32_t kTableMaximum = 4096;
constexpr char kTableName[] = "AAA Attribute List handle IDs";

// One registration a process. Identifiers and name are not used again; they are kept for a debugger to find.
struct Client {
  bool registered;
  std::uint16_t ids[2];
  const char *name;
} client;

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_client_register(const char *name, const std::uint16_t *ids) noexcept {
  if (name == nullptr || ids == nullptr) return AAA_ATTR_ERR_BAD_ARG;
  if (client.registered) return 0;
  if (handle_table_number == 0) handle_table_number = id_create_new_table(kTableInitial, kTableMaximum, kTableName);
  if (handle_table_number == 0) return AAA_ATTR_ERR_NO_MEMORY;
  client.ids[0] = ids[0];
  client.ids[1] = ids[1];
  client.name = strdup(name);
  if (client.name == nullptr) return AAA_ATTR_ERR_NO_MEMORY;
  client.registered = true;
  return 0;
}
