#include <gtest/gtest.h>

#include "host/report/ReportObject.h"
#include "host/report/TextLines.h"
#include "host/report/TextTable.h"

namespace host {
namespace {

std::string Printed(const report::ReportObject& report, std::size_t width = 100) {
  return report::TextTable(report::Shown(report.Tables().at(0)), width);
}

TEST(TextTable, AlignsColumns_DropsEmptyMargins) {
  report::ReportObject report;
  report.SetTableBorder(7);
  report.AddTable("<+560|<2240|>+100|^+100|<+560;", "|{\\b Name}|{\\b Value}|{\\b Unit};",
                  "|Earth|12|m\u03A9;|Long name|3|V;");
  EXPECT_EQ(Printed(report),
            "+-----------+-------+------+\n"
            "| Name      | Value | Unit |\n"
            "+===========+=======+======+\n"
            "| Earth     |    12 |  m\u03A9  |\n"
            "| Long name |     3 |  V   |\n"
            "+-----------+-------+------+\n");
}

TEST(TextTable, HasNoLinesWithoutBorder) {
  report::ReportObject report;
  report.AddTable("<1|>1;", "", "a|1;bb|22;");
  EXPECT_EQ(Printed(report), "a    1\nbb  22\n");
}

TEST(TextTable, KeepsLineEnds_ShowsControlCharacters) {
  report::ReportObject report;
  report.AddTable("<1|<1;", "", "one\ntwo|\x1B[31m\x7F;");
  EXPECT_EQ(Printed(report), "one  [U+001B][31m[U+007F]\ntwo\n");
}

TEST(TextTable, WideLettersTakeTwoColumns) {
  report::ReportObject report;
  report.AddTable("<1|<1;", "", "\u4EBA\u5DE5|x;abc|y;");
  EXPECT_EQ(Printed(report), "\u4EBA\u5DE5  x\nabc   y\n");
}

TEST(TextTable, NarrowsAWideColumnWithoutLoss) {
  report::ReportObject report;
  report.SetTableBorder(7);
  report.AddTable("<1|<1;", "", std::string(1000, 'x') + "|end;");
  const auto text = Printed(report, 60);
  EXPECT_EQ(std::count(text.begin(), text.end(), 'x'), 1000);
  for (std::size_t at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
    EXPECT_LE(end - at, 60U);
}

TEST(TextLines, BreakAtBlanksAndInsideLongWords) {
  EXPECT_EQ(report::text::Wrapped("one two three", 8), (std::vector<std::string>{"one two", "three"}));
  EXPECT_EQ(report::text::Wrapped("one two three", 7), (std::vector<std::string>{"one two", "three"}));
  EXPECT_EQ(report::text::Wrapped("abcdefghij", 4), (std::vector<std::string>{"abcd", "efgh", "ij"}));
  EXPECT_EQ(report::text::Wrapped("a\n\nb", 9), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(report::text::Wrapped("", 9), (std::vector<std::string>{""}));
}

}  // namespace
}  // namespace host
