// Random sequences of operations, each run on the library and on the model. RC_PARAMS=max_success=20000 runs more.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "model/operations.h"

RC_GTEST_PROP(Model, LibraryAgreesAfterEveryOperation, ()) {
  const auto step = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<model::Step>());
  // Up to 60 of them.
  const auto steps = *rc::gen::resize(60, rc::gen::container<std::vector<model::Step>>(step));
  model::World world;
  try {
    for (const model::Step &s : steps) world.run(s);
  } catch (const std::logic_error &error) {
    RC_FAIL(world.history.str() + "\n  " + error.what());
  }
}
