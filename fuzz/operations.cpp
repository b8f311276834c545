// The input is a program: eleven bytes a step, each an operation on a few lists, wrong arguments included. The library
// must do what the plain model of the tests does.
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "model/operations.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  model::World world;
  try {
    for (model::Step step; size >= step.size(); data += step.size(), size -= step.size()) {
      std::copy(data, data + step.size(), step.begin());
      world.run(step);
    }
  } catch (const std::logic_error &error) {
    std::fprintf(stderr, "%s\n  not so: %s\n", world.history.str().c_str(), error.what());
    std::abort();
  }
  return 0;
}
