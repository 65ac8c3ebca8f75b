#pragma once

#include <QColor>

namespace host::qt {

/// The contrast of two colours as the Web Content Accessibility Guidelines define it: 1 for equal colours,
/// 21 for black on white.
double Contrast(const QColor& one, const QColor& other);

/// The colour, darkened or lightened until its contrast with the background is at least 4.5.
QColor Legible(const QColor& color, const QColor& background);

}  // namespace host::qt
