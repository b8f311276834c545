#include <attrmgr/attrmgr.hpp>
#include <iostream>
namespace attr = attrmgr::attr;

void show(attrmgr::list_view list, const std::string &margin) {
  for (attrmgr::attribute a : list) {
    std::cout << margin << a.name();
    if (const auto text = a.try_value<std::string_view>()) std::cout << ": " << *text;
    if (const auto number = a.try_value<std::uint32_t>()) std::cout << ": " << *number;
    std::cout << '\n';
    if (const auto inner = a.group()) show(*inner, margin + "  ");
  }
}

int main() {
  attrmgr::list answer;
  attrmgr::list_ref rule = answer.add_group(attr::charging_rule_install).add_group(attr::charging_rule_def);
  rule.add(attr::charging_rule_name, "video");
  rule.add(attr::precedence, 10);
  rule.add_group(attr::authorized_qos).add(attr::max_req_bandw_dl, 50'000'000);
  show(answer, "");
}
