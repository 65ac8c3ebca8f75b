#include "results/ResultValueText.h"
#include "tests/unit/results/Tools.h"

namespace {

using keld::results::ResultValueText::CollectedList;
using keld::results::ResultValueText::Largest;
using keld::results::ResultValueText::Smallest;
using keld::results::ResultValueText::ValueText;
using orvik::Variant;

class ResultValueTextTest : public results::ResultsTest {
 protected:
  /// A sequence with a passed result whose children measured these values.
  std::shared_ptr<keld::model::CKELDSequence> Values(const std::vector<Variant>& values,
                                                     std::int32_t filter) {
    std::vector<std::shared_ptr<orvik::ITestElement>> children;
    for (const Variant& value : values)
      children.push_back(Measured(static_cast<int>(children.size()) + 2, value));
    auto sequence = Sequence(1, children);
    GiveResult(*sequence, 1);
    SetFilter(*sequence, filter);
    return sequence;
  }

  std::string TextOfTest(const Variant& value, std::int32_t filter, std::int32_t status = 1) {
    auto element = Test(1);
    GiveResult(*element, status);
    SetFilter(*element, filter);
    return keld::results::ResultValueText::ValueText(*element, value);
  }
};

TEST_F(ResultValueTextTest, FilterDecidesTheText) {
  struct Case {
    std::int32_t filter;
    std::string ofSequence, ofTest;
  };
  const Case cases[] = {{-1, "", ""},        {0, "/5.3", "/5.3"}, {1, "", ""}, {2, "/5.3/4.1/5", "/ 5.3"},
                        {3, "/5.3", "/5.3"}, {4, "/4.1", "/5.3"}, {5, "", ""}};
  for (const auto& [filter, ofSequence, ofTest] : cases) {
    EXPECT_EQ(keld::results::ResultValueText::ValueText(*Values({5.3, 4.1, 5.0}, filter), {}), ofSequence)
        << filter;
    EXPECT_EQ(TextOfTest(5.3, filter), ofTest) << filter;
  }
}

TEST_F(ResultValueTextTest, NotApplicableHasNoTextInAnyMode) {
  for (std::int32_t mode = 0; mode <= 5; ++mode) EXPECT_EQ(TextOfTest(5.3, mode, 3), "") << mode;
}

TEST_F(ResultValueTextTest, StatusIsReadFromTheElementsResult) {
  auto element = Measured(1, 5.3, 3);
  SetFilter(*element, 2);
  EXPECT_EQ(keld::results::ResultValueText::ValueText(*element, 5.3), "");
  EXPECT_EQ(GiveResult(*element, 2)->Status(), 2);
  EXPECT_EQ(keld::results::ResultValueText::ValueText(*element, 5.3), "/ 5.3");
}

TEST_F(ResultValueTextTest, SingleTestKeepsTheSignBlankAndIsNotTrimmed) {
  const auto element = Test(1);
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, 5.3), "/ 5.3");
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, -5.3), "/-5.3");
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, 0.0), "/ 0");
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, std::int32_t{7}), "/ 7");
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, std::string(" text ")), "/ text ");
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*element, {}), "/");
}

TEST_F(ResultValueTextTest, ChildValuesAreTrimmed) {
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(
                *Sequence(1, {Measured(2, std::string("  5.3 ")), Measured(3, 4.1)}), {}),
            "/5.3/4.1");
}

TEST_F(ResultValueTextTest, ChildWithoutResultOrMeasurementAddsASlashOnly) {
  auto noMeasurement = Test(3);
  GiveResult(*noMeasurement, 1);
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(
                *Sequence(1, {Test(2), noMeasurement, Measured(4, 4.1)}), {}),
            "///4.1");
}

TEST_F(ResultValueTextTest, SequenceIgnoresItsOwnMeasurement) {
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*Sequence(1, {Measured(2, 4.1)}), 99.0), "/4.1");
}

TEST_F(ResultValueTextTest, FindsTheExtremesOfAList) {
  struct Case {
    std::string list, largest, smallest;
  };
  const Case cases[] = {
      {"", "", ""},
      {"/", "", ""},
      // A piece without a number counts as 0.
      {"//", "/0", "/0"},
      {"/-3/OL", "/0", "/-3"},
      {"/3/OL", "/3", "/0"},
      {"/7 mA/3", "/7", "/3"},
      {"/-5/-4.1", "/-4.1", "/-5"},
      {"/ 5/-0.5", "/5", "/-0.5"},
      {"/9/2/3", "/9", "/2"},
      {"/2/9/3", "/9", "/2"},
      {"/2/3/9", "/9", "/2"},
      {"/1/2/3", "/3", "/1"},
      {"/3/2/1", "/3", "/1"},
      {"/3/9/9", "/9", "/3"},
      // The search starts at two to the thirtieth.
      {"/-1073741823", "/-1073741823", "/-1073741823"},
      {"/-1073741825", "/-1073741824", "/-1073741825"},
      {"/1073741823", "/1073741823", "/1073741823"},
      {"/1073741825", "/1073741825", "/1073741824"},
  };
  for (const auto& [list, largest, smallest] : cases) {
    EXPECT_EQ(keld::results::ResultValueText::Largest(list), largest) << list;
    EXPECT_EQ(keld::results::ResultValueText::Smallest(list), smallest) << list;
  }
}

TEST_F(ResultValueTextTest, NestedSequenceCountsByItsSummary) {
  auto inner = Sequence(2, {Measured(3, 1.0), Measured(4, 2.0)});
  GiveResult(*inner, 1)->SetMeasurement(Measurement(2.0));
  EXPECT_EQ(keld::results::ResultValueText::CollectedList(*Sequence(1, {inner, Measured(5, 7.5)}), {}),
            "/2/7.5");
}

TEST_F(ResultValueTextTest, ElementWithoutResultIsAnError) {
  EXPECT_THROW(keld::results::ResultValueText::ValueText(*Test(1), 5.3), orvik::HostError);
}

}  // namespace
