#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/standards/ElementLimits.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;

/// The sample's elements are recorded in volts.
class ElementLimitsTest : public support::HostFixture {
 protected:
  static std::string Bounds(const std::shared_ptr<orvik::ILimit>& limit) {
    return limit->LowText() + ".." + limit->HighText() + " " + limit->Unit();
  }
};

TEST_F(ElementLimitsTest, ReturnsTheUnitWithoutAChange) {
  const auto element = Element(1);
  EXPECT_EQ(standards::RecordedUnit(*element->Limits()), "V");
  EXPECT_EQ(element->Limits()->Standards()->Count(), 0);
  standards::SetLimit(*element->Limits(), {"S", "", "", "1", ""});
  EXPECT_EQ(standards::RecordedUnit(*element->Limits()), "V");
  EXPECT_EQ(element->Limits()->Standards()->Count(), 1);
}

TEST_F(ElementLimitsTest, ReplacesAnOlderLimitAndItsUnit) {
  const auto element = Element(1);
  auto& limits = *element->Limits();
  EXPECT_EQ(Bounds(standards::SetLimit(limits, {"S", "d", "1", "2", ""})), "1..2 V");
  limits.Standards()->item(1)->Limit(1)->Initialize("NO LIMIT KEY", "mV", "1", "2");
  EXPECT_EQ(Bounds(standards::SetLimit(limits, {"S", "d", "", "7", ""})), "..7 V");
  EXPECT_EQ(limits.Standards()->Count(), 1);
  EXPECT_EQ(limits.Standards()->item(1)->LimitCount(), 1);
  standards::SetLimit(limits, {"S", "other", "", "8", ""});
  EXPECT_EQ(limits.Standards()->Count(), 2);
}

TEST_F(ElementLimitsTest, ReturnsBoundsInTheElementsUnit) {
  const auto element = Element(1);
  auto& limits = *element->Limits();
  EXPECT_EQ(Bounds(standards::SetLimit(limits, {"S", "", "0.1", "0.3", "kV"})), "100..300 V");
  EXPECT_EQ(limits.Standards()->item(1)->Evaluate(200, limits.Standards()->item(1)->Limit(1)->Key(), {}), 1);
}

TEST_F(ElementLimitsTest, RejectsInvalidEntriesWithoutAChange) {
  const auto element = Element(1);
  auto& limits = *element->Limits();
  standards::SetLimit(limits, {"S", "", "", "7", ""});
  const auto refusal = [&](const standards::EnteredLimit& entered) {
    return support::ErrorText([&] { standards::SetLimit(limits, entered); });
  };
  EXPECT_TRUE(support::Holds(refusal({"S", "", "", "8", "A"}), "a bound in A does not fit"));
  EXPECT_TRUE(support::Holds(refusal({"S", "", "", "8", "%"}), "a bound in % does not fit"));
  EXPECT_TRUE(support::Holds(refusal({"S", "", "", "x", ""}), "is not a number"));
  EXPECT_TRUE(support::Holds(refusal({"T", "", "9", "8", ""}), "above the upper"));
  EXPECT_TRUE(support::Holds(refusal({"T", "", "", "110%", "mV"}), "percent"));
  EXPECT_EQ(limits.Standards()->Count(), 1);
  EXPECT_EQ(Bounds(limits.Standards()->item(1)->Limit(1)), "..7 V");
}

TEST_F(ElementLimitsTest, AddsALimitToAStandardWithoutOne) {
  const auto element = Element(1);
  auto& limits = *element->Limits();
  const auto standard = Make<orvik::IStandard>("OrvikTypeLib.Standard");
  standard->Initialize("S", "", 1);
  limits.CreateStandard("X", "");
  limits.Standards()->Add(standard);
  EXPECT_EQ(Bounds(standards::SetLimit(limits, {"S", "", "1", "", ""})), "1.. V");
  EXPECT_EQ(standard->LimitCount(), 1);
}

}  // namespace
}  // namespace host
