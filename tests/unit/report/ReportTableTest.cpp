#include <gtest/gtest.h>

#include <random>

#include "host/report/ReportObject.h"
#include "host/report/Table.h"
#include "tests/support/Errors.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

using host::report::ParseFormat;
using host::report::ParseRows;
using host::report::PlainText;
using orvik::HostError;
using orvik::platform::Alignment;
using support::ErrorNumber;
using support::ErrorText;
using support::Holds;

TEST(ReportTable, ColumnFormatNamesAlignmentRuleAndWidth) {
  const auto columns = report::ParseFormat("<+560|<2240|>+1569|^+1569|<+!1569|>!7;");
  ASSERT_EQ(columns.size(), 6U);
  EXPECT_EQ(columns[0].alignment, Alignment::kLeft);
  EXPECT_TRUE(columns[0].ruled);
  EXPECT_EQ(columns[0].width, 560);
  EXPECT_FALSE(columns[1].ruled);
  EXPECT_EQ(columns[2].alignment, Alignment::kRight);
  EXPECT_EQ(columns[3].alignment, Alignment::kCentre);
  EXPECT_TRUE(columns[4].unbroken);
  EXPECT_TRUE(columns[4].ruled);
  EXPECT_TRUE(columns[5].unbroken);
  EXPECT_FALSE(columns[5].ruled);
}

TEST(ReportTable, RejectsMalformedColumnFormats) {
  for (const auto* format :
       {"", ";", "<100", "100;", "<;", "<x;", "<-1;", "<100|;", "<100||<100;", "*100;", "<!+1;"})
    EXPECT_TRUE(support::Holds(support::ErrorText([&] { report::ParseFormat(format); }), "malformed"))
        << format;
}

TEST(ReportTable, CellsAreSeparatedByBarsAndRowsEndWithSemicolons) {
  const auto rows = report::ParseRows("|a|b;c;", 3);
  ASSERT_EQ(rows.size(), 2U);
  ASSERT_EQ(rows[0].size(), 3U);
  EXPECT_EQ(report::PlainText(rows[0][0]), "");
  EXPECT_EQ(report::PlainText(rows[0][2]), "b");
  ASSERT_EQ(rows[1].size(), 1U);
  EXPECT_TRUE(report::ParseRows("", 1).empty());
}

TEST(ReportTable, GroupsCarryStyles) {
  const auto rows = report::ParseRows("|{\\i\\b Result:}|{\\b x} y;", 3);
  EXPECT_EQ(rows[0][1], (report::Cell{{"Result:", true, true}}));
  EXPECT_EQ(rows[0][2], (report::Cell{{"x", true, false}, {" y", false, false}}));
}

TEST(ReportTable, KeepsBlanksOfTheText) {
  EXPECT_EQ(report::PlainText(report::ParseRows("      text;", 1)[0][0]), "      text");
  EXPECT_EQ(report::PlainText(report::ParseRows("{\\b  two};", 1)[0][0]), " two")
      << "one blank belongs to the control";
}

TEST(ReportTable, RejectsMalformedRows) {
  for (const auto* rows : {"a", "a|b", "{a;", "a};", "{{a}};", "{a|b};", "\\b a;", "{\\u a};", "a;b", "a\\"})
    EXPECT_TRUE(support::Holds(support::ErrorText([&] { report::ParseRows(rows, 9); }), "malformed")) << rows;
  EXPECT_TRUE(support::Holds(support::ErrorText([] { report::ParseRows("a|b|c;", 2); }), "more cells"));
}

TEST(ReportTable, EscapedTextIsReadBackUnchanged) {
  std::mt19937 random(support::Seed());
  const std::string letters = "|;{}\\ab i<>&\"\n \xC3\xB8";
  for (int round = 0; round < 5000; ++round) {
    std::string text;
    for (auto left = random() % 10; left > 0; --left) text += letters[random() % letters.size()];
    report::ReportObject report;
    report.AddTable("<100|<100;", "{\\b " + report.Escape(text) + "};", "x|" + report.Escape(text) + ";");
    ASSERT_EQ(report::PlainText(report.Tables()[0].rows[0][1]), text);
    ASSERT_EQ(report::PlainText(report.Tables()[0].header[0][0]), text);
  }
}

TEST(ReportObject, HasOnlyTheUsableWidth) {
  const report::ReportObject report;
  EXPECT_EQ(report.Metric(10), 9637) << "170 mm in twips";
  EXPECT_EQ(support::ErrorNumber([&] { report.Metric(9); }), HostError::kInvalidArgument);
}

TEST(ReportObject, LayoutAppliesToLaterTables) {
  report::ReportObject report;
  report.AddTable("<1;", "", "a;");
  report.SetTableBorder(7);
  report.SetTableIndent(30);
  report.SetHeaderRows(1);
  report.AddTable("<1;", "h;", "a;");
  report.AddTable("<1;", "h;", "b;");
  EXPECT_EQ(report.Tables()[0].border, 0);
  for (const int index : {1, 2}) {
    EXPECT_EQ(report.Tables()[index].border, 7);
    EXPECT_EQ(report.Tables()[index].indent, 30);
    EXPECT_EQ(report.Tables()[index].headerRows, 1);
  }
}

TEST(ReportObject, DoesNotAddARejectedTable) {
  report::ReportObject report;
  EXPECT_NE(support::ErrorNumber([&] { report.AddTable("<1;", "a|b;", ""); }), 0);
  EXPECT_TRUE(report.Tables().empty());
}

}  // namespace
}  // namespace host
