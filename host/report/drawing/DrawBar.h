#pragma once

#include <QPainter>

#include "host/report/Report.h"

namespace host::report::drawing {

inline constexpr double kBarHeight = 760;

/// Draws the judgement's bar with its labels into the place, `kBarHeight` high.
void DrawBar(QPainter& painter, const QRectF& place, const report::Judgement& judgement);

}  // namespace host::report::drawing
