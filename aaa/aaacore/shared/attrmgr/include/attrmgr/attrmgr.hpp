// attrmgr.hpp: the C++ interface, for C++20. Header-only, over the C interface and beside it: handles and constants of
// the one work with the other.
//
//   attrmgr::list record;                                        // owns its attributes
//   record.add(attr::username, "mira.holt@fibre.example");       // attr: namespace attrmgr::attr
//   record.add(attr::acct_status_type, AAA_ACCT_STATUS_TYPE_STOP);
//   record.add_group(attr::subscription_id).add(attr::subscription_id_data, "100-2277");
//   for (attrmgr::attribute a : record) std::puts(a.name());
//   attrmgr::bytes message = record.to_flat();                   // attrmgr::list::from_bytes(message) reads it
//
// The dictionary types every attribute: a value that does not suit it does not compile. What fails while the program
// runs throws attrmgr::error, or is returned by the forms whose names begin with try_.
//
// Two headers stand beside this one, for their standard headers take a compiler long: <attrmgr/chrono.hpp> for the
// attributes that hold a time, <attrmgr/format.hpp> for std::format.
#pragma once

#include <attrmgr/attrmgr.h>           // the C interface
#include <attrmgr/cpp/address.hpp>     // an IPv4 or IPv6 address
#include <attrmgr/cpp/attribute.hpp>   // an attribute met on a walk
#include <attrmgr/cpp/attributes.hpp>  // the types of the dictionary: attr::username
#include <attrmgr/cpp/buffer.hpp>      // flat_view: received bytes, read in place
#include <attrmgr/cpp/bytes.hpp>       // what encodings hand out
#include <attrmgr/cpp/error.hpp>       // error, errc, result
#include <attrmgr/cpp/formats.hpp>     // what values each attribute takes and gives
#include <attrmgr/cpp/list.hpp>        // list, list_ref
#include <attrmgr/cpp/list_view.hpp>   // list_view
#include <attrmgr/cpp/text.hpp>        // to_string, <<
#include <attrmgr/cpp/walk.hpp>        // iterator, ranges

namespace attrmgr {

// The version that the program is compiled with, and that of the library that it runs with: numbers that grow, as
// AAA_ATTR_VERSION_NUMBER makes them.
inline constexpr std::uint32_t version = AAA_ATTR_VERSION;

inline std::uint32_t library_version() noexcept {
  std::uint32_t number = 0;
  aaa_attr_version(&number);
  return number;
}

// Registers the process with the library, once, before lists are used; ids are its two client identifiers.
inline void register_client(const char *name, std::uint16_t id0 = 0, std::uint16_t id1 = 0) {
  const std::uint16_t ids[2] = {id0, id1};
  detail::check(aaa_attr_client_register(name, ids), "register the client");
}

}  // namespace attrmgr
