#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/report/TextReport.h"
#include "tests/unit/report/SampleReport.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(TextReport, ShowsVerdictFactsAndEachElement) {
  const auto text = report::TextReport(sample::Report());
  for (const char* shown :
       {"[X]  FAILED", "1 of 3 failed, 2 passed", "Asset number   VENT-0042", "Operator       M. Holm",
        "|   2 | Protective earth 2 |  1850 | mOhm | [X] failed |", "|     |   Fails IEC 62353  |",
        "[X] Fails IEC 62353", "IEC 62353: at most 300 mOhm: exceeded", "1850 mOhm is somewhere"})
    EXPECT_THAT(text, HasSubstr(shown));
}

TEST(TextReport, WritesTheVerdictInCapitals) {
  auto report = sample::Report();
  const std::pair<const char*, const char*> words[] = {{"Unvollst\u00E4ndig", "UNVOLLST\u00C4NDIG"},
                                                       {"\u00FFng\u00F7", "\u00FFNG\u00F7"},
                                                       {"\u4E0D\u5B8C\u6574", "\u4E0D\u5B8C\u6574"}};
  for (const auto& [word, capitals] : words) {
    report.verdict.word = word;
    EXPECT_THAT(report::TextReport(report), HasSubstr(std::string("]  ") + capitals + "\n"));
  }
}

TEST(TextReport, MarksAPartialReportAtBothEnds) {
  auto report = sample::Report();
  EXPECT_THAT(report::TextReport(report), Not(HasSubstr("***")));
  sample::MakePartial(report);
  const auto text = report::TextReport(report);
  const auto mark = std::string("*** Partial report: 1 of 3 not tested ***");
  EXPECT_LT(text.find(mark), text.find("Summary"));
  EXPECT_TRUE(text.ends_with(mark + "\n"));
}

TEST(TextReport, MarksASimulatedReportInEachPart) {
  auto report = sample::Report();
  sample::AddRuns(report);
  sample::MakeSimulated(report);
  const auto text = report::TextReport(report);
  for (const char* part : {"Electrical safety test", "Summary", "Overview", "Runs", "Tests in detail"}) {
    const auto at = text.find(std::string(part) + "\n");
    EXPECT_LT(text.find("*** SIMULATED ***", at) - at, 80U) << part;
  }
  EXPECT_THAT(text, HasSubstr("*** SIMULATED ***\n\n2  Protective earth 2"));
  EXPECT_THAT(text, HasSubstr("*** SIMULATED ***\n\n3  Protective earth 3"));
  EXPECT_TRUE(text.ends_with("*** SIMULATED: nothing was measured. ***\n"));
}

TEST(TextReport, ShowsRunsAndReadingsByRun) {
  auto report = sample::Report();
  sample::AddRuns(report);
  const auto text = report::TextReport(report);
  EXPECT_THAT(text, HasSubstr("Runs\n----\n\n+--------------+\n| How it ended |"));
  EXPECT_THAT(text, HasSubstr("   Readings by run\n   +-----------------+\n   | Result then     |"));
}

TEST(TextReport, EveryStandingHasItsOwnSign) {
  using host::report::Standing;
  const std::pair<Standing, const char*> signs[] = {
      {Standing::kPassed, "[+]"},    {Standing::kFailed, "[X]"},   {Standing::kOpen, "[!]"},
      {Standing::kDoubtful, "[?]"},  {Standing::kAborted, "[#]"},  {Standing::kNotTested, "[o]"},
      {Standing::kNotJudged, "[~]"}, {Standing::kRecorded, "[=]"}, {Standing::kNotApplicable, "[-]"}};
  for (const auto& [standing, sign] : signs) {
    auto report = sample::Report(0);
    report.verdict = {standing, "word", "why"};
    EXPECT_THAT(report::TextReport(report), HasSubstr(sign + std::string("  WORD")));
  }
}

TEST(TextReport, BreaksLongTextsWithoutLoss) {
  const auto text = report::TextReport(sample::Everywhere(std::string(10000, 'W')));
  const auto short_ = report::TextReport(sample::Everywhere("W"));
  const auto times = std::count(short_.begin(), short_.end(), 'W');
  EXPECT_EQ(std::count(text.begin(), text.end(), 'W'), times * 10000);
}

TEST(TextReport, ShowsHostileTextsUnchanged) {
  for (const std::string text :
       {sample::Hostile::kScript, sample::Hostile::kMarkup, sample::Hostile::kQuotes})
    EXPECT_THAT(report::TextReport(sample::Everywhere(text)), HasSubstr("1  " + text));
}

TEST(TextReport, IsReproducible) {
  EXPECT_EQ(report::TextReport(sample::Report()), report::TextReport(sample::Report()));
}

std::string BarFor(std::optional<double> low, std::optional<double> high, double value) {
  return report::TextBar(*report::MakeBar(low, high, value));
}

TEST(TextBar, ShowsTheSideOfABound) {
  const auto within = BarFor({}, 300, 100), at = BarFor({}, 300, 300), above = BarFor({}, 300, 301);
  EXPECT_LT(within.find('*'), within.find('|'));
  EXPECT_EQ(at.find('|'), std::string::npos) << "the value is on the bound: " << at;
  EXPECT_GT(above.find('*'), above.find('|'));
  const auto below = BarFor(207, 253, 206);
  EXPECT_LT(below.find('*'), below.find('|'));
}

TEST(TextBar, AllowsAllAboveWithoutAnUpperBound) {
  const auto bar = BarFor(2, {}, 3);
  EXPECT_GT(bar.find('*'), bar.find('|'));
  EXPECT_TRUE(bar.ends_with("=]"));
}

TEST(TextBar, ShowsAnArrowBeyondTheLine) {
  EXPECT_THAT(BarFor({}, 300, 1e6), testing::EndsWith(">]"));
  EXPECT_THAT(BarFor(-1, 1, -1e6), testing::StartsWith("[<"));
}

}  // namespace
}  // namespace host
