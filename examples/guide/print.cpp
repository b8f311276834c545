// Lists as text.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  attrmgr::list record;
  record.add(attr::username, "mira.holt");
  record.add(attr::acct_status_type, "Stop");

  // [display]
  std::cout << record << '\n';
  const std::string text = to_string(record);  // the same; std::format("{}", record) with <attrmgr/format.hpp>
  // [display]
  std::cout << (text.empty() ? "nothing" : "a text") << '\n';

  // [dictionary]
  const auto value = attrmgr::value_named(attr::acct_status_type, "Start");  // nothing for a name that no value has
  std::cout << "type " << attr::acct_status_type << ": Start is " << *value << '\n';
  // [dictionary]
}
