#include "tests/system/history/Tests.h"

#include <algorithm>
#include <stdexcept>

#include "OrvikTypeLib/Codes.h"

namespace history {
namespace {

const std::string kMicroampere =
    "\xC2\xB5"
    "A";

TestKind Group(int testId, std::string unit, std::vector<int> children) {
  TestKind kind;
  kind.testId = testId;
  kind.unit = std::move(unit);
  kind.children = std::move(children);
  return kind;
}

TestKind Test(int testId, Amount sound) {
  TestKind kind;
  kind.testId = testId;
  kind.unit = sound.unit;
  kind.sound = std::move(sound);
  return kind;
}

TestKind OfEarth(int testId, Decimal milliohms) {
  auto kind = Test(testId, {milliohms, "mOhm"});
  kind.lessLeads = true;
  return kind;
}

TestKind ByLead(int testId, int options, Decimal microamperes) {
  auto kind = Test(testId, {microamperes, kMicroampere});
  kind.byLead = true;
  kind.options += options;
  return kind;
}

}  // namespace

const std::vector<TestKind>& TestKinds() {
  static const std::vector<TestKind> kinds{
      OfEarth(410, {123}),
      OfEarth(420, {58}),
      Test(210, {{2314, -1}, "V"}),
      Test(1010, {{152}, "MOhm"}),
      Test(1020, {{128}, "MOhm"}),
      Test(610, {{182}, kMicroampere}),
      Test(620, {{176}, kMicroampere}),
      Test(630, {{341}, kMicroampere}),
      Test(640, {{328}, kMicroampere}),
      ByLead(910, orvik::OptionBits::kAllLeads, {34, -1}),
      ByLead(1110, orvik::OptionBits::Lead(1), {39, -1}),
      Group(400, "mOhm", {410, 420}),
      Group(1000, "MOhm", {1010, 1020}),
      Group(600, kMicroampere, {610, 620, 630, 640}),
      Group(1300, "", {400, 1000}),
  };
  return kinds;
}

const TestKind& KindOf(int testId) {
  const auto& kinds = TestKinds();
  const auto found = std::find_if(kinds.begin(), kinds.end(),
                                  [testId](const TestKind& kind) { return kind.testId == testId; });
  if (found == kinds.end()) throw std::logic_error("histories know no test " + std::to_string(testId));
  return *found;
}

int SettingOf(int options) {
  for (int lead = 1; lead <= 10; ++lead)
    if (options & orvik::OptionBits::Lead(lead)) return lead;
  return 0;
}

}  // namespace history
