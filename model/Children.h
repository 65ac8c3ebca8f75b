#pragma once

#include <memory>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "plugin/base/Attempt.h"

namespace keld::model {

/// Calls `step` with each child of a container, in the container's order. If `step` fails, the next child
/// follows; if the enumeration fails, the walk ends.
/// @return true if every child was reached and nothing failed
template <class Step>
bool ForEachChild(const orvik::ITestContainer& Container, Step&& step) {
  bool fAll = true;
  const bool fWalked = Attempt([&] {
    const auto Walk = Container.NewEnum();
    while (const auto iteChild = orvik::Required(Walk).Next())
      fAll = Attempt([&] { step(iteChild); }) && fAll;
  });
  return fWalked && fAll;
}

}  // namespace keld::model
