#include "host/qt/Units.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace host::qt {

namespace platform = orvik::platform;

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kUsualPixelsPerInch = 96;

}  // namespace

Units::Units() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  twipsPerPixel_ = kTwipsPerInch / (screen ? screen->logicalDotsPerInch() : kUsualPixelsPerInch);
}

int Units::Pixels(platform::Twips length) const {
  return static_cast<int>(std::lround(length / twipsPerPixel_));
}

QRect Units::Pixels(const platform::Rect& rect) const {
  const QPoint from(Pixels(rect.left), Pixels(rect.top));
  const QPoint to(Pixels(rect.left + rect.width), Pixels(rect.top + rect.height));
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

QSize Units::Pixels(const platform::Size& size) const { return {Pixels(size.width), Pixels(size.height)}; }

platform::Twips Units::Twips(int pixels) const {
  return static_cast<platform::Twips>(std::ceil(pixels * twipsPerPixel_));
}

platform::Size Units::Twips(const QSize& size) const { return {Twips(size.width()), Twips(size.height())}; }

}  // namespace host::qt
