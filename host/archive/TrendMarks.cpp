#include "host/archive/TrendMarks.h"

#include "host/base/Tr.h"

namespace host::archive {

namespace {

constexpr char kBlue[] = "#1b4f8a", kRed[] = "#b00020", kAmber[] = "#8a5a00", kBlack[] = "#222222";

std::string Text(double number) { return std::to_string(number); }

void DrawDiamond(Svg& svg, double x, double y, double size, const char* fill) {
  svg.Add("path", {{"d", "M" + Text(x) + " " + Text(y - size) + " L" + Text(x + size) + " " + Text(y) + " L" +
                             Text(x) + " " + Text(y + size) + " L" + Text(x - size) + " " + Text(y) + " Z"},
                   {"fill", fill},
                   {"stroke", kAmber},
                   {"stroke-width", 2.0}});
}

void DrawTriangle(Svg& svg, double x, double y) {
  svg.Add("path", {{"d", "M" + Text(x) + " " + Text(y - 7) + " L" + Text(x + 7) + " " + Text(y + 5) + " L" +
                             Text(x - 7) + " " + Text(y + 5) + " Z"},
                   {"fill", kBlack}});
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
  using judge::Verdict;
  const auto verdict = point.element.result.verdict;
  if (point.Overloaded()) return verdict == Verdict::kFailed ? Mark::kOverloadedFailed : Mark::kOverloaded;
  switch (verdict) {
    case Verdict::kPassed:
      return Mark::kPassed;
    case Verdict::kFailed:
      return Mark::kFailed;
    case Verdict::kDoubtful:
      return Mark::kDoubtful;
    case Verdict::kRecorded:
      return Mark::kRecorded;
    default:
      return Mark::kOther;
  }
}

std::string MarkText(Mark mark) {
  switch (mark) {
    case Mark::kPassed:
      return Tr("passed");
    case Mark::kFailed:
      return Tr("failed");
    case Mark::kDoubtful:
      return Tr("doubtful");
    case Mark::kRecorded:
      return Tr("record only");
    case Mark::kOverloaded:
      return Tr("overload (OL), not to scale");
    case Mark::kOverloadedFailed:
      return Tr("overload (OL), failed, not to scale");
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
    case Mark::kRecorded:
      svg.Add("rect", {{"x", x - 5},
                       {"y", y - 5},
                       {"width", 10.0},
                       {"height", 10.0},
                       {"fill", "#ffffff"},
                       {"stroke", kBlue},
                       {"stroke-width", 2.0}});
      return;
    case Mark::kOverloadedFailed:
      DrawTriangle(svg, x, y);
      DrawCross(svg, x, y);
      return;
    case Mark::kOverloaded:
      DrawTriangle(svg, x, y);
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

}  // namespace host::archive
