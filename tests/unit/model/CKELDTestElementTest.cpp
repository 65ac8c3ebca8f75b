#include <limits>

#include "host/report/ReportObject.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDTestElement.h"
#include "tests/unit/model/HostElements.h"
#include "tests/unit/model/ModelTest.h"

namespace keld {

using CKELDTestElementTest = support::ModelTest;

TEST_F(CKELDTestElementTest, SetsTheLeadOptionsOfItsTest) {
  constexpr auto kHighest = std::numeric_limits<std::int32_t>::max();
  struct Row {
    std::int32_t testId, before, after;
  };
  // 1110 to 1165 add the 4, which carries; 910 to 965 set the bit of all leads.
  for (const Row& row :
       {Row{1110, 4, 8}, Row{1110, 3, 7}, Row{1165, 3, 7}, Row{1166, 3, 3}, Row{1109, 3, 3},
        Row{1165, 4096 + 4, 4096 + 8}, Row{1110, kHighest, kHighest}, Row{1110, kHighest - 3, kHighest - 3},
        Row{1110, kHighest - 4, kHighest}, Row{910, 3, 4099}, Row{965, 3, 4099}, Row{965, 4096, 4096},
        Row{966, 3, 3}, Row{909, 3, 3}, Row{410, 3, 3}}) {
    const auto element = model::CKELDTestElement::Create();
    Configuration(element).SetOptions(row.before);
    element->Initialize("KELD(IN)", 1, row.testId);
    EXPECT_EQ(Configuration(element).Options(), row.after) << row.testId << ", " << row.before;
  }
}

TEST_F(CKELDTestElementTest, InfoIsTheSecondTextThenTheFirst) {
  const auto element = MakeTest(410);
  element->Information()->SetSecondText("Protective earth");
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", "Protective earth"}));
  element->Information()->SetFirstText("socket 2");
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", "Protective earth socket 2"}));
}

TEST_F(CKELDTestElementTest, ListsItsMeasurement) {
  const auto element = MakeTest(410);
  const auto result = results::CKELDResultData::Create();
  result->SetMeasurement(instrument::CKELDMeasurement::Create());
  Base(element).SetResult(result);
  EXPECT_EQ(element->GetMeasurementList(), orvik::Variant(Texts{"::"}));
}

TEST_F(CKELDTestElementTest, IsPrintedWithoutAResult) {
  const auto report = std::make_shared<host::report::ReportObject>();
  MakeTest(410)->PrintReport(report, nullptr);
  EXPECT_FALSE(report->Tables().empty());
}

TEST_F(CKELDTestElementTest, ContinuesAfterAFailingStep) {
  bench.Host().Register(orvik::HostClasses::kTestElement, [factory = std::weak_ptr(bench.Host().Elements())] {
    return std::make_shared<support::FailingElement>(factory);
  });
  const auto element = model::CKELDTestElement::Create();
  ASSERT_TRUE(element->BaseElement());
  EXPECT_FALSE(element->Configuration());
  ASSERT_TRUE(element->Limits());
  EXPECT_EQ(element->Limits()->Owner(), element);
  element->SetID(5);
  EXPECT_EQ(element->ID(), 0);
  EXPECT_EQ(element->Info(), orvik::Variant(Texts{"::", ""}));
  EXPECT_FALSE(element->Clone());
  EXPECT_EQ(element->Filter(), orvik::Variant());
}

}  // namespace keld
