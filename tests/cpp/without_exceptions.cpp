// A program without exceptions: every operation that can fail has a form that returns a result. With an argument it
// uses one of the others, which then ends the program with the sentence.
#include <attrmgr/attrmgr.hpp>

namespace attr = attrmgr::attr;

int main(int argc, char **) {
  auto made = attrmgr::list::try_make();
  if (!made) return 1;
  attrmgr::list list = *std::move(made);
  if (argc > 1) list.add(attr::addr, "nowhere");
  if (!list.try_add(attr::username, "bob") || !list.try_add(attr::framed_mtu, 1500)) return 2;
  if (list.try_add(attr::addr, "nowhere").code() != AAA_ATTR_ERR_BAD_ARG) return 3;
  const auto user = list.try_get(attr::username);
  if (!user || *user != "bob") return 4;
  const attrmgr::bytes bytes = list.to_flat();
  const auto received = attrmgr::flat_view::try_check(bytes);
  if (!received || received->get(attr::framed_mtu) != 1500u) return 5;
  const auto again = attrmgr::list::try_from_bytes(bytes);
  return again && *again == list ? 0 : 6;
}
