#pragma once

#include <string>

#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Whether the operation can be done in this world: whether the document, elements and places are there.
bool Applies(const Operation& operation, const World& world);

/// What the operation changes of the world, as its help says; runs and tampering excepted.
void Apply(const Operation& operation, World& world);

/// A set of limits that histories use.
struct SetOfLimits {
  std::string name, standard, description, xml;
  std::vector<std::pair<int, Limit>> figures;  ///< by test

  const Limit* FigureFor(int testId) const;
};
const std::vector<SetOfLimits>& LimitSets();

}  // namespace history
