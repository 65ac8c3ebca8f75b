#include <gmock/gmock.h>

#include "host/report/HtmlReport.h"
#include "host/report/RunReport.h"
#include "host/report/TextReport.h"
#include "tests/unit/report/ReportTest.h"

namespace host {
namespace {

using host::report::Standing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A device that failed, was repaired, and passed.
class RepairedDevice : public ReportTest {
 protected:
  RepairedDevice() {
    file_.Add(410);
    file_.Add(420);
    file_.Limit(1, "", "300");
    file_.Limit(2, "", "300");
    file_.Reads(420, "0.05,0,Ohm");
    file_.Reads(410, "1.85,0,Ohm");
    file_.Answers("IREM", "irem,KELD(IN),A-1,3.10");
    file_.Run({.at = "2026-11-20T09:00:00+01:00", .by = "A. Berg"});
    file_.Reads(410, "0.123,0,Ohm");
    file_.Answers("IREM", "irem,KELD(IN),B-2,3.11");
    file_.Leads("B-2", 20, "2026-11-01T08:15:00+01:00");
    file_.Run({.elements = {1}, .at = "2026-11-21T10:00:00+01:00", .by = "M. Holm"});
  }

  report::Report OfRun(std::size_t number) {
    return report::RunReportOf(file_.Document(), file_.Host(), file_.Runs().at(number - 1));
  }
};

TEST_F(RepairedDevice, ReportShowsEveryRun) {
  EXPECT_THAT(RowsOf(Report().runs),
              ElementsAre("1|2026-11-20 09:00|2026-11-20 09:00|finished|A. Berg|KELD(IN) A-1|failed: 1; "
                          "passed: 2",
                          "2|2026-11-21 10:00|2026-11-21 10:00|finished|M. Holm|KELD(IN) B-2|passed: 1"));
}

TEST_F(RepairedDevice, ReportShowsRepeatedReadings) {
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kPassed);
  EXPECT_THAT(RowsOf(report.sections.at(0).readings),
              ElementsAre("1|2026-11-20 09:00|1850|mOhm|failed|A. Berg",
                          "2|2026-11-21 10:00|103|mOhm|passed|M. Holm"));
  EXPECT_THAT(report.sections.at(1).readings.rows, IsEmpty()) << "it was measured once";
}

TEST_F(RepairedDevice, ReportOfARunShowsThatRunOnly) {
  // Changed since; none of it is about the first run.
  file_.Document().equipment.asset = "VENT-9";
  file_.Limit(1, "", "5000");
  const auto report = OfRun(1);
  EXPECT_EQ(report.title, "Electrical safety test: run 1 of 2");
  EXPECT_EQ(report.verdict.word, "Run 1 of 2");
  EXPECT_EQ(report.verdict.sentence, "finished; failed: 1; passed: 2");
  EXPECT_EQ(report::ToneOf(report.verdict.standing), report::Tone::kQuiet) << "no verdict that counts";
  EXPECT_THAT(MarksOf(report), ElementsAre("Run 1 of 2: what was done then, not what counts now."));
  EXPECT_EQ(FactOf(report.facts, "Asset number"), "VENT-1");
  EXPECT_EQ(FactOf(report.facts, "Operator"), "A. Berg");
  EXPECT_EQ(FactOf(report.facts, "Tester"), "KELD(IN), serial number A-1, firmware 3.10");
  EXPECT_EQ(FactOf(report.facts, "Its test leads"), "0 mOhm, date not known");
  EXPECT_EQ(FactOf(report.facts, "Begun"), "2026-11-20 09:00");
  EXPECT_EQ(FactOf(report.facts, "How it ended"), "finished");
  EXPECT_EQ(report.pageHeader.at(0).value, "VENT-1, Maker, Model, S-2");
  EXPECT_EQ(report.created, "2026-11-20T09:00:00+01:00");

  ASSERT_EQ(report.sections.size(), 2U);
  const auto& section = report.sections[0];
  EXPECT_EQ(section.name, "Protective earth, with mains cord");
  EXPECT_EQ(section.value + " " + section.unit, "1850 mOhm");
  EXPECT_EQ(section.word, "failed");
  EXPECT_EQ(FactOf(section.facts, "The tester said"), "gres,410,0,1.85,0,Ohm");
  EXPECT_EQ(FactOf(section.facts, "Recorded as"), "failed, by the tester's answer");
  ASSERT_EQ(section.judgements.size(), 1U);
  EXPECT_EQ(section.judgements[0].bounds, "at most 300 mOhm");
  EXPECT_EQ(section.judgements[0].word, "exceeded");
  EXPECT_EQ(section.judgements[0].inWords, "1850 mOhm is above the upper bound: at most 300 mOhm");
  EXPECT_EQ(report.sections[1].judgements.at(0).word, "within limit");
  EXPECT_THAT(report.runs.rows, IsEmpty());
}

TEST_F(RepairedDevice, ReportOfTheLastRunHasItsOwnTester) {
  const auto report = OfRun(2);
  EXPECT_EQ(FactOf(report.facts, "Its test leads"), "20 mOhm, measured 2026-11-01 08:15");
  ASSERT_EQ(report.sections.size(), 1U);
  EXPECT_EQ(report.sections[0].value, "103");
}

TEST_F(RepairedDevice, ReportOfARunShowsRemovedTests) {
  file_.Document().Remove(file_.Find(1));
  const auto report = OfRun(1);
  EXPECT_EQ(report.overview.at(0).name, "Test 410 (not in the document any more)");
  EXPECT_EQ(report.overview.at(1).name, "Protective earth, without mains cord");
}

TEST_F(RepairedDevice, ReportMarksAChangedRecord) {
  file_.Document().Save();
  const auto path = file_.Document().Path();
  pugi::xml_document xml;
  ASSERT_TRUE(xml.load_file(path.c_str()));
  xml.select_node("//Run[@Number='1']").node().attribute("Operator").set_value("X. Other");
  ASSERT_TRUE(xml.save_file(path.c_str()));
  file_.Reopen();
  EXPECT_THAT(RowsOf(Report().runs).at(0), HasSubstr("the record was changed by another program"));
  EXPECT_THAT(MarksOf(OfRun(1)), testing::Contains("The record of this run was changed by another program."));
}

using RunReport = RepairedDevice;

TEST_F(RunReport, ShowsWhatAnInterruptedRunDidNotFinish) {
  file_.Run({.at = "2026-11-22T10:00:00+01:00", .killedAfterSaves = 2});
  EXPECT_EQ(RowsOf(Report().runs).at(2),
            "3|2026-11-22 10:00|-|interrupted|M. Holm|KELD(IN) B-2|passed: 1; not finished: 2");
  const auto report = OfRun(3);
  EXPECT_EQ(FactOf(report.facts, "Ended"), "-");
  EXPECT_EQ(FactOf(report.facts, "How it ended"), "interrupted");
  ASSERT_EQ(report.overview.size(), 2U);
  EXPECT_EQ(report.overview[1].word, "not tested");
  EXPECT_EQ(report.overview[1].note, "taken up and not finished in this run");
}

TEST_F(RunReport, ShowsDoubtsOverloadsAndNotApplicable) {
  file_.Reads(410, "19.99,1,Ohm");
  file_.Limit(1, "", "30000");
  file_.Run({.elements = {1}});
  file_.Run({.elements = {2}, .button = plugins::keld::guide::kNotApplicable});
  const auto overload = OfRun(3), aside = OfRun(4);
  EXPECT_EQ(overload.sections.at(0).value, "OL");
  EXPECT_EQ(overload.sections[0].word, "doubtful");
  EXPECT_THAT(overload.sections[0].notes.at(0).text, HasSubstr("overload (OL)"));
  EXPECT_EQ(overload.overview.at(0).note, overload.sections[0].notes[0].text);
  EXPECT_NE(overload.sections[0].judgements.at(0).standing, Standing::kPassed);
  EXPECT_FALSE(overload.sections[0].judgements[0].bar);
  EXPECT_EQ(aside.sections.at(0).word, "not applicable");
  EXPECT_EQ(FactOf(aside.sections[0].facts, "Recorded as"), "not applicable, by the operator");
}

TEST_F(RunReport, MarksASimulatedRun) {
  support::RecordedDocument simulated;
  simulated.Add(410);
  simulated.Run({.simulated = true});
  const auto report = report::RunReportOf(simulated.Document(), simulated.Host(), simulated.Runs().at(0));
  EXPECT_EQ(report.title, "SIMULATED electrical safety test: run 1 of 1");
  EXPECT_TRUE(report.marks.at(0).strong);
  EXPECT_THAT(report::TextReport(report), HasSubstr("*** SIMULATED"));
}

TEST_F(RunReport, EscapesTheTestersReply) {
  file_.Reads(410, "0.1,0,<b>Ohm\xAD");
  file_.Run({.elements = {1}});
  const auto report = OfRun(3);
  EXPECT_EQ(FactOf(report.sections.at(0).facts, "The tester said"), "gres,410,0,0.1,0,<b>Ohm[U+00AD]");
  EXPECT_THAT(report::HtmlReport(report), Not(HasSubstr("<b>Ohm")));
}

TEST_F(RunReport, ShowsBelowLimit) {
  file_.Add(1010);
  file_.Limit(3, "2", "");
  file_.Reads(1010, "0.4,0,MOhm");
  file_.Run({.elements = {3}});
  EXPECT_EQ(OfRun(3).sections.at(0).judgements.at(0).word, "below limit");
}

TEST_F(RunReport, JudgesASequenceByItsTests) {
  file_.Add(400);  // 3, with 4 and 5
  file_.Limit(4, "", "300");
  file_.Limit(5, "", "10");
  file_.Run({.elements = {3}});
  EXPECT_EQ(OfRun(3).verdict.sentence, "finished; failed: 5; passed: 4");
  file_.Limit(5, "", "300");
  file_.Run({.elements = {3}});
  EXPECT_EQ(OfRun(4).verdict.sentence, "finished; passed: 4, 5");
  const auto report = OfRun(4);
  EXPECT_EQ(report.overview.at(2).id, 3) << "after its tests, as it was finished";
  EXPECT_EQ(report.overview[2].word, "passed");
}

}  // namespace
}  // namespace host
