// What operations answer when they fail.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  attrmgr::list record;

  // [throw]
  try {
    record.add(attr::username, "");
  } catch (const attrmgr::error &failure) {  // a std::system_error
    std::cout << failure.what() << '\n';
    if (failure.code() == attrmgr::errc::bad_arg) std::cout << "the list is as it was\n";
  }
  // [throw]

  // [result]
  const std::string address = "203.0.113.300";
  const attrmgr::result<void> added = record.try_add(attr::addr, address);
  if (!added) std::cout << added.message() << '\n';
  // [result]

  // [optional]
  if (!record.get(attr::framed_mtu)) std::cout << "no MTU, which is no failure\n";
  // [optional]
}
