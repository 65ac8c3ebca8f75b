#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "results/CKELDResultData.h"
#include "tests/unit/results/ServiceRecordProbe.h"
#include "tests/unit/results/Tools.h"

namespace {

using keld::results::CKELDResultData;

using CKELDResultDataTest = results::ResultsTest;

TEST_F(CKELDResultDataTest, NewResultIsNotTestedAndEmpty) {
  const auto result = CKELDResultData::Create();
  EXPECT_EQ(result->Status(), 0);
  EXPECT_EQ(result->MeasurementCount(), 0);
  EXPECT_FALSE(result->Measurement(1));
  EXPECT_EQ(result->MTIID(), 0);
  EXPECT_EQ(result->Comment(), "");
  EXPECT_FALSE(result->HasDialog());
  EXPECT_FALSE(result->ServiceRecord());
  EXPECT_FALSE(result->Owner());
}

TEST_F(CKELDResultDataTest, NamesItsRegisteredClass) {
  EXPECT_EQ(CKELDResultData::Create()->ClassID(), "orvikKELD.CKELDResultData");
  EXPECT_TRUE(orvik::As<CKELDResultData>(host_.Host().CreateObject("orvikKELD.CKELDResultData")));
}

TEST_F(CKELDResultDataTest, HasADialogOnlyWithAComment) {
  const auto result = CKELDResultData::Create();
  result->SetComment("lead worn");
  EXPECT_EQ(result->Comment(), "lead worn");
  EXPECT_TRUE(result->HasDialog());
  result->SetComment("");
  EXPECT_FALSE(result->HasDialog());
}

TEST_F(CKELDResultDataTest, StoresStatusIdentifierAndRecord) {
  const auto result = CKELDResultData::Create();
  const auto record = Make<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord);
  result->SetStatus(2);
  result->SetMTIIdentifier(7);
  result->SetServiceRecord(record);
  EXPECT_EQ(result->Status(), 2);
  EXPECT_EQ(result->MTIID(), 7);
  EXPECT_EQ(result->ServiceRecord(), record);
}

TEST_F(CKELDResultDataTest, AnyIndexGivesTheOneMeasurement) {
  const auto result = CKELDResultData::Create();
  const auto measurement = Measurement(1.0);
  result->SetMeasurement(measurement);
  EXPECT_EQ(result->MeasurementCount(), 1);
  for (const std::int32_t index : {-1, 0, 1, 2}) EXPECT_EQ(result->Measurement(index), measurement) << index;
  result->SetMeasurement(nullptr);
  EXPECT_EQ(result->MeasurementCount(), 0);
}

// --- service record ---

TEST_F(CKELDResultDataTest, StatusDecidesTheServiceRecordCode) {
  const auto element = Test(1);
  const auto result = GiveResult(*element, 0);
  const auto code = [&](std::int32_t status) {
    result->SetStatus(status);
    result->BuildServiceRecord(element);
    return result->ServiceRecord() ? result->ServiceRecord()->Code() : std::string("none");
  };
  EXPECT_EQ(code(1), "P");
  EXPECT_EQ(code(0), "none");
  EXPECT_EQ(code(2), "F");
  EXPECT_EQ(code(4), "none");
  EXPECT_EQ(code(3), "NA");
  EXPECT_EQ(code(5), "none");
}

TEST_F(CKELDResultDataTest, ServiceRecordHasNameAndValueText) {
  const auto element = Test(1);
  SetFilter(*element, 2);
  const auto result = GiveResult(*element, 1);
  result->SetMeasurement(Measurement(5.3));
  result->BuildServiceRecord(element);
  ASSERT_TRUE(result->ServiceRecord());
  EXPECT_EQ(result->ServiceRecord()->Name(), "Test 1");
  EXPECT_EQ(result->ServiceRecord()->Value(), "/ 5.3");
}

TEST_F(CKELDResultDataTest, NotApplicableHasNoValueInAnyMode) {
  const auto element = Test(1);
  const auto result = GiveResult(*element, 3);
  result->SetMeasurement(Measurement(5.3));
  for (std::int32_t mode = 0; mode <= 5; ++mode) {
    SetFilter(*element, mode);
    result->BuildServiceRecord(element);
    EXPECT_EQ(result->ServiceRecord()->Code(), "NA") << mode;
    EXPECT_EQ(result->ServiceRecord()->Value(), "") << mode;
  }
}

TEST_F(CKELDResultDataTest, DoesNotKeepItsOwnerAlive) {
  auto element = Test(1);
  const auto result = GiveResult(*element, 1);
  result->BuildServiceRecord(element);
  EXPECT_EQ(result->Owner(), element);
  element.reset();
  EXPECT_FALSE(result->Owner());
}

TEST_F(CKELDResultDataTest, FailureToBuildRemovesTheEarlierRecord) {
  const auto element = Test(1);
  const auto result = GiveResult(*element, 1);
  result->BuildServiceRecord(element);
  ASSERT_TRUE(result->ServiceRecord());
  EXPECT_THROW(result->BuildServiceRecord(nullptr), orvik::HostError);
  EXPECT_FALSE(result->ServiceRecord());
}

TEST_F(CKELDResultDataTest, ServiceRecordIsMadeFromInformationCodeAndValue) {
  const auto record = std::make_shared<results::ServiceRecordProbe>();
  host_.Host().Register(orvik::HostClasses::kServiceRecord, [&] { return record; });
  const auto element = Test(1);
  SetFilter(*element, 0);
  const auto result = GiveResult(*element, 2);
  result->SetMeasurement(Measurement(5.3));
  result->BuildServiceRecord(element);
  EXPECT_EQ(result->ServiceRecord(), record);
  EXPECT_EQ(record->about, element->Information());
  EXPECT_EQ(record->given, (std::vector<std::string>{"F", "/5.3"}));
}

// --- reset ---

TEST_F(CKELDResultDataTest, ResetRemovesMeasurementAndRecord) {
  const auto element = Measured(1, 5.3);
  const auto result = orvik::As<CKELDResultData>(element->Result());
  result->BuildServiceRecord(element);
  result->SetComment("kept");
  result->SetMTIIdentifier(3);
  result->Reset(element, 0);
  EXPECT_EQ(result->Status(), 0);
  EXPECT_EQ(result->MeasurementCount(), 0);
  EXPECT_FALSE(result->ServiceRecord());
  EXPECT_EQ(result->Comment(), "kept");
  EXPECT_EQ(result->MTIID(), 3);
  EXPECT_EQ(result->Owner(), element);
}

TEST_F(CKELDResultDataTest, ResetWithAStatusBuildsItsServiceRecord) {
  const auto element = Measured(1, 5.3);
  const auto result = orvik::As<CKELDResultData>(element->Result());
  result->Reset(element, 3);
  EXPECT_EQ(result->Status(), 3);
  ASSERT_TRUE(result->ServiceRecord());
  EXPECT_EQ(result->ServiceRecord()->Code(), "NA");
}

TEST_F(CKELDResultDataTest, ResetReachesEveryDescendant) {
  const auto leaf = Measured(4, 5.3);
  const auto bare = Measured(6, 1.0);
  const auto inner = Sequence(3, {leaf});
  GiveResult(*inner, 1);
  // A group that was skipped has no result, and must not keep the old ones below it.
  const auto withoutResult = Sequence(5, {bare});
  const auto outer = Sequence(1, {Measured(2, 1.0, 2), inner, withoutResult, Test(7)});
  const auto result = GiveResult(*outer, 2);
  for (const auto& element :
       std::vector<std::shared_ptr<keld::model::CKELDElement>>{leaf, bare, inner, outer})
    orvik::As<CKELDResultData>(element->Result())->BuildServiceRecord(element);
  ASSERT_TRUE(leaf->Result()->ServiceRecord());

  result->Reset(outer, 0);
  for (const auto& element :
       std::vector<std::shared_ptr<orvik::ITestElement>>{outer, outer->item(1), inner, leaf, bare}) {
    EXPECT_EQ(element->Result()->Status(), 0) << element->ID();
    EXPECT_EQ(element->Result()->MeasurementCount(), 0) << element->ID();
    EXPECT_FALSE(element->Result()->ServiceRecord()) << element->ID();
  }
  EXPECT_FALSE(withoutResult->Result());
  EXPECT_FALSE(outer->item(4)->Result());
}

TEST_F(CKELDResultDataTest, ResetSetsStatusAndRecordOfEveryDescendant) {
  const auto leaf = Measured(4, 5.3);
  const auto inner = Sequence(3, {leaf});
  GiveResult(*inner, 1);
  inner->Information()->SetDisplayName("Inner");
  const auto outer = Sequence(1, {inner});
  GiveResult(*outer, 1)->Reset(outer, 3);
  for (const auto& [element, name] :
       std::vector<std::pair<std::shared_ptr<orvik::ITestElement>, std::string>>{{inner, "Inner"},
                                                                                 {leaf, "Test 4"}}) {
    EXPECT_EQ(element->Result()->Status(), 3) << name;
    EXPECT_EQ(element->Result()->MeasurementCount(), 0) << name;
    ASSERT_TRUE(element->Result()->ServiceRecord()) << name;
    EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "NA") << name;
    EXPECT_EQ(element->Result()->ServiceRecord()->Name(), name);
  }
}

TEST_F(CKELDResultDataTest, ResetHandlesTenThousandLevels) {
  std::vector<std::shared_ptr<keld::model::CKELDSequence>> chain{Sequence(1, {})};
  for (std::int32_t level = 2; level <= 10'000; ++level) {
    auto next = Sequence(level, {});
    GiveResult(*next, 1);
    chain.back()->Add(next, {}, {});
    chain.push_back(next);
  }
  GiveResult(*chain.front(), 1)->Reset(chain.front(), 0);
  EXPECT_EQ(chain.back()->Result()->Status(), 0);
}

// --- report ---

TEST_F(CKELDResultDataTest, PrintsOneTable) {
  const auto report = std::make_shared<recorders::Report>();
  const auto result = CKELDResultData::Create();
  const auto measurement = Measurement(12.6, "mA");
  measurement->SetDescription("20340::KELD test");
  result->SetMeasurement(measurement);
  result->PrintReport(report, Test(1));
  EXPECT_EQ(report->calls,
            (std::vector<std::string>{
                "border 7", "indent 0", "rows 1", "<+560|<2240|>+1569|>+1569|^+1569|<+!1569|<+560;",
                "|{\\i\\b [Result:]}|{\\i\\b [Value]}|{\\i\\b [Unit]};", "|      [KELD test]|13|[mA];"}));
  EXPECT_EQ(result->ReportPart(1), report->calls[3]);
  EXPECT_EQ(result->ReportPart(2), report->calls[4]);
  EXPECT_EQ(result->ReportPart(3), report->calls[5]);
  EXPECT_EQ(result->ReportPart(0), "");
  EXPECT_EQ(result->ReportPart(4), "");
}

TEST_F(CKELDResultDataTest, ColumnWidthIsTruncatedTowardZero) {
  const auto format = [&](std::int32_t width) {
    const auto report = std::make_shared<recorders::Report>();
    report->width = width;
    const auto result = CKELDResultData::Create();
    result->PrintReport(report, nullptr);
    return result->ReportPart(1);
  };
  EXPECT_EQ(format(3363), "<+560|<2240|>+0|>+0|^+0|<+!0|<+560;");
  EXPECT_EQ(format(3367), "<+560|<2240|>+1|>+1|^+1|<+!1|<+560;");
  EXPECT_EQ(format(3357), "<+560|<2240|>+0|>+0|^+0|<+!0|<+560;");
  EXPECT_EQ(format(3353), "<+560|<2240|>+-1|>+-1|^+-1|<+!-1|<+560;");
}

TEST_F(CKELDResultDataTest, WithoutAMeasurementNothingIsPrinted) {
  const auto report = std::make_shared<recorders::Report>();
  const auto result = CKELDResultData::Create();
  result->SetMeasurement(Measurement(1.0));
  result->PrintReport(report, nullptr);
  report->calls.clear();
  result->SetMeasurement(nullptr);
  result->PrintReport(report, nullptr);
  EXPECT_TRUE(report->calls.empty());
  EXPECT_EQ(result->ReportPart(3), "");
  EXPECT_THROW(result->PrintReport(nullptr, nullptr), orvik::HostError);
}

// --- dialog ---

TEST_F(CKELDResultDataTest, DialogShowsTheComment) {
  const auto result = CKELDResultData::Create();
  result->SetComment("lead worn");
  const auto dialog = result->CreateDialog();
  ASSERT_TRUE(dialog);
  const auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
  const auto site = orvik::As<orvik::platform::IContainerSite>(form->Find("isc"));
  ASSERT_TRUE(site);
  const auto comment = orvik::As<orvik::platform::ITextBox>(site->Panel()->Find("txtComment"));
  ASSERT_TRUE(comment);
  EXPECT_EQ(comment->Text(), "lead worn");
  dialog->Unload();
}

TEST_F(CKELDResultDataTest, DialogWithoutItsControlIsStillADialog) {
  host_.Application().SetControlFactory([](const std::string&) { return nullptr; });
  EXPECT_TRUE(CKELDResultData::Create()->CreateDialog());
}

}  // namespace
