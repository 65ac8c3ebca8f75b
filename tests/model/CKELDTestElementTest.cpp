#include <limits>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDTestElement.h"
#include "plugin/MKELDGlobalVars.h"
#include "tests/model/HostElements.h"
#include "tests/model/ModelTest.h"
#include "tests/results/ServiceRecordProbe.h"

namespace keld {

class CKELDTestElementTest : public support::ModelTest {
 protected:
  static std::int32_t OptionsAfterInitialize(std::int32_t testId, std::int32_t optionsBefore) {
    const auto element = CKELDTestElement::Create();
    Configuration(element).SetOptions(optionsBefore);
    element->Initialize("KELD(IN)", 1, testId);
    return Configuration(element).Options();
  }
};

TEST_F(CKELDTestElementTest, IsMadeWithItsOwnConfigurationAndLimitsAndNoResult) {
  const auto element = CKELDTestElement::Create();
  ASSERT_TRUE(orvik::As<CKELDTestConfiguration>(element->Configuration()));
  EXPECT_EQ(Configuration(element).Owner(), element);
  ASSERT_TRUE(orvik::As<CKELDLimitData>(element->Limits()));
  EXPECT_EQ(element->Limits()->Owner(), element);
  EXPECT_FALSE(element->Result());
  EXPECT_EQ(element->ExpectedUnits(), "");
  EXPECT_TRUE(element->Stopped());
}

TEST_F(CKELDTestElementTest, KeepsWhatInitializeGivesIt) {
  const auto element = MakeTest(410, 7);
  EXPECT_EQ(element->PlugInID(), "KELD(IN)");
  EXPECT_EQ(element->ID(), 7);
  EXPECT_EQ(element->TestID(), 410);
  EXPECT_EQ(element->Filter(), orvik::Variant(410));
  element->SetID(9);
  EXPECT_EQ(element->ID(), 9);
}

TEST_F(CKELDTestElementTest, TheLeadOfThe1110RangeIsAddedArithmetically) {
  EXPECT_EQ(OptionsAfterInitialize(1110, 4), 8);
  EXPECT_EQ(OptionsAfterInitialize(1110, 3), 7);
  EXPECT_EQ(OptionsAfterInitialize(1165, 3), 7);
  EXPECT_EQ(OptionsAfterInitialize(1166, 3), 3);
  EXPECT_EQ(OptionsAfterInitialize(1109, 3), 3);
  EXPECT_EQ(OptionsAfterInitialize(1165, 4096 + 4), 4096 + 8);
}

TEST_F(CKELDTestElementTest, AnOptionsWordThatWouldOverflowStays) {
  constexpr auto kHighest = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(OptionsAfterInitialize(1110, kHighest), kHighest);
  EXPECT_EQ(OptionsAfterInitialize(1110, kHighest - 3), kHighest - 3);
  EXPECT_EQ(OptionsAfterInitialize(1110, kHighest - 4), kHighest);
}

TEST_F(CKELDTestElementTest, The910RangeGetsAllLeadsAsABit) {
  EXPECT_EQ(OptionsAfterInitialize(910, 3), 4099);
  EXPECT_EQ(OptionsAfterInitialize(965, 3), 4099);
  EXPECT_EQ(OptionsAfterInitialize(965, 4096), 4096);
  EXPECT_EQ(OptionsAfterInitialize(966, 3), 3);
  EXPECT_EQ(OptionsAfterInitialize(909, 3), 3);
  EXPECT_EQ(OptionsAfterInitialize(410, 3), 3);
}

TEST_F(CKELDTestElementTest, InfoIsAnEmptyLanguageStringAndTheSecondTextThenTheFirst) {
  const auto element = MakeTest(410);
  element->Information()->SetSecondText("Protective earth");
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", "Protective earth"}));
  element->Information()->SetFirstText("socket 2");
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", "Protective earth socket 2"}));
}

TEST_F(CKELDTestElementTest, AnyParentWillDo) {
  const auto element = MakeTest(410);
  EXPECT_TRUE(element->QuerySetParent(nullptr));
  EXPECT_TRUE(element->QuerySetParent(element));
}

TEST_F(CKELDTestElementTest, LoadingAResultAlwaysMakesANewOne) {
  const auto element = MakeTest(410);
  const auto before = CKELDResultData::Create();
  before->SetComment("old");
  Base(element).SetResult(before);
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<ResultItem><Status>1</Status></ResultItem>"));
  element->Load(document->Root(), nullptr);
  ASSERT_TRUE(element->Result());
  EXPECT_NE(element->Result(), before);
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(element->Result()->Comment(), "");
  EXPECT_EQ(orvik::As<CKELDResultData>(element->Result())->Owner(), element);
}

TEST_F(CKELDTestElementTest, LoadingAWholeElementReadsItsResultToo) {
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString(
      "<TestElement ID='3' TestID='410'><ResultItem><Status>2</Status></ResultItem></TestElement>"));
  const auto element = MakeTest(210);
  element->Load(document->Root(), nullptr);
  EXPECT_EQ(element->ID(), 3);
  EXPECT_EQ(element->TestID(), 410);
  ASSERT_TRUE(orvik::As<CKELDResultData>(element->Result()));
  EXPECT_EQ(Status(element), 2);
  EXPECT_EQ(orvik::As<CKELDResultData>(element->Result())->Owner(), element);
}

TEST_F(CKELDTestElementTest, AnElementNodeWithoutAResultTakesTheResultAway) {
  const auto element = MakeTest(410);
  Base(element).SetResult(CKELDResultData::Create());
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<TestElement ID='3' TestID='410'/>"));
  element->Load(document->Root(), nullptr);
  EXPECT_EQ(element->ID(), 3);
  EXPECT_FALSE(element->Result());
}

TEST_F(CKELDTestElementTest, ANodeThatTheHostRefusesKeepsTheResultAndRaisesNothing) {
  const auto element = MakeTest(410);
  const auto before = CKELDResultData::Create();
  Base(element).SetResult(before);
  const auto document = MKELDGlobalVars::XmlDocument();
  for (const char* text : {"<TestElement ID='3'/>", "<Something/>"}) {
    ASSERT_TRUE(document->LoadFromString(text));
    EXPECT_NO_THROW(element->Load(document->Root(), nullptr));
    EXPECT_EQ(element->Result(), before) << text;
  }
}

TEST_F(CKELDTestElementTest, NodeAndContextReachTheBaseElement) {
  const auto record = std::make_shared<results::ServiceRecordProbe>();
  bench.Host().Register(orvik::HostClasses::kServiceRecord, [&] { return record; });
  const auto context = MakeTest(420);
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<ResultItem><ServiceRecord/></ResultItem>"));
  MakeTest(410)->Load(document->Root(), context);
  EXPECT_EQ(record->loadedIn, context);
}

TEST_F(CKELDTestElementTest, ACloneSharesNothingAndOwnsWhatItHas) {
  const auto element = MakeTest(410, 5);
  Test(element)->SetExpectedUnits("mOhm");
  Configuration(element).SetOptions(17);
  Limit(element, "", "200");
  const auto result = CKELDResultData::Create();
  result->SetStatus(1);
  result->SetComment("fine");
  Base(element).SetResult(result);

  const auto clone = element->Clone();
  ASSERT_TRUE(orvik::As<CKELDTestElement>(clone));
  EXPECT_EQ(clone->TestID(), 410);
  EXPECT_EQ(Test(clone)->ExpectedUnits(), "mOhm");
  EXPECT_EQ(Configuration(clone).Options(), 17);
  EXPECT_EQ(Configuration(clone).Owner(), clone);
  EXPECT_EQ(clone->Limits()->Owner(), clone);
  EXPECT_EQ(clone->Limits()->Standards()->item(1)->Limit(1)->HighText(), "200");
  ASSERT_TRUE(clone->Result());
  EXPECT_EQ(clone->Result()->Comment(), "fine");
  EXPECT_EQ(orvik::As<CKELDResultData>(clone->Result())->Owner(), clone);

  EXPECT_NE(clone->Configuration(), element->Configuration());
  EXPECT_NE(clone->Limits(), element->Limits());
  EXPECT_NE(clone->Result(), element->Result());
  clone->Result()->SetComment("changed");
  Configuration(clone).SetOptions(3);
  clone->Limits()->CreateStandard("other", "");
  EXPECT_EQ(element->Result()->Comment(), "fine");
  EXPECT_EQ(Configuration(element).Options(), 17);
  EXPECT_EQ(element->Limits()->Standards()->Count(), 1);
  EXPECT_EQ(element->Limits()->Owner(), element);
}

TEST_F(CKELDTestElementTest, TheRestIsTheBaseElementsAnswer) {
  const auto element = MakeTest(410, 7);
  const auto parent = MakeTest(210, 1);
  EXPECT_FALSE(element->Parent());
  element->SetParent(parent);
  EXPECT_EQ(element->Parent(), parent);
  EXPECT_EQ(Base(element).Parent(), parent);
  EXPECT_EQ(element->Information(), Base(element).Information());
  EXPECT_EQ(element->GetMeasurementList(), orvik::Variant(Texts{}));
  const auto result = CKELDResultData::Create();
  result->SetMeasurement(CKELDMeasurement::Create());
  Base(element).SetResult(result);
  EXPECT_EQ(element->Result(), result);
  EXPECT_EQ(element->GetMeasurementList(), orvik::Variant(Texts{"::"}));
  const auto document = MKELDGlobalVars::XmlDocument();
  const auto root = document->CreateRoot("Elements");
  const auto saved = element->Save(root);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Attribute("ID"), "7");
  EXPECT_EQ(saved->Attribute("Class"), "orvikKELD.CKELDTestElement");
  EXPECT_EQ(root->ChildCount(), 1);
}

TEST_F(CKELDTestElementTest, InitializeGivesTheLimitsTheirOwner) {
  const auto element = CKELDTestElement::Create();
  const auto limits = CKELDLimitData::Create();
  element->BaseElement()->SetLimits(limits);
  EXPECT_FALSE(limits->Owner());
  element->Initialize("KELD(IN)", 1, 410);
  EXPECT_EQ(limits->Owner(), element);
}

TEST_F(CKELDTestElementTest, ItsLimitsAreToldToUpdateTheirReferences) {
  const auto element = MakeTest(410);
  const auto limits = std::make_shared<support::RecordingLimits>();
  Base(element).SetLimits(limits);
  element->UpdateReferences();
  EXPECT_EQ(limits->updatedBy, (std::vector<std::shared_ptr<orvik::IObject>>{element}));
  Base(element).SetLimits(nullptr);
  EXPECT_NO_THROW(element->UpdateReferences());
}

TEST_F(CKELDTestElementTest, TheBaseElementIsToldWhenItGoesAndNotBefore) {
  const auto told = std::make_shared<int>(0);
  support::RegisterWatchedElements(bench.Host(), told);
  auto element = MakeTest(410);
  element->Terminate();
  EXPECT_EQ(*told, 0);
  EXPECT_EQ(element->TestID(), 410);
  element.reset();
  EXPECT_EQ(*told, 1);
}

TEST_F(CKELDTestElementTest, AStepThatFailsDoesNotKeepTheNextFromRunning) {
  support::RegisterFailingElements(bench.Host());
  const auto element = CKELDTestElement::Create();
  ASSERT_TRUE(element->BaseElement());
  EXPECT_FALSE(element->Configuration());
  ASSERT_TRUE(element->Limits());
  EXPECT_EQ(element->Limits()->Owner(), element);
  EXPECT_NO_THROW(element->SetID(5));
  EXPECT_EQ(element->ID(), 0);
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", ""}));
  EXPECT_FALSE(element->Clone());
  EXPECT_EQ(element->Filter(), orvik::Variant());
}

TEST_F(CKELDTestElementTest, ReportsShowItOnlyWhenTheHostSaysSo) {
  const auto element = MakeTest(410);
  const auto report = std::make_shared<bench::ReportObject>();
  Base(element).Auxiliary()->SetPrintElement(false);
  element->PrintReport(report, nullptr);
  EXPECT_TRUE(report->Tables().empty());
  Base(element).Auxiliary()->SetPrintElement(true);
  element->PrintReport(report, nullptr);
  EXPECT_FALSE(report->Tables().empty());
}

TEST_F(CKELDTestElementTest, ABaseElementCannotBeTakenAway) {
  const auto element = CKELDTestElement::Create();
  const auto base = element->BaseElement();
  element->SetBaseElement(nullptr);
  EXPECT_EQ(element->BaseElement(), base);
}

TEST_F(CKELDTestElementTest, NothingReachesTheHostWhenItsElementIsMissing) {
  bench.Host().Register(orvik::HostClasses::kTestElement, [] { return nullptr; });
  const auto element = CKELDTestElement::Create();
  EXPECT_NO_THROW({
    element->Initialize("KELD(IN)", 1, 410);
    element->SetID(2);
    element->SetParent(nullptr);
    element->UpdateReferences();
    element->PrintReport(nullptr, nullptr);
    element->Load(nullptr, nullptr);
    element->Perform(controller);
    element->Perform(nullptr);
    element->RunTest();
    element->NATest();
    element->SkipTest();
    element->NextTest();
    element->PrevTest();
    element->StopTest();
  });
  EXPECT_EQ(element->ID(), 0);
  EXPECT_EQ(element->TestID(), 0);
  EXPECT_EQ(element->PlugInID(), "");
  EXPECT_FALSE(element->Clone());
  EXPECT_FALSE(element->Save(nullptr));
  EXPECT_FALSE(element->Result());
}

}  // namespace keld
