// Builds a record and reads it.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  // [build]
  attrmgr::list record;
  record.add(attr::username, "mira.holt");
  record.add(attr::acct_status_type, "Stop");  // or AAA_ACCT_STATUS_TYPE_STOP
  record.add(attr::addr, "203.0.113.7");       // or an in_addr
  // [build]

  // [read]
  const auto status = record.get(attr::acct_status_type);  // std::optional of the enumeration
  std::cout << *record.get(attr::username) << ": " << attrmgr::name_of(attr::acct_status_type, *status) << '\n';
  if (!record.get(attr::session_timeout)) std::cout << "no session timeout\n";
  // [read]
}
