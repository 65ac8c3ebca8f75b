#include "host/archive/TrendChart.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>

#include "host/archive/IsoTime.h"
#include "host/archive/Svg.h"
#include "host/archive/Ticks.h"
#include "host/archive/TrendLimits.h"
#include "host/archive/TrendMarks.h"
#include "host/archive/TrendUnit.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

// The page, in units of about a point.
constexpr double kWidth = 900, kLeft = 80, kRight = 780, kTop = 90, kBottom = 420, kLine = 20;
constexpr double kLegendTop = kBottom + 70;
constexpr char kInk[] = "#222222", kFaint[] = "#dddddd", kGreen[] = "#1a7f37", kWarning[] = "#b00020";
constexpr std::array<const char*, 6> kDashes = {"none", "8 4", "2 3", "12 3 2 3", "5 2", "1 5"};

/// What is drawn of a reading.
struct Drawn {
  const TrendPoint* point;
  Seconds at;
  Mark mark;
  std::optional<double> value;  ///< in the unit of the drawing; none for an overload
};

/// "A", "B", ... "Z", "AA": short enough for the label of a line.
std::string LetterOf(std::size_t index) {
  std::string letters;
  for (++index; index > 0; index = (index - 1) / 26)
    letters.insert(letters.begin(), static_cast<char>('A' + (index - 1) % 26));
  return letters;
}

std::string ReadingText(const TrendPoint& point) {
  if (point.Overloaded()) return "OL";
  const auto value = point.Value();
  return value ? NumberText(*value) + " " + point.Unit() : "-";
}

class Chart {
 public:
  explicit Chart(const Trend& trend) : trend_(trend) {
    ChooseUnit();
    for (const auto& point : trend.points) Take(point);
    limits_ = LimitsOf(trend.points, unit_);
    Scale();
  }

  std::string Draw() {
    const double height = kLegendTop + kLine * static_cast<double>(LegendRows()) + 10;
    svg_.Open("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                      {"width", kWidth},
                      {"height", height},
                      {"viewBox", "0 0 " + NumberText(kWidth) + " " + NumberText(height)},
                      {"role", "img"},
                      {"aria-labelledby", "title desc"},
                      {"font-family", "DejaVu Sans, Verdana, Arial, sans-serif"},
                      {"font-size", 12.0},
                      {"fill", kInk}});
    svg_.AddText("title", {{"id", "title"}}, Title());
    svg_.AddText("desc", {{"id", "desc"}}, Description());
    svg_.Add("rect", {{"width", kWidth}, {"height", height}, {"fill", "#ffffff"}});
    DrawHeading();
    DrawBands();
    DrawAxes();
    DrawLimitLines();
    DrawPath();
    DrawPoints();
    DrawLegend();
    svg_.Close("svg");
    return svg_.Text();
  }

 private:
  /// The unit of the last reading with a value, or else of the last overload; others are converted to it.
  void ChooseUnit() {
    for (const auto& point : trend_.points)
      if (point.Overloaded()) unit_ = point.Unit();
    for (const auto& point : trend_.points)
      if (point.Value()) unit_ = point.Unit();
  }

  void Take(const TrendPoint& point) {
    const auto at = IsoMoment(point.date);
    auto value = point.Value();
    if (value) value = NumberIn(unit_, *value, point.Unit());
    if (at && (value || point.Overloaded()))
      drawn_.push_back({&point, *at, MarkOf(point), value});
    else
      ++leftOut_;
  }

  void Scale() {
    for (const auto& drawn : drawn_) {
      from_ = std::min(from_.value_or(drawn.at), drawn.at);
      to_ = std::max(to_.value_or(drawn.at), drawn.at);
    }
    if (!from_) from_ = to_ = UtcNow();
    const auto margin = *from_ == *to_ ? std::chrono::seconds(std::chrono::days(1)) : (*to_ - *from_) / 25;
    *from_ -= margin;
    *to_ += margin;
    dateTicks_ = DateTicks(*from_, *to_);

    std::vector<double> values{0};  // the distance of a reading from 0 matters
    for (const auto& drawn : drawn_)
      if (drawn.value) values.push_back(*drawn.value);
    for (const auto& stretch : limits_.stretches)
      for (const auto& bound : {stretch.low, stretch.high})
        if (bound) values.push_back(*bound);
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    ticks_ = NumberTicks(*low, *high);
    // Keeps the upper edge free for overloads.
    if (*high >= ticks_.back().at) ticks_ = NumberTicks(*low, *high + (*high - *low) * 0.05);
  }

  double X(Seconds at) const {
    return kLeft + (kRight - kLeft) * static_cast<double>((at - *from_).count()) /
                       static_cast<double>((*to_ - *from_).count());
  }
  double X(const std::optional<std::string>& date, double otherwise) const {
    const auto at = date ? IsoMoment(*date) : std::nullopt;
    return at ? std::clamp(X(*at), kLeft, kRight) : otherwise;
  }
  double Y(double value) const {
    const double low = ticks_.front().at, high = ticks_.back().at;
    return kBottom - (kBottom - kTop) * (value - low) / (high - low);
  }

  std::string TestName() const {
    return trend_.points.empty() ? std::string() : trend_.points.back().element.result.name;
  }

  std::string Title() const {
    return Tr("Test %%1, %%2: asset %%3", {std::to_string(trend_.testId), TestName(), trend_.asset});
  }

  std::string Description() const {
    std::string text = trend_.simulated ? SimulatedText() + " " : std::string();
    text += Tr("%%1 readings drawn over time.", {std::to_string(drawn_.size())});
    for (const auto& drawn : drawn_) text += " " + PointText(drawn) + ".";
    for (const auto& standard : limits_.standards) text += " " + Tr("Limits of %%1.", {standard});
    if (leftOut_ > 0) text += " " + LeftOutText();
    return text;
  }

  std::string LeftOutText() const {
    return Tr("%%1 readings are not drawn: they have no value, or another unit.", {std::to_string(leftOut_)});
  }

  std::string PointText(const Drawn& drawn) const {
    return Tr("%%1: %%2, %%3", {drawn.point->date, ReadingText(*drawn.point),
                                Tr(judge::VerdictText(drawn.point->element.result.verdict))});
  }

  static std::string SimulatedText() {
    return Tr("SIMULATED: a simulated tester was used; nothing was measured.");
  }

  void DrawHeading() {
    if (trend_.simulated)
      svg_.AddText("text", {{"x", kLeft}, {"y", kTop - 22}, {"font-weight", "bold"}, {"fill", kWarning}},
                   SimulatedText());
    svg_.AddText("text", {{"x", kLeft}, {"y", 30.0}, {"font-size", 18.0}, {"font-weight", "bold"}},
                 Shortened(trend_.asset, 60));
    svg_.AddText("text", {{"x", kLeft}, {"y", 52.0}, {"font-size", 14.0}},
                 Shortened(std::to_string(trend_.testId) + "  " + TestName(), 80));
    svg_.AddText("text", {{"x", kLeft - 8}, {"y", kTop - 14}, {"text-anchor", "end"}}, Shortened(unit_, 10));
  }

  void DrawBands() {
    for (const auto& stretch : limits_.stretches) {
      const double left = X(stretch.from, kLeft), right = X(stretch.to, kRight);
      const double top = stretch.high ? Y(*stretch.high) : kTop;
      const double bottom = stretch.low ? Y(*stretch.low) : kBottom;
      svg_.Add("rect", {{"x", left},
                        {"y", top},
                        {"width", right - left},
                        {"height", bottom - top},
                        {"fill", kGreen},
                        {"fill-opacity", 0.08}});
    }
  }

  void DrawAxes() {
    for (const auto& tick : ticks_) {
      const double y = Y(tick.at);
      svg_.Add("line", {{"x1", kLeft}, {"y1", y}, {"x2", kRight}, {"y2", y}, {"stroke", kFaint}});
      svg_.AddText("text", {{"x", kLeft - 8}, {"y", y + 4}, {"text-anchor", "end"}}, tick.label);
    }
    for (const auto& tick : dateTicks_) {
      const double x = X(tick.at);
      svg_.Add("line", {{"x1", x}, {"y1", kBottom}, {"x2", x}, {"y2", kBottom + 6}, {"stroke", kInk}});
      svg_.AddText("text", {{"x", x}, {"y", kBottom + 22}, {"text-anchor", "middle"}}, tick.label);
    }
    svg_.Add("path", {{"d", "M" + NumberText(kLeft) + " " + NumberText(kTop) + " V" + NumberText(kBottom) +
                                " H" + NumberText(kRight)},
                      {"fill", "none"},
                      {"stroke", kInk}});
  }

  void DrawLimitLines() {
    std::set<std::pair<double, std::string>> labels;
    for (const auto& stretch : limits_.stretches) {
      const double left = X(stretch.from, kLeft), right = X(stretch.to, kRight);
      for (const auto* bound : {&stretch.low, &stretch.high}) {
        if (!*bound) continue;
        const double y = Y(**bound);
        DrawLimitLine(stretch.standard, left, right, y);
        const std::string sign = bound == &stretch.low ? "\xE2\x89\xA5 " : "\xE2\x89\xA4 ";
        if (!stretch.to) labels.insert({y, LetterOf(stretch.standard) + " " + sign + NumberText(**bound)});
      }
    }
    DrawLimitLabels(labels);
  }

  void DrawLimitLine(std::size_t standard, double left, double right, double y) {
    svg_.Add("line", {{"x1", left},
                      {"y1", y},
                      {"x2", right},
                      {"y2", y},
                      {"stroke", kGreen},
                      {"stroke-width", 1.5},
                      {"stroke-dasharray", kDashes[standard % kDashes.size()]}});
  }

  /// Beside the lines, from the top down; labels that would overlap are moved apart.
  void DrawLimitLabels(const std::set<std::pair<double, std::string>>& labels) {
    double free = kTop - 20;
    for (const auto& [y, label] : labels) {
      const double at = std::max(y + 4, free);
      svg_.AddText("text", {{"x", kRight + 6}, {"y", at}, {"fill", kGreen}}, label);
      free = at + 14;
    }
  }

  /// Joins the readings of each element.
  void DrawPath() {
    std::map<std::int32_t, std::string> paths;
    for (const auto& drawn : drawn_) {
      if (!drawn.value) continue;
      auto& path = paths[drawn.point->element.result.id];
      path += (path.empty() ? "" : " ") + NumberText(X(drawn.at)) + "," + NumberText(HeightOf(drawn));
    }
    for (const auto& [id, path] : paths)
      svg_.Add("polyline", {{"points", path}, {"fill", "none"}, {"stroke", "#888888"}});
  }

  double HeightOf(const Drawn& drawn) const { return drawn.value ? Y(*drawn.value) : kTop; }

  void DrawPoints() {
    for (const auto& drawn : drawn_) {
      const double x = X(drawn.at), y = HeightOf(drawn);
      svg_.Open("g");
      svg_.AddText("title", {}, PointText(drawn));
      DrawMark(svg_, drawn.mark, x, y);
      if (drawn.mark == Mark::kOverloaded)
        svg_.AddText("text", {{"x", x}, {"y", y - 10}, {"text-anchor", "middle"}}, "OL");
      svg_.Close("g");
    }
  }

  std::set<Mark> UsedMarks() const {
    std::set<Mark> used;
    for (const auto& drawn : drawn_) used.insert(drawn.mark);
    return used;
  }

  std::size_t LegendRows() const {
    return std::max(limits_.standards.size(), UsedMarks().size()) + (leftOut_ > 0 ? 1 : 0);
  }

  /// The standards on the left, the marks on the right.
  void DrawLegend() {
    double y = kLegendTop;
    for (std::size_t i = 0; i < limits_.standards.size(); ++i, y += kLine) {
      DrawLimitLine(i, kLeft, kLeft + 36, y - 4);
      svg_.AddText("text", {{"x", kLeft + 44}, {"y", y}},
                   LetterOf(i) + "  " + Shortened(limits_.standards[i], 60));
    }
    y = kLegendTop;
    for (const auto mark : UsedMarks()) {
      DrawMark(svg_, mark, kRight - 180, y - 4);
      svg_.AddText("text", {{"x", kRight - 160}, {"y", y}}, MarkText(mark));
      y += kLine;
    }
    if (leftOut_ > 0)
      svg_.AddText("text", {{"x", kLeft}, {"y", kLegendTop + kLine * static_cast<double>(LegendRows() - 1)}},
                   LeftOutText());
  }

  const Trend& trend_;
  std::string unit_;
  std::vector<Drawn> drawn_;
  std::size_t leftOut_ = 0;
  TrendLimits limits_;
  std::optional<Seconds> from_, to_;
  std::vector<Tick<Seconds>> dateTicks_;
  std::vector<Tick<double>> ticks_;
  Svg svg_;
};

}  // namespace

std::string TrendChart(const Trend& trend) { return Chart(trend).Draw(); }

}  // namespace host::archive
