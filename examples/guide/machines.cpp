// A flat buffer goes to another machine. The C calls do, over the bytes of the C++ interface.
#include <attrmgr/attrmgr.hpp>
#include <iostream>

namespace attr = attrmgr::attr;

namespace {

// [translate]
bool translate(attrmgr::bytes &message, cdm_endian_tran_type direction) {
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(message.data()), static_cast<std::uint32_t>(message.size()),
                                  direction) == 0;
}
// [translate]

}  // namespace

int main() {
  attrmgr::list record;
  record.add(attr::framed_mtu, 1500);

  // [send]
  attrmgr::bytes message = record.to_flat();
  if (aaa_attr_buffer_scrub(message.data(), static_cast<std::uint32_t>(message.size())) != 0) return 1;
  if (!translate(message, CDM_ENDIAN_TRAN_HTON)) return 1;
  // [send]

  // [receive]
  if (!translate(message, CDM_ENDIAN_TRAN_NTOH)) return 1;
  const attrmgr::list received = attrmgr::list::from_bytes(message);
  std::cout << "MTU " << *received.get(attr::framed_mtu) << '\n';
  // [receive]
}
