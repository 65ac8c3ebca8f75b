#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDElement.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "tests/unit/model/HostElements.h"
#include "tests/unit/model/ModelTest.h"
#include "tests/unit/results/ServiceRecordProbe.h"

// What single tests and sequences have in common as elements of a document.
namespace keld {

class CKELDElementTest : public support::ModelTest, public testing::WithParamInterface<bool> {
 protected:
  static Element Create() {
    return GetParam() ? Element(model::CKELDSequence::Create()) : Element(model::CKELDTestElement::Create());
  }
  static Element Make() { return GetParam() ? MakeSequence({}, 7) : MakeTest(410, 7); }
  static std::int32_t TestId() { return GetParam() ? 100 : 410; }
  static std::shared_ptr<results::CKELDResultData> GiveResult(const Element& element) {
    const auto result = results::CKELDResultData::Create();
    result->SetComment("old");
    Base(element).SetResult(result);
    return result;
  }
  static std::shared_ptr<results::CKELDResultData> ResultOf(const Element& element) {
    return orvik::As<results::CKELDResultData>(element->Result());
  }
  void Load(const Element& element, const char* xml, const Element& context = nullptr) {
    const auto document = MKELDGlobalVars::XmlDocument();
    ASSERT_TRUE(document->LoadFromString(xml)) << xml;
    element->Load(document->Root(), context);
  }
};

TEST_P(CKELDElementTest, StartsWithItsOwnConfigurationAndLimits) {
  const auto element = Create();
  ASSERT_TRUE(orvik::As<configuration::CKELDTestConfiguration>(element->Configuration()));
  EXPECT_EQ(Configuration(element).Owner(), element);
  ASSERT_TRUE(orvik::As<results::CKELDLimitData>(element->Limits()));
  EXPECT_EQ(element->Limits()->Owner(), element);
  EXPECT_FALSE(element->Result());
  EXPECT_EQ(Test(element)->ExpectedUnits(), "");
  EXPECT_TRUE(Test(element)->Stopped());
}

TEST_P(CKELDElementTest, KeepsWhatItWasInitialisedWith) {
  const auto element = Make();
  EXPECT_EQ(element->PlugInID(), "KELD(IN)");
  EXPECT_EQ(element->ID(), 7);
  EXPECT_EQ(element->TestID(), TestId());
  EXPECT_EQ(element->Filter(), orvik::Variant(TestId()));
  element->SetID(9);
  EXPECT_EQ(element->ID(), 9);
  EXPECT_EQ(Base(element).ID(), 9);
}

TEST_P(CKELDElementTest, OwnsNewLimitsOnceInitialised) {
  const auto element = Create();
  const auto limits = results::CKELDLimitData::Create();
  Base(element).SetLimits(limits);
  EXPECT_FALSE(limits->Owner());
  element->Initialize("KELD(IN)", 1, 410);
  EXPECT_EQ(limits->Owner(), element);
}

TEST_P(CKELDElementTest, AcceptsAnyParent) {
  const auto element = Make();
  EXPECT_TRUE(element->QuerySetParent(nullptr));
  EXPECT_TRUE(element->QuerySetParent(element));
}

TEST_P(CKELDElementTest, LoadsAResultIntoANewObject) {
  const auto element = Make();
  const auto before = GiveResult(element);
  Load(element, "<ResultItem><Status>1</Status></ResultItem>");
  ASSERT_TRUE(element->Result());
  EXPECT_NE(element->Result(), before);
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(element->Result()->Comment(), "");
  EXPECT_EQ(ResultOf(element)->Owner(), element);
}

TEST_P(CKELDElementTest, LoadsAWholeElementWithItsResult) {
  const auto element = Make();
  Load(element, "<TestElement ID='3' TestID='420'><ResultItem><Status>2</Status></ResultItem></TestElement>");
  EXPECT_EQ(element->ID(), 3);
  EXPECT_EQ(element->TestID(), 420);
  ASSERT_TRUE(ResultOf(element));
  EXPECT_EQ(Status(element), 2);
  EXPECT_EQ(ResultOf(element)->Owner(), element);
  Load(element, "<TestElement ID='4' TestID='420'/>");
  EXPECT_EQ(element->ID(), 4);
  EXPECT_FALSE(element->Result()) << "the element loaded last has none";
}

TEST_P(CKELDElementTest, KeepsItsResultWhenTheHostRejectsANode) {
  const auto element = Make();
  const auto before = GiveResult(element);
  for (const char* xml : {"<TestElement ID='3'/>", "<Something/>", "<Elements/>"}) {
    Load(element, xml);
    EXPECT_EQ(element->Result(), before) << xml;
  }
}

TEST_P(CKELDElementTest, ForwardsTheContextOfALoad) {
  const auto record = std::make_shared<::results::ServiceRecordProbe>();
  bench.Host().Register(orvik::HostClasses::kServiceRecord, [&] { return record; });
  const auto context = MakeTest(420);
  Load(Make(), "<ResultItem><ServiceRecord/></ResultItem>", context);
  EXPECT_EQ(record->loadedIn, context);
}

TEST_P(CKELDElementTest, IsClonedWithoutSharingAnything) {
  const auto element = Make();
  Test(element)->SetExpectedUnits("mOhm");
  Configuration(element).SetOptions(17);
  Configuration(element).SetValueFilter(3);
  Limit(element, "", "200");
  GiveResult(element)->SetStatus(1);

  const auto clone = element->Clone();
  ASSERT_TRUE(clone);
  EXPECT_EQ(clone->ClassID(), element->ClassID());
  EXPECT_EQ(clone->TestID(), TestId());
  EXPECT_EQ(Test(clone)->ExpectedUnits(), "mOhm");
  EXPECT_EQ(Configuration(clone).Options(), 17);
  EXPECT_EQ(Configuration(clone).ValueFilter(), 3);
  EXPECT_EQ(Configuration(clone).Owner(), clone);
  EXPECT_EQ(clone->Limits()->Owner(), clone);
  EXPECT_EQ(clone->Limits()->Standards()->item(1)->Limit(1)->HighText(), "200");
  ASSERT_TRUE(clone->Result());
  EXPECT_EQ(clone->Result()->Comment(), "old");
  EXPECT_EQ(ResultOf(clone)->Owner(), clone);

  EXPECT_NE(clone->Configuration(), element->Configuration());
  EXPECT_NE(clone->Limits(), element->Limits());
  EXPECT_NE(clone->Result(), element->Result());
  clone->Result()->SetComment("changed");
  Configuration(clone).SetOptions(3);
  clone->Limits()->CreateStandard("other", "");
  EXPECT_EQ(element->Result()->Comment(), "old");
  EXPECT_EQ(Configuration(element).Options(), 17);
  EXPECT_EQ(element->Limits()->Standards()->Count(), 1);
  EXPECT_EQ(element->Limits()->Owner(), element);
}

TEST_P(CKELDElementTest, ForwardsTheRestToItsBaseElement) {
  const auto element = Make();
  const auto parent = MakeSequence({});
  EXPECT_FALSE(element->Parent());
  element->SetParent(parent);
  EXPECT_EQ(element->Parent(), parent);
  EXPECT_EQ(Base(element).Parent(), parent);
  EXPECT_EQ(element->Information(), Base(element).Information());
  EXPECT_EQ(element->GetMeasurementList(), orvik::Variant(Texts{}));
  const auto result = GiveResult(element);
  result->SetMeasurement(instrument::CKELDMeasurement::Create());
  EXPECT_EQ(element->Result(), result);
  const auto document = MKELDGlobalVars::XmlDocument();
  const auto root = document->CreateRoot("Elements");
  const auto saved = element->Save(root);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Attribute("ID"), "7");
  EXPECT_EQ(saved->Attribute("Class"), element->ClassID());
  EXPECT_EQ(root->ChildCount(), 1);
}

TEST_P(CKELDElementTest, UpdatesTheReferencesOfItsLimits) {
  const auto element = Make();
  const auto limits = std::make_shared<support::RecordingLimits>();
  Base(element).SetLimits(limits);
  element->UpdateReferences();
  EXPECT_EQ(limits->updatedBy, (std::vector<std::shared_ptr<orvik::IObject>>{element}));
  Base(element).SetLimits(nullptr);  // they hold the element
  element->UpdateReferences();
}

TEST_P(CKELDElementTest, TerminatesItsBaseElementWhenDestroyed) {
  const auto watch = support::RegisterWatchedElements(bench.Host());
  auto element = Make();
  element->Terminate();
  EXPECT_EQ(watch->terminated, 0);
  EXPECT_EQ(element->TestID(), TestId());
  element.reset();
  EXPECT_EQ(watch->terminated, 1);
}

TEST_P(CKELDElementTest, KeepsItsBaseElementForEver) {
  const auto element = orvik::As<model::CKELDElement>(Create());
  const auto base = element->BaseElement();
  element->SetBaseElement(nullptr);
  EXPECT_EQ(element->BaseElement(), base);
}

TEST_P(CKELDElementTest, IsPrintedIfTheHostSaysSo) {
  const auto element = Make();
  GiveResult(element);
  const auto report = std::make_shared<host::report::ReportObject>();
  for (const bool print : {false, true}) {
    Base(element).Auxiliary()->SetPrintElement(print);
    element->PrintReport(report, nullptr);
    EXPECT_EQ(report->Tables().empty(), !print);
  }
}

TEST_P(CKELDElementTest, RaisesNothingWithoutItsBaseElement) {
  for (const char* sClass : {orvik::HostClasses::kTestElement, orvik::HostClasses::kTestContainer})
    bench.Host().Register(sClass, [] { return nullptr; });
  const auto element = Make();
  element->SetID(2);
  element->SetParent(nullptr);
  element->UpdateReferences();
  element->PrintReport(nullptr, nullptr);
  element->Load(nullptr, nullptr);
  element->Perform(controller);
  element->Perform(nullptr);
  Test(element)->RunTest();
  Test(element)->NATest();
  Test(element)->SkipTest();
  Test(element)->NextTest();
  Test(element)->PrevTest();
  Test(element)->StopTest();
  EXPECT_EQ(element->ID(), 0);
  EXPECT_EQ(element->TestID(), 0);
  EXPECT_EQ(element->PlugInID(), "");
  EXPECT_FALSE(element->Clone());
  EXPECT_FALSE(element->Save(nullptr));
  EXPECT_FALSE(element->Result());
}

INSTANTIATE_TEST_SUITE_P(Both, CKELDElementTest, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Sequence" : "SingleTest"; });

}  // namespace keld
