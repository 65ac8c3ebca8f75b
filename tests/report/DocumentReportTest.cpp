#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/app/report/DocumentReport.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/report/HtmlReport.h"
#include "host/report/TextReport.h"
#include "host/run/AutoOperator.h"
#include "host/run/DocumentRunner.h"
#include "host/run/RunMark.h"
#include "tests/support/VirtualBench.h"

namespace bench {
namespace {

using report::Standing;
using testing::HasSubstr;

/// A document that is run on the virtual bench; each reading is answered as the test says.
class DocumentReportTest : public testing::Test {
 protected:
  using Element = std::shared_ptr<orvik::ITestElement>;

  DocumentReportTest() {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    document_ = Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / "a.orvik");
  }

  ~DocumentReportTest() override {
    document_.reset();
    bench_.Host().Elements()->ReleasePlugIns();
  }

  Element Add(std::int32_t testId) { return document_->AddTest(testId); }

  void Limit(const Element& element, const std::string& low, const std::string& high,
             const std::string& name = "IEC 62353") {
    const auto limits = element->Limits();
    auto standard = limits->Standards() ? limits->Standards()->Find(name, "") : nullptr;
    if (!standard) standard = limits->CreateStandard(name, "");
    standard->Limit(1)->SetBounds(low, high);
    if (!document_->Standards()->Find(name, "")) document_->Standards()->Add(standard);
  }

  void Run(const std::vector<Element>& elements, const std::string& reading,
           const std::string& at = "2026-11-21T14:03:22+01:00", const std::string& by = "M. Holm") {
    auto& line = bench_.Line();
    line.AnswerBy([&line, reading](const std::string& command) {
      if (command == "IREM") return line.Reply("irem,KELD(IN),SIM-7,1");
      if (command == "EREM") return line.Reply("erem");
      if (command.substr(0, 4) == "STST") return line.Reply("stst" + command.substr(4));
      line.Reply("gres" + command.substr(4) + "," + reading);
    });
    StopRequest stop;
    DoubtTracker doubts{*bench_.Ports().TheWire()};
    LinkWatch link{bench_.Ports()};
    const auto controller = std::make_shared<RunController>(
        RunController::Parts{document_->Standards(), document_->Instruments(), *bench_.Host().Elements(),
                             doubts, [] {}, [at] { return at; }, by});
    AutoOperator person(bench_.Only().SharedApplication(), stop);
    DocumentRunner(controller, link, stop).Run(elements);
  }

  report::Report Report() { return ReportOf(*document_, bench_.Host()); }

  static std::string FactOf(const std::vector<report::Fact>& facts, const std::string& label) {
    for (const auto& fact : facts)
      if (fact.label == label) return fact.value;
    return "(none)";
  }

  support::VirtualBench bench_;
  std::shared_ptr<Document> document_;
};

TEST_F(DocumentReportTest, AllPassedIsToldAsSuch) {
  document_->equipment = {"VENT-1", "S-2", "Maker", "Model"};
  const auto element = Add(410);
  Limit(element, "", "300");
  Run({element}, "0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kPassed);
  EXPECT_EQ(report.verdict.word, "Passed");
  EXPECT_EQ(report.verdict.sentence, "1 of 1 passed");
  EXPECT_FALSE(report.partial);
  EXPECT_EQ(FactOf(report.facts, "Asset number"), "VENT-1");
  EXPECT_EQ(FactOf(report.facts, "Tested"), "2026-11-21 14:03");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "M. Holm");
  EXPECT_EQ(FactOf(report.facts, "Standards"), "IEC 62353");
  EXPECT_THAT(FactOf(report.facts, "Tester"), HasSubstr("SIM-7"));
  ASSERT_EQ(report.pageHeader.size(), 4U);
  EXPECT_EQ(report.created, "2026-11-21T14:03:22+01:00");
}

TEST_F(DocumentReportTest, WhoReadsPassedIsToldWhatHadNoLimit) {
  const auto limited = Add(410), free = Add(420);
  Limit(limited, "", "300");
  Run({limited, free}, "0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.sentence, "2 of 2 passed; 1 of them without a limit");
  EXPECT_EQ(report.overview[0].word, "passed");
  EXPECT_EQ(report.overview[0].standing, Standing::kPassed);
  EXPECT_TRUE(report.sections[0].notes.empty());
  // Without the tick that nobody gave it.
  EXPECT_EQ(report.overview[1].word, "passed, not judged");
  EXPECT_EQ(report.overview[1].standing, Standing::kNotApplicable);
  EXPECT_EQ(report.sections[1].word, report.overview[1].word);
  EXPECT_EQ(report.sections[1].notes.at(0).text, "no limits: recorded, not judged");
  EXPECT_FALSE(report.partial);
}

TEST_F(DocumentReportTest, WhatNothingJudgedHasNoGoodVerdict) {
  const auto first = Add(410), second = Add(420);
  Run({first, second}, "0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.word, "Passed, not judged");
  EXPECT_EQ(report.verdict.standing, Standing::kNotApplicable);
  EXPECT_EQ(report.verdict.sentence, "2 of 2 passed; 2 of them without a limit");
}

TEST_F(DocumentReportTest, CountsWhatFailedAndWhatIsOpen) {
  const auto failing = Add(410), passing = Add(420);
  Add(210);
  Limit(failing, "", "300");
  Run({failing, passing}, "1.85,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kFailed);
  EXPECT_EQ(report.verdict.sentence, "1 of 3 failed, 1 not tested, 1 passed");
  EXPECT_TRUE(report.partial) << "what failed may be half of the truth only";
  EXPECT_EQ(report.partialNotice, "Partial report: 1 of 3 not tested");
  EXPECT_EQ(report.sections[0].notes.at(0).text, "Fails IEC 62353");
}

TEST_F(DocumentReportTest, AnEmptyDocumentIsIncomplete) {
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_TRUE(report.partial);
  EXPECT_THAT(TextReport(report), HasSubstr("The document has no tests."));
}

TEST_F(DocumentReportTest, JudgementsSayWhereTheValueStands) {
  const auto element = Add(410);
  Limit(element, "", "123");
  Limit(element, "", "100", "Stricter");
  Limit(element, "50", "", "Other");
  Run({element}, "0.123,0,Ohm");
  const auto judgements = Report().sections.at(0).judgements;
  ASSERT_EQ(judgements.size(), 3U);
  EXPECT_EQ(judgements[0].standing, Standing::kPassed);
  EXPECT_EQ(judgements[0].inWords, "123 mOhm is on the upper bound, which is allowed: at most 123 mOhm");
  EXPECT_EQ(judgements[1].standing, Standing::kFailed);
  EXPECT_EQ(judgements[1].word, "broken");
  EXPECT_EQ(judgements[1].inWords, "123 mOhm is above the upper bound: at most 100 mOhm");
  EXPECT_EQ(judgements[2].bounds, "at least 50 mOhm");
  EXPECT_EQ(judgements[2].standing, Standing::kPassed);
}

TEST_F(DocumentReportTest, AStandardThatIsNotSelectedIsNotJudgedBy) {
  const auto element = Add(410);
  Limit(element, "", "300");
  element->Limits()->CreateStandard("Not selected", "")->Limit(1)->SetBounds("", "1");
  Run({element}, "0.123,0,Ohm");
  EXPECT_EQ(Report().sections.at(0).judgements.size(), 1U);
}

TEST_F(DocumentReportTest, AnOverloadIsToldAsOLAndNeverPutBetweenBounds) {
  const auto element = Add(410);
  Limit(element, "", "300");
  Run({element}, "0.1,1,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.overview.at(0).value, "OL");
  EXPECT_EQ(report.overview.at(0).word, "doubtful");
  EXPECT_EQ(report.sections.at(0).value, "OL");
  EXPECT_FALSE(report.sections.at(0).judgements.at(0).bar);
  EXPECT_EQ(report.sections.at(0).judgements.at(0).standing, Standing::kOpen);
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_TRUE(report.partial);
}

TEST_F(DocumentReportTest, LimitsThatTheReadingBreaksAfterTheTestLeaveADoubt) {
  const auto element = Add(410);
  Run({element}, "0.123,0,Ohm");
  ASSERT_EQ(element->Result()->Status(), 1);
  Limit(element, "", "100");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_EQ(report.overview.at(0).word, "doubtful");
  EXPECT_THAT(report.sections.at(0).notes.at(0).text, HasSubstr("IEC 62353"));
}

TEST_F(DocumentReportTest, ARunInPiecesTellsFirstAndLastAndEveryOperator) {
  const auto first = Add(410), second = Add(420);
  Run({first}, "0.1,0,Ohm", "2026-11-20T23:50:00+01:00", "A");
  Run({second}, "0.1,0,Ohm", "2026-11-21T00:10:00+02:00",
      "B");  // ten past eleven by the other clock
  const auto report = Report();
  EXPECT_EQ(FactOf(report.facts, "Tested"), "2026-11-21 00:10 +02:00 to 2026-11-20 23:50 +01:00");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "A, B");
  EXPECT_EQ(FactOf(report.sections.at(1).facts, "Operator"), "B");
  EXPECT_EQ(report.created, "2026-11-20T23:50:00+01:00");
}

TEST_F(DocumentReportTest, DateAndOperatorAreSavedWithTheElement) {
  const auto element = Add(410);
  Run({element}, "0.1,0,Ohm", "2026-11-21T14:03:22+01:00", "<M> \"Holm\"");
  document_->Save();
  const auto again = Document::Open(bench_.Only().SharedHost(), document_->Path(), DocumentFile::Use::kRead);
  const auto mark = RunMarkOf(again->Find(1), *bench_.Host().Elements());
  ASSERT_TRUE(mark);
  EXPECT_EQ(*mark, (RunMark{"2026-11-21T14:03:22+01:00", "<M> \"Holm\""}));
  EXPECT_EQ(HtmlReport(ReportOf(*again, bench_.Host())), HtmlReport(Report()));
}

TEST_F(DocumentReportTest, WhatIsNotMarkedIsToldAsNotRecorded) {
  Add(410);
  const auto report = Report();
  EXPECT_EQ(FactOf(report.facts, "Tested"), "not recorded");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "not recorded");
  EXPECT_EQ(FactOf(report.facts, "Tester"), "not recorded");
}

TEST_F(DocumentReportTest, EachElementHasItsOwnTablesAndASequenceNotThoseOfItsChildren) {
  const auto sequence = Add(1700);
  const auto container = orvik::As<orvik::ITestContainer>(sequence);
  ASSERT_TRUE(container);
  Run({sequence}, "0.1,0,Ohm");
  const auto report = Report();
  ASSERT_GT(report.sections.size(), 1U);
  EXPECT_EQ(report.overview.size(), report.sections.size());
  EXPECT_EQ(report.overview[0].depth, 0);
  EXPECT_EQ(report.overview[1].depth, 1);
  int results = 0;
  for (const auto& table : report.sections[0].tables) {
    if (!table.header.empty() && report::PlainText(table.header[0][0]) == "Result:") ++results;
  }
  EXPECT_LE(results, 1) << "a sequence prints one result: its own";
}

TEST_F(DocumentReportTest, TheTitleThatAnElementPrintsIsNotToldTwice) {
  const auto element = Add(410);
  Run({element}, "0.123,0,Ohm");
  const auto section = Report().sections.at(0);
  ASSERT_FALSE(section.tables.empty());
  for (const auto& table : section.tables) {
    ASSERT_FALSE(table.rows.empty());
    EXPECT_NE(report::PlainText(table.rows[0][0]), section.name);
  }
}

TEST_F(DocumentReportTest, AnElementThatIsNotToBePrintedStandsInTheOverviewAlone) {
  const auto hidden = Add(410);
  Add(420);
  bench_.Host().Elements()->BaseOf(hidden)->Auxiliary()->SetPrintElement(false);
  const auto report = Report();
  ASSERT_EQ(report.overview.size(), 2U);
  EXPECT_FALSE(report.overview[0].detailed);
  ASSERT_EQ(report.sections.size(), 1U);
  EXPECT_EQ(report.sections[0].id, 2);
}

TEST_F(DocumentReportTest, WhatWasTypedIsMadeVisibleBeforeAnyOutputSeesIt) {
  document_->equipment.serial = "<b>1\u202E23\x07";
  const auto element = Add(410);
  Run({element}, "0.123,0,Ohm", "yesterday", "x\ny");
  element->Result()->SetComment("one\ntwo\x1B[2J");
  const auto report = Report();
  EXPECT_EQ(FactOf(report.facts, "Serial number"), "<b>1[U+202E]23[U+0007]");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "x[U+000A]y");
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "Comment"), "one\ntwo[U+001B][2J");
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "Tested"), "yesterday");
}

TEST_F(DocumentReportTest, AResultThatIsMeasuredAgainLosesItsOldMark) {
  const auto element = Add(410);
  Run({element}, "0.1,0,Ohm", "2026-11-20T10:00:00+01:00", "A");
  Run({element}, "0.1,0,Ohm", "2026-11-21T10:00:00+01:00", "B");
  EXPECT_EQ(FactOf(Report().facts, "Operator"), "B");
}

}  // namespace
}  // namespace bench
