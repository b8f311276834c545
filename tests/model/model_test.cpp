// Random sequences of operations, each run on the library and on the model. RC_PARAMS=max_success=20000 runs more.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "model/operations.h"

namespace {

RC_GTEST_PROP(Model, LibraryAgreesAfterEveryOperation, ()) {
  constexpr int kMostSteps = 60;
  const auto step = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<model::Step>());
  const auto steps = *rc::gen::resize(kMostSteps, rc::gen::container<std::vector<model::Step>>(step));
  model::World world;
  try {
    for (const model::Step &s : steps) world.run(s);
  } catch (const std::logic_error &error) {
    RC_FAIL(world.history.str() + "\n  " + error.what());
  }
}

}  // namespace
