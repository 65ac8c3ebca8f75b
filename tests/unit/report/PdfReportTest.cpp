#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "OrvikTypeLib/HostError.h"
#include "host/report/PdfModule.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/report/SampleReport.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

class PdfReportTest : public testing::Test {
 protected:
  static std::string Pdf(const report::Report& report) { return report::WritePdf(report, PDF_MODULE_PATH); }

  /// The output of a PDF tool about the file.
  std::string Output(const report::Report& report, const std::string& before, const std::string& after = "") {
    const auto file = (folder_.Path() / "a.pdf").string();
    std::ofstream(file, std::ios::binary) << Pdf(report);
    const auto ended = support::RunShell(before + " " + file + " " + after);
    EXPECT_EQ(ended.status, 0) << ended.error;
    return ended.out + ended.error;
  }

  std::vector<std::string> Pages(const report::Report& report) {
    const auto text = Output(report, "pdftotext -layout", "-");
    std::vector<std::string> pages;
    for (std::size_t at = 0, end; (end = text.find('\f', at)) != std::string::npos; at = end + 1)
      pages.push_back(text.substr(at, end - at));
    return pages;
  }

  static std::string WithoutSpaces(std::string text) {
    std::erase_if(text, [](char letter) { return letter == ' ' || letter == '\n'; });
    return text;
  }

  support::TemporaryFolder folder_;
};

TEST_F(PdfReportTest, EveryPageHasHeaderAndNumber) {
  const auto pages = Pages(sample::Report(30));
  ASSERT_GT(pages.size(), 3U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    for (const std::string& shown :
         {std::string("Equipment: VENT-0042"), std::string("Tester: KELD(IN), SIM-0001"),
          std::string("Tested: 2026-11-21"), std::string("Operator: M. Holm"),
          std::to_string(i + 1) + " / " + std::to_string(pages.size())})
      EXPECT_THAT(pages[i], HasSubstr(shown)) << "page " << i + 1;
  }
}

TEST_F(PdfReportTest, PageHeaderHasALineForTesters) {
  auto report = sample::Report();
  report.pageHeader[1] = {"Tester", "KELD(IN) A-1001; KELD(IN) A-1002; KELD(IN) A-1003; KELD(IN) A-1004"};
  EXPECT_THAT(Pages(report).at(0), HasSubstr(report.pageHeader[1].value));
  // Long texts are truncated; date and operator are still shown, each in about half of the width.
  report.pageHeader[1] = {"Tester", "KELD(IN), SIM-0001" + std::string(500, 'W')};
  report.pageHeader[3].value = std::string(500, 'W');
  EXPECT_THAT(Pages(report).at(0), HasSubstr("Tester: KELD(IN), SIM-0001W"));
  EXPECT_THAT(Pages(report).at(0), HasSubstr("Tested: 2026-11-21"));
}

TEST_F(PdfReportTest, DetailsHeadingIsOnThePageOfItsFirstTest) {
  auto report = sample::Report(1);
  std::size_t onAnother = 0;
  for (int facts = 0; facts < 30; ++facts) {
    report.facts.push_back({"Fact", "told"});
    const auto pages = Pages(report);
    for (std::size_t i = 0; i < pages.size(); ++i) {
      const auto heading = pages[i].find("Tests in detail");
      if (heading == std::string::npos) continue;
      EXPECT_NE(pages[i].find("Protective earth 1", heading), std::string::npos) << facts << " facts more";
      onAnother += i;
    }
  }
  EXPECT_GT(onAnother, 0U) << "the details never came to another page";
}

TEST_F(PdfReportTest, ShowsTheVerdictAndEveryElement) {
  const auto text = Output(sample::Report(), "pdftotext -layout", "-");
  for (const char* shown : {"Failed", "1 of 3 failed, 2 passed", "Asset number", "1850", "Fails IEC 62353",
                            "at most 300 mOhm", "exceeded", "Result:"})
    EXPECT_THAT(text, HasSubstr(shown));
}

TEST_F(PdfReportTest, MarksAPartialReportOnEveryPage) {
  auto report = sample::Report(30);
  for (const auto& page : Pages(report)) EXPECT_THAT(page, Not(HasSubstr("Partial report")));
  sample::MakePartial(report);
  const auto pages = Pages(report);
  ASSERT_GT(pages.size(), 3U);
  for (const auto& page : pages) EXPECT_THAT(page, HasSubstr("Partial report: 1 of 3 not tested"));
}

TEST_F(PdfReportTest, MarksASimulatedReportOnEveryPage) {
  auto report = sample::Report(30);
  sample::MakePartial(report);
  sample::MakeSimulated(report);
  const auto pages = Pages(report);
  ASSERT_GT(pages.size(), 3U);
  for (const auto& page : pages) {
    EXPECT_THAT(page, HasSubstr("SIMULATED: nothing was measured."));
    EXPECT_THAT(page, HasSubstr("Partial report: 1 of 3 not tested"));
    // Across the page too, where its letters are turned.
    EXPECT_GE(std::count(page.begin(), page.end(), 'U'), 2) << page;
  }
}

TEST_F(PdfReportTest, ShowsRunsReadingsByRunAndReasons) {
  auto report = sample::Report();
  sample::AddRuns(report);
  const auto text = Output(report, "pdftotext -layout", "-");
  for (const char* shown : {"Runs", "How it ended", "interrupted", "Readings by run", "failed in run 1"})
    EXPECT_THAT(text, HasSubstr(shown));
  EXPECT_LT(text.find("Fails IEC 62353"), text.find("Tests in detail")) << "the overview has the reason";
}

TEST_F(PdfReportTest, HasTitleLanguageDateAndBookmarks) {
  const auto info = Output(sample::Report(), "pdfinfo -isodates");
  EXPECT_THAT(info, HasSubstr("Electrical safety test: VENT-0042 - Failed"));
  EXPECT_THAT(info, HasSubstr("2026-11-21T14:03:22+01"));
  EXPECT_THAT(info, HasSubstr("A4"));
  const auto pdf = Pdf(sample::Report());
  EXPECT_THAT(pdf, HasSubstr("/Lang (en)"));
  EXPECT_THAT(pdf, HasSubstr("/Count 3 ")) << "summary, overview, details";
  EXPECT_THAT(pdf, HasSubstr("/Count -3 ")) << "the three tests, folded";
  EXPECT_THAT(pdf, HasSubstr("/DisplayDocTitle true"));
  const auto outline = Output(sample::Report(30), "pdftohtml -xml -stdout");
  EXPECT_THAT(outline, HasSubstr("<item page=\"1\">Overview</item>"));
  EXPECT_THAT(outline, HasSubstr("<item page=\"" + std::to_string(Pages(sample::Report(30)).size()) +
                                 "\">30  Protective earth 30</item>"));
}

TEST_F(PdfReportTest, FontsAreEmbedded) {
  const auto fonts = Output(sample::Report(), "pdffonts");
  std::istringstream lines(fonts);
  std::string line;
  std::getline(lines, line);
  std::getline(lines, line);
  int count = 0;
  for (; std::getline(lines, line); ++count) EXPECT_THAT(line, HasSubstr("yes no  yes")) << fonts;
  EXPECT_GT(count, 0);
}

TEST_F(PdfReportTest, ShowsUnitSignsAndEastAsianTexts) {
  auto report = sample::Report();
  report.facts = {{"Limits", "5 m\u03A9 \u2264 12 \u00B5A"}, {"Model", "\u4EBA\u5DE5\u547C\u5438\u5668"}};
  const auto text = Output(report, "pdftotext", "-");
  EXPECT_THAT(text, HasSubstr("m\u03A9 \u2264 12 \u00B5A"));
  EXPECT_THAT(text, HasSubstr("\u4EBA\u5DE5\u547C\u5438\u5668"));
}

TEST_F(PdfReportTest, ShowsHostileTextsUnchanged) {
  for (const std::string text :
       {sample::Hostile::kScript, sample::Hostile::kMarkup, sample::Hostile::kQuotes})
    EXPECT_THAT(WithoutSpaces(Output(sample::Everywhere(text), "pdftotext", "-")), HasSubstr(text));
}

TEST_F(PdfReportTest, KeepsATextOfTenThousandLetters) {
  auto report = sample::Report();
  report.sections[0].facts = {{"Comment", std::string(10000, 'W')}};
  report.overview[0].name = std::string(10000, 'Q');
  const auto text = Output(report, "pdftotext", "-");
  EXPECT_EQ(std::count(text.begin(), text.end(), 'W'), 10000);
  EXPECT_EQ(std::count(text.begin(), text.end(), 'Q'), 10000);
}

TEST_F(PdfReportTest, WritesTenThousandLettersEverywhere) {
  EXPECT_GT(Pages(sample::Everywhere(std::string(10000, 'x'))).size(), 20U);
}

TEST_F(PdfReportTest, IsReproducible) { EXPECT_EQ(Pdf(sample::Report(12)), Pdf(sample::Report(12))); }

TEST_F(PdfReportTest, NamesAMissingModuleAndAnAlternative) {
  try {
    report::WritePdf(sample::Report(), folder_.Path() / "none.so");
    FAIL() << "there is no such module";
  } catch (const orvik::HostError& error) {
    EXPECT_EQ(error.Number(), orvik::HostError::kDeviceError);
    EXPECT_THAT(error.Description(), HasSubstr("none.so"));
    EXPECT_THAT(error.Description(), HasSubstr(".html"));
  }
}

}  // namespace
}  // namespace host
