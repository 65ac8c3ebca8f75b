#pragma once

#include <string>

#include "host/archive/ArchivedDocument.h"

namespace bench {

/// A picture (SVG, in itself complete) of the readings over time, with the limits of the standards that they
/// were judged by. It says by its title and description what it shows, marks by shape what is passed, failed,
/// doubtful and overloaded, and says how many readings could not be drawn.
std::string TrendChart(const Trend& trend);

}  // namespace bench
