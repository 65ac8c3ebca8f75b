#pragma once

#include <string>

#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Whether the operation is possible in this world: the document, elements and places exist.
bool Applies(const Operation& operation, const World& world);

/// Applies the operation to the world, as its help says; not for runs and tampering.
void Apply(const Operation& operation, World& world);

/// A set of limits that histories use.
struct SetOfLimits {
  std::string name, standard, description, xml;
  std::vector<std::pair<int, Limit>> figures;  ///< by test

  const Limit* FigureFor(int testId) const;
};
const std::vector<SetOfLimits>& LimitSets();

}  // namespace history
