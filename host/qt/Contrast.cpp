#include "host/qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace host::qt {
namespace {

constexpr double kLegible = 4.5;
constexpr int kSteps = 20;

double Linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

/// Mixes the colours; `part` from 0 (all `from`) to 1 (all `to`).
QColor Between(const QColor& from, const QColor& to, double part) {
  const auto mixed = [part](double start, double end) { return start + (end - start) * part; };
  return QColor::fromRgbF(static_cast<float>(mixed(from.redF(), to.redF())),
                          static_cast<float>(mixed(from.greenF(), to.greenF())),
                          static_cast<float>(mixed(from.blueF(), to.blueF())));
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor Legible(const QColor& color, const QColor& background) {
  const bool dark = Contrast(background, Qt::white) > Contrast(background, Qt::black);
  const QColor end = dark ? Qt::white : Qt::black;
  QColor legible = color;
  for (int step = 1; step <= kSteps && Contrast(legible, background) < kLegible; ++step)
    legible = Between(color, end, static_cast<double>(step) / kSteps);
  return legible;
}

}  // namespace host::qt
