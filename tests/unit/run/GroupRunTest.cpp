#include <gtest/gtest.h>

#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "host/document/SavedSettings.h"
#include "tests/unit/run/RunFixture.h"

// Groups with a value of their own and limits on it: what the plug-in makes of them in a run, and what
// counts.
namespace run {
namespace {

class GroupRunTest : public RunFixture {
 protected:
  /// Element 1 is the group, 2 and 3 are its tests.
  void AddGroup(std::int32_t testId, const std::string& filter) {
    const auto group = Add(testId);
    const host::document::SavedSettings settings(*group->Configuration());
    settings.Settings()->SetAttribute(host::document::SavedSettings::kFilter, filter);
    group->Configuration()->Load(settings.Node());
    ASSERT_EQ(host::document::ValueFilter(*group), filter);
  }
  /// The value that the plug-in recorded for the group.
  orvik::Variant Recorded() const { return document_->Find(1)->Result()->Measurement(1)->value(); }
};

TEST_F(GroupRunTest, MaximumIsJudgedByTheLimitOfTheGroup) {
  AddGroup(400, "Maximum value");
  Limit(1, "", "150");
  host::document::StateOf(document_->Find(2), *bench_.Host().Elements())->SetRecordOnly(true);
  host::document::StateOf(document_->Find(3), *bench_.Host().Elements())->SetRecordOnly(true);
  Read("410", "0.1,0,Ohm");
  Read("420", "0.14,0,Ohm");
  Run();
  EXPECT_EQ(Recorded(), orvik::Variant(140.0));
  EXPECT_EQ(Judged(1).value, 140.0);
  EXPECT_EQ(Verdict(1), "passed");
  EXPECT_EQ(Verdict(2), "recorded");

  Read("420", "0.16,0,Ohm");
  Run();
  EXPECT_EQ(Judged(1).status, 2);
  EXPECT_EQ(Verdict(1), "failed: above-limit");
  EXPECT_EQ(Verdict(3), "recorded");
  EXPECT_EQ(Outcome(), host::judge::Outcome::kFailed);
}

TEST_F(GroupRunTest, MinimumIsJudgedByTheLowerBoundOfTheGroup) {
  AddGroup(1000, "Minimum value");
  Limit(1, "2", "");
  Limit(2, "1", "");
  Limit(3, "1", "");
  Read("1010", "5,0,MOhm");
  Read("1020", "1.5,0,MOhm");
  Run();
  EXPECT_EQ(Recorded(), orvik::Variant(1.5));
  EXPECT_EQ(Verdict(1), "failed: below-limit");
  EXPECT_EQ(Verdict(2), "passed");
  EXPECT_EQ(Verdict(3), "passed");
  EXPECT_EQ(Outcome(), host::judge::Outcome::kFailed) << "though every child passed";
}

// The plug-in looks for the extreme by number: 5 uA would be more than 0.9 mA.
TEST_F(GroupRunTest, ReadingsInSeveralUnitsAreComparedByQuantity) {
  AddGroup(600, "Maximum value");
  Limit(1, "", "1000");
  for (const std::int32_t id : {2, 3, 4, 5}) Limit(id, "", "5000");
  for (const auto* test : {"610", "630", "640"})
    Read(test,
         "5,0,\xB5"
         "A");
  Read("620", "0.9,0,mA");
  Run();
  EXPECT_EQ(Recorded(), orvik::Variant(5.0));
  EXPECT_EQ(Judged(1).value, 900.0);
  EXPECT_EQ(Judged(1).unit, "µA");
  EXPECT_EQ(Verdict(1), "doubtful: summary-differs");
  EXPECT_EQ(Verdict(2), "passed");
  EXPECT_EQ(Verdict(3), "passed") << "both arithmetics keep its limit";
}

TEST_F(GroupRunTest, ALimitWithoutAValueJudgesNothing) {
  AddGroup(400, "No values");
  Limit(1, "", "300");
  Limit(2, "", "300");
  Limit(3, "", "300");
  Run();
  EXPECT_EQ(Judged(1).status, 1);
  EXPECT_EQ(Verdict(1), "not judged: group-without-value");
  EXPECT_EQ(Verdict(2), "passed");
  EXPECT_EQ(Outcome(), host::judge::Outcome::kIncomplete);
}

TEST_F(GroupRunTest, IsOlderThanAChildThatWasMeasuredAlone) {
  AddGroup(400, "Maximum value");
  Limit(1, "", "300");
  Limit(2, "", "5000");
  Limit(3, "", "5000");
  Run();
  EXPECT_EQ(Verdict(1), "passed");
  Read("410", "1.85,0,Ohm");
  Run({2});
  EXPECT_EQ(Verdict(2), "passed");
  EXPECT_EQ(Verdict(1), "not tested: older-than-child");
  Run();
  EXPECT_EQ(Verdict(1), "failed: above-limit");
}

TEST_F(GroupRunTest, LimitsSetAfterTheRunCount) {
  AddGroup(400, "Maximum value");
  Limit(2, "", "300");
  Limit(3, "", "300");
  Run();
  EXPECT_EQ(Verdict(1), "passed");
  Limit(1, "", "120");
  EXPECT_EQ(Verdict(1), "failed: above-limit");
  Limit(1, "", "200");
  EXPECT_EQ(Verdict(1), "passed");
}

}  // namespace
}  // namespace run
