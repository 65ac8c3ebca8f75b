#include <algorithm>
#include <charconv>

#include "host/report/HtmlText.h"

namespace host::report::html {
namespace {

using report::Bar;

/// The picture in its own units, with the line in its middle.
constexpr double kBarWidth = 280, kHeight = 46, kLeft = 12, kLine = kBarWidth - 2 * kLeft, kTop = 19,
                 kThick = 8;
/// About the width of a letter.
constexpr double kLetter = 7.2;

std::string Number(double number) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, 1).ptr;
  return {buffer, end};
}

double X(double place) { return kLeft + place * kLine; }

std::string Rectangle(const char* style, double from, double to) {
  return std::string("<rect class=\"") + style + "\" x=\"" + Number(from) + "\" y=\"" + Number(kTop) +
         "\" width=\"" + Number(std::max(to - from, 0.0)) + "\" height=\"" + Number(kThick) + "\"/>";
}

/// A label at a place, kept within the picture.
std::string Label(const char* style, double place, double y, const std::string& text) {
  const double half = std::min(kLetter * static_cast<double>(text.size()) / 2, kBarWidth / 2);
  const double x = std::clamp(X(place), half, kBarWidth - half);
  return std::string("<text class=\"") + style + "\" x=\"" + Number(x) + "\" y=\"" + Number(y) +
         "\" text-anchor=\"middle\">" + Escaped(text) + "</text>";
}

std::string Bound(double place, const std::string& label) {
  return "<path class=\"bound\" d=\"M" + Number(X(place)) + " " + Number(kTop - 4) + "v" +
         Number(kThick + 8) + "\"/>" + Label("label", place, kHeight - 3, label);
}

/// A drop that points at the value; an arrow when the value lies beyond the end of the line.
std::string Pointer(const Bar& bar) {
  const auto x = Number(X(bar.value));
  const auto tip = Number(kTop + kThick / 2);
  if (bar.beyond) {
    const bool right = bar.value > 0.5;
    return "<path class=\"value\" d=\"M" + x + " " + tip + "l" + (right ? "-9 -7v14z" : "9 -7v14z") + "\"/>";
  }
  return "<path class=\"value\" d=\"M" + x + " " + Number(kTop + kThick + 1) + "l-5 -10h10z\"/>";
}

}  // namespace

std::string BarOf(const report::Judgement& judgement) {
  const auto& bar = *judgement.bar;
  std::string svg = "<svg class=\"bar " + std::string(ClassOf(judgement.standing)) +
                    "\" role=\"img\" viewBox=\"0 0 " + Number(kBarWidth) + " " + Number(kHeight) +
                    "\" aria-label=\"" + Escaped(judgement.inWords) + "\"><title>" +
                    Escaped(judgement.inWords) + "</title>";
  svg += Rectangle("track", kLeft, kLeft + kLine);
  svg += Rectangle("allowed", X(bar.low.value_or(0)), X(bar.high.value_or(1)));
  if (bar.low) svg += Bound(*bar.low, judgement.lowLabel);
  if (bar.high) svg += Bound(*bar.high, judgement.highLabel);
  svg += Pointer(bar);
  svg += Label("reading", bar.value, 11, judgement.valueLabel);
  return svg + "</svg>";
}

}  // namespace host::report::html
