#pragma once

#include <QPainter>

#include "host/report/Report.h"

namespace host::report::drawing {

/// Draws the sign of a standing into a square: a tick, a cross, a question mark and so on.
void DrawSign(QPainter& painter, report::Standing standing, const QRectF& square, const QColor& colour);

}  // namespace host::report::drawing
