// A list through a buffer and back, in C++. Exit status 0 when it sees what was added.
#include <attrmgr/attrmgr.hpp>

namespace attr = attrmgr::attr;

int main() {
  static_assert(attrmgr::version >= AAA_ATTR_VERSION_NUMBER(1, 0, 0));
  if (attrmgr::library_version() != attrmgr::version) return 1;
  attrmgr::list sent;
  sent.add(attr::acct_status_type, "Start");
  sent.add_group(attr::subscription_id).add(attr::subscription_id_data, "100-2277");
  const attrmgr::bytes message = sent.to_flat();
  const attrmgr::flat_view in_place = attrmgr::flat_view::check(message);
  const attrmgr::list received = attrmgr::list::from_bytes(message);
  const bool seen = in_place.get(attr::acct_status_type) == AAA_ACCT_STATUS_TYPE_START &&
                    received.get(attr::subscription_id)->get(attr::subscription_id_data) == "100-2277" &&
                    name_acct_status_type[1] != nullptr;
  return seen ? 0 : 1;
}
