// Who owns what, and until when.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

int main() {
  attrmgr::list record;
  attrmgr::list id;
  id.add(attr::subscription_id_data, "100-2277");

  // [own]
  record.add(attr::subscription_id, std::move(id));  // record owns it now; id owns nothing
  // [own]

  // [take]
  const attrmgr::list taken = *record.take(attr::subscription_id);  // ours again
  // [take]
  std::cout << "taken out: " << record.contains(attr::subscription_id) << " left, "
            << taken.contains(attr::subscription_id_data) << " in the other\n";

  // [remove]
  record.add(attr::route, "192.0.2.0/24");
  record.add(attr::route, "198.51.100.0/24");
  record.remove(attr::route, "192.0.2.0/24");  // the one
  record.remove(attr::route);                  // all of the type
  // [remove]

  // [pack]
  const std::size_t before = record.to_flat_as_it_stands().size();
  record.pack();  // values have moved: old texts and spans are gone
  std::cout << "packed: " << (record.flat_size() < before ? "smaller" : "as before") << '\n';
  // [pack]

  // [adopt]
  const aaa_attr_list_handle handle = record.release();      // for the C interface, which frees it...
  const attrmgr::list owner = attrmgr::list::adopt(handle);  // ...or hands it back
  // [adopt]
}
