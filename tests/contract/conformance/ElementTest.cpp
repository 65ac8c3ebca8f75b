#include <limits>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IRunController.h"
#include "host/report/ReportObject.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

class Element : public EveryPlugIn {
 protected:
  /// An element whose result says "failed", with a comment.
  std::shared_ptr<orvik::ITestElement> Decided() {
    auto element = library_.NewTest();
    element->SetID(12);
    element->Information()->SetDisplayName("A <name> & \"more\"");
    element->Load(library_.Parsed("<ResultItem><Status>2</Status><Comment>a | b; {c}</Comment></ResultItem>"),
                  nullptr);
    return element;
  }

  void ExpectDecided(const orvik::ITestElement& element) {
    EXPECT_EQ(element.ID(), 12);
    EXPECT_EQ(element.TestID(), GetParam().testId);
    EXPECT_EQ(element.PlugInID(), GetParam().plugInId);
    EXPECT_EQ(element.Information()->DisplayName(), "A <name> & \"more\"");
    ASSERT_TRUE(element.Result());
    EXPECT_EQ(element.Result()->Status(), 2);
    EXPECT_EQ(element.Result()->Comment(), "a | b; {c}");
  }
};
FOR_EVERY_PLUG_IN(Element);

TEST_P(Element, KeepsItsIdentity) {
  const auto element = library_.NewTest();
  element->Initialize("other plug-in", std::numeric_limits<std::int32_t>::max(), -7);
  EXPECT_EQ(element->PlugInID(), "other plug-in");
  EXPECT_EQ(element->ID(), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(element->TestID(), -7);
  EXPECT_EQ(element->Filter(), orvik::Variant(std::int32_t{-7}));
  element->SetID(0);
  EXPECT_EQ(element->ID(), 0);
}

TEST_P(Element, DescribesItselfByTwoTexts) {
  const auto element = library_.NewTest();
  element->Information()->SetSecondText("second");
  const auto info = element->Info();
  const auto* texts = std::get_if<std::vector<std::string>>(&info);
  ASSERT_TRUE(texts);
  EXPECT_EQ(*texts, (std::vector<std::string>{"::", "second"}));
  element->Information()->SetFirstText("first");
  EXPECT_EQ(element->Info(), orvik::Variant(std::vector<std::string>{"::", "second first"}));
}

TEST_P(Element, DoesNotKeepItsParentAlive) {
  const auto element = library_.NewTest();
  auto parent = library_.NewTest();
  element->SetParent(parent);
  EXPECT_EQ(element->Parent(), parent);
  parent.reset();
  EXPECT_FALSE(element->Parent());
  element->SetParent(nullptr);
  EXPECT_FALSE(element->Parent());
}

TEST_P(Element, IsReleasedWithItsLastReference) {
  auto element = Decided();
  const std::weak_ptr<orvik::ITestElement> watched = element;
  const auto copy = element->Clone();
  const auto result = element->Result();
  element.reset();
  EXPECT_TRUE(watched.expired()) << "a part of the element holds it in a circle";
}

TEST_P(Element, ClonesDeeplyAndIndependently) {
  const auto element = Decided();
  const auto copy = element->Clone();
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->ClassID(), element->ClassID());
  ExpectDecided(*copy);
  EXPECT_NE(copy->Result(), element->Result());
  copy->SetID(1);
  copy->Information()->SetDisplayName("another");
  copy->Result()->SetComment("another");
  copy->Initialize("another", 2, 3);
  ExpectDecided(*element);
}

TEST_P(Element, LoadsWhatItSaved) {
  const auto element = Decided();
  const auto root = library_.NewNode();
  const auto node = element->Save(root);
  ASSERT_TRUE(node);
  EXPECT_EQ(node->Name(), "TestElement");
  EXPECT_EQ(root->ChildCount(), 1);
  const auto loaded = library_.New<orvik::ITestElement>(element->ClassID());
  ASSERT_TRUE(loaded) << "documents create elements by their class identifier";
  loaded->Load(node, nullptr);
  ExpectDecided(*loaded);
}

TEST_P(Element, WorksInEveryStateOfItsLife) {
  const auto fresh = library_.New<orvik::ITestElement>(library_.NewTest()->ClassID());
  for (const auto& element : {fresh, library_.NewTest(), Decided()}) {
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->UpdateReferences(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->QuerySetParent(nullptr); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->QuerySetParent(element); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Configuration(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Limits(); }));
    EXPECT_TRUE(std::holds_alternative<std::vector<std::string>>(element->GetMeasurementList()));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Terminate(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Terminate(); }));
  }
}

TEST_P(Element, RaisesOnlyHostErrorsForWrongArguments) {
  const auto element = Decided();
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Load(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Save(nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->PrintReport(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Perform(nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Load(library_.NewNode("Alien"), element); }));
  ExpectDecided(*element);
}

class MalformedNode : public testing::TestWithParam<std::tuple<Subject, NamedText>> {};

TEST_P(MalformedNode, RaisesOnlyHostErrors) {
  LoadedLibrary library(std::get<0>(GetParam()));
  const auto node = library.Parsed(std::get<1>(GetParam()).text);
  const auto element = library.NewTest();
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Load(node, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Clone(); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { element->Save(node); }));
  // A malformed node never gives a pass.
  const auto result = element->Result();
  EXPECT_NE(result ? result->Status() : 0, 1);
}

constexpr NamedText kMalformed[] = {
    {"Bare", "<TestElement/>"},
    {"NoNumbers", "<TestElement ID='x' TestID='y'/>"},
    {"StatusInWords",
     "<TestElement ID='1' TestID='410'><ResultItem><Status>one</Status></ResultItem></TestElement>"},
    {"EmptyConfiguration",
     "<TestElement ID='1' TestID='410'><Configuration><PlugInData/></Configuration></TestElement>"},
    {"EmptyStandard",
     "<TestElement ID='1' TestID='410'><ExpectedResult><Standard/></ExpectedResult></TestElement>"},
    {"ChildOfATest", "<TestElement ID='1' TestID='410'><TestElement/></TestElement>"},
    {"EmptyResult", "<ResultItem/>"},
    {"EmptyStatus", "<ResultItem MTI='x'><Status/></ResultItem>"},
    {"FractionalStatus", "<ResultItem><Status>1.5</Status></ResultItem>"},
    {"TwoMeasurements", "<ResultItem><Measurement/><Measurement><Value>x</Value></Measurement></ResultItem>"},
    {"EmptyServiceRecord", "<ResultItem><ServiceRecord/></ResultItem>"}};

INSTANTIATE_TEST_SUITE_P(Loaded, MalformedNode,
                         testing::Combine(testing::Values(KeldPlugIn(), CheckerPlugIn()),
                                          testing::ValuesIn(kMalformed)),
                         [](const auto& malformed) {
                           return std::get<0>(malformed.param).name + std::get<1>(malformed.param).name;
                         });

TEST_P(Element, PrintsIntoAReport) {
  const auto report = std::make_shared<host::report::ReportObject>();
  EXPECT_NO_THROW(Decided()->PrintReport(report, nullptr));
  EXPECT_FALSE(report->Tables().empty());
}

TEST_F(KeldPlugInLoaded, ElementsRaiseNoErrors) {
  for (const std::int32_t testId : {410, 400}) {
    const auto element = library_.NewTest(testId);
    EXPECT_NO_THROW(element->Load(nullptr, nullptr));
    EXPECT_NO_THROW(element->Load(library_.NewNode("Alien"), nullptr));
    EXPECT_NO_THROW(EXPECT_FALSE(element->Save(nullptr)));
    EXPECT_NO_THROW(element->PrintReport(nullptr, nullptr));
    EXPECT_NO_THROW(element->Perform(nullptr));
    EXPECT_TRUE(element->QuerySetParent(nullptr));
    EXPECT_TRUE(element->QuerySetParent(element)) << "the plug-in returns true for any candidate";
  }
}

}  // namespace
}  // namespace conformance
