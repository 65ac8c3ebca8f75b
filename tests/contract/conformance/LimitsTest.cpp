#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/report/ReportObject.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

class Limits : public KeldPlugInLoaded {
 protected:
  std::shared_ptr<orvik::ILimitData> New() {
    return library_.New<orvik::ILimitData>("orvikKELD.CKELDLimitData");
  }
  /// The limits of an element, with one standard whose upper bound is 200.
  std::shared_ptr<orvik::ILimitData> Of(const std::shared_ptr<orvik::ITestElement>& element) {
    auto limits = element->Limits();
    limits->CreateStandard("IEC 62353", "class I")->Limit(1)->SetBounds("", "200");
    return limits;
  }
  std::shared_ptr<orvik::IMeasurement> Measured(const std::string& value) {
    auto measurement = library_.New<orvik::IMeasurement>("orvikKELD.CKELDMeasurement");
    measurement->Load(
        library_.Parsed("<Measurement><Value>" + value + "</Value><Unit>mOhm</Unit></Measurement>"));
    return measurement;
  }
};

TEST_F(Limits, AreNoneWithoutAnElement) {
  const auto limits = New();
  EXPECT_FALSE(limits->Standards());
  EXPECT_FALSE(limits->Owner());
  EXPECT_FALSE(limits->Save(library_.NewNode()));
  EXPECT_FALSE(limits->FindFailedStandards(Measured("1"), library_.NewTest()->Limits()->Standards()));
  EXPECT_TRUE(limits->HasDialog());
  limits->SetDescription("ignored");
  EXPECT_EQ(limits->Description(), "");
}

TEST_F(Limits, HaveTheUnitOfTheirElement) {
  const auto element = library_.NewTest();
  const auto limit = Of(element)->Standards()->item(1)->Limit(1);
  EXPECT_EQ(limit->Key(), "NO LIMIT KEY");
  EXPECT_EQ(limit->Unit(), "mOhm");
}

TEST_F(Limits, JudgeByTheSelectedStandards) {
  const auto element = library_.NewTest();
  const auto limits = Of(element);
  const auto selected = limits->Standards()->Clone();
  EXPECT_FALSE(limits->FindFailedStandards(Measured("200"), selected)) << "a bound is inclusive";
  const auto failed = limits->FindFailedStandards(Measured("200.1"), selected);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->item(1), limits->Standards()->item(1));
  const auto none = library_.New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  EXPECT_FALSE(limits->FindFailedStandards(Measured("999"), none)) << "a standard that is not selected";
  EXPECT_FALSE(limits->FindFailedStandards(nullptr, selected));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { limits->FindFailedStandards(Measured("1"), nullptr); }));
}

TEST_F(Limits, LoadWhatTheySaved) {
  const auto element = library_.NewTest();
  const auto limits = Of(element);
  const auto node = limits->Save(library_.NewNode());
  ASSERT_TRUE(node);
  EXPECT_EQ(node->Name(), "ExpectedResult");
  const auto loaded = New();
  loaded->Load(node, nullptr);
  ASSERT_TRUE(loaded->Standards());
  EXPECT_EQ(loaded->Standards()->item(1)->Limit(1)->HighText(), "200");
  loaded->Load(library_.NewNode("ExpectedResult"), nullptr);
  EXPECT_FALSE(loaded->Standards()) << "a node without standards leaves none";
}

TEST_F(Limits, CloneWithoutTheirOwner) {
  const auto element = library_.NewTest();
  const auto limits = Of(element);
  const auto copy = limits->Clone();
  EXPECT_FALSE(copy->Owner());
  copy->Standards()->item(1)->Limit(1)->SetBounds("", "1");
  EXPECT_EQ(limits->Standards()->item(1)->Limit(1)->HighText(), "200");
}

TEST_F(Limits, RaiseOnlyHostErrorsForWrongArguments) {
  const auto limits = New();
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { limits->Load(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses(
      [&] { limits->Load(library_.Parsed("<a><Standard><Limit/></Standard></a>"), nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { limits->Save(nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { limits->PrintReport(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { limits->UpdateLimits(nullptr); }));
  EXPECT_NE(ErrorNumberOf([&] { limits->CreateStandard("a", "b"); }), 0) << "no owner gives the unit";
  EXPECT_NE(ErrorNumberOf([&] { limits->CreateDialog(); }), 0);
  const auto element = library_.NewTest();
  EXPECT_NE(ErrorNumberOf([&] { Of(element)->Save(nullptr); }), 0);
  EXPECT_NE(ErrorNumberOf([&] { element->Limits()->PrintReport(nullptr, element); }), 0);
}

TEST_F(Limits, PrintIntoAReport) {
  const auto element = library_.NewTest();
  const auto report = std::make_shared<host::report::ReportObject>();
  Of(element)->PrintReport(report, element);
  EXPECT_FALSE(report->Tables().empty());
}

}  // namespace
}  // namespace conformance
