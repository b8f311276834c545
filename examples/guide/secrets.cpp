// Secrets in lists, displays and buffers.
#include <attrmgr/attrmgr.hpp>
#include <cstring>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  attrmgr::list request;
  request.add(attr::username, "mira.holt");

  // [secret]
  std::string password = "correct horse";
  request.add(attr::password, password);
  explicit_bzero(password.data(), password.size());  // the library wipes its copy, not yours
  std::cout << request << '\n';
  // [secret]

  // [buffer]
  attrmgr::bytes message = request.to_flat();      // the secret travels
  explicit_bzero(message.data(), message.size());  // and this is your copy again
  // [buffer]
}
