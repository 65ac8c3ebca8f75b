#include <gtest/gtest.h>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "instrument/CKELDMeasurement.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "results/CKELDLimitData.h"
#include "tests/support/HostOnly.h"

namespace instrument_test {
namespace {

using orvik::Variant;

class CKELDMeasurementTest : public testing::Test {
 protected:
  template <class Interface>
  std::shared_ptr<Interface> New(const char* classId) {
    return orvik::As<Interface>(host_.SharedHost()->CreateObject(classId));
  }
  /// The measurement as saved below an element "Parent".
  std::string Saved() {
    const auto document = New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    const auto parent = document->CreateRoot("Parent");
    const auto node = measurement_->Save(parent);
    EXPECT_EQ(node->Name(), "Measurement");
    EXPECT_EQ(parent->FirstChild()->Name(), "Measurement");
    return document->SaveToString();
  }
  void Load(const std::string& xml) {
    const auto document = New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    ASSERT_TRUE(document->LoadFromString(xml)) << document->LastError();
    measurement_->Load(document->Root());
  }
  std::shared_ptr<orvik::IStandard> Standard(const std::string& low, const std::string& high) {
    const auto limit = New<orvik::ILimit>(orvik::HostClasses::kLimit);
    limit->Initialize("NO LIMIT KEY", "mOhm", low, high);
    const auto standard = New<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize("IEC", "class I", 1);
    standard->AddLimit(limit);
    return standard;
  }

  support::HostOnly host_;
  std::shared_ptr<keld::instrument::CKELDMeasurement> measurement_ =
      keld::instrument::CKELDMeasurement::Create();
};

TEST_F(CKELDMeasurementTest, IsEmptyAtFirst) {
  EXPECT_EQ(measurement_->value(), Variant{});
  EXPECT_EQ(measurement_->Flags(), "");
  EXPECT_EQ(measurement_->Unit(), "");
  EXPECT_EQ(measurement_->Status(), 0);
  EXPECT_EQ(measurement_->Description(), "");
  EXPECT_EQ(measurement_->ClassID(), "orvikKELD.CKELDMeasurement");
}

TEST_F(CKELDMeasurementTest, HasConstantProperties) {
  measurement_->AddValue(5.0, "V", "O", "");
  const std::shared_ptr<orvik::IMeasurement> measurement = measurement_;
  EXPECT_EQ(measurement->Key(), "::");
  EXPECT_EQ(measurement->LimitKey(), "NO LIMIT KEY");
  EXPECT_EQ(measurement->PresetValue(), Variant{});
  EXPECT_EQ(measurement->ValueType(), 2);
  EXPECT_EQ(measurement->ValueFormat(), "0");
  EXPECT_EQ(measurement->ToolTipText(), "");
}

TEST_F(CKELDMeasurementTest, KeepsDescriptionAndStatus) {
  measurement_->SetDescription("20702::No values");
  measurement_->SetStatus(2);
  EXPECT_EQ(measurement_->Description(), "20702::No values");
  EXPECT_EQ(measurement_->Status(), 2);
}

TEST_F(CKELDMeasurementTest, AddValueReplacesUnitAndFlags) {
  measurement_->AddValue(1, "V", "O", "ignored");
  measurement_->AddValue(2, "mA", "", "ignored");
  EXPECT_EQ(measurement_->value(), Variant(3));
  EXPECT_EQ(measurement_->Unit(), "mA");
  EXPECT_EQ(measurement_->Flags(), "");
  EXPECT_EQ(measurement_->LimitKey(), "NO LIMIT KEY");
}

TEST_F(CKELDMeasurementTest, ValuesAddUp) {
  struct Case {
    Variant left, right, sum;
  };
  const Case cases[] = {
      {{}, {}, {}},
      {{}, 1, 1},
      {{}, std::string("1/2"), std::string("1/2")},
      {1, {}, 1},
      {1, 2, 3},
      {1.5, 2, 3.5},
      {1, 2.5, 3.5},
      {std::string("1.5"), 2, 3.5},
      {std::string("1"), std::string("2"), 3.0},
      {INT32_MAX, 1, 2147483648.0},
      {INT32_MIN, -1, -2147483649.0},
      {-5, 3, -2},
      // A text that is not a number cannot be added.
      {1, std::string("x"), 1},
      {std::string("1/2"), 3, std::string("1/2")},
      {1, std::vector<std::string>{"2"}, 1},
  };
  for (const auto& [left, right, sum] : cases) {
    const auto measurement = keld::instrument::CKELDMeasurement::Create();
    measurement->AddValue(left, "", "", "");
    measurement->AddValue(right, "V", "O", "");
    EXPECT_EQ(measurement->value(), sum);
    EXPECT_EQ(measurement->Unit(), "V");
  }
}

TEST_F(CKELDMeasurementTest, ReportLineShowsDescriptionNumberAndUnit) {
  measurement_->SetDescription("20702::No values");
  measurement_->AddValue(12.6, "mOhm", "", "");
  EXPECT_EQ(measurement_->ReportLine(std::make_shared<host::report::ReportObject>()),
            "|      No values|13|mOhm;");
}

TEST_F(CKELDMeasurementTest, AnEmptyReportLineKeepsItsCells) {
  EXPECT_EQ(measurement_->ReportLine(std::make_shared<host::report::ReportObject>()), "|      ||;");
}

TEST_F(CKELDMeasurementTest, ReportLineEscapesTextsOfTheTester) {
  measurement_->SetDescription("a|b;c");
  measurement_->AddValue(1, "{\\b V}|;", "", "");
  const auto report = std::make_shared<host::report::ReportObject>();
  const std::string row = measurement_->ReportLine(report);
  EXPECT_EQ(row, "|      " + report->Escape("a|b;c") + "|1|" + report->Escape("{\\b V}|;") + ";");
  EXPECT_NE(row, "|      a|b;c|1|{\\b V}|;;");
}

TEST_F(CKELDMeasurementTest, TheReportLineRoundsToAWholeNumber) {
  const std::pair<Variant, std::string> cases[] = {{12.4, "12"}, {12.5, "13"}, {-12.6, "-13"},
                                                   {-0.2, "0"},  {7, "7"},     {std::string("12.6"), "13"}};
  for (const auto& [value, shown] : cases) {
    const auto measurement = keld::instrument::CKELDMeasurement::Create();
    measurement->AddValue(value, "V", "", "");
    EXPECT_EQ(measurement->ReportLine(nullptr), "|      |" + shown + "|V;");
  }
}

TEST_F(CKELDMeasurementTest, AReportLineWithoutAReportIsPlain) {
  measurement_->AddValue(1, "V", "", "");
  EXPECT_EQ(measurement_->ReportLine(nullptr), "|      |1|V;");
}

TEST_F(CKELDMeasurementTest, AFreshOneSavesWithoutFlagsAndUnit) {
  const std::string saved = Saved();
  EXPECT_EQ(saved.find("Flags"), std::string::npos) << saved;
  EXPECT_EQ(saved.find("Unit"), std::string::npos) << saved;
  EXPECT_NE(saved.find("<Description />"), std::string::npos) << saved;
  EXPECT_NE(saved.find("<Value />"), std::string::npos) << saved;
  EXPECT_NE(saved.find("<Status>0</Status>"), std::string::npos) << saved;
}

TEST_F(CKELDMeasurementTest, LoadsWhatWasSaved) {
  measurement_->SetDescription("20702::No values");
  measurement_->AddValue(12.5, "mOhm", "O", "");
  measurement_->SetStatus(2);
  const auto document = New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
  const auto node = measurement_->Save(document->CreateRoot("Parent"));
  EXPECT_EQ(node->Attribute("Flags"), "O");
  EXPECT_EQ(node->ChildCount(), 4);

  const auto loaded = keld::instrument::CKELDMeasurement::Create();
  loaded->Load(node);
  EXPECT_EQ(loaded->Description(), "20702::No values");
  EXPECT_EQ(loaded->value(), Variant(12.5));
  EXPECT_EQ(loaded->Unit(), "mOhm");
  EXPECT_EQ(loaded->Flags(), "O");
  EXPECT_EQ(loaded->Status(), 2);
}

TEST_F(CKELDMeasurementTest, ChildrenAreSavedInOrderWithTheirTexts) {
  measurement_->SetDescription("20702::No values");
  measurement_->AddValue(12.5, "mOhm", "O", "");
  measurement_->SetStatus(2);
  const auto document = New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
  const auto node = measurement_->Save(document->CreateRoot("Parent"));
  std::string children;
  for (auto child = node->FirstChild(); child; child = child->NextSibling())
    children += child->Name() + "=" + child->Text() + ";";
  EXPECT_EQ(children, "Description=20702::No values;Value=12.5;Unit=mOhm;Status=2;");
}

TEST_F(CKELDMeasurementTest, MissingPersistenceServiceKeepsTheRest) {
  host_.SharedHost()->Register(orvik::HostClasses::kPersistence, [] { return nullptr; });
  measurement_->SetDescription("d");
  measurement_->AddValue(12.5, "mOhm", "O", "");
  measurement_->SetStatus(2);
  EXPECT_NE(Saved().find("<Unit>mOhm</Unit>"), std::string::npos);
  Load(
      "<Measurement Flags=\"x\"><Value>7</Value><Status>1</Status><Description>e</Description>"
      "<Unit>V</Unit></Measurement>");
  EXPECT_EQ(measurement_->value(), Variant(12.5));
  EXPECT_EQ(measurement_->Status(), 2);
  EXPECT_EQ(measurement_->Description(), "e");
  EXPECT_EQ(measurement_->Unit(), "V");
  EXPECT_EQ(measurement_->Flags(), "x");
}

TEST_F(CKELDMeasurementTest, SavedValueIsTrimmed) {
  measurement_->AddValue(std::string("  1/2 "), "", "", "");
  EXPECT_NE(Saved().find("<Value>1/2</Value>"), std::string::npos);
}

TEST_F(CKELDMeasurementTest, ALoadedValueIsADouble) {
  const std::pair<std::string, double> cases[] = {{"12.5", 12.5}, {"OL", 0},    {"7x", 7},
                                                  {" -3 ", -3},   {"1e2", 100}, {"12,5", 12}};
  for (const auto& [text, value] : cases) {
    measurement_ = keld::instrument::CKELDMeasurement::Create();
    Load("<Measurement><Value>" + text + "</Value></Measurement>");
    EXPECT_EQ(measurement_->value(), Variant(value)) << text;
  }
}

// The host's persistence service reads no value from it: it must not become a reading of 0.
TEST_F(CKELDMeasurementTest, AnEmptySavedValueIsNoValue) {
  for (const char* text : {"<Value/>", "<Value></Value>"}) {
    measurement_ = keld::instrument::CKELDMeasurement::Create();
    Load("<Measurement>" + std::string(text) + "<Unit>V</Unit></Measurement>");
    EXPECT_EQ(measurement_->value(), Variant{}) << text;
    EXPECT_EQ(measurement_->Unit(), "V") << text;
  }
}

TEST_F(CKELDMeasurementTest, LoadUsesTheLaterOfTwoAndIgnoresOthers) {
  Load(
      "<Measurement><Unit>V</Unit><unit>x</unit><Other>y</Other><Unit>A</Unit><Status>1</Status>"
      "<Status>2</Status></Measurement>");
  EXPECT_EQ(measurement_->Unit(), "A");
  EXPECT_EQ(measurement_->Status(), 2);
  EXPECT_EQ(measurement_->value(), Variant{});
}

TEST_F(CKELDMeasurementTest, LoadWithoutChildrenChangesOnlyTheFlags) {
  measurement_->SetDescription("d");
  measurement_->AddValue(1, "V", "O", "");
  measurement_->SetStatus(1);
  Load("<Measurement/>");
  EXPECT_EQ(measurement_->Flags(), "");
  EXPECT_EQ(measurement_->Description(), "d");
  EXPECT_EQ(measurement_->value(), Variant(1));
  EXPECT_EQ(measurement_->Unit(), "V");
  EXPECT_EQ(measurement_->Status(), 1);
}

TEST_F(CKELDMeasurementTest, MalformedStatusKeepsTheStatus) {
  measurement_->SetStatus(2);
  Load("<Measurement><Status>passed</Status><Unit>V</Unit></Measurement>");
  EXPECT_EQ(measurement_->Status(), 2);
  EXPECT_EQ(measurement_->Unit(), "V");
}

TEST_F(CKELDMeasurementTest, EmptyNodeChangesNothing) {
  measurement_->AddValue(1, "V", "O", "");
  measurement_->Load(nullptr);
  EXPECT_EQ(measurement_->Flags(), "O");
  EXPECT_EQ(measurement_->Save(nullptr), nullptr);
}

TEST_F(CKELDMeasurementTest, FailsExceededLimits) {
  const auto limits = keld::results::CKELDLimitData::Create();
  limits->AddStandard(Standard("", "200"));
  const auto standards = New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  standards->Add(Standard("", ""));  // selected by its name
  measurement_->AddValue(200.0, "mOhm", "", "");
  EXPECT_FALSE(measurement_->FailsLimits(limits, standards));
  measurement_->AddValue(1.0, "mOhm", "", "");
  EXPECT_TRUE(measurement_->FailsLimits(limits, standards));
}

TEST_F(CKELDMeasurementTest, WithoutLimitsOrStandardsNothingFails) {
  const auto limits = keld::results::CKELDLimitData::Create();
  const auto standards = New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  measurement_->AddValue(1e9, "mOhm", "", "");
  EXPECT_FALSE(measurement_->FailsLimits(limits, standards));
  EXPECT_FALSE(measurement_->FailsLimits(nullptr, standards));
  EXPECT_FALSE(measurement_->FailsLimits(limits, nullptr));
}

/// A collection of standards that breaks off.
class BrokenStandards final : public orvik::IStandardColl {
 private:
  [[noreturn]] static void Fail() { throw orvik::HostError(5, "test", "broken"); }
  std::int32_t IStandardColl_Count() const override { Fail(); }
  std::shared_ptr<orvik::IStandard> IStandardColl_item(std::int32_t) const override { Fail(); }
  void IStandardColl_Add(std::shared_ptr<orvik::IStandard>) override { Fail(); }
  void IStandardColl_Remove(std::shared_ptr<orvik::IStandard>) override { Fail(); }
  std::shared_ptr<orvik::IStandard> IStandardColl_Find(const std::string&,
                                                       const std::string&) const override {
    Fail();
  }
  std::shared_ptr<orvik::IStandardColl> IStandardColl_Clone() const override { Fail(); }
  void IStandardColl_Load(std::shared_ptr<orvik::IXmlNode>, std::shared_ptr<orvik::IObject>) override {
    Fail();
  }
  std::shared_ptr<orvik::IXmlNode> IStandardColl_Save(std::shared_ptr<orvik::IXmlNode>) const override {
    Fail();
  }
  void IStandardColl_Print(std::shared_ptr<orvik::IReport>, std::shared_ptr<orvik::IObject>,
                           const std::vector<std::string>&) const override {
    Fail();
  }
};

TEST_F(CKELDMeasurementTest, JudgementWithAnErrorCountsAsFailed) {
  const auto limits = keld::results::CKELDLimitData::Create();
  limits->AddStandard(Standard("", "200"));
  measurement_->AddValue(1.0, "mOhm", "", "");
  EXPECT_TRUE(measurement_->FailsLimits(limits, std::make_shared<BrokenStandards>()));
}

}  // namespace
}  // namespace instrument_test
