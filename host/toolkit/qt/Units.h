#pragma once

#include <QRect>
#include <QSize>

#include "platform/Types.h"

namespace bench::qt {

/// Lengths of the windows in twips, 1,440 an inch, against pixels of the screen by its logical resolution.
class Units {
 public:
  /// Of the first screen as it is now.
  Units();

  int Pixels(orvik::platform::Twips length) const;
  /// Edges are rounded, not lengths, so that neighbours stay neighbours.
  QRect Pixels(const orvik::platform::Rect& rect) const;
  QSize Pixels(const orvik::platform::Size& size) const;
  /// Rounded up: what is measured in pixels fits when it comes back.
  orvik::platform::Twips Twips(int pixels) const;
  orvik::platform::Size Twips(const QSize& size) const;

 private:
  double twipsPerPixel_;
};

}  // namespace bench::qt
