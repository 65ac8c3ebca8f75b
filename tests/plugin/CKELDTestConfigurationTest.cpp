#include <gtest/gtest.h>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/ITreeView.h"
#include "plugin/CKELDTestConfiguration.h"
#include "plugin/FElementSetup.h"
#include "plugin/XKELDSeqConfiguration.h"
#include "plugin/XKELDTestConfiguration.h"
#include "tests/plugin/Recorders.h"
#include "tests/support/HostOnly.h"

namespace {

using keld::CKELDTestConfiguration;
using orvik::As;

class TestConfiguration : public testing::Test {
 protected:
  std::shared_ptr<orvik::IXmlNode> Node(const std::string& xml) {
    document_ =
        keld::MKELDGlobalVars::CreateHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    EXPECT_TRUE(document_->LoadFromString(xml)) << document_->LastError();
    return document_->Root();
  }

  template <class Element>
  std::shared_ptr<CKELDTestConfiguration> Owned(std::int32_t testId) {
    const auto element = Element::Create();
    As<orvik::ITestElement>(element)->Initialize("KELD(IN)", 1, testId);
    owner_ = element;
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetOwner(owner_);
    return configuration;
  }

  std::shared_ptr<orvik::platform::IContainerSite> Site(const std::shared_ptr<orvik::IDialog>& dialog) {
    const auto form = As<orvik::IDialogForm>(dialog)->Form();
    return As<orvik::platform::IContainerSite>(form->Find("isc"));
  }

  std::shared_ptr<orvik::platform::ITreeView> Tree(const std::shared_ptr<orvik::IDialog>& dialog) {
    return As<orvik::platform::ITreeView>(Site(dialog)->Panel()->Find("tvwSettings"));
  }

  std::vector<std::string> Printed(const CKELDTestConfiguration& configuration) {
    const auto report = std::make_shared<recorders::Report>();
    configuration.PrintReport(report);
    return report->calls;
  }

  support::HostOnly bench_;
  std::shared_ptr<orvik::ITestElement> owner_;
  std::shared_ptr<orvik::IXmlDocument> document_;
};

TEST_F(TestConfiguration, IsCreatedWithBothButtonsNoLeadAndNoValues) {
  const auto configuration = CKELDTestConfiguration::Create();
  EXPECT_EQ(configuration->Options(), 3);
  EXPECT_EQ(configuration->ValueFilter(), 1);
  EXPECT_EQ(configuration->Owner(), nullptr);
  EXPECT_TRUE(configuration->HasDialog());
  EXPECT_EQ(configuration->ClassID(), "orvikKELD.CKELDTestConfiguration");
}

TEST_F(TestConfiguration, ClonesOptionsAndFilterWithoutTheOwner) {
  const auto configuration = Owned<keld::CKELDTestElement>(910);
  configuration->SetOptions(0x1234);
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
  const auto configuration = Owned<keld::CKELDTestElement>(910);
  EXPECT_EQ(configuration->Owner(), owner_);
  EXPECT_EQ(configuration->OwnerTestID(), 910);
  owner_.reset();
  EXPECT_EQ(configuration->Owner(), nullptr);
  EXPECT_EQ(configuration->OwnerTestID(), 0);
}

TEST_F(TestConfiguration, TakesTheOwnersIdentifierAsA16BitInteger) {
  EXPECT_EQ(Owned<keld::CKELDTestElement>(65536 + 910)->OwnerTestID(), 910);
  EXPECT_EQ(Owned<keld::CKELDTestElement>(40001)->OwnerTestID(), 40001 - 65536);
}

TEST_F(TestConfiguration, SavesANewOneAsOptions3AndNoValues) {
  const auto record = Node("<Configuration/>");
  CKELDTestConfiguration::Create()->Save(record);
  const auto saved = record->FindChild("PlugInData")->FindChild("KELDConfig");
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Attribute("Options"), "3");
  EXPECT_EQ(saved->Attribute("ValueFilter"), "No values");
}

TEST_F(TestConfiguration, SavesEveryFilterByItsName) {
  const auto record = Node("<Configuration/>");
  const auto configuration = CKELDTestConfiguration::Create();
  const std::vector<std::string> names = {"", "No values", "All values", "Maximum value", "Minimum value",
                                          ""};
  for (std::int32_t code = 0; code <= 5; ++code) {
    configuration->SetValueFilter(code);
    configuration->Save(record);
    EXPECT_EQ(record->FindChild("PlugInData")->FindChild("KELDConfig")->Attribute("ValueFilter"),
              names[code]);
  }
}

TEST_F(TestConfiguration, SavesIntoThePlugInDataThatIsThereAndReplacesAnOlderOne) {
  const auto record = Node(
      "<Configuration><Other/><PlugInData><Kept/><KELDConfig Options=\"9\" ValueFilter=\"All "
      "values\"/></PlugInData>"
      "</Configuration>");
  const auto configuration = CKELDTestConfiguration::Create();
  configuration->SetOptions(-5);
  configuration->Save(record);
  configuration->Save(record);
  EXPECT_EQ(record->ChildCount(), 2);
  const auto data = record->FindChild("PlugInData");
  EXPECT_EQ(data->ChildCount(), 2);
  EXPECT_TRUE(data->FindChild("Kept"));
  EXPECT_EQ(data->FindChild("KELDConfig")->Attribute("Options"), "-5");
}

TEST_F(TestConfiguration, SavesDirectlyIntoAPlugInDataNode) {
  const auto data = Node("<PlugInData/>");
  CKELDTestConfiguration::Create()->Save(data);
  EXPECT_TRUE(data->FindChild("KELDConfig"));
  EXPECT_FALSE(data->FindChild("PlugInData"));
}

TEST_F(TestConfiguration, LoadsWhatItSaved) {
  for (const char* xml : {"<Configuration/>", "<PlugInData/>"}) {
    const auto record = Node(xml);
    const auto saved = CKELDTestConfiguration::Create();
    saved->SetOptions(4 | 4096);
    saved->SetValueFilter(3);
    saved->Save(record);
    const auto loaded = CKELDTestConfiguration::Create();
    loaded->Load(record);
    EXPECT_EQ(loaded->Options(), 4100) << xml;
    EXPECT_EQ(loaded->ValueFilter(), 3) << xml;
  }
}

TEST_F(TestConfiguration, LoadsEveryFilterNameAndGivesOthersCode0) {
  const std::vector<std::pair<std::string, std::int32_t>> rows = {{"No values", 1},     {"All values", 2},
                                                                  {"Maximum value", 3}, {"Minimum value", 4},
                                                                  {"Mean value", 0},    {"", 0}};
  for (const auto& [name, code] : rows) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetValueFilter(2);
    configuration->Load(
        Node("<PlugInData><KELDConfig Options=\"1\" ValueFilter=\"" + name + "\"/></PlugInData>"));
    EXPECT_EQ(configuration->ValueFilter(), code) << name;
    EXPECT_EQ(configuration->Options(), 1);
  }
}

TEST_F(TestConfiguration, LeavesTheOptionsAsTheyWereWhenTheirTextIsMalformed) {
  for (const char* text : {"", "abc", "12abc", "1 2", "0x10", "2147483648", "-2147483649",
                           "99999999999999999999", "1.5", "--1", "+"}) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetOptions(77);
    configuration->Load(Node("<PlugInData><KELDConfig Options=\"" + std::string(text) +
                             "\" ValueFilter=\"All values\"/></PlugInData>"));
    EXPECT_EQ(configuration->Options(), 77) << text;
    EXPECT_EQ(configuration->ValueFilter(), 2) << text;
  }
}

TEST_F(TestConfiguration, LoadsAnyWhole32BitNumber) {
  const std::vector<std::pair<std::string, std::int32_t>> rows = {
      {"0", 0}, {"8191", 8191}, {" 4 ", 4}, {"-1", -1}, {"2147483647", 2147483647}, {"007", 7}};
  for (const auto& [text, value] : rows) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->Load(Node("<PlugInData><KELDConfig Options=\"" + text + "\"/></PlugInData>"));
    EXPECT_EQ(configuration->Options(), value) << text;
  }
}

TEST_F(TestConfiguration, TakesAFilterWithoutANameForAnUnknownOne) {
  for (const char* xml : {"<PlugInData><KELDConfig/></PlugInData>",
                          "<PlugInData><KELDConfig ValueFilter=\"\"/></PlugInData>"}) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetOptions(77);
    configuration->SetValueFilter(3);
    configuration->Load(Node(xml));
    EXPECT_EQ(configuration->Options(), 77) << xml;
    EXPECT_EQ(configuration->ValueFilter(), 0) << xml;
  }
}

TEST_F(TestConfiguration, LeavesEverythingAsItWasWithoutARecord) {
  for (const char* xml : {"<Configuration/>", "<Configuration><PlugInData/></Configuration>",
                          "<Configuration><keldconfig Options=\"1\" ValueFilter=\"x\"/></Configuration>"}) {
    const auto configuration = CKELDTestConfiguration::Create();
    configuration->SetOptions(77);
    configuration->SetValueFilter(3);
    configuration->Load(Node(xml));
    EXPECT_EQ(configuration->Options(), 77) << xml;
    EXPECT_EQ(configuration->ValueFilter(), 3) << xml;
  }
}

TEST_F(TestConfiguration, RaisesNothingWithoutANode) {
  const auto configuration = CKELDTestConfiguration::Create();
  EXPECT_NO_THROW(configuration->Load(nullptr));
  EXPECT_NO_THROW(configuration->Save(nullptr));
  EXPECT_NO_THROW(configuration->PrintReport(nullptr));
  EXPECT_EQ(configuration->Options(), 3);
}

TEST_F(TestConfiguration, PrintsHeadingAndLeadLineInTheReportMarkup) {
  const auto configuration = Owned<keld::CKELDTestElement>(910);
  configuration->SetOptions(4 + 16);
  const std::vector<std::string> expected = {"border 0",
                                             "indent 0",
                                             "rows 1",
                                             "<560|<9078;",
                                             "|{\\i\\b [Configuration:]};",
                                             "|[Lead number 1 tested.]      ;"};
  EXPECT_EQ(Printed(*configuration), expected);
}

TEST_F(TestConfiguration, PrintsByTheOwnersIdentifier) {
  for (const std::int32_t options : {0, 3, 4, 4096}) {
    const auto some = Owned<keld::CKELDTestElement>(1220);
    some->SetOptions(options);
    EXPECT_EQ(Printed(*some).back(), "|[Some leads tested.]      ;");
    for (const std::int32_t id : {1210, 1230, 1240}) {
      const auto all = Owned<keld::CKELDTestElement>(id);
      all->SetOptions(options);
      EXPECT_EQ(Printed(*all).back(), "|[All leads tested.]      ;") << id;
    }
  }
}

TEST_F(TestConfiguration, PrintsThatNoLeadWasTestedWithoutOwnerToo) {
  EXPECT_EQ(Printed(*CKELDTestConfiguration::Create()).back(), "|[No leads tested.]      ;");
}

TEST_F(TestConfiguration, PrintsOnAReportThatDoesNotTellItsWidth) {
  const auto report = std::make_shared<recorders::Report>();
  report->knowsMetrics = false;
  CKELDTestConfiguration::Create()->PrintReport(report);
  ASSERT_EQ(report->calls.size(), 6U);
  EXPECT_EQ(report->calls[3], "<560|<9078;");
}

TEST_F(TestConfiguration, RaisesNothingOnAReportThatFails) {
  const auto report = std::make_shared<recorders::Report>();
  report->fails = true;
  EXPECT_NO_THROW(CKELDTestConfiguration::Create()->PrintReport(report));
  const std::vector<std::string> everyStep = {"border 0", "indent 0", "rows 1"};
  ASSERT_GE(report->calls.size(), 3U);
  EXPECT_EQ((std::vector<std::string>{report->calls.begin(), report->calls.begin() + 3}), everyStep);
}

TEST_F(TestConfiguration, PrintsOnAReportNarrowerThanItsMargin) {
  const auto report = std::make_shared<recorders::Report>();
  report->width = 100;
  CKELDTestConfiguration::Create()->PrintReport(report);
  ASSERT_EQ(report->calls.size(), 6U);
  EXPECT_EQ(report->calls[3], "<560|<0;");
}

TEST_F(TestConfiguration, PrintsItsLinesOnTheHostsReport) {
  const auto configuration = Owned<keld::CKELDTestElement>(1110);
  configuration->SetOptions(2048);
  const auto report = std::make_shared<bench::ReportObject>();
  configuration->PrintReport(report);
  ASSERT_EQ(report->Tables().size(), 1U);
  const auto& table = report->Tables().front();
  ASSERT_EQ(table.header.size(), 1U);
  ASSERT_EQ(table.header[0].size(), 2U);
  using Cell = bench::report::Cell;
  EXPECT_EQ(table.header[0][1], (Cell{{.text = "Configuration:", .bold = true, .italic = true}}));
  ASSERT_EQ(table.rows.size(), 1U);
  ASSERT_EQ(table.rows[0].size(), 2U);
  EXPECT_EQ(bench::report::PlainText(table.rows[0][0]), "") << "the margin";
  EXPECT_EQ(bench::report::PlainText(table.rows[0][1]), "Lead number 10 tested.      ");
}

TEST_F(TestConfiguration, EditsASingleTestInTheTestControl) {
  const auto configuration = Owned<keld::CKELDTestElement>(410);
  const auto dialog = configuration->CreateDialog();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(dialog->ClassID(), "orvikKELD.FElementSetup");
  ASSERT_TRUE(Site(dialog));
  EXPECT_TRUE(As<keld::XKELDTestConfiguration>(Site(dialog)->Object()));
  EXPECT_FALSE(Site(dialog)->Panel()->Find("cmbAssign"));
}

TEST_F(TestConfiguration, EditsASequenceInTheSequenceControl) {
  const auto dialog = Owned<keld::CKELDSequence>(600)->CreateDialog();
  ASSERT_TRUE(Site(dialog));
  EXPECT_TRUE(As<keld::XKELDSeqConfiguration>(Site(dialog)->Object()));
}

TEST_F(TestConfiguration, EditsOneWithoutOwnerInTheTestControlWithTheTwoButtons) {
  const auto dialog = CKELDTestConfiguration::Create()->CreateDialog();
  ASSERT_TRUE(Site(dialog));
  EXPECT_TRUE(As<keld::XKELDTestConfiguration>(Site(dialog)->Object()));
  EXPECT_EQ(Tree(dialog)->NodeKeys(), (std::vector<std::string>{"NA key", "Skip key"}));
}

TEST_F(TestConfiguration, ShowsTheNodesOfTheOwnersIdentifier) {
  const std::vector<std::pair<std::int32_t, std::size_t>> rows = {
      {410, 2},   {909, 2},   {910, 13}, {965, 13}, {966, 2},         {1109, 2},
      {1110, 12}, {1165, 12}, {1166, 2}, {1210, 2}, {65536 + 910, 13}};
  for (const auto& [id, count] : rows) {
    const auto tree = Tree(Owned<keld::CKELDTestElement>(id)->CreateDialog());
    const auto keys = tree->NodeKeys();
    EXPECT_EQ(keys.size(), count) << id;
    EXPECT_EQ(tree->HasNode("Lead 10 key"), count > 2) << id;
    EXPECT_EQ(tree->HasNode("All leads key"), count == 13) << id;
  }
}

TEST_F(TestConfiguration, ShowsTranslatedCaptionsAndChecksTheNodesWhoseBitsAreSet) {
  const auto configuration = Owned<keld::CKELDTestElement>(965);
  configuration->SetOptions(2 | 4096);
  const auto dialog = configuration->CreateDialog();
  const auto tree = Tree(dialog);
  EXPECT_EQ(tree->NodeCaption("NA key"), "Enable NA button in test guide");
  EXPECT_EQ(tree->NodeCaption("Skip key"), "Enable skip button in test guide");
  EXPECT_EQ(tree->NodeCaption("Lead 10 key"), "Lead 10");
  EXPECT_EQ(tree->NodeCaption("All leads key"), "All Leads");
  for (const auto& key : tree->NodeKeys()) {
    EXPECT_EQ(tree->Checked(key), key == "Skip key" || key == "All leads key") << key;
  }
}

TEST_F(TestConfiguration, TranslatesEveryTextForTheModuleKELD) {
  bench_.Host().Register(orvik::HostClasses::kLanguageService,
                         [] { return std::make_shared<recorders::LanguageService>(); });
  const auto configuration = Owned<keld::CKELDTestElement>(910);
  const auto printed = Printed(*configuration);
  EXPECT_EQ(printed[4], "|{\\i\\b [KELD 20900]};");
  EXPECT_EQ(printed[5], "|[KELD 20914]      ;");
  const auto dialog = configuration->CreateDialog();
  std::vector<std::string> captions;
  for (const auto& key : Tree(dialog)->NodeKeys()) captions.push_back(Tree(dialog)->NodeCaption(key));
  std::vector<std::string> expected = {"KELD 20784", "KELD 20773"};
  for (int lead = 20774; lead <= 20783; ++lead) expected.push_back("KELD " + std::to_string(lead));
  expected.push_back("KELD 20785");
  EXPECT_EQ(captions, expected);
}

TEST_F(TestConfiguration, GivesADialogEvenWhenItsControlCannotBeMade) {
  bench_.Host().Register("orvikKELD.XKELDSeqConfiguration", [] { return std::shared_ptr<orvik::IObject>(); });
  const auto configuration = Owned<keld::CKELDSequence>(600);
  configuration->SetValueFilter(4);
  std::shared_ptr<orvik::IDialog> dialog;
  EXPECT_NO_THROW(dialog = configuration->CreateDialog());
  ASSERT_TRUE(dialog);
  EXPECT_NO_THROW(dialog->Refresh());
  EXPECT_EQ(configuration->ValueFilter(), 4);
}

TEST_F(TestConfiguration, SelectsTheValueFilterInTheSequencesList) {
  const std::vector<std::pair<std::int32_t, int>> rows = {{1, 0}, {2, 1}, {3, 2}, {4, 3},
                                                          {0, 0}, {5, 0}, {-1, 0}};
  for (const auto& [code, index] : rows) {
    const auto configuration = Owned<keld::CKELDSequence>(600);
    configuration->SetValueFilter(code);
    const auto dialog = configuration->CreateDialog();
    const auto list = As<orvik::platform::IComboBox>(Site(dialog)->Panel()->Find("cmbAssign"));
    EXPECT_EQ(list->SelectedIndex(), index) << code;
    EXPECT_EQ(configuration->ValueFilter(), index + 1) << "what the list shows is what is kept";
  }
}

TEST_F(TestConfiguration, LeavesItsOptionsAloneWhenTheDialogIsOpened) {
  for (const std::int32_t options : {0, 3, 4 + 16, 4096, 8191, -1}) {
    const auto configuration = Owned<keld::CKELDTestElement>(910);
    configuration->SetOptions(options);
    const auto dialog = configuration->CreateDialog();
    EXPECT_EQ(configuration->Options(), options);
  }
}

TEST_F(TestConfiguration, OutlivesAndIsOutlivedByItsDialog) {
  auto configuration = Owned<keld::CKELDTestElement>(910);
  auto dialog = configuration->CreateDialog();
  const std::weak_ptr<CKELDTestConfiguration> watched = configuration;
  configuration.reset();
  EXPECT_FALSE(watched.expired()) << "the control edits it";
  As<orvik::IDialogForm>(dialog)->Form()->Show();
  Tree(dialog)->ClickNode("NA key");
  EXPECT_EQ(watched.lock()->Options(), 2);
  dialog.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(bench_.Application().Forms().empty());
}

}  // namespace
