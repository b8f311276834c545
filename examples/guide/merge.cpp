// Lays a policy over a session.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

namespace {

void show(const char *title, attrmgr::list_view list) {
  std::cout << title << ':';
  for (attrmgr::attribute a : list) {
    std::cout << ' ' << a.name() << '=';
    if (const auto text = a.try_value<std::string_view>()) std::cout << *text;
    if (const auto number = a.try_value<std::uint32_t>()) std::cout << *number;
  }
  std::cout << '\n';
}

}  // namespace

int main() {
  attrmgr::list session;
  session.add(attr::username, "mira.holt");
  session.add(attr::qos_policy_in, "bronze");
  session.add(attr::session_timeout, 3600);
  attrmgr::list policy;
  policy.add(attr::qos_policy_in, "gold");
  policy.add(attr::idletimeout, 600);

  // [merge]
  session.merge(policy);
  show("session", session);
  // [merge]

  // [filter]
  attrmgr::list record = session.copy();
  record.keep(attr::username, attr::session_timeout);
  show("record", record);
  // [filter]
}
