#include <gmock/gmock.h>

#include <pugixml.hpp>

#include "host/archive/TrendChart.h"
#include "host/archive/TrendMarks.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using host::archive::Mark;
using testing::HasSubstr;
using testing::Not;

host::archive::TrendPoint Point(const std::string& date, double value) {
  host::archive::TrendPoint point;
  point.document = 1;
  point.date = date;
  point.element = Measured("/d", "P", value, date).elements[0];
  return point;
}

host::archive::TrendPoint Doubtful(host::archive::TrendPoint point) {
  point.element.result.verdict = host::judge::Verdict::kDoubtful;
  return point;
}

host::archive::TrendPoint Overloaded(host::archive::TrendPoint point) {
  point.element.result.measurement->flags = "O";
  return point;
}

/// The picture, which must be well-formed and self-contained.
std::string Drawn(const std::vector<host::archive::TrendPoint>& points, const std::string& asset = "P-7",
                  bool simulated = false) {
  const auto svg = host::archive::TrendChart({asset, 410, simulated, points, 0, 0});
  pugi::xml_document xml;
  EXPECT_TRUE(xml.load_string(svg.c_str())) << svg;
  const auto root = xml.document_element();
  EXPECT_STREQ(root.name(), "svg");
  EXPECT_STREQ(root.attribute("role").value(), "img");
  EXPECT_STREQ(root.attribute("aria-labelledby").value(), "title desc");
  EXPECT_STREQ(root.child("title").attribute("id").value(), "title");
  EXPECT_FALSE(root.child("desc").text().empty());
  for (const char* outside : {"href", "url(", "@import", "<script", "<image", "nan", "inf\""})
    EXPECT_THAT(svg, Not(HasSubstr(outside)));
  return svg;
}

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(TrendMarks, FollowTheVerdict) {
  using host::judge::Verdict;
  const auto marked = [](Verdict verdict, bool overloaded = false) {
    auto point = Point("2024-01-01T00:00:00Z", 100);
    point.element.result.verdict = verdict;
    point.element.result.status = 1;  // the plug-in's status is ignored
    return host::archive::MarkOf(overloaded ? Overloaded(point) : point);
  };
  EXPECT_EQ(marked(Verdict::kPassed), Mark::kPassed);
  EXPECT_EQ(marked(Verdict::kFailed), Mark::kFailed);
  EXPECT_EQ(marked(Verdict::kDoubtful), Mark::kDoubtful);
  EXPECT_EQ(marked(Verdict::kRecorded), Mark::kRecorded);
  EXPECT_EQ(marked(Verdict::kNotJudged), Mark::kOther);
  EXPECT_EQ(marked(Verdict::kAborted), Mark::kOther);
  EXPECT_EQ(marked(Verdict::kDoubtful, true), Mark::kOverloaded);
  EXPECT_EQ(marked(Verdict::kFailed, true), Mark::kOverloadedFailed);
}

TEST(TrendPoint, AnOverloadHasNoValueToDraw) {
  const auto point = Point("2024-01-01T00:00:00Z", 100);
  EXPECT_EQ(point.Value(), 100.0);
  EXPECT_FALSE(Overloaded(point).Value());
  EXPECT_EQ(Overloaded(point).Unit(), "mOhm");
}

TEST(TrendPoint, AGroupHasTheUnitOfItsTests) {
  auto group = Point("2024-01-01T00:00:00Z", 100);
  group.element.result.measurement->unit = "";
  EXPECT_EQ(group.Unit(), "mOhm");
}

TEST(TrendMarks, HaveDistinctShapes) {
  std::set<std::string> shapes;
  for (const auto mark : host::archive::kMarks) {
    host::archive::Svg svg;
    host::archive::DrawMark(svg, mark, 10, 10);
    shapes.insert(svg.Text());
  }
  EXPECT_EQ(shapes.size(), std::size(host::archive::kMarks));
}

TEST(TrendChart, DescribesReadingsAndLimits) {
  const auto svg = Drawn({Point("2024-01-01T00:00:00Z", 100), Point("2025-01-01T00:00:00Z", 412.5)});
  EXPECT_THAT(svg, HasSubstr("<title>2024-01-01T00:00:00Z: 100 mOhm, passed</title>"));
  EXPECT_THAT(svg, HasSubstr("<title>2025-01-01T00:00:00Z: 412.5 mOhm, failed</title>"));
  EXPECT_THAT(svg, HasSubstr("Limits of IEC 62353, class I."));
  EXPECT_THAT(svg, HasSubstr(">A \xE2\x89\xA4 300<"));
  EXPECT_THAT(svg, HasSubstr(">A  IEC 62353, class I<"));
  EXPECT_THAT(svg, HasSubstr(">mOhm<"));
}

TEST(TrendChart, EscapesTexts) {
  auto point = Point("2024-01-01T00:00:00Z", 100);
  point.element.result.name = "</title><script>alert(1)</script>";
  point.element.result.limits[0].standard = "\"><script/>";
  point.element.result.measurement->unit = "<b>&\x01";
  const auto svg = Drawn({point}, "<script>'\"&%1 %%1 ]]> \x1b[31m \xff");
  EXPECT_THAT(svg, HasSubstr("&lt;script&gt;"));
  EXPECT_THAT(svg, Not(HasSubstr("\x1b")));
  EXPECT_THAT(svg, HasSubstr("%%1"));
}

TEST(TrendChart, DrawsAnOverloadAboveTheScale) {
  const auto svg =
      Drawn({Point("2024-01-01T00:00:00Z", 100), Doubtful(Overloaded(Point("2025-01-01T00:00:00Z", 9e9)))});
  EXPECT_THAT(svg, HasSubstr(">OL<"));
  EXPECT_THAT(svg, Not(HasSubstr("e+09")));
}

TEST(TrendChart, ShowsUnitAndLimits_OverloadsOnly) {
  const auto svg = Drawn({Doubtful(Overloaded(Point("2025-01-01T00:00:00Z", 9e9)))});
  EXPECT_THAT(svg, HasSubstr(">mOhm<"));
  EXPECT_THAT(svg, HasSubstr(">A \xE2\x89\xA4 300<"));
}

TEST(TrendChart, ConvertsToTheLastUnit) {
  auto ohms = Point("2024-01-01T00:00:00Z", 0.2);
  ohms.element.result.measurement->unit = "Ohm";
  ohms.element.result.limits.clear();
  auto same = Point("2024-01-01T00:00:00Z", 200);
  same.element.result.limits.clear();
  const auto last = Point("2025-01-01T00:00:00Z", 200);
  const auto polyline = [](const std::string& svg) {
    const auto at = svg.find("<polyline");
    return svg.substr(at, svg.find("/>", at) - at);
  };
  EXPECT_EQ(polyline(Drawn({ohms, last})), polyline(Drawn({same, last})));
}

TEST(TrendChart, CountsWhatItDidNotDraw) {
  auto volts = Point("2024-01-01T00:00:00Z", 230), none = Point("2024-01-01T00:00:00Z", 1);
  volts.element.result.measurement->unit = "V";
  none.element.result.measurement.reset();
  const auto svg = Drawn({volts, none, Point("2025-01-01T00:00:00Z", 100)});
  EXPECT_EQ(CountOf(svg, "2 readings are not drawn"), 2U);  // description and legend
  EXPECT_EQ(CountOf(svg, "<circle"), 2U);                   // the reading and its legend
}

TEST(TrendChart, MarksSimulatedReadings) {
  const std::vector<host::archive::TrendPoint> points = {Point("2024-01-01T00:00:00Z", 100)};
  EXPECT_EQ(CountOf(Drawn(points, "P-7", true), "SIMULATED"), 2U);
  EXPECT_EQ(CountOf(Drawn(points), "SIMULATED"), 0U);
}

TEST(TrendChart, ShowsTheVerdictOfAnOverload) {
  auto failed = Overloaded(Point("2025-01-01T00:00:00Z", 400));
  EXPECT_THAT(Drawn({failed}), HasSubstr("<title>2025-01-01T00:00:00Z: OL, failed</title>"));
}

TEST(TrendChart, DrawsExtremeValues) {
  for (const double value : {0.0, -5.0, 1e-12, 1e14, 1e300, -1e300})
    Drawn({Point("2024-01-01T00:00:00Z", value), Point("2024-01-01T00:00:00Z", value)});
  Drawn({});
}

}  // namespace
}  // namespace archive_tests
