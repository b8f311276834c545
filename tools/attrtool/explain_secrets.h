// Bytes that no reader gets to are shown as they are, but what may be the record of a secret is not: the damage that
// stopped the reader does not give a password away.
#pragma once

#include <vector>

#include "explain_model.h"

namespace attrtool {

struct Stretch {
  std::uint32_t offset, size;
  bool secret;
};

// The bytes, cut where secrets may begin and end.
std::vector<Stretch> stretches_of(ByteSpan bytes);

}  // namespace attrtool
