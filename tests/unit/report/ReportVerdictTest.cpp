#include <gmock/gmock.h>

#include "host/report/TextReport.h"
#include "tests/unit/report/ReportTest.h"

namespace host {
namespace {

using host::report::Standing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ReportVerdict : public ReportTest {
 protected:
  report::Verdict Verdict() { return report::ReportOf(file_.Document(), file_.Host()).verdict; }
};

TEST_F(ReportVerdict, IsPassedWhenAllPassed) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  Run("0.123,0,Ohm");
  const auto verdict = Verdict();
  EXPECT_EQ(verdict.standing, Standing::kPassed);
  EXPECT_EQ(verdict.word, "Passed");
  EXPECT_EQ(verdict.sentence, "1 of 1 passed");
}

TEST_F(ReportVerdict, IsQuietForRecordedReadings) {
  file_.Add(410);
  file_.Add(420);
  file_.Limit(1, "", "300");
  file_.RecordOnly(2);
  Run("0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kPassed);
  EXPECT_EQ(report.verdict.sentence, "1 of 2 passed, 1 recorded only");
  EXPECT_EQ(report.overview.at(1).word, "recorded");
  EXPECT_EQ(report::ToneOf(report.overview[1].standing), report::Tone::kQuiet);
  EXPECT_EQ(report.overview[1].note, "record only: not judged by any limit");
  EXPECT_THAT(MarksOf(report), IsEmpty());
}

TEST_F(ReportVerdict, IsIncompleteWhereNothingWasJudged) {
  file_.Add(410);
  file_.Add(420);
  file_.RecordOnly(1);
  file_.RecordOnly(2);
  Run("0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.word, "Incomplete");
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_EQ(report.verdict.sentence, "2 of 2 recorded only; nothing was judged by a limit");
  EXPECT_THAT(MarksOf(report), IsEmpty());
}

TEST_F(ReportVerdict, IsIncompleteWhereAReadingIsNotJudged) {
  file_.Add(410);
  file_.Add(420);
  file_.Limit(1, "", "300");
  Run("0.123,0,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_EQ(report.verdict.sentence, "1 of 2 not judged, 1 passed");
  EXPECT_EQ(report.overview.at(1).word, "not judged");
  EXPECT_THAT(MarksOf(report), ElementsAre("Partial report: 1 of 2 not judged"));
}

TEST_F(ReportVerdict, AnEmptyDocumentIsIncomplete) {
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
  EXPECT_EQ(report.verdict.sentence, "The document has no tests.");
  EXPECT_THAT(report::TextReport(report), HasSubstr("The document has no tests."));
}

/// One element of each verdict.
class EveryVerdict : public ReportVerdict {
 protected:
  EveryVerdict() {
    for (const int test : {410, 420, 610, 620, 630, 640, 710, 720, 730}) file_.Add(test);
    for (const int element : {1, 2, 5, 8, 9}) file_.Limit(element, "", "300");
    file_.RecordOnly(3);
    file_.Reads(410, "1.85,0,Ohm");
    file_.Reads(420, "0.123,0,Ohm");
    file_.Reads(720,
                "20,1,\xB5"
                "A");
    file_.Refuses(730);
    file_.Run({.elements = {1, 2, 3, 4, 8, 9}});
    file_.Run({.elements = {5}, .button = plugins::keld::guide::kNotApplicable});
    file_.Run({.elements = {6}, .button = plugins::keld::guide::kAbort});
  }
};

TEST_F(EveryVerdict, IsCounted) {
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kFailed);
  EXPECT_EQ(report.verdict.sentence,
            "1 of 9 failed, 1 not tested, 1 aborted, 2 doubtful, 1 not judged, 1 passed, 1 recorded only, "
            "1 not applicable");
  EXPECT_THAT(MarksOf(report),
              ElementsAre("Partial report: 1 of 9 not tested, 1 aborted, 2 doubtful, 1 not judged"));
}

TEST_F(EveryVerdict, HasItsWordAndStanding) {
  const std::pair<const char*, Standing> expected[] = {{"failed", Standing::kFailed},
                                                       {"passed", Standing::kPassed},
                                                       {"recorded", Standing::kRecorded},
                                                       {"not judged", Standing::kNotJudged},
                                                       {"not applicable", Standing::kNotApplicable},
                                                       {"aborted", Standing::kAborted},
                                                       {"not tested", Standing::kNotTested},
                                                       {"doubtful", Standing::kDoubtful},
                                                       {"doubtful", Standing::kDoubtful}};
  const auto report = Report();
  ASSERT_EQ(report.overview.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(report.overview[i].word, expected[i].first);
    EXPECT_EQ(report.overview[i].standing, expected[i].second);
    EXPECT_EQ(report.sections[i].word, expected[i].first);
    EXPECT_EQ(report.sections[i].standing, expected[i].second);
    EXPECT_EQ(report.overview[i].note.empty(), report.overview[i].word == "passed") << i + 1;
  }
}

TEST_F(ReportVerdict, ASequenceCountsOnlyWhereNoChildSaysTheSame) {
  file_.Add(400);
  file_.Add(1000);
  file_.Set(1, document::SavedSettings::kFilter, "Maximum value");
  file_.Limit(1, "", "100");
  file_.Limit(2, "", "300");
  file_.Limit(3, "", "300");
  Run("0.123,0,Ohm", {.elements = {1}});
  EXPECT_EQ(Verdict().sentence, "1 of 5 failed, 2 not tested, 2 passed");
  file_.Limit(2, "", "100");
  EXPECT_EQ(Verdict().sentence, "1 of 4 failed, 2 not tested, 1 passed");
}

}  // namespace
}  // namespace host
