#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "platform/IUserControl.h"
#include "results/CKELDLimitData.h"
#include "tests/unit/results/Tools.h"

namespace {

using keld::results::CKELDLimitData;

class CKELDLimitDataTest : public results::ResultsTest {
 protected:
  /// Names of the standards that a value fails, of those selected.
  std::vector<std::string> Failed(const CKELDLimitData& limits, const orvik::Variant& value,
                                  const std::shared_ptr<orvik::IStandardColl>& selected) {
    std::vector<std::string> names;
    const auto failed = limits.FindFailedStandards(Measurement(value), selected);
    if (!failed) return names;
    EXPECT_GT(failed->Count(), 0);
    for (std::int32_t index = 1; index <= failed->Count(); ++index)
      names.push_back(failed->item(index)->Name());
    return names;
  }
};

using Names = std::vector<std::string>;

TEST_F(CKELDLimitDataTest, NewLimitsHoldNothing) {
  const auto limits = CKELDLimitData::Create();
  const auto parent = Node();
  EXPECT_FALSE(limits->Standards());
  EXPECT_FALSE(limits->Owner());
  EXPECT_FALSE(limits->Save(parent));
  EXPECT_EQ(parent->ChildCount(), 0);
  EXPECT_FALSE(limits->FindFailedStandards(Measurement(1.0), Collection({Standard("A", "", "0.5")})));
  EXPECT_TRUE(limits->HasDialog());
  EXPECT_EQ(limits->ClassID(), "orvikKELD.CKELDLimitData");
}

TEST_F(CKELDLimitDataTest, DescriptionStaysEmpty) {
  const auto limits = CKELDLimitData::Create();
  limits->SetDescription("mine");
  EXPECT_EQ(limits->Description(), "");
}

TEST_F(CKELDLimitDataTest, UpdateLimitsIsIgnored) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "1", "2"));
  limits->UpdateLimits(Test(1));
  EXPECT_EQ(limits->Standards()->item(1)->Limit(1)->HighText(), "2");
}

TEST_F(CKELDLimitDataTest, AddingCreatesTheCollection) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(nullptr);
  ASSERT_TRUE(limits->Standards());
  EXPECT_EQ(limits->Standards()->Count(), 0);
  limits->AddStandard(Standard("A", "", ""));
  limits->AddStandard(Standard("B", "", ""));
  EXPECT_EQ(limits->Standards()->Count(), 2);
  EXPECT_EQ(limits->Standards()->item(2)->Name(), "B");
}

TEST_F(CKELDLimitDataTest, DoesNotKeepItsOwnerAlive) {
  auto element = Test(1);
  const auto limits = CKELDLimitData::Create();
  limits->SetOwner(element);
  EXPECT_EQ(limits->Owner(), element);
  element.reset();
  EXPECT_FALSE(limits->Owner());
}

TEST_F(CKELDLimitDataTest, NewStandardHasOneLimitInTheOwnersUnit) {
  const auto element = Test(1);
  element->SetExpectedUnits("mOhm");
  const auto limits = orvik::As<CKELDLimitData>(element->Limits());
  const auto standard = limits->CreateStandard("IEC 62353", "class I");
  EXPECT_EQ(standard->Name(), "IEC 62353");
  EXPECT_EQ(standard->Description(), "class I");
  EXPECT_EQ(standard->Number(), 1);
  ASSERT_EQ(standard->LimitCount(), 1);
  EXPECT_EQ(standard->Limit(1)->Key(), "NO LIMIT KEY");
  EXPECT_EQ(standard->Limit(1)->Unit(), "mOhm");
  EXPECT_EQ(standard->Limit(1)->LowText(), "");
  EXPECT_EQ(standard->Limit(1)->HighText(), "");
  ASSERT_TRUE(limits->Standards());
  EXPECT_EQ(limits->Standards()->Find("IEC 62353", "class I"), standard);
}

TEST_F(CKELDLimitDataTest, NewStandardNeedsAnOwner) {
  const auto limits = CKELDLimitData::Create();
  EXPECT_THROW(limits->CreateStandard("A", ""), orvik::HostError);
  EXPECT_FALSE(limits->Standards());
}

TEST_F(CKELDLimitDataTest, CopyIsDeepAndReplaces) {
  const auto source = CKELDLimitData::Create();
  source->AddStandard(Standard("A", "1", "2"));
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("Old", "", ""));
  limits->CopyFrom(source);
  ASSERT_EQ(limits->Standards()->Count(), 1);
  EXPECT_EQ(limits->Standards()->item(1)->Name(), "A");
  limits->Standards()->item(1)->Limit(1)->SetBounds("", "9");
  EXPECT_EQ(source->Standards()->item(1)->Limit(1)->HighText(), "2");
}

TEST_F(CKELDLimitDataTest, CopyFromEmptyLimitsAndFromNothing) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "", ""));
  limits->CopyFrom(nullptr);
  EXPECT_TRUE(limits->Standards());
  limits->CopyFrom(limits);
  EXPECT_TRUE(limits->Standards());
  limits->CopyFrom(CKELDLimitData::Create());
  EXPECT_FALSE(limits->Standards());
}

TEST_F(CKELDLimitDataTest, CloneIsIndependentAndHasNoOwner) {
  const auto element = Test(1);
  const auto limits = orvik::As<CKELDLimitData>(element->Limits());
  limits->AddStandard(Standard("A", "1", "2"));
  const auto clone = orvik::As<CKELDLimitData>(limits->Clone());
  ASSERT_TRUE(clone);
  clone->AddStandard(Standard("B", "", ""));
  EXPECT_EQ(limits->Standards()->Count(), 1);
  EXPECT_EQ(clone->Standards()->Count(), 2);
  EXPECT_FALSE(clone->Owner());
  EXPECT_FALSE(CKELDLimitData::Create()->Clone()->Standards());
}

TEST_F(CKELDLimitDataTest, SavedAsExpectedResultAndLoadedAgain) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "1", "2"));
  const auto parent = Node();
  const auto saved = limits->Save(parent);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Name(), "ExpectedResult");
  EXPECT_EQ(ChildNames(*parent), Names{"ExpectedResult"});

  const auto loaded = CKELDLimitData::Create();
  loaded->AddStandard(Standard("Old", "", ""));
  loaded->Load(saved, nullptr);
  ASSERT_TRUE(loaded->Standards());
  ASSERT_EQ(loaded->Standards()->Count(), 1);
  EXPECT_EQ(loaded->Standards()->item(1)->Name(), "A");
  EXPECT_EQ(loaded->Standards()->item(1)->Limit(1)->LowText(), "1");
  EXPECT_EQ(loaded->Standards()->item(1)->Limit(1)->HighText(), "2");
}

TEST_F(CKELDLimitDataTest, LoadOfNothingLeavesNoCollection) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "", ""));
  limits->Load(Node("ExpectedResult"), nullptr);
  EXPECT_FALSE(limits->Standards());
}

// --- judging ---

TEST_F(CKELDLimitDataTest, FindsTheSelectedStandardsThatFail) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("Narrow", "", "100"));
  limits->AddStandard(Standard("Wide", "", "200"));
  limits->AddStandard(Standard("Low", "50", ""));
  const auto all =
      Collection({Standard("Low", "", ""), Standard("Wide", "", ""), Standard("Narrow", "", "")});
  EXPECT_EQ(Failed(*limits, 60.0, all), Names{});
  EXPECT_EQ(Failed(*limits, 150.0, all), Names{"Narrow"});
  EXPECT_EQ(Failed(*limits, 250.0, all), (Names{"Wide", "Narrow"}));
  EXPECT_EQ(Failed(*limits, 20.0, all), Names{"Low"});
}

TEST_F(CKELDLimitDataTest, ReturnsItsOwnStandards) {
  const auto limits = CKELDLimitData::Create();
  const auto own = Standard("A", "", "1");
  limits->AddStandard(own);
  const auto failed = limits->FindFailedStandards(Measurement(2.0), Collection({Standard("A", "", "")}));
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->item(1), own);
}

TEST_F(CKELDLimitDataTest, UnselectedStandardDoesNotCount) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "", "1"));
  limits->AddStandard(Standard("B", "", "1"));
  EXPECT_EQ(Failed(*limits, 2.0, Collection({Standard("B", "", ""), Standard("C", "", "")})), Names{"B"});
  EXPECT_EQ(Failed(*limits, 2.0, Collection({})), Names{});
}

TEST_F(CKELDLimitDataTest, BothIdentifyingStringsMustMatch) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "", "1"));
  const auto other = Make<orvik::IStandard>(orvik::HostClasses::kStandard);
  other->Initialize("A", "another text", 1);
  EXPECT_EQ(Failed(*limits, 2.0, Collection({other})), Names{});
}

TEST_F(CKELDLimitDataTest, ValueOnTheBoundPasses) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "0.1", "0.3"));
  const auto selected = Collection({Standard("A", "", "")});
  EXPECT_EQ(Failed(*limits, 0.1, selected), Names{});
  EXPECT_EQ(Failed(*limits, 0.3, selected), Names{});
  EXPECT_EQ(Failed(*limits, 0.3001, selected), Names{"A"});
  EXPECT_EQ(Failed(*limits, 0.0999, selected), Names{"A"});
}

TEST_F(CKELDLimitDataTest, NothingToCheckDoesNotFail) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("Open", "", ""));
  limits->AddStandard(Standard("OtherKey", "", "1", "another key"));
  EXPECT_EQ(Failed(*limits, 2.0, limits->Standards()), Names{});
}

TEST_F(CKELDLimitDataTest, ValueThatIsNotANumberFails) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(Standard("A", "", "1"));
  limits->AddStandard(Standard("B", "", "1"));
  const auto selected = Collection({Standard("A", "", "")});
  EXPECT_EQ(Failed(*limits, {}, selected), Names{"A"});
  EXPECT_EQ(Failed(*limits, std::string(), selected), Names{"A"});
  EXPECT_EQ(Failed(*limits, std::string("OL"), selected), Names{"A"});
  EXPECT_EQ(Failed(*limits, std::string("0.5"), selected), Names{});
}

TEST_F(CKELDLimitDataTest, NeedsMeasurementAndStandards) {
  const auto limits = CKELDLimitData::Create();
  limits->AddStandard(nullptr);
  EXPECT_FALSE(limits->FindFailedStandards(Measurement(2.0), Collection({Standard("A", "", "1")})));
  limits->AddStandard(Standard("A", "", "1"));
  EXPECT_FALSE(limits->FindFailedStandards(nullptr, Collection({Standard("A", "", "1")})));
  EXPECT_THROW(limits->FindFailedStandards(Measurement(2.0), nullptr), orvik::HostError);
}

// --- report and dialog ---

TEST_F(CKELDLimitDataTest, PrintsTheCollectionAndRaisesTheEvent) {
  const auto element = Test(1);
  const auto limits = orvik::As<CKELDLimitData>(element->Limits());
  std::vector<Names> told;
  const auto listening =
      limits->PrintAccessed().Subscribe([&](const Names& header) { told.push_back(header); });
  const auto report = std::make_shared<recorders::Report>();
  limits->PrintReport(report, element);
  limits->AddStandard(nullptr);
  limits->PrintReport(report, element);
  EXPECT_TRUE(report->calls.empty());
  EXPECT_TRUE(told.empty());

  limits->AddStandard(Standard("A", "1", "2"));
  limits->PrintReport(report, element);
  EXPECT_FALSE(report->calls.empty());
  EXPECT_EQ(told, (std::vector<Names>{{"NO LIMIT KEY", "KELD Test Limits", "0"}}));
}

TEST_F(CKELDLimitDataTest, DialogEditsTheLimitsInTheHostsControl) {
  const auto element = Test(1);
  element->SetExpectedUnits("V");
  const auto limits = orvik::As<CKELDLimitData>(element->Limits());
  limits->CreateStandard("IEC 62353", "class I");
  const auto dialog = limits->CreateDialog();
  ASSERT_TRUE(dialog);
  const auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
  const auto site = orvik::As<orvik::platform::IContainerSite>(form->Find("isc"));
  ASSERT_TRUE(site);
  ASSERT_TRUE(site->Object());
  EXPECT_EQ(orvik::As<orvik::IObject>(site->Object())->ClassID(), "orvikView.XLimitView");
  dialog->Unload();
}

}  // namespace
