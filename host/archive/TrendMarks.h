#pragma once

#include <string>

#include "host/archive/ArchivedDocument.h"
#include "host/archive/Svg.h"

namespace host::archive {

/// The mark of a reading. Each kind has its own shape, so that print without colours shows it too.
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

/// For the legend.
std::string MarkText(Mark mark);

void DrawMark(Svg& svg, Mark mark, double x, double y);

}  // namespace host::archive
