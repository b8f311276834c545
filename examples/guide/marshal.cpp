// A list as bytes, in three forms, and back.
#include <attrmgr/attrmgr.hpp>
#include <iostream>
#include <ranges>
#include <vector>

namespace attr = attrmgr::attr;

namespace {

// What another process does with bytes that arrive.
void receive(std::span<const std::byte> buffer) {
  // [receive]
  if (const auto list = attrmgr::list::try_from_bytes(buffer)) {  // from_bytes throws
    std::cout << "a list of " << std::ranges::distance(*list) << '\n';
  } else {
    const auto fault = attrmgr::fault_of(buffer);
    std::cout << "refused: " << aaa_attr_cerrno_name(list.code()) << ", byte " << fault->offset << ": "
              << fault->sentence() << '\n';
  }
  // [receive]
}

void read_in_place(std::span<const std::byte> buffer) {
  // [in_place]
  if (const auto view = attrmgr::flat_view::try_check(buffer)) {
    std::cout << "in place: " << *view->get(attr::username) << '\n';
  } else {
    std::cout << "not to be read in place: " << aaa_attr_cerrno_name(view.code()) << '\n';
  }
  // [in_place]
}

}  // namespace

int main() {
  attrmgr::list record;
  record.add(attr::username, "mira.holt");
  record.add(attr::nas_identifier, "bng-2");

  // [flat]
  const attrmgr::bytes flat = record.to_flat();  // converts to std::span<const std::byte>
  // [flat]
  receive(flat);
  receive(std::span(flat).first(flat.size() - 1));
  read_in_place(flat);

  // [tlv]
  const attrmgr::bytes tlv = record.to_tlv();
  // [tlv]
  receive(tlv);
  read_in_place(tlv);

  // [gather]
  std::vector<std::byte> sent;  // stands for a socket
  for (std::span<const std::byte> piece : record.to_pieces()) sent.insert(sent.end(), piece.begin(), piece.end());
  // [gather]
  receive(sent);
}
