// Groups within groups: a credit-control answer that grants two services their units, and how it is read.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  attrmgr::list answer;
  answer.add(attr::session_id_string, "bng-2;1876543210;523");
  for (const unsigned rating_group : {10u, 20u}) {
    attrmgr::list_ref service = answer.add_group(attr::prepaid_info_for_multiple_services);
    service.add(attr::rating_group, rating_group);
    attrmgr::list_ref granted = service.add_group(attr::prepaid_granted_unit);
    granted.add(attr::prepaid_time_units, 3600);
    granted.add_group(attr::prepaid_money_units).add_group(attr::unit_value).add(attr::prepaid_value_digits, 250);
  }

  const attrmgr::list received = attrmgr::list::from_bytes(answer.to_flat());
  for (const attrmgr::list_view service : received.all(attr::prepaid_info_for_multiple_services))
    std::cout << "rating group " << *service.get(attr::rating_group) << ": "
              << *service.get(attr::prepaid_granted_unit)->get(attr::prepaid_time_units) << " s\n";
}
