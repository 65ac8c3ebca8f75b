#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "model/CKELDSequence.h"
#include "plugin/MKELDGlobalVars.h"
#include "tests/model/HostElements.h"
#include "tests/model/ModelTest.h"

namespace keld {

using CKELDSequenceTest = support::ModelTest;

TEST_F(CKELDSequenceTest, IsMadeWithItsOwnConfigurationAndLimits) {
  const auto sequence = CKELDSequence::Create();
  EXPECT_EQ(Configuration(sequence).Owner(), sequence);
  EXPECT_EQ(sequence->Limits()->Owner(), sequence);
  EXPECT_FALSE(sequence->Result());
  EXPECT_EQ(sequence->Count(), 0);
}

TEST_F(CKELDSequenceTest, AChildReportsTheSequenceAsItsParent) {
  const auto child = MakeTest(210, 1);
  const auto sequence = MakeSequence({child});
  EXPECT_EQ(child->Parent(), sequence);
  EXPECT_EQ(Container(sequence)->Count(), 1);
  EXPECT_EQ(Container(sequence)->item(1), child);
}

TEST_F(CKELDSequenceTest, ChildrenComeInTheOrderInWhichTheyWereAdded) {
  const auto sequence = MakeSequence({MakeTest(210, 1), MakeTest(410, 2), MakeTest(610, 3)});
  std::vector<std::int32_t> order;
  const auto walk = Container(sequence)->NewEnum();
  while (const auto child = walk->Next()) order.push_back(child->TestID());
  EXPECT_EQ(order, (std::vector<std::int32_t>{210, 410, 610}));
}

TEST_F(CKELDSequenceTest, AddPassesThePlaceOn) {
  const auto sequence = MakeSequence({MakeTest(210, 1), MakeTest(410, 2)});
  Container(sequence)->Add(MakeTest(610, 3), 2, {});
  Container(sequence)->Add(MakeTest(710, 4), {}, 1);
  std::vector<std::int32_t> order;
  for (std::int32_t i = 1; i <= 4; ++i) order.push_back(Container(sequence)->item(i)->ID());
  EXPECT_EQ(order, (std::vector<std::int32_t>{1, 4, 3, 2}));
}

TEST_F(CKELDSequenceTest, AnAddThatFailsIsLogged) {
  const auto sequence = MakeSequence({});
  EXPECT_NO_THROW(Container(sequence)->Add(nullptr, {}, {}));
  EXPECT_NO_THROW(Container(sequence)->Add(sequence, {}, {}));
  EXPECT_EQ(Container(sequence)->Count(), 0);
  EXPECT_FALSE(sequence->Parent());
  const auto lines = bench.Only().ErrorLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NE(lines[0].find("KELD(IN)"), std::string::npos);
  EXPECT_NE(lines[0].find("CKELDSequence"), std::string::npos);
}

TEST_F(CKELDSequenceTest, RemoveTakesOutOneChild) {
  const auto first = MakeTest(210, 1);
  const auto sequence = MakeSequence({first, MakeTest(410, 2)});
  Container(sequence)->Remove(nullptr);
  EXPECT_EQ(Container(sequence)->Count(), 2);
  Container(sequence)->Remove(first);
  ASSERT_EQ(Container(sequence)->Count(), 1);
  EXPECT_EQ(Container(sequence)->item(1)->ID(), 2);
}

TEST_F(CKELDSequenceTest, FindsAtAnyDepth) {
  const auto deep = MakeTest(410, 3);
  const auto sequence = MakeSequence({MakeTest(210, 1), MakeSequence({deep}, 2)});
  EXPECT_EQ(Container(sequence)->FindElement(3), deep);
  EXPECT_FALSE(Container(sequence)->FindElement(9));
}

TEST_F(CKELDSequenceTest, AnIndexOutsideGivesNothing) {
  const auto sequence = MakeSequence({MakeTest(210, 1)});
  EXPECT_FALSE(Container(sequence)->item(0));
  EXPECT_FALSE(Container(sequence)->item(2));
}

TEST_F(CKELDSequenceTest, InitializeLeavesTheOptionsAlone) {
  for (const std::int32_t id : {100, 920, 1100, 1120}) {
    const auto sequence = CKELDSequence::Create();
    sequence->Initialize("KELD(IN)", 1, id);
    EXPECT_EQ(sequence->TestID(), id);
    EXPECT_EQ(Configuration(sequence).Options(), 3) << id;
  }
}

TEST_F(CKELDSequenceTest, ACloneIsDeepAndItsChildrenStandInIt) {
  const auto inner = MakeSequence({MakeTest(410, 3)}, 2);
  const auto sequence = MakeSequence({MakeTest(210, 1), inner});
  Test(sequence)->SetExpectedUnits("V");
  Configuration(sequence).SetValueFilter(3);
  Base(sequence).SetResult(CKELDResultData::Create());

  const auto clone = sequence->Clone();
  ASSERT_TRUE(orvik::As<CKELDSequence>(clone));
  EXPECT_EQ(Test(clone)->ExpectedUnits(), "V");
  EXPECT_EQ(Configuration(clone).ValueFilter(), 3);
  EXPECT_EQ(Configuration(clone).Owner(), clone);
  EXPECT_EQ(clone->Limits()->Owner(), clone);
  EXPECT_EQ(orvik::As<CKELDResultData>(clone->Result())->Owner(), clone);
  ASSERT_EQ(Container(clone)->Count(), 2);
  EXPECT_EQ(Container(clone)->item(1)->Parent(), clone);
  EXPECT_EQ(Container(sequence)->item(1)->Parent(), sequence);
  const auto innerClone = Container(clone)->item(2);
  EXPECT_NE(innerClone, inner);
  EXPECT_EQ(Container(innerClone)->item(1)->Parent(), innerClone);
  Container(innerClone)->Remove(Container(innerClone)->item(1));
  EXPECT_EQ(Container(inner)->Count(), 1);
}

TEST_F(CKELDSequenceTest, LoadingAResultMakesANewOne) {
  const auto sequence = MakeSequence({});
  const auto before = CKELDResultData::Create();
  Base(sequence).SetResult(before);
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<ResultItem><Status>2</Status></ResultItem>"));
  sequence->Load(document->Root(), nullptr);
  EXPECT_NE(sequence->Result(), before);
  EXPECT_EQ(Status(sequence), 2);
  EXPECT_EQ(orvik::As<CKELDResultData>(sequence->Result())->Owner(), sequence);
}

TEST_F(CKELDSequenceTest, AContainerNodeKeepsTheResultThatIsThere) {
  const auto sequence = MakeSequence({});
  const auto before = CKELDResultData::Create();
  Base(sequence).SetResult(before);
  const auto document = MKELDGlobalVars::XmlDocument();
  ASSERT_TRUE(document->LoadFromString("<Elements/>"));
  EXPECT_NO_THROW(sequence->Load(document->Root(), nullptr));
  EXPECT_EQ(sequence->Result(), before);
}

TEST_F(CKELDSequenceTest, TheRestIsTheBaseElementsAnswer) {
  const auto sequence = MakeSequence({MakeTest(210, 1)}, 7);
  const auto parent = MakeSequence({sequence}, 8);
  EXPECT_EQ(sequence->ID(), 7);
  sequence->SetID(9);
  EXPECT_EQ(Base(sequence).ID(), 9);
  EXPECT_EQ(sequence->TestID(), 100);
  EXPECT_EQ(sequence->PlugInID(), "KELD(IN)");
  EXPECT_EQ(sequence->Filter(), orvik::Variant(100));
  EXPECT_EQ(sequence->Parent(), parent);
  sequence->Information()->SetSecondText("Group");
  EXPECT_EQ(sequence->Info(), orvik::Variant(Texts{"::", "Group"}));
  EXPECT_EQ(sequence->GetMeasurementList(), orvik::Variant(Texts{}));
  const auto document = MKELDGlobalVars::XmlDocument();
  const auto saved = sequence->Save(document->CreateRoot("Elements"));
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Attribute("Class"), "orvikKELD.CKELDSequence");
  EXPECT_TRUE(saved->FindChild("TestElement"));
}

TEST_F(CKELDSequenceTest, ItsLimitsAreToldToUpdateTheirReferences) {
  const auto sequence = MakeSequence({});
  const auto limits = std::make_shared<support::RecordingLimits>();
  Base(sequence).SetLimits(limits);
  sequence->UpdateReferences();
  EXPECT_EQ(limits->updatedBy, (std::vector<std::shared_ptr<orvik::IObject>>{sequence}));
  Base(sequence).SetLimits(nullptr);  // which hold the sequence
}

TEST_F(CKELDSequenceTest, TheBaseElementIsToldWhenItGoesAndNotBefore) {
  const auto told = std::make_shared<int>(0);
  support::RegisterWatchedElements(bench.Host(), told);
  auto sequence = MakeSequence({});
  sequence->Terminate();
  EXPECT_EQ(*told, 0);
  sequence.reset();
  EXPECT_EQ(*told, 1);
}

TEST_F(CKELDSequenceTest, NothingReachesTheHostWhenItsContainerIsMissing) {
  bench.Host().Register(orvik::HostClasses::kTestContainer, [] { return nullptr; });
  const auto sequence = CKELDSequence::Create();
  const auto child = MakeTest(210, 1);
  EXPECT_NO_THROW({
    sequence->Initialize("KELD(IN)", 1, 100);
    sequence->Add(child, {}, {});
    sequence->Remove(child);
    sequence->PrintReport(nullptr, nullptr);
    sequence->Load(nullptr, nullptr);
    sequence->Perform(controller);
    sequence->RunTest();
    sequence->NATest();
    sequence->SkipTest();
    sequence->StopTest();
  });
  EXPECT_EQ(sequence->Count(), 0);
  EXPECT_FALSE(sequence->item(1));
  EXPECT_FALSE(sequence->FindElement(1));
  EXPECT_FALSE(sequence->NewEnum());
  EXPECT_FALSE(sequence->Clone());
  EXPECT_FALSE(child->Parent()) << "it was not added";
}

TEST_F(CKELDSequenceTest, AnyParentWillDo) { EXPECT_TRUE(MakeSequence({})->QuerySetParent(nullptr)); }

TEST_F(CKELDSequenceTest, WithoutAResultThereIsNothingToPrint) {
  const auto sequence = MakeSequence({});
  const auto report = std::make_shared<bench::ReportObject>();
  sequence->PrintReport(report, nullptr);
  EXPECT_TRUE(report->Tables().empty());
  Base(sequence).SetResult(CKELDResultData::Create());
  Base(sequence).Auxiliary()->SetPrintElement(false);
  sequence->PrintReport(report, nullptr);
  EXPECT_TRUE(report->Tables().empty()) << "the host says that reports do not show it";
  Base(sequence).Auxiliary()->SetPrintElement(true);
  sequence->PrintReport(report, nullptr);
  EXPECT_FALSE(report->Tables().empty());
}

}  // namespace keld
