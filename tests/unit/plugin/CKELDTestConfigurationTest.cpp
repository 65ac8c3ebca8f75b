#include <gtest/gtest.h>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "plugin/configuration/XKELDSeqConfiguration.h"
#include "plugin/configuration/XKELDTestConfiguration.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/ConfigurationDialog.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

using keld::configuration::CKELDTestConfiguration;
using orvik::As;
using Texts = std::vector<std::string>;
using TestDialog = support::ConfigurationDialog<keld::model::CKELDTestElement>;
using SequenceDialog = support::ConfigurationDialog<keld::model::CKELDSequence>;

class TestConfiguration : public testing::Test {
 protected:
  std::shared_ptr<orvik::IXmlNode> Node(const std::string& xml) {
    document_ =
        keld::MKELDGlobalVars::CreateHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    EXPECT_TRUE(document_->LoadFromString(xml)) << document_->LastError();
    return document_->Root();
  }
  static std::shared_ptr<CKELDTestConfiguration> With(std::int32_t options, std::int32_t filter = 1) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetOptions(options);
    configuration->SetValueFilter(filter);
    return configuration;
  }
  std::shared_ptr<CKELDTestConfiguration> Owned(std::int32_t testId, std::int32_t options = 3) {
    owner_ = keld::model::CKELDTestElement::Create();
    owner_->Initialize("KELD(IN)", 1, testId);
    const auto configuration = With(options);
    configuration->SetOwner(owner_);
    return configuration;
  }
  /// What it prints on a report of that width, -1: unknown.
  static Texts Printed(const CKELDTestConfiguration& configuration, std::int32_t width = 9638) {
    const auto report = std::make_shared<recorders::Report>();
    report->knowsMetrics = width >= 0;
    report->width = width;
    configuration.PrintReport(report);
    return report->calls;
  }

  support::HostOnly bench_;
  std::shared_ptr<orvik::ITestElement> owner_;
  std::shared_ptr<orvik::IXmlDocument> document_;
};

TEST_F(TestConfiguration, StartsWithBothButtonsNoLeadAndNoValues) {
  const auto configuration = CKELDTestConfiguration::Create();
  EXPECT_EQ(configuration->Options(), 3);
  EXPECT_EQ(configuration->ValueFilter(), 1);
  EXPECT_EQ(configuration->Owner(), nullptr);
  EXPECT_TRUE(configuration->HasDialog());
  EXPECT_EQ(configuration->ClassID(), "orvikKELD.CKELDTestConfiguration");
}

TEST_F(TestConfiguration, IsClonedWithoutItsOwner) {
  const auto configuration = Owned(910, 0x1234);
  configuration->SetValueFilter(4);
  const auto clone = As<CKELDTestConfiguration>(configuration->Clone());
  ASSERT_TRUE(clone);
  EXPECT_NE(clone, configuration);
  EXPECT_EQ(clone->Options(), 0x1234);
  EXPECT_EQ(clone->ValueFilter(), 4);
  EXPECT_EQ(clone->Owner(), nullptr);
  clone->SetOptions(0);
  EXPECT_EQ(configuration->Options(), 0x1234);
}

TEST_F(TestConfiguration, DoesNotKeepItsOwnerAlive) {
  const auto configuration = Owned(910);
  EXPECT_EQ(configuration->Owner(), owner_);
  EXPECT_EQ(configuration->OwnerTestID(), 910);
  owner_.reset();
  EXPECT_EQ(configuration->Owner(), nullptr);
  EXPECT_EQ(configuration->OwnerTestID(), 0);
}

TEST_F(TestConfiguration, NarrowsTheOwnersIdentifierTo16Bits) {
  EXPECT_EQ(Owned(65536 + 910)->OwnerTestID(), 910);
  EXPECT_EQ(Owned(40001)->OwnerTestID(), 40001 - 65536);
}

// --- load and save ---

TEST_F(TestConfiguration, SavesEveryFilterByItsName) {
  const auto record = Node("<Configuration/>");
  const Texts names = {"", "No values", "All values", "Maximum value", "Minimum value", ""};
  for (std::int32_t code = 0; code <= 5; ++code) {
    With(3, code)->Save(record);
    const auto saved = record->FindChild("PlugInData")->FindChild("KELDConfig");
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->Attribute("ValueFilter"), names[code]);
    EXPECT_EQ(saved->Attribute("Options"), "3");
  }
}

TEST_F(TestConfiguration, ReusesTheSavedPlugInData) {
  const auto record = Node(
      "<Configuration><Other/><PlugInData><Kept/><KELDConfig Options=\"9\" ValueFilter=\"All "
      "values\"/></PlugInData></Configuration>");
  With(-5)->Save(record);
  With(-5)->Save(record);
  EXPECT_EQ(record->ChildCount(), 2);
  const auto data = record->FindChild("PlugInData");
  EXPECT_EQ(data->ChildCount(), 2);
  EXPECT_TRUE(data->FindChild("Kept"));
  EXPECT_EQ(data->FindChild("KELDConfig")->Attribute("Options"), "-5");
}

TEST_F(TestConfiguration, SavesIntoAPlugInDataNode) {
  const auto data = Node("<PlugInData/>");
  With(3)->Save(data);
  EXPECT_TRUE(data->FindChild("KELDConfig"));
  EXPECT_FALSE(data->FindChild("PlugInData"));
}

TEST_F(TestConfiguration, LoadsWhatItSaved) {
  for (const char* xml : {"<Configuration/>", "<PlugInData/>"}) {
    const auto record = Node(xml);
    With(4 | 4096, 3)->Save(record);
    const auto loaded = CKELDTestConfiguration::Create();
    loaded->Load(record);
    EXPECT_EQ(loaded->Options(), 4100) << xml;
    EXPECT_EQ(loaded->ValueFilter(), 3) << xml;
  }
}

TEST_F(TestConfiguration, LoadsOptionsAndFilter) {
  struct Row {
    std::string attributes;
    std::int32_t options;
    std::int32_t filter;
  };
  std::vector<Row> rows = {{"", 77, 0},
                           {"ValueFilter=''", 77, 0},
                           {"Options='1' ValueFilter='No values'", 1, 1},
                           {"Options='1' ValueFilter='All values'", 1, 2},
                           {"Options='1' ValueFilter='Maximum value'", 1, 3},
                           {"Options='1' ValueFilter='Minimum value'", 1, 4},
                           {"Options='1' ValueFilter='Mean value'", 1, 0},
                           {"Options='1' ValueFilter=''", 1, 0}};
  for (const auto& [text, value] : std::vector<std::pair<std::string, std::int32_t>>{
           {"0", 0}, {"8191", 8191}, {" 4 ", 4}, {"-1", -1}, {"2147483647", 2147483647}, {"007", 7}})
    rows.push_back({"Options='" + text + "'", value, 0});
  // Malformed options do not change the value.
  for (const std::string text : {"", "abc", "12abc", "1 2", "0x10", "2147483648", "-2147483649",
                                 "99999999999999999999", "1.5", "--1", "+"})
    rows.push_back({"Options='" + text + "' ValueFilter='All values'", 77, 2});
  for (const Row& row : rows) {
    const auto configuration = With(77, 3);
    configuration->Load(Node("<PlugInData><KELDConfig " + row.attributes + "/></PlugInData>"));
    EXPECT_EQ(configuration->Options(), row.options) << row.attributes;
    EXPECT_EQ(configuration->ValueFilter(), row.filter) << row.attributes;
  }
}

TEST_F(TestConfiguration, DoesNotChangeWithoutASavedRecord) {
  for (const char* xml : {"<Configuration/>", "<Configuration><PlugInData/></Configuration>",
                          "<Configuration><keldconfig Options='1' ValueFilter='x'/></Configuration>"}) {
    const auto configuration = With(77, 3);
    configuration->Load(Node(xml));
    EXPECT_EQ(configuration->Options(), 77) << xml;
    EXPECT_EQ(configuration->ValueFilter(), 3) << xml;
  }
}

TEST_F(TestConfiguration, RaisesNothingWithoutANode) {
  const auto configuration = CKELDTestConfiguration::Create();
  configuration->Load(nullptr);
  configuration->Save(nullptr);
  configuration->PrintReport(nullptr);
  EXPECT_EQ(configuration->Options(), 3);
}

// --- report ---

TEST_F(TestConfiguration, PrintsHeadingAndFirstLead) {
  EXPECT_EQ(Printed(*Owned(910, 4 + 16)),
            (Texts{"border 0", "indent 0", "rows 1", "<560|<9078;", "|{\\i\\b [Configuration:]};",
                   "|[Lead number 1 tested.]      ;"}));
}

TEST_F(TestConfiguration, PrintsTheLeadsOfItsOwnersTest) {
  EXPECT_EQ(Printed(*CKELDTestConfiguration::Create()).back(), "|[No leads tested.]      ;");
  for (const std::int32_t options : {0, 3, 4, 4096}) {
    EXPECT_EQ(Printed(*Owned(1220, options)).back(), "|[Some leads tested.]      ;");
    for (const std::int32_t id : {1210, 1230, 1240})
      EXPECT_EQ(Printed(*Owned(id, options)).back(), "|[All leads tested.]      ;") << id;
  }
}

TEST_F(TestConfiguration, PrintsForAnyReportWidth) {
  for (const auto& [width, format] : {std::pair{-1, "<560|<9078;"}, {100, "<560|<0;"}}) {
    const auto calls = Printed(*CKELDTestConfiguration::Create(), width);
    ASSERT_EQ(calls.size(), 6U) << width;
    EXPECT_EQ(calls[3], format);
  }
}

TEST_F(TestConfiguration, TriesEveryStepOnAFailingReport) {
  const auto report = std::make_shared<recorders::Report>();
  report->fails = true;
  CKELDTestConfiguration::Create()->PrintReport(report);
  ASSERT_GE(report->calls.size(), 3U);
  EXPECT_EQ((Texts{report->calls.begin(), report->calls.begin() + 3}),
            (Texts{"border 0", "indent 0", "rows 1"}));
}

TEST_F(TestConfiguration, PrintsATableOnTheHostsReport) {
  const auto report = std::make_shared<host::report::ReportObject>();
  Owned(1110, 2048)->PrintReport(report);
  ASSERT_EQ(report->Tables().size(), 1U);
  const auto& table = report->Tables().front();
  ASSERT_EQ(table.header.size(), 1U);
  ASSERT_EQ(table.header[0].size(), 2U);
  using Cell = host::report::Cell;
  EXPECT_EQ(table.header[0][1], (Cell{{.text = "Configuration:", .bold = true, .italic = true}}));
  ASSERT_EQ(table.rows.size(), 1U);
  ASSERT_EQ(table.rows[0].size(), 2U);
  EXPECT_EQ(host::report::PlainText(table.rows[0][0]), "") << "the margin";
  EXPECT_EQ(host::report::PlainText(table.rows[0][1]), "Lead number 10 tested.      ");
}

// --- dialog ---

TEST_F(TestConfiguration, EditsEachClassInItsControl) {
  TestDialog test(410);
  EXPECT_EQ(test.dialog->ClassID(), "orvikKELD.FElementSetup");
  EXPECT_TRUE(As<keld::configuration::XKELDTestConfiguration>(test.site->Object()));
  EXPECT_FALSE(test.list);
  SequenceDialog sequence(600);
  EXPECT_TRUE(As<keld::configuration::XKELDSeqConfiguration>(sequence.site->Object()));
  test.configuration->SetOwner(nullptr);
  test.Open();
  EXPECT_TRUE(As<keld::configuration::XKELDTestConfiguration>(test.site->Object()));
  EXPECT_EQ(test.tree->NodeKeys(), (Texts{"NA key", "Skip key"}));
}

TEST_F(TestConfiguration, ShowsTheOptionsOfTheOwnersTest) {
  const std::vector<std::pair<std::int32_t, std::size_t>> rows = {
      {410, 2},   {909, 2},   {910, 13}, {965, 13}, {966, 2},         {1109, 2},
      {1110, 12}, {1165, 12}, {1166, 2}, {1210, 2}, {65536 + 910, 13}};
  for (const auto& [id, count] : rows) {
    TestDialog open(id);
    EXPECT_EQ(open.tree->NodeKeys().size(), count) << id;
    EXPECT_EQ(open.tree->HasNode("Lead 10 key"), count > 2) << id;
    EXPECT_EQ(open.tree->HasNode("All leads key"), count == 13) << id;
  }
}

TEST_F(TestConfiguration, ShowsCaptionsAndChecksTheSetOptions) {
  TestDialog open(965, 2 | 4096);
  EXPECT_EQ(open.tree->NodeCaption("NA key"), "Enable NA button in test guide");
  EXPECT_EQ(open.tree->NodeCaption("Skip key"), "Enable skip button in test guide");
  EXPECT_EQ(open.tree->NodeCaption("Lead 10 key"), "Lead 10");
  EXPECT_EQ(open.tree->NodeCaption("All leads key"), "All Leads");
  for (const auto& key : open.tree->NodeKeys())
    EXPECT_EQ(open.tree->Checked(key), key == "Skip key" || key == "All leads key") << key;
}

TEST_F(TestConfiguration, TranslatesEveryTextForItsModule) {
  bench_.Host().Register(orvik::HostClasses::kLanguageService,
                         [] { return std::make_shared<recorders::LanguageService>(); });
  TestDialog open(910);
  const auto printed = Printed(*open.configuration);
  EXPECT_EQ(printed[4], "|{\\i\\b [KELD 20900]};");
  EXPECT_EQ(printed[5], "|[KELD 20914]      ;");
  Texts captions;
  for (const auto& key : open.tree->NodeKeys()) captions.push_back(open.tree->NodeCaption(key));
  Texts expected = {"KELD 20784", "KELD 20773"};
  for (int lead = 20774; lead <= 20783; ++lead) expected.push_back("KELD " + std::to_string(lead));
  expected.push_back("KELD 20785");
  EXPECT_EQ(captions, expected);
}

TEST_F(TestConfiguration, OpensADialogWithoutItsControl) {
  bench_.Host().Register("orvikKELD.XKELDSeqConfiguration", [] { return nullptr; });
  const auto sequence = keld::model::CKELDSequence::Create();
  const auto configuration = With(3, 4);
  configuration->SetOwner(sequence);
  const auto dialog = configuration->CreateDialog();
  ASSERT_TRUE(dialog);
  dialog->Refresh();
  EXPECT_EQ(configuration->ValueFilter(), 4);
}

TEST_F(TestConfiguration, SelectsTheValueFilterInTheList) {
  const std::vector<std::pair<std::int32_t, int>> rows = {{1, 0}, {2, 1}, {3, 2}, {4, 3},
                                                          {0, 0}, {5, 0}, {-1, 0}};
  for (const auto& [code, index] : rows) {
    SequenceDialog open(600, 3, code);
    EXPECT_EQ(open.list->SelectedIndex(), index) << code;
    EXPECT_EQ(open.configuration->ValueFilter(), index + 1) << "the selection replaces the code";
  }
}

TEST_F(TestConfiguration, OpeningTheDialogDoesNotChangeTheOptions) {
  for (const std::int32_t options : {0, 3, 4 + 16, 4096, 8191, -1})
    EXPECT_EQ(TestDialog(910, options).configuration->Options(), options);
}

TEST_F(TestConfiguration, StaysAliveWhileItsDialogIsOpen) {
  TestDialog open(910);
  const std::weak_ptr<CKELDTestConfiguration> watched = std::exchange(open.configuration, nullptr);
  ASSERT_FALSE(watched.expired()) << "the control edits it";
  open.tree->ClickNode("NA key");
  EXPECT_EQ(watched.lock()->Options(), 2);
  open.control.reset();
  open.dialog.reset();
  EXPECT_TRUE(bench_.Application().Forms().empty());
  open.form.reset();
  open.site.reset();
  open.list.reset();
  open.tree.reset();
  open.element.reset();
  EXPECT_TRUE(watched.expired());
}

}  // namespace
