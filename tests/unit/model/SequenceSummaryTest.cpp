#include "instrument/CKELDMeasurement.h"
#include "model/SequenceSummary.h"
#include "tests/unit/model/HostElements.h"
#include "tests/unit/model/ModelTest.h"

namespace keld {

namespace {

/// A container whose enumeration fails after the last child.
class BreakingContainer final : public support::ForwardingContainer {
 public:
  using ForwardingContainer::ForwardingContainer;

 private:
  class Walk final : public orvik::ITestEnumerator {
   public:
    explicit Walk(std::shared_ptr<orvik::ITestEnumerator> walk) : walk_(std::move(walk)) {}

   private:
    std::shared_ptr<orvik::ITestElement> ITestEnumerator_Next() override {
      auto next = walk_->Next();
      return next ? next : (support::RaiseHostError(), nullptr);
    }
    std::shared_ptr<orvik::ITestEnumerator> walk_;
  };

  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override {
    return std::make_shared<Walk>(Children().NewEnum());
  }
};

}  // namespace

class SequenceSummaryTest : public support::ModelTest {
 protected:
  static Element WithStatus(std::int32_t status) {
    const auto element = MakeTest(210);
    const auto result = results::CKELDResultData::Create();
    result->SetStatus(status);
    Base(element).SetResult(result);
    return element;
  }
  static Element WithValue(const orvik::Variant& value) {
    const auto element = WithStatus(1);
    const auto measurement = instrument::CKELDMeasurement::Create();
    measurement->AddValue(value, "", "", "");
    orvik::As<results::CKELDResultData>(element->Result())->SetMeasurement(measurement);
    return element;
  }
  /// A child whose result cannot be read.
  Element Broken() { return std::make_shared<support::FailingElement>(bench.Host().Elements()); }
  /// The children in a container, with an enumeration that fails at its end if `breaks`.
  std::shared_ptr<orvik::ITestContainer> Of(const std::vector<Element>& children, bool breaks = false) {
    if (!breaks) return Container(MakeSequence(children));
    const std::shared_ptr<orvik::ITestContainer> container =
        std::make_shared<BreakingContainer>(bench.Host().Elements());
    for (const auto& child : children) container->Add(child, {}, {});
    return container;
  }
};

TEST_F(SequenceSummaryTest, ValueIsTheHighestOrLowestOfTheChildren) {
  struct Row {
    const char* name;
    std::vector<Element> children;
    orvik::Variant highest = std::string();
    orvik::Variant lowest = std::string();
  };
  const auto text = [](const char* value) { return orvik::Variant(std::string(value)); };
  const std::vector<Row> rows = {
      {"several values", {WithValue(5.0), WithValue(12.0), WithValue(7.0)}, 12.0, 5.0},
      {"children without a value",
       {MakeTest(210), WithStatus(3), WithValue(text("")), WithValue(-7.0)},
       -7.0,
       -7.0},
      {"no value", {MakeTest(210), WithStatus(1)}},
      {"no children", {}},
      {"the start of the search for the highest", {WithValue(-1073741824.0)}, text(""), -1073741824.0},
      {"the start of the search for the lowest", {WithValue(1073741824.0)}, 1073741824.0, text("")},
      {"beyond the start of the search", {WithValue(2e9)}, 2e9, text("")},
      {"just inside the start of the search", {WithValue(-1073741823.0)}, -1073741823.0, -1073741823.0},
      {"a result that cannot be read", {Broken(), WithValue(5.0)}, 5.0, 5.0},
      {"a text, by its number", {WithValue(text("12.5")), WithValue(7.0)}, 12.5, 7.0}};
  for (const Row& row : rows) {
    const auto container = Of(row.children);
    EXPECT_EQ(model::SummaryValue(*container, 3), row.highest) << row.name;
    EXPECT_EQ(model::SummaryValue(*container, 4), row.lowest) << row.name;
    for (const std::int32_t mode : {0, 1, 2, 5, -1})
      EXPECT_EQ(model::SummaryValue(*container, mode), text("")) << row.name << ", mode " << mode;
  }
}

TEST_F(SequenceSummaryTest, StatusFollowsFromTheChildren) {
  struct Row {
    const char* name;
    std::vector<Element> children;
    std::int32_t status;
    bool breaks = false;
  };
  const std::vector<Row> rows = {{"one failed", {WithStatus(1), WithStatus(2), WithStatus(1)}, 2},
                                 {"one passed", {WithStatus(3), WithStatus(1), WithStatus(0)}, 1},
                                 {"all not applicable", {WithStatus(3), WithStatus(3)}, 3},
                                 {"not applicable or without a result", {WithStatus(3), MakeTest(210)}, 3},
                                 {"no children", {}, 0},
                                 {"no outcome", {MakeTest(210), WithStatus(0), WithStatus(4)}, 0},
                                 {"passed beside an unreadable result", {WithStatus(1), Broken()}, 0},
                                 {"not applicable beside an unreadable result", {Broken(), WithStatus(3)}, 0},
                                 {"passed, then the enumeration fails", {WithStatus(1)}, 0, true},
                                 {"failed beside an unreadable result", {Broken(), WithStatus(2)}, 2},
                                 {"failed, then the enumeration fails", {WithStatus(2)}, 2, true}};
  for (const Row& row : rows)
    EXPECT_EQ(model::ChildrenStatus(*Of(row.children, row.breaks)), row.status) << row.name;
}

}  // namespace keld
