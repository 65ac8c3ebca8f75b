#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <pugixml.hpp>

#include "host/report/HtmlReport.h"
#include "host/report/HtmlText.h"
#include "tests/unit/report/SampleReport.h"

namespace host {
namespace {

using host::report::Standing;
using testing::HasSubstr;
using testing::Not;

constexpr std::array kEveryStanding{Standing::kPassed,    Standing::kFailed,   Standing::kOpen,
                                    Standing::kDoubtful,  Standing::kAborted,  Standing::kNotTested,
                                    Standing::kNotJudged, Standing::kRecorded, Standing::kNotApplicable};

/// The page, parsed strictly as XML.
class ReadPage {
 public:
  explicit ReadPage(const report::Report& report) : text(report::HtmlReport(report)) {
    const auto read = xml.load_buffer(text.data(), text.size(), pugi::parse_full & ~pugi::parse_pi);
    EXPECT_TRUE(read) << read.description() << " at "
                      << text.substr(static_cast<std::size_t>(read.offset), 80);
  }

  int Count(const char* path) const { return static_cast<int>(xml.select_nodes(path).size()); }
  /// All text below the node.
  static std::string Below(pugi::xml_node node) {
    std::string found = node.value();
    for (const auto child : node.children()) found += Below(child);
    return found;
  }

  const std::string text;
  pugi::xml_document xml;
};

/// A style sheet without white space.
std::string Compact(std::string style) {
  std::erase_if(style, [](char letter) { return letter == ' ' || letter == '\n'; });
  return style;
}

/// The declarations of the rule that is written so, such as ".stacked,.stackedcaption", from the place on.
std::string RuleOf(const std::string& selector, const std::string& after = "") {
  const auto style = Compact(report::html::kStyle);
  const auto from = style.find(selector + "{", style.find(after));
  EXPECT_NE(from, std::string::npos) << selector;
  const auto begin = from + selector.size() + 1;
  return from == std::string::npos ? "" : style.substr(begin, style.find('}', from) - begin) + ";";
}

std::string TextOf(const ReadPage& page, const char* path) {
  return ReadPage::Below(page.xml.select_node(path).node());
}

TEST(HtmlReport, IsOneWellFormedSelfContainedPage) {
  const ReadPage page(sample::Report());
  EXPECT_TRUE(page.text.starts_with("<!DOCTYPE html>\n<html lang=\"en\">"));
  EXPECT_EQ(page.Count("//script | //link | //img | //iframe | //object | //@src | //@onclick | //@onload"),
            0);
  EXPECT_THAT(page.text, Not(HasSubstr("url(")));
  EXPECT_THAT(page.text, Not(HasSubstr("@import")));
  EXPECT_EQ(page.Count("//meta[@name='viewport']"), 1);
  for (const auto& link : page.xml.select_nodes("//a/@href"))
    EXPECT_EQ(link.attribute().value()[0], '#') << link.attribute().value();
}

TEST(HtmlReport, ShowsOneVerdictAndItsReason) {
  const ReadPage page(sample::Report());
  ASSERT_EQ(page.Count("//*[contains(@class, 'verdict')]"), 1);
  EXPECT_EQ(TextOf(page, "//*[contains(@class, 'verdict')]//strong"), "Failed");
  EXPECT_THAT(TextOf(page, "//*[contains(@class, 'verdict')]"), HasSubstr("1 of 3 failed, 2 passed"));
  EXPECT_THAT(TextOf(page, "//title"), HasSubstr("VENT-0042 - Failed"));
}

TEST(HtmlReport, TablesHaveCaptionsAndScopes) {
  const ReadPage page(sample::Report());
  EXPECT_GT(page.Count("//table"), 6);
  EXPECT_EQ(page.Count("//table[not(caption)]"), 0);
  EXPECT_EQ(page.Count("//th[not(@scope)]"), 0);
  EXPECT_EQ(page.Count("//table[not(.//th)]"), 0);
}

TEST(HtmlReport, BarsHaveATextAlternative) {
  const ReadPage page(sample::Report());
  ASSERT_EQ(page.Count("//svg"), 3);
  EXPECT_EQ(page.Count("//svg[@role='img'][@aria-label='1850 mOhm is somewhere']"), 1);
  EXPECT_EQ(page.Count("//svg/title"), 3);
}

TEST(HtmlReport, TablesStackOnNarrowScreens) {
  const ReadPage page(sample::Report());
  EXPECT_EQ(page.Count("//table[contains(@class, 'stacked overview')]"), 1);
  EXPECT_EQ(page.Count("//table[contains(@class, 'stacked limits')]"), 3);
  EXPECT_EQ(page.Count("//td[@class='result']"), 3);
  EXPECT_EQ(page.Count("//td[@class='barcell']"), 3);
  EXPECT_THAT(RuleOf(".stacked,.stackedcaption,.stackedtbody", "@mediascreenand(max-width:36rem)"),
              HasSubstr("display:block;"));
  const std::string stacked = "//table[contains(@class, 'stacked')]";
  for (const char* part : {"/self::*[@role='table']", "/thead[@role='rowgroup']", "/tbody[@role='rowgroup']"})
    EXPECT_EQ(page.Count((stacked + part).c_str()), 4) << part;
  for (const char* without :
       {"//tr[not(@role='row')]", "//td[not(@role='cell')]", "//tbody//th[not(@role='rowheader')]",
        "//thead//th[not(@role='columnheader')]"})
    EXPECT_EQ(page.Count((stacked + without).c_str()), 0) << without;
}

TEST(HtmlReport, LongWordsWrap) {
  EXPECT_THAT(RuleOf("body"), HasSubstr("overflow-wrap:anywhere;"));
  EXPECT_THAT(report::html::kStyle, Not(HasSubstr("break-word")))
      << "such a word would still widen its column";
  EXPECT_THAT(RuleOf(".page", "@mediaprint"), HasSubstr("table-layout:fixed;"));
}

TEST(HtmlReport, StandingsHaveWordAndSignBesideColour) {
  const ReadPage page(sample::Report());
  EXPECT_GT(page.Count("//*[contains(@class, 'word')]"), 0);
  EXPECT_EQ(page.Count("//*[starts-with(@class, 'word ')][not(*[@class='sign'])]"), 0);
  const char* const signs[] = {"\u2713", "\u2717", "!", "?", "\u25A0", "\u25CB", "~", "=", "\u2013"};
  for (std::size_t i = 0; i < kEveryStanding.size(); ++i)
    EXPECT_STREQ(report::html::PlainSignOf(kEveryStanding.at(i)), signs[i]);
}

TEST(HtmlReport, OnlyPassedIsGreen) {
  for (const auto standing : kEveryStanding)
    EXPECT_EQ(std::string(report::html::ClassOf(standing)) == "passed", standing == Standing::kPassed);
  EXPECT_STREQ(report::html::ClassOf(Standing::kFailed), "failed");
  EXPECT_STREQ(report::html::ClassOf(Standing::kDoubtful), "open");
  EXPECT_STREQ(report::html::ClassOf(Standing::kRecorded), "na");
}

TEST(HtmlReport, OverviewLinksToItsElements) {
  const ReadPage page(sample::Report());
  int links = 0;
  for (const auto& link : page.xml.select_nodes("//a/@href")) {
    const std::string target = "//*[@id='" + std::string(link.attribute().value() + 1) + "']";
    EXPECT_EQ(page.Count(target.c_str()), 1) << target;
    ++links;
  }
  EXPECT_EQ(links, 3);
}

TEST(HtmlReport, MarksAPartialReportOnEveryPage) {
  auto report = sample::Report();
  EXPECT_EQ(ReadPage(report).Count("//*[@class='partial'] | //*[@class='mark']"), 0);
  sample::MakePartial(report);
  const ReadPage page(report);
  EXPECT_EQ(TextOf(page, "//p[@class='partial']"), "Partial report: 1 of 3 not tested");
  EXPECT_EQ(TextOf(page, "//*[@class='running']//p[@class='mark']"), "Partial report: 1 of 3 not tested");
  EXPECT_THAT(RuleOf(".running", "@mediaprint"), HasSubstr("display:table-header-group;"));
}

TEST(HtmlReport, MarksASimulatedReportOnEveryPage) {
  auto report = sample::Report();
  EXPECT_EQ(ReadPage(report).Count("//*[@class='band'] | //*[@class='across']"), 0);
  sample::MakePartial(report);
  sample::MakeSimulated(report);
  const ReadPage page(report);
  EXPECT_EQ(TextOf(page, "/html/body/*[1][@class='band']"), "SIMULATED: nothing was measured.");
  EXPECT_THAT(RuleOf(".band"), HasSubstr("position:sticky;top:0;"));
  // Printed: in the header that each page repeats, and across each page.
  EXPECT_EQ(TextOf(page, "//*[@class='running']//p[@class='mark strong']"),
            "SIMULATED: nothing was measured.");
  EXPECT_EQ(TextOf(page, "//*[@class='across']"), "SIMULATED");
  EXPECT_THAT(RuleOf(".across", "@mediaprint"), HasSubstr("display:block;position:fixed;"));
  // Without backgrounds, too.
  EXPECT_THAT(RuleOf(".running.strong", "@mediaprint"), HasSubstr("color:#000;"));
}

TEST(HtmlReport, ShowsRunsReadingsByRunAndReasons) {
  auto report = sample::Report();
  EXPECT_EQ(ReadPage(report).Count("//*[@id='runs']"), 0);
  sample::AddRuns(report);
  const ReadPage page(report);
  EXPECT_EQ(TextOf(page, "//h2[@id='runs']/following-sibling::div[1]//td"), "interrupted");
  EXPECT_EQ(page.Count("//section//caption[text()='Readings by run']"), 3);
  EXPECT_EQ(TextOf(page, "//table[contains(@class, 'overview')]//*[@class='note']"), "Fails IEC 62353");
}

TEST(HtmlReport, PageHeaderFactsTakeOneLineEach) {
  auto report = sample::Report();
  report.pageHeader[0].value = std::string(10000, 'W');
  const ReadPage page(report);
  EXPECT_EQ(page.Count("//*[@class='running']//p/span"), 4);
  EXPECT_EQ(page.Count("//*[@class='running']//p/bdi"), 0) << "outside of its span";
  for (const char* rule : {"max-width:100%;", "overflow:hidden;", "white-space:nowrap;"})
    EXPECT_THAT(RuleOf(".runningspan", "@mediaprint"), HasSubstr(rule));
}

TEST(HtmlReport, EscapesTextsFromOutsideEverywhere) {
  const auto ordinary = ReadPage(sample::Everywhere("plain"));
  for (const std::string text :
       {sample::Hostile::kScript, sample::Hostile::kMarkup, sample::Hostile::kQuotes}) {
    const ReadPage page(sample::Everywhere(text));
    EXPECT_EQ(page.Count("//script"), 0);
    EXPECT_EQ(page.Count("//*"), ordinary.Count("//*")) << "no element came of " << text;
    EXPECT_EQ(page.Count("//@*"), ordinary.Count("//@*")) << "no attribute came of " << text;
    EXPECT_EQ(TextOf(page, "//h3/bdi"), text);
    EXPECT_EQ(TextOf(page, "//table[contains(@class, 'printed')]/tbody//bdi"), text);
    EXPECT_EQ(page.xml.select_node("//svg/@aria-label").attribute().value(), text);
  }
}

TEST(HtmlReport, KeepsATextOfTenThousandLetters) {
  const std::string text(10000, 'W');
  const ReadPage page(sample::Everywhere(text));
  EXPECT_EQ(TextOf(page, "//h3/bdi"), text);
}

TEST(HtmlReport, KeepsTheLineEndsOfAComment) {
  auto report = sample::Report();
  report.sections[0].facts = {{"Comment", "one\ntwo"}};
  EXPECT_THAT(report::HtmlReport(report), HasSubstr("<bdi>one<br/>two</bdi>"));
}

TEST(HtmlReport, ReportsADocumentWithoutTests) {
  auto report = sample::Report(0);
  const ReadPage page(report);
  EXPECT_THAT(page.text, HasSubstr("The document has no tests."));
  EXPECT_EQ(page.Count("//section"), 0);
}

TEST(HtmlReport, IsReproducible) {
  EXPECT_EQ(report::HtmlReport(sample::Report()), report::HtmlReport(sample::Report()));
}

/// Relative luminance of "#rrggbb" as the accessibility guidelines reckon it.
double Luminance(const std::string& colour) {
  double sum = 0;
  const double weights[] = {0.2126, 0.7152, 0.0722};
  for (std::size_t i = 0; i < 3; ++i) {
    const double part = std::stoi(colour.substr(1 + 2 * i, 2), nullptr, 16) / 255.0;
    sum += weights[i] * (part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
  }
  return sum;
}

// Its letters are white.
TEST(HtmlReport, VerdictsHaveABackground) {
  for (const auto standing : kEveryStanding) {
    const std::string name = report::html::ClassOf(standing);
    EXPECT_EQ(RuleOf(".verdict." + name), "background:var(--" + name + ");;") << name;
  }
}

TEST(HtmlReport, TextContrastsWithItsBackground) {
  const std::string style = report::html::kStyle;
  const auto colour = [&style](const std::string& name) {
    const auto at = style.find("--" + name + ": ");
    EXPECT_NE(at, std::string::npos) << name;
    return style.substr(at + name.size() + 4, 7);
  };
  for (const char* name : {"ink", "quiet", "accent", "passed", "failed", "open", "na"}) {
    for (const auto& background : {std::string("#ffffff"), colour("soft")}) {
      const double contrast = (Luminance(background) + 0.05) / (Luminance(colour(name)) + 0.05);
      EXPECT_GE(contrast, 4.5) << name << " on " << background;
    }
  }
}

}  // namespace
}  // namespace host
