#pragma once

#include <memory>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "plugin/Attempt.h"

namespace keld {

/// Does something with each child of a container, in the container's order. Errors end the walk.
template <class Step>
void ForEachChild(const orvik::ITestContainer& Container, Step&& step) {
  Attempt([&] {
    const auto Walk = Container.NewEnum();
    while (const auto iteChild = orvik::Required(Walk).Next()) step(iteChild);
  });
}

}  // namespace keld
