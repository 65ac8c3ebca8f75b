#pragma once

#include <QRect>
#include <QSize>

#include "platform/Types.h"

namespace host::qt {

/// Converts between twips (1,440 an inch) and pixels of the screen's logical resolution.
class Units {
 public:
  /// Uses the current resolution of the primary screen.
  Units();

  int Pixels(orvik::platform::Twips length) const;
  /// Edges are rounded, not lengths, so that neighbours stay neighbours.
  QRect Pixels(const orvik::platform::Rect& rect) const;
  QSize Pixels(const orvik::platform::Size& size) const;
  /// Rounded up, so that a size measured in pixels fits.
  orvik::platform::Twips Twips(int pixels) const;
  orvik::platform::Size Twips(const QSize& size) const;

 private:
  double twipsPerPixel_;
};

}  // namespace host::qt
