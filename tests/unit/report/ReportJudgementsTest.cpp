#include <gmock/gmock.h>

#include "tests/unit/report/ReportTest.h"

namespace host {
namespace {

using host::report::Standing;
using testing::HasSubstr;

class ReportJudgements : public ReportTest {
 protected:
  std::vector<report::Judgement> Judgements(std::size_t section = 0) {
    return Report().sections.at(section).judgements;
  }
};

TEST_F(ReportJudgements, ShowTheSideOfEachLimit) {
  file_.Add(410);
  file_.Limit(1, "", "123");
  file_.Limit(1, "", "100", "Stricter");
  file_.Limit(1, "50", "", "Other");
  Run("0.123,0,Ohm");
  const auto judgements = Judgements();
  ASSERT_EQ(judgements.size(), 3U);
  EXPECT_EQ(judgements[0].standing, Standing::kPassed);
  EXPECT_EQ(judgements[0].word, "within limit");
  EXPECT_EQ(judgements[0].inWords, "123 mOhm is on the upper bound, which is allowed: at most 123 mOhm");
  EXPECT_EQ(judgements[1].standing, Standing::kFailed);
  EXPECT_EQ(judgements[1].word, "exceeded");
  EXPECT_EQ(judgements[1].inWords, "123 mOhm is above the upper bound: at most 100 mOhm");
  EXPECT_EQ(judgements[2].bounds, "at least 50 mOhm");
  EXPECT_EQ(judgements[2].standing, Standing::kPassed);
}

TEST_F(ReportJudgements, CompareReadingAndLimitByUnit) {
  struct Case {
    const char* name;
    int test;
    const char *low, *high, *reading, *word;
    Standing standing;
    const char* inWords;
  };
  const Case cases[] = {{"insulation", 1010, "2", "", "0.4,0,MOhm", "below limit", Standing::kFailed,
                         "0.4 MOhm is below the lower bound: at least 2 MOhm"},
                        {"another unit", 610, "", "500", "0.9,0,V",
                         "not judged: the reading is in another unit", Standing::kOpen, ""},
                        {"a thousandth", 610, "", "500", "0.9,0,mA", "exceeded", Standing::kFailed,
                         "900 \u00B5A is above the upper bound: at most 500 \u00B5A"}};
  for (const auto& [name, test, low, high, reading, word, standing, inWords] : cases) {
    SCOPED_TRACE(name);
    support::RecordedDocument file;
    file.Add(test);
    file.Limit(1, low, high);
    file.Reads(test, reading);
    file.Run();
    const auto judgements = report::ReportOf(file.Document(), file.Host()).sections.at(0).judgements;
    ASSERT_EQ(judgements.size(), 1U);
    EXPECT_EQ(judgements[0].word, word);
    EXPECT_EQ(judgements[0].standing, standing);
    EXPECT_EQ(judgements[0].inWords, inWords);
    EXPECT_EQ(judgements[0].bar.has_value(), *inWords != 0);
  }
}

TEST_F(ReportJudgements, ShowAnOverloadWithoutABar) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  Run("0.1,1,Ohm");
  const auto report = Report();
  EXPECT_EQ(report.overview.at(0).value, "OL");
  EXPECT_EQ(report.overview[0].word, "doubtful");
  EXPECT_EQ(report.sections.at(0).value, "OL");
  EXPECT_FALSE(report.sections[0].judgements.at(0).bar);
  EXPECT_EQ(report.sections[0].judgements[0].word, "not judged: overload (OL)");
  EXPECT_EQ(report.verdict.standing, Standing::kOpen);
}

TEST_F(ReportJudgements, AreDoubtfulForADoubtfulReading) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  file_.Answers("STST,410,0", "stst,420,0");
  Run("0.1,0,Ohm");
  ASSERT_EQ(Report().overview.at(0).word, "doubtful");
  const auto judgements = Judgements();
  EXPECT_EQ(judgements.at(0).word, "within limit");
  EXPECT_EQ(judgements[0].standing, Standing::kDoubtful);
}

TEST_F(ReportJudgements, IncludeLimitsSetAfterTheTest) {
  file_.Add(410);
  Run("0.123,0,Ohm");
  file_.Limit(1, "", "100");
  const auto report = Report();
  EXPECT_EQ(report.verdict.standing, Standing::kFailed);
  EXPECT_EQ(report.sections.at(0).judgements.at(0).word, "exceeded");
}

TEST_F(ReportJudgements, ShowAPercentageWithItsNumber) {
  file_.Add(210);
  file_.Limit(1, "", "300");
  const auto limit = file_.Find(1)->Limits()->Standards()->item(1)->Limit(1);
  limit->SetNominal(230.0);
  limit->SetBounds("90%", "110%");
  Run("231.4,0,V");
  EXPECT_EQ(Judgements().at(0).bounds, "207 (90%) to 253 (110%) V");
}

TEST_F(ReportJudgements, JudgeASequenceByItsOwnLimit) {
  file_.Add(400);
  file_.Set(1, document::SavedSettings::kFilter, "Maximum value");
  file_.Limit(1, "", "100");
  file_.RecordOnly(2);
  file_.RecordOnly(3);
  Run("0.123,0,Ohm");
  const auto judgements = Judgements();
  ASSERT_EQ(judgements.size(), 1U);
  EXPECT_EQ(judgements[0].word, "exceeded");
  EXPECT_THAT(judgements[0].inWords, HasSubstr("above the upper bound"));
}

TEST_F(ReportJudgements, AreNotJudgedWithoutAReading) {
  file_.Add(410);
  file_.Limit(1, "", "300");
  EXPECT_EQ(Judgements().at(0).word, "not judged");
  file_.Run({.button = plugins::keld::guide::kNotApplicable});
  EXPECT_EQ(Judgements().at(0).standing, Standing::kNotApplicable);
}

}  // namespace
}  // namespace host
