// Random sequences of operations, each run on the library and on the model. RC_PARAMS=max_success=20000 runs more.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "model/operations.h"

namespace {

RC_GTEST_PROP(Model, LibraryAgreesAfterEveryOperation, ()) {
  using rc::gen::construct, rc::gen::container, rc::gen::resize;
  constexpr int kMostSteps = 60;
  const auto step =
      construct<model::Step>(resize(rc::kNominalSize, rc::gen::arbitrary<decltype(model::Step::bytes)>()));
  model::World world;
  for (const model::Step &s : *resize(kMostSteps, container<std::vector<model::Step>>(step))) world.run(s);
}

}  // namespace
