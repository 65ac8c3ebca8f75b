#include <gmock/gmock.h>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IResultData.h"
#include "host/report/HtmlReport.h"
#include "host/report/TextReport.h"
#include "tests/unit/report/ReportTest.h"

namespace host {
namespace {

using host::report::Standing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DocumentReport : public ReportTest {};

TEST_F(DocumentReport, NamesEquipmentTesterOperatorAndStandards) {
  file_.Document().comment = "After repair\nof the mains cord";
  file_.Add(410);
  file_.Limit(1, "", "300", "IEC 62353", "2014");
  file_.Answers("IREM", "irem,KELD(IN),S-9,3.10");
  file_.Leads("S-9", 35, "2026-11-01T08:15:00+01:00");
  Run("0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.title, "Electrical safety test");
  EXPECT_EQ(FactOf(report.facts, "Asset number"), "VENT-1");
  EXPECT_EQ(FactOf(report.facts, "Comment"), "After repair\nof the mains cord");
  EXPECT_EQ(FactOf(report.facts, "Tested"), "2026-11-21 14:03");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "M. Holm");
  EXPECT_EQ(FactOf(report.facts, "Tester"), "KELD(IN), serial number S-9, firmware 3.10");
  EXPECT_EQ(FactOf(report.facts, "Its test leads"), "35 mOhm, measured 2026-11-01 08:15");
  EXPECT_EQ(FactOf(report.facts, "Standards"), "IEC 62353 (2014)");
  EXPECT_EQ(FactOf(report.facts, "Standards left out"), "(none)");
  ASSERT_EQ(report.pageHeader.size(), 4U);
  EXPECT_EQ(report.pageHeader[0].value, "VENT-1, Maker, Model, S-2");
  EXPECT_EQ(report.pageHeader[1].value, FactOf(report.facts, "Tester"));
  EXPECT_EQ(report.created, "2026-11-21T14:03:22+01:00");
  EXPECT_THAT(MarksOf(report), IsEmpty());
}

TEST_F(DocumentReport, NamesEveryTesterInThePageHeader) {
  file_.Add(410);
  file_.Add(420);
  file_.Answers("IREM", "irem,KELD(IN),A-1,3.10");
  Run("0.1,0,Ohm", {.elements = {1}});
  file_.Answers("IREM", "irem,KELD(IN),B-2,3.11");
  Run("0.1,0,Ohm", {.elements = {2}});
  const auto report = Report();
  EXPECT_EQ(report.pageHeader[1].value, "KELD(IN) A-1; KELD(IN) B-2");
  EXPECT_EQ(FactOf(report.facts, "Tester 1"), "KELD(IN), serial number A-1, firmware 3.10");
  EXPECT_EQ(FactOf(report.facts, "Tester 2"), "KELD(IN), serial number B-2, firmware 3.11");
  EXPECT_EQ(FactOf(report.facts, "Its test leads"), "0 mOhm, date not known");
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "Tester"), FactOf(report.facts, "Tester 1"));
  EXPECT_EQ(FactOf(report.sections.at(1).facts, "Tester"), FactOf(report.facts, "Tester 2"));
}

TEST_F(DocumentReport, SaysNotRecorded_BeforeTheFirstRun) {
  file_.Add(410);
  const auto report = Report();
  for (const char* label : {"Tested", "Operator", "Tester"})
    EXPECT_EQ(FactOf(report.facts, label), "not recorded") << label;
  EXPECT_THAT(report.runs.rows, IsEmpty());
}

TEST_F(DocumentReport, ShowsReasonsInOverviewAndSection) {
  file_.Add(410);
  file_.Add(420);
  file_.Limit(1, "", "300");
  file_.Limit(2, "", "3000");
  Run("1.85,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.overview.at(0).note, "IEC 62353: 1850 mOhm exceeds the limit of 300 mOhm");
  ASSERT_EQ(report.sections.at(0).notes.size(), 1U);
  EXPECT_EQ(report.sections[0].notes[0].text, report.overview[0].note);
  EXPECT_EQ(report.sections[0].notes[0].standing, Standing::kFailed);
  EXPECT_EQ(report.overview.at(1).note, "");
  EXPECT_THAT(report.sections.at(1).notes, IsEmpty());
}

TEST_F(DocumentReport, DoubtsTestLeadsAbove500mOhm) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  file_.Leads("SIM-0001", 600, "2026-11-01T08:15:00+01:00");
  Run("0.7,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.overview.at(0).standing, Standing::kDoubtful);
  EXPECT_THAT(report.overview[0].note, HasSubstr("600 mOhm"));
}

TEST_F(DocumentReport, MarksASimulatedReport) {
  file_.Add(410);
  file_.Add(420);
  file_.Limit(1, "", "300");
  Run("0.1,0,Ohm", {.elements = {1}, .simulated = true});
  const auto report = Report();
  EXPECT_EQ(report.title, "SIMULATED electrical safety test");
  ASSERT_EQ(report.marks.size(), 2U);
  EXPECT_EQ(report.marks[0].word, "SIMULATED");
  EXPECT_TRUE(report.marks[0].strong);
  EXPECT_EQ(report.marks[1].text, "Partial report: 1 of 2 not tested");
}

TEST_F(DocumentReport, NamesLeftOutStandardsOnEveryPage) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  Run("0.123,0,Ohm");
  file_.Limit(1, "", "100", "Stricter");
  EXPECT_EQ(Report().verdict.standing, Standing::kFailed);
  const auto report = Report({"IEC 62353"});
  EXPECT_EQ(report.verdict.standing, Standing::kPassed);
  EXPECT_EQ(FactOf(report.facts, "Standards"), "IEC 62353");
  EXPECT_EQ(FactOf(report.facts, "Standards left out"), "Stricter");
  EXPECT_THAT(MarksOf(report), ElementsAre("Standards left out: Stricter"));
  EXPECT_EQ(report.sections.at(0).judgements.size(), 1U);
}

TEST_F(DocumentReport, SpansTimesAndOperatorsOfAllRuns) {
  file_.Add(410);
  file_.Add(420);
  Run("0.1,0,Ohm", {.elements = {1}, .at = "2026-11-20T23:50:00+01:00", .by = "A"});
  // Ten past eleven by the other clock.
  Run("0.1,0,Ohm", {.elements = {2}, .at = "2026-11-21T00:10:00+02:00", .by = "B"});
  const auto report = Report();
  EXPECT_EQ(FactOf(report.facts, "Tested"), "2026-11-21 00:10 +02:00 to 2026-11-20 23:50 +01:00");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "A, B");
  EXPECT_EQ(FactOf(report.sections.at(1).facts, "Operator"), "B");
  EXPECT_EQ(report.created, "2026-11-20T23:50:00+01:00");
}

TEST_F(DocumentReport, HasNoResultForOtherEquipment) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  Run("0.1,0,Ohm");
  ASSERT_EQ(Report().verdict.standing, Standing::kPassed);
  file_.Document().equipment.asset = "VENT-2";
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_EQ(report.overview.at(0).standing, Standing::kNotTested);
  EXPECT_EQ(report.overview[0].value, "");
  EXPECT_THAT(report.overview[0].note, HasSubstr("the asset number was \"VENT-1\" and is \"VENT-2\""));
  EXPECT_EQ(FactOf(report.facts, "Tested"), "not recorded");
  EXPECT_THAT(RowsOf(report.runs).at(0), HasSubstr("on other equipment: VENT-1, Maker, Model, S-2"));
}

TEST_F(DocumentReport, SequencesPrintTheirOwnTablesOnly) {
  file_.Add(400);
  Run("0.1,0,Ohm");
  const auto report = Report();
  ASSERT_EQ(report.sections.size(), 3U);
  EXPECT_EQ(report.overview[0].depth, 0);
  EXPECT_EQ(report.overview[1].depth, 1);
  int results = 0;
  for (const auto& table : report.sections[0].tables)
    if (!table.header.empty() && report::PlainText(table.header[0][0]) == "Result:") ++results;
  EXPECT_LE(results, 1) << "a sequence prints one result: its own";
}

TEST_F(DocumentReport, DropsTheTitleThatAnElementPrints) {
  file_.Add(410);
  Run("0.123,0,Ohm");
  const auto section = Report().sections.at(0);
  ASSERT_FALSE(section.tables.empty());
  for (const auto& table : section.tables) {
    ASSERT_FALSE(table.rows.empty());
    EXPECT_NE(report::PlainText(table.rows[0][0]), section.name);
  }
}

TEST_F(DocumentReport, UnprintedElementsAreInTheOverviewOnly) {
  const auto hidden = file_.Add(410);
  file_.Add(420);
  file_.Host().Elements()->BaseOf(hidden)->Auxiliary()->SetPrintElement(false);
  const auto report = Report();
  ASSERT_EQ(report.overview.size(), 2U);
  EXPECT_EQ(report.overview[0].anchor, "");
  ASSERT_EQ(report.sections.size(), 1U);
  EXPECT_EQ(report.sections[0].id, 2);
  EXPECT_EQ(report.overview[1].anchor, report.sections[0].anchor);
}

TEST_F(DocumentReport, MakesEnteredTextsVisible) {
  file_.Document().equipment.serial = "<b>1\u202E23\x07";
  file_.Document().comment = "x\ny\x1B[2J";
  file_.Add(410);
  file_.Limit(1, "", "300", "<i>S\u202E", "<u>D\x07");
  file_.Answers("IREM", "irem,KELD(IN),<s>,<f>");
  Run("0.123,0,Ohm", {.at = "yesterday", .by = "x\ny"});
  file_.Find(1)->Result()->SetComment("one\ntwo\x1B[2J");
  const auto report = Report();
  EXPECT_EQ(FactOf(report.facts, "Serial number"), "<b>1[U+202E]23[U+0007]");
  EXPECT_EQ(FactOf(report.facts, "Comment"), "x\ny[U+001B][2J");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "x[U+000A]y");
  EXPECT_EQ(FactOf(report.facts, "Standards"), "<i>S[U+202E] (<u>D[U+0007])");
  EXPECT_EQ(report.sections.at(0).judgements.at(0).standard, "<i>S[U+202E] (<u>D[U+0007])");
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "Comment"), "one\ntwo[U+001B][2J");
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "Tested"), "yesterday");
  EXPECT_THAT(RowsOf(report.runs).at(0), HasSubstr("x[U+000A]y|KELD(IN) <s>"));
  EXPECT_THAT(report::HtmlReport(report), HasSubstr("KELD(IN) &lt;s&gt;"));
}

TEST_F(DocumentReport, IsTheSameAfterReopening) {
  file_.Add(410);
  file_.Add(400);
  file_.Limit(1, "", "300");
  Run("0.1,0,Ohm", {.by = "<M> \"Holm\""});
  file_.Document().Save();
  const auto before = Report();
  file_.Reopen();
  EXPECT_EQ(report::HtmlReport(Report()), report::HtmlReport(before));
  EXPECT_EQ(report::TextReport(Report()), report::TextReport(before));
}

}  // namespace
}  // namespace host
