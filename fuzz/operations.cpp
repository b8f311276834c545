// The input is a program: eleven bytes a step, each an operation on a few lists, wrong arguments included. The library
// must do what the plain model of the tests does. An odd number of bytes after the last step: without type 0.
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "model/operations.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const bool type_zero = size % std::tuple_size_v<model::Step> % 2 == 0;
  model::World world;
  try {
    for (model::Step step; size >= step.size(); data += step.size(), size -= step.size()) {
      std::copy(data, data + step.size(), step.begin());
      world.run(type_zero ? step : model::without_type_zero(step));
    }
  } catch (const std::logic_error &error) {
    std::fprintf(stderr, "%s\n  not so: %s\n", world.history.str().c_str(), error.what());
    std::abort();
  }
  return 0;
}
