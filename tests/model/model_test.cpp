// Random sequences of operations, each run on the library and on the model. RC_PARAMS=max_success=20000 runs more.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "model/operations.h"

namespace {

using Steps = std::vector<model::Step>;

// Up to 60 of them.
Steps any_steps() {
  const auto step = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<model::Step>());
  return *rc::gen::resize(60, rc::gen::container<Steps>(step));
}

void library_agrees(const Steps &steps) {
  model::World world;
  try {
    for (const model::Step &step : steps) world.run(step);
  } catch (const std::logic_error &error) {
    RC_FAIL(world.history.str() + "\n  " + error.what());
  }
}

// In a process of its own, as tests are run: the first attribute of type 0 changes for good how others are looked for.
RC_GTEST_PROP(Model, LibraryAgreesWithoutTypeZero, ()) {
  Steps steps = any_steps();
  std::transform(steps.begin(), steps.end(), steps.begin(), model::without_type_zero);
  library_agrees(steps);
}

RC_GTEST_PROP(Model, LibraryAgreesAfterEveryOperation, ()) { library_agrees(any_steps()); }

}  // namespace
