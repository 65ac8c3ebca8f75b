#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/system/history/Dice.h"
#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Draws histories in which violations are likely: a plan, a run, and then changes of all kinds and more
/// runs.
class Generator {
 public:
  explicit Generator(std::uint64_t seed) : dice_(seed), length_(5 + dice_.Below(11)) {}

  /// The number of operations of the history.
  int Length() const { return length_; }
  /// The next operation, possible in this world.
  Operation Next(const World& world);

 private:
  Operation Draw(const World& world);
  Operation New(const World& world);
  Operation OfPlan(const DocumentState& document);
  Operation OfLimits(const DocumentState& document);
  Operation HandLimit(const Element& element);
  Operation OfWorld(const World& world, const DocumentState& document);
  Operation Edit();
  Operation Run(const DocumentState& document);
  Operation Tampered(const DocumentState& document);

  TesterSetup Tester(const Plan& plan);
  std::string Faults(const Plan& plan);
  const Element& AnyElement(const DocumentState& document);
  const Element& AnyTest(const DocumentState& document);
  std::string AnyField(int field);
  Amount AnyAmount(int testId);

  Dice dice_;
  const int length_;
  int drawn_ = 0;
  std::string file_;
};

}  // namespace history
