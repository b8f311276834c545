// Discriminators: service and protocol in two bytes, as the first two of an attribute's meta.
#include <cstdint>

#include <attrmgr/aaa_attr.h>

namespace {

void write(std::uint8_t *discriminator, std::uint8_t service, std::uint8_t protocol) {
  if (discriminator == nullptr) return;
  discriminator[0] = service;
  discriminator[1] = protocol;
}

}  // namespace

void aaa_attr_discrim_pack(std::uint8_t *discriminator, std::uint8_t service, std::uint8_t protocol) noexcept {
  write(discriminator, service, protocol);
}

void aaa_attr_discrim_init(std::uint8_t *discriminator) noexcept { write(discriminator, 0, 0); }
