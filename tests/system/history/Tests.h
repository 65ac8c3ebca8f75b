#pragma once

#include <string>
#include <vector>

#include "OrvikTypeLib/Codes.h"
#include "tests/system/history/Decimal.h"

namespace history {

/// One entry of the catalogue, as far as histories use it.
struct TestKind {
  int testId = 0;
  std::string unit;           ///< in which readings are recorded; empty for a group without one
  std::vector<int> children;  ///< of a group
  int options = 3;            ///< initial value
  bool byLead = false;        ///< whether it measures one lead, or all
  bool lessLeads = false;     ///< whether the resistance of the test leads is subtracted
  Amount sound;               ///< the value of sound equipment, as the tester reads it
};

/// The entries that histories use.
const std::vector<TestKind>& TestKinds();
const TestKind& KindOf(int testId);

/// The setting of a test with these options on the wire: a lead, or 0.
int SettingOf(int options);
/// Of the options, those that decide what is measured.
constexpr int MeasuringPart(int options) { return options & orvik::OptionBits::kAnyLead; }

}  // namespace history
