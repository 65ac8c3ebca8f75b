#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "model/CKELDTestElement.h"
#include "plugin/MKELDGlobalVars.h"
#include "tests/model/ModelTest.h"

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
}

TEST_F(CKELDTestElementTest, The910RangeGetsAllLeadsAsABit) {
  EXPECT_EQ(OptionsAfterInitialize(910, 3), 4099);
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
}

TEST_F(CKELDTestElementTest, AnElementNodeKeepsTheResultThatIsThere) {
  const auto element = MakeTest(410);
  const auto before = CKELDResultData::Create();
  Base(element).SetResult(before);
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<TestElement ID=\"3\"/>"));
  element->Load(document->Root(), nullptr);
  EXPECT_EQ(element->Result(), before);
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
