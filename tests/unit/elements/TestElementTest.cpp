#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/elements/TestElement.h"
#include "host/report/ReportObject.h"
#include "host/report/TextTable.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using orvik::HostError;
using orvik::Variant;
using support::ErrorNumber;
using support::Holds;

class TestElementTest : public support::HostFixture {
 protected:
  std::shared_ptr<orvik::IBaseElement> Base() {
    return Make<orvik::IBaseElement>(orvik::HostClasses::kTestElement);
  }

  /// Loads an element of the plug-in from a text and returns what it saves.
  std::string Reloaded(const std::string& text) {
    xml::XmlDocument document;
    EXPECT_TRUE(document.LoadFromString("<Elements>" + text + "</Elements>")) << document.LastError();
    const auto element = Element(0);
    element->Load(document.Root()->FirstChild(), nullptr);
    return Saved(element);
  }
};

TEST_F(TestElementTest, KeepsItsIdentity) {
  const auto base = Base();
  base->Initialize("SAMPLE", 7, 110);
  EXPECT_EQ(base->ID(), 7);
  EXPECT_EQ(base->TestID(), 110);
  EXPECT_EQ(base->PlugInID(), "SAMPLE");
  EXPECT_EQ(base->Filter(), Variant(std::int32_t{110}));
  base->SetID(8);
  EXPECT_EQ(base->ID(), 8);
  EXPECT_EQ(base->TestID(), 110);
}

TEST_F(TestElementTest, NewElementHasNothingYetAndIsPrinted) {
  const auto base = Base();
  EXPECT_EQ(base->Configuration(), nullptr);
  EXPECT_EQ(base->Limits(), nullptr);
  EXPECT_EQ(base->Result(), nullptr);
  EXPECT_EQ(base->Parent(), nullptr);
  EXPECT_TRUE(base->Auxiliary()->PrintElement());
  EXPECT_EQ(base->GetMeasurementList(), Variant(std::vector<std::string>{}));
}

TEST_F(TestElementTest, InfoIsTheSecondTextAndThenTheFirst) {
  const auto base = Base();
  base->Information()->SetDisplayName("Earth leakage");
  EXPECT_EQ(base->Info(), Variant(std::vector<std::string>{"::", "Earth leakage"}));
  base->Information()->SetFirstText("NC");
  EXPECT_EQ(base->Info(), Variant(std::vector<std::string>{"::", "Earth leakage NC"}));
}

TEST_F(TestElementTest, DoesNotKeepItsParentAlive) {
  const auto child = Element(2);
  {
    const auto parent = Sequence(1);
    In(parent)->Add(child, {}, {});
    EXPECT_EQ(child->Parent(), parent);
  }
  EXPECT_EQ(child->Parent(), nullptr);
}

TEST_F(TestElementTest, CannotBePlacedBelowItself) {
  const auto outer = Sequence(1);
  const auto inner = Sequence(2);
  In(outer)->Add(inner, {}, {});
  const auto base = host_->Elements()->BaseOf(outer);
  EXPECT_FALSE(base->QuerySetParent(outer));
  EXPECT_FALSE(base->QuerySetParent(inner));
  EXPECT_TRUE(base->QuerySetParent(Sequence(3)));
  EXPECT_TRUE(base->QuerySetParent(nullptr));
}

TEST_F(TestElementTest, HasNoTestOfItsOwn) {
  EXPECT_EQ(support::ErrorNumber([&] { Base()->Perform(nullptr); }), HostError::kNoSuchProperty);
}

TEST_F(TestElementTest, SavesAllPartsInTheirOrder) {
  const auto element = Element(3);
  element->Information()->SetDisplayName("A & B");
  sample::SetOptions(element, 17);
  element->Limits()->CreateStandard("IEC 62353", "class I");
  const auto result = std::make_shared<sample::SampleResult>();
  result->lStatus = 2;
  host_->Elements()->BaseOf(element)->SetResult(result);
  EXPECT_TRUE(support::Holds(Saved(element),
                             R"(  <TestElement ID="3" TestID="110" PlugInID="SAMPLE" Class="sample.Element">
    <Information DisplayName="A &amp; B" />
    <Auxiliary Print="1" />
    <Configuration>
      <PlugInData Options="17" />
    </Configuration>
    <ExpectedResult>
      <Standard Name="IEC 62353" Description="class I" Number="1">
        <Limit Key="NO LIMIT KEY" Unit="V" />
      </Standard>
    </ExpectedResult>
    <ResultItem>
      <Status>2</Status>
    </ResultItem>
  </TestElement>
)"));
}

constexpr char kWhole[] = R"(<TestElement ID="9" TestID="120" PlugInID="SAMPLE" Class="sample.Element">
    <Information FirstText="f" SecondText="s" DisplayName="d" />
    <Auxiliary Print="0" />
    <Configuration>
      <PlugInData Options="5" />
    </Configuration>
    <ExpectedResult>
      <Standard Name="n" Description="" Number="1">
        <Limit Key="NO LIMIT KEY" Unit="V" High="3" />
      </Standard>
    </ExpectedResult>
    <ResultItem>
      <Status>1</Status>
      <Comment>fine</Comment>
    </ResultItem>
  </TestElement>)";

TEST_F(TestElementTest, SavedElementReadsBackWhole) { EXPECT_TRUE(support::Holds(Reloaded(kWhole), kWhole)); }

TEST_F(TestElementTest, LoadedElementAnswersWhatWasSaved) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(kWhole));
  const auto element = Element(0);
  element->Load(document.Root(), nullptr);
  EXPECT_EQ(element->ID(), 9);
  EXPECT_EQ(element->TestID(), 120);
  EXPECT_EQ(element->Information()->FirstText(), "f");
  EXPECT_EQ(element->Information()->SecondText(), "s");
  EXPECT_EQ(element->Information()->DisplayName(), "d");
  EXPECT_FALSE(host_->Elements()->BaseOf(element)->Auxiliary()->PrintElement());
  EXPECT_EQ(sample::Options(element), 5);
  EXPECT_EQ(element->Limits()->Standards()->Count(), 1);
  ASSERT_NE(element->Result(), nullptr);
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(element->Result()->Comment(), "fine");
}

TEST_F(TestElementTest, KeepsUnknownXml) {
  const auto text =
      Reloaded(R"(<TestElement ID="9" TestID="110" PlugInID="SAMPLE" Class="sample.Element" New="1">
    <!--by hand-->
    <Information DisplayName="d" Colour="red"/>
    <Auxiliary Print="1"><Hint/></Auxiliary>
    <Configuration Owner="me"><PlugInData Options="5"/><HostPart x="1"/></Configuration>
    <ResultItem Signed="yes"><Status>1</Status><Signature>abc</Signature></ResultItem>
    <Attachment><File name="a"/></Attachment>
    <TestElement ID="10" TestID="1" PlugInID="OTHER" Class="o.E"/>
  </TestElement>)");
  for (const auto* part : {"New=\"1\"", "<!--by hand-->", "Colour=\"red\"", "<Hint />", "Owner=\"me\"",
                           "<HostPart x=\"1\" />", "Signed=\"yes\"", "<Signature>abc</Signature>",
                           "<File name=\"a\" />", "ID=\"10\" TestID=\"1\" PlugInID=\"OTHER\" Class=\"o.E\""})
    EXPECT_TRUE(support::Holds(text, part));
}

TEST_F(TestElementTest, LoadingAgainKeepsNothingOfBefore) {
  xml::XmlDocument first, second;
  ASSERT_TRUE(first.LoadFromString(kWhole));
  ASSERT_TRUE(second.LoadFromString("<TestElement ID='2' TestID='110' PlugInID='SAMPLE'/>"));
  const auto element = Element(0);
  element->Load(first.Root(), nullptr);
  element->Load(second.Root(), nullptr);
  EXPECT_EQ(element->Result(), nullptr);
  EXPECT_EQ(element->Limits()->Standards(), nullptr);
  EXPECT_EQ(element->ID(), 2);
}

TEST_F(TestElementTest, UnknownXmlOfAResultIsRemovedWithIt) {
  xml::XmlDocument document;
  ASSERT_TRUE(
      document.LoadFromString("<TestElement ID='2' TestID='110'><ResultItem><Status>1</Status>"
                              "<Signature/></ResultItem></TestElement>"));
  const auto element = Element(0);
  element->Load(document.Root(), nullptr);
  EXPECT_TRUE(support::Holds(Saved(element), "Signature"));
  host_->Elements()->BaseOf(element)->SetResult(std::make_shared<sample::SampleResult>());
  EXPECT_FALSE(support::Holds(Saved(element), "Signature"));
}

TEST_F(TestElementTest, RecordsFaultsThatThePlugInIgnores) {
  for (const auto* text :
       {"<TestElement/>", "<TestElement ID='x' TestID='1'/>", "<TestElement ID='1'/>",
        "<Other ID='1' TestID='1'/>",
        "<TestElement ID='1' TestID='110'><ResultItem><Status>bad</Status></ResultItem></TestElement>",
        "<TestElement ID='1' TestID='110'><ExpectedResult><Standard><Limit "
        "Low='x'/></Standard></ExpectedResult>"
        "</TestElement>"}) {
    host_->Elements()->Trouble().Clear();
    xml::XmlDocument document;
    ASSERT_TRUE(document.LoadFromString(text));
    const auto element = Element(0);
    EXPECT_EQ(support::ErrorNumber([&] { element->Load(document.Root(), nullptr); }), 0);
    ASSERT_FALSE(host_->Elements()->Trouble().All().empty()) << text;
    EXPECT_GE(host_->Elements()->Trouble().All().front().offset, 0) << text;
  }
}

TEST_F(TestElementTest, CloneIsDeepAndKnowsNoParent) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(kWhole));
  const auto parent = Sequence(1);
  const auto element = Element(0);
  In(parent)->Add(element, {}, {});
  element->Load(document.Root(), nullptr);
  const auto copy = element->Clone();
  EXPECT_EQ(Saved(copy), Saved(element));
  EXPECT_EQ(copy->Parent(), nullptr);
  EXPECT_EQ(copy->ClassID(), sample::kElement);

  copy->Result()->SetComment("other");
  copy->Limits()->CreateStandard("more", "");
  sample::SetOptions(copy, 99);
  copy->Information()->SetDisplayName("other");
  copy->SetID(77);
  host_->Elements()->BaseOf(copy)->Auxiliary()->SetPrintElement(true);
  EXPECT_TRUE(support::Holds(Saved(element), kWhole));
}

TEST_F(TestElementTest, ReportsAResultOfAnUnknownClass) {
  const auto base = Base();
  base->SetResult(std::make_shared<sample::SampleResult>());
  EXPECT_NE(base->Clone(), nullptr);
  auto other = document::Host::Create({folder_.Path(), "", {}, {}}, nullptr);
  const auto foreign = orvik::As<orvik::IBaseElement>(other->CreateObject(orvik::HostClasses::kTestElement));
  foreign->SetResult(std::make_shared<sample::SampleResult>());
  EXPECT_EQ(support::ErrorNumber([&] { foreign->Clone(); }), HostError::kClassNotRegistered);
  EXPECT_FALSE(other->Elements()->Trouble().All().empty());
}

TEST_F(TestElementTest, ReportShowsNameConfigurationLimitsAndResult) {
  const auto element = Element(4);
  element->Information()->SetDisplayName("Earth; {leakage}");
  const auto standard = element->Limits()->CreateStandard("IEC|62353", "");
  const auto result = std::make_shared<sample::SampleResult>();
  host_->Elements()->BaseOf(element)->SetResult(result);
  const auto report = std::make_shared<report::ReportObject>();
  element->PrintReport(report, nullptr);
  std::string text;
  for (const auto& table : report->Tables()) text += report::TextTable(table, 100);
  const auto at = [&text](const char* part) { return text.find(part); };
  EXPECT_LT(at("Earth; {leakage}"), at("Options 3"));
  EXPECT_LT(at("Options 3"), at("IEC|62353"));
  EXPECT_LT(at("IEC|62353"), at("Status 0 of 4"));
  EXPECT_NE(at("Status 0 of 4"), std::string::npos);
}

TEST_F(TestElementTest, UseAfterTheHostWasReleasedIsAnError) {
  auto element = sample::CreateElement(host_);
  const auto base = host_->Elements()->BaseOf(element);
  base->SetResult(std::make_shared<sample::SampleResult>());
  host_->Close();
  host_.reset();
  EXPECT_EQ(support::ErrorNumber([&] { base->Clone(); }), HostError::kEmptyReference);
  element.reset();
  host_ = document::Host::Create({folder_.Path(), "", {}, {}}, nullptr);
}

}  // namespace
}  // namespace host
