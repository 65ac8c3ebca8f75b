#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "instrument/CKELDMeasurement.h"
#include "model/SequenceSummary.h"
#include "tests/model/ModelTest.h"

namespace keld {

namespace {

/// A result whose status cannot be read.
class BrokenResult final : public orvik::IResultData {
  [[noreturn]] static void Fail() { throw orvik::HostError(5, "test", "broken"); }
  std::string IResultData_Comment() const override { return {}; }
  void IResultData_SetComment(const std::string&) override {}
  bool IResultData_HasDialog() const override { return false; }
  std::int32_t IResultData_Status() const override { Fail(); }
  std::shared_ptr<orvik::IMeasurement> IResultData_Measurement(std::int32_t) const override { Fail(); }
  std::int32_t IResultData_MeasurementCount() const override { return 1; }
  std::shared_ptr<orvik::IServiceRecord> IResultData_ServiceRecord() const override { return {}; }
  std::int32_t IResultData_MTIID() const override { return 0; }
  std::shared_ptr<orvik::IDialog> IResultData_CreateDialog() override { return {}; }
  void IResultData_Load(std::shared_ptr<orvik::IXmlNode>, std::shared_ptr<orvik::IObject>) override {}
  std::shared_ptr<orvik::IXmlNode> IResultData_Save(std::shared_ptr<orvik::IXmlNode>) const override {
    return {};
  }
  void IResultData_PrintReport(std::shared_ptr<orvik::IReport>,
                               std::shared_ptr<orvik::ITestElement>) override {}
};

/// Some children, then an error.
class BreaksOff final : public orvik::ITestContainer {
 public:
  explicit BreaksOff(std::vector<std::shared_ptr<orvik::ITestElement>> children)
      : children_(std::move(children)) {}

 private:
  class Walk final : public orvik::ITestEnumerator {
   public:
    explicit Walk(std::vector<std::shared_ptr<orvik::ITestElement>> children)
        : children_(std::move(children)) {}

   private:
    std::shared_ptr<orvik::ITestElement> ITestEnumerator_Next() override {
      if (next_ == children_.size()) throw orvik::HostError(5, "test", "broken");
      return children_[next_++];
    }
    std::vector<std::shared_ptr<orvik::ITestElement>> children_;
    std::size_t next_ = 0;
  };

  void ITestContainer_Add(std::shared_ptr<orvik::ITestElement>, const orvik::Variant&,
                          const orvik::Variant&) override {}
  std::int32_t ITestContainer_Count() const override { return 9; }
  std::shared_ptr<orvik::ITestElement> ITestContainer_item(std::int32_t) const override { return {}; }
  std::shared_ptr<orvik::ITestElement> ITestContainer_FindElement(std::int32_t) const override { return {}; }
  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override {
    return std::make_shared<Walk>(children_);
  }
  void ITestContainer_Remove(std::shared_ptr<orvik::ITestElement>) override {}

  std::vector<std::shared_ptr<orvik::ITestElement>> children_;
};

}  // namespace

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
  static Element Broken() {
    const auto element = MakeTest(210, 2000);
    Base(element).SetResult(std::make_shared<BrokenResult>());
    return element;
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

TEST_F(SequenceSummaryTest, AnOutcomeThatCannotBeReadIsNeverAPass) {
  EXPECT_EQ(StatusOf({WithStatus(1), Broken()}), 0);
  EXPECT_EQ(StatusOf({Broken(), WithStatus(3)}), 0);
  EXPECT_EQ(ChildrenStatus(BreaksOff({WithStatus(1)})), 0);
}

TEST_F(SequenceSummaryTest, AFailedChildCountsBesideOneThatCannotBeRead) {
  EXPECT_EQ(StatusOf({Broken(), WithStatus(2)}), 2);
  EXPECT_EQ(ChildrenStatus(BreaksOff({WithStatus(2)})), 2);
}

TEST_F(SequenceSummaryTest, AValueThatCannotBeReadIsLeftOut) {
  EXPECT_EQ(Summary({Broken(), WithValue(5.0)}, 3), orvik::Variant(5.0));
}

TEST_F(SequenceSummaryTest, ValuesThatAreTextsCountByTheirNumber) {
  EXPECT_EQ(Summary({WithValue(std::string("12.5")), WithValue(7.0)}, 3), orvik::Variant(12.5));
}

}  // namespace keld
