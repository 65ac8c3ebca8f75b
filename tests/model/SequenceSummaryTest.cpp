#include "instrument/CKELDMeasurement.h"
#include "model/SequenceSummary.h"
#include "tests/model/ModelTest.h"

namespace keld {

class SequenceSummaryTest : public support::ModelTest {
 protected:
  static Element WithValue(const orvik::Variant& value, std::int32_t status = 1) {
    static std::int32_t id = 1;
    const auto element = MakeTest(210, id++);
    const auto measurement = CKELDMeasurement::Create();
    measurement->AddValue(value, "", "", "");
    const auto result = CKELDResultData::Create();
    result->SetMeasurement(measurement);
    result->SetStatus(status);
    Base(element).SetResult(result);
    return element;
  }
  static Element WithStatus(std::int32_t status) {
    static std::int32_t id = 1000;
    const auto element = MakeTest(210, id++);
    const auto result = CKELDResultData::Create();
    result->SetStatus(status);
    Base(element).SetResult(result);
    return element;
  }
  static orvik::Variant Summary(const std::vector<Element>& children, std::int32_t mode) {
    return SummaryValue(*Container(MakeSequence(children)), mode);
  }
  static std::int32_t StatusOf(const std::vector<Element>& children) {
    return ChildrenStatus(*Container(MakeSequence(children)));
  }
  const orvik::Variant none = std::string();
};

TEST_F(SequenceSummaryTest, FindsTheHighestAndTheLowestValue) {
  const std::vector<Element> children{WithValue(5.0), WithValue(12.0), WithValue(7.0)};
  EXPECT_EQ(Summary(children, 3), orvik::Variant(12.0));
  EXPECT_EQ(Summary(children, 4), orvik::Variant(5.0));
}

TEST_F(SequenceSummaryTest, OtherModesHaveNoValue) {
  for (const std::int32_t mode : {0, 1, 2, 5, -1}) EXPECT_EQ(Summary({WithValue(5.0)}, mode), none) << mode;
}

TEST_F(SequenceSummaryTest, ChildrenWithoutAValueAreLeftOut) {
  const std::vector<Element> children{MakeTest(210, 1), WithStatus(3), WithValue(std::string()),
                                      WithValue(-7.0)};
  EXPECT_EQ(Summary(children, 3), orvik::Variant(-7.0));
  EXPECT_EQ(Summary(children, 4), orvik::Variant(-7.0));
}

TEST_F(SequenceSummaryTest, WithoutAnyValueTheSummaryIsTheEmptyText) {
  EXPECT_EQ(Summary({MakeTest(210, 1), WithStatus(1)}, 3), none);
  EXPECT_EQ(Summary({MakeTest(210, 1), WithStatus(1)}, 4), none);
  EXPECT_EQ(Summary({}, 3), none);
}

TEST_F(SequenceSummaryTest, AValueAtTheStartingPointIsNeverTaken) {
  EXPECT_EQ(Summary({WithValue(-1073741824.0)}, 3), none);
  EXPECT_EQ(Summary({WithValue(1073741824.0)}, 4), none);
  EXPECT_EQ(Summary({WithValue(2e9)}, 4), none);
  EXPECT_EQ(Summary({WithValue(-1073741823.0)}, 3), orvik::Variant(-1073741823.0));
}

TEST_F(SequenceSummaryTest, OneFailedChildFailsTheSequence) {
  EXPECT_EQ(StatusOf({WithStatus(1), WithStatus(2), WithStatus(1)}), 2);
}

TEST_F(SequenceSummaryTest, OnePassedChildPassesIt) {
  EXPECT_EQ(StatusOf({WithStatus(3), WithStatus(1), WithStatus(0)}), 1);
}

TEST_F(SequenceSummaryTest, OnlyNotApplicableChildrenMakeItNotApplicable) {
  EXPECT_EQ(StatusOf({WithStatus(3), WithStatus(3)}), 3);
  EXPECT_EQ(StatusOf({WithStatus(3), MakeTest(210, 5)}), 3);
}

TEST_F(SequenceSummaryTest, WithoutAnyOutcomeItIsNotTested) {
  EXPECT_EQ(StatusOf({}), 0);
  EXPECT_EQ(StatusOf({MakeTest(210, 1), WithStatus(0), WithStatus(4)}), 0);
}

}  // namespace keld
