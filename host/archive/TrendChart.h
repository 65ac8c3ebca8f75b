#pragma once

#include <string>

#include "host/archive/ArchivedDocument.h"

namespace host::archive {

/// A self-contained SVG picture of the readings over time, with the limits of the standards that they were
/// judged by. Its title and description say what it shows; passed, failed, doubtful and overloaded readings
/// differ in shape; it says how many readings could not be drawn.
std::string TrendChart(const Trend& trend);

}  // namespace host::archive
