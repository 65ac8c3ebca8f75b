#pragma once

#include <string>

#include "host/archive/ArchivedDocument.h"
#include "host/archive/Svg.h"

namespace bench {

/// How a reading is marked; each kind has a shape of its own, so that print shows it too.
enum class Mark {
  kPassed,
  kFailed,
  kDoubtful,
  kRecorded,
  kOverloaded,
  kOverloadedFailed,
  kOther  ///< not judged, or without a verdict about the equipment
};

inline constexpr Mark kMarks[] = {Mark::kPassed,   Mark::kFailed,     Mark::kDoubtful,
                                  Mark::kRecorded, Mark::kOverloaded, Mark::kOverloadedFailed,
                                  Mark::kOther};

Mark MarkOf(const TrendPoint& point);

/// What a legend says of it.
std::string MarkText(Mark mark);

void DrawMark(Svg& svg, Mark mark, double x, double y);

}  // namespace bench
