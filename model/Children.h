#pragma once

#include <memory>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "plugin/Attempt.h"

namespace keld {

/// Does something with each child of a container, in the container's order. A child with which it fails is
/// passed over; a container that cannot be walked on ends the walk.
/// @return true when every child was reached and nothing failed
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

}  // namespace keld
