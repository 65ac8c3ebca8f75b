#include "host/archive/TrendMarks.h"

#include "host/services/Tr.h"

namespace bench {

namespace {

enum Status { kPassed = 1, kFailed = 2 };

constexpr char kBlue[] = "#1b4f8a", kRed[] = "#b00020", kAmber[] = "#8a5a00", kBlack[] = "#222222";

std::string Text(double number) { return std::to_string(number); }

void DrawDiamond(Svg& svg, double x, double y, double size, const char* fill) {
  svg.Add("path", {{"d", "M" + Text(x) + " " + Text(y - size) + " L" + Text(x + size) + " " + Text(y) + " L" +
                             Text(x) + " " + Text(y + size) + " L" + Text(x - size) + " " + Text(y) + " Z"},
                   {"fill", fill},
                   {"stroke", kAmber},
                   {"stroke-width", 2.0}});
}

void DrawCross(Svg& svg, double x, double y) {
  for (const double side : {-1.0, 1.0})
    svg.Add("line", {{"x1", x - 5},
                     {"y1", y - 5 * side},
                     {"x2", x + 5},
                     {"y2", y + 5 * side},
                     {"stroke", kRed},
                     {"stroke-width", 3.0}});
}

}  // namespace

Mark MarkOf(const TrendPoint& point) {
  const auto& summary = point.element.summary;
  const bool doubtful = summary.verdict == judge::Verdict::kDoubtful;
  if (point.Overloaded()) return Mark::kOverloaded;
  if (summary.verdict == judge::Verdict::kFailed) return doubtful ? Mark::kFailedDoubtful : Mark::kFailed;
  if (doubtful) return Mark::kDoubtful;
  return summary.verdict == judge::Verdict::kPassed ? Mark::kPassed : Mark::kOther;
}

std::string MarkText(Mark mark) {
  switch (mark) {
    case Mark::kPassed:
      return Tr("passed");
    case Mark::kFailed:
      return Tr("failed");
    case Mark::kDoubtful:
      return Tr("doubtful");
    case Mark::kFailedDoubtful:
      return Tr("failed, doubtful");
    case Mark::kOverloaded:
      return Tr("overload (OL), not to scale");
    case Mark::kOther:
      break;
  }
  return Tr("not judged");
}

void DrawMark(Svg& svg, Mark mark, double x, double y) {
  switch (mark) {
    case Mark::kPassed:
      svg.Add("circle", {{"cx", x}, {"cy", y}, {"r", 5.0}, {"fill", kBlue}});
      return;
    case Mark::kFailed:
      DrawCross(svg, x, y);
      return;
    case Mark::kDoubtful:
      DrawDiamond(svg, x, y, 7, "#ffffff");
      svg.AddText(
          "text",
          {{"x", x}, {"y", y + 3.5}, {"font-size", 10.0}, {"text-anchor", "middle"}, {"fill", kAmber}}, "?");
      return;
    case Mark::kFailedDoubtful:
      DrawDiamond(svg, x, y, 11, "none");
      DrawCross(svg, x, y);
      return;
    case Mark::kOverloaded:
      svg.Add("path", {{"d", "M" + Text(x) + " " + Text(y - 7) + " L" + Text(x + 7) + " " + Text(y + 5) +
                                 " L" + Text(x - 7) + " " + Text(y + 5) + " Z"},
                       {"fill", kBlack}});
      return;
    case Mark::kOther:
      svg.Add("circle", {{"cx", x},
                         {"cy", y},
                         {"r", 5.0},
                         {"fill", "#ffffff"},
                         {"stroke", "#555555"},
                         {"stroke-width", 2.0}});
      return;
  }
}

}  // namespace bench
