#include <limits>

#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "host/report/ReportObject.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

class Result : public EveryPlugIn {
 protected:
  std::shared_ptr<orvik::IResultData> Loaded(const std::string& xml) {
    element_ = library_.NewTest();
    element_->Load(library_.Parsed(xml), nullptr);
    return element_->Result();
  }
  std::shared_ptr<orvik::ITestElement> element_;
};
FOR_EVERY_PLUG_IN(Result);

TEST_P(Result, StartsAsNotTested) {
  const auto result = Loaded("<ResultItem/>");
  ASSERT_TRUE(result);
  EXPECT_EQ(result->Status(), 0);
  EXPECT_EQ(result->MeasurementCount(), 0);
  EXPECT_FALSE(result->Measurement(1));
  EXPECT_EQ(result->MTIID(), 0);
  EXPECT_FALSE(result->ServiceRecord());
  EXPECT_FALSE(result->HasDialog());
  EXPECT_EQ(result->Comment(), "");
}

TEST_P(Result, LoadsWhatItSaved) {
  const auto result = Loaded(
      "<ResultItem><Status>2</Status><ServiceRecord Name='n' Code='F' "
      "Value='/1'/><Comment>c</Comment></ResultItem>");
  result->SetComment("<&>\"' |;{}");
  const auto root = library_.NewNode();
  const auto node = result->Save(root);
  ASSERT_TRUE(node);
  EXPECT_EQ(node->Name(), "ResultItem");
  const auto again = library_.New<orvik::IResultData>(result->ClassID());
  ASSERT_TRUE(again) << "results are copied by their class identifier";
  again->Load(node, nullptr);
  EXPECT_EQ(again->Status(), 2);
  EXPECT_EQ(again->Comment(), "<&>\"' |;{}");
  ASSERT_TRUE(again->ServiceRecord());
  EXPECT_EQ(again->ServiceRecord()->Code(), "F");
}

TEST_P(Result, RaisesOnlyHostErrorsForWrongArguments) {
  const auto result = Loaded("<ResultItem/>");
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->Load(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->Save(nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->PrintReport(nullptr, nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->PrintReport(nullptr, element_); }));
  EXPECT_TRUE(OnlyHostErrorCrosses(
      [&] { result->PrintReport(std::make_shared<host::report::ReportObject>(), nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->Load(library_.NewNode("Alien"), nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->CreateDialog(); }));
  for (const auto index : {-1, 0, 2, std::numeric_limits<std::int32_t>::max()})
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { result->Measurement(index); })) << index;
}

TEST_P(Result, PrintsTheCommentAsText) {
  const auto result = Loaded("<ResultItem><Status>2</Status><Comment>|;{}</Comment></ResultItem>");
  EXPECT_NO_THROW(result->PrintReport(std::make_shared<host::report::ReportObject>(), element_));
}

}  // namespace
}  // namespace conformance
