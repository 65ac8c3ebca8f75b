#pragma once

#include <string>
#include <vector>

#include "host/archive/IsoTime.h"

namespace host::archive {

/// A mark on an axis.
template <class Position>
struct Tick {
  Position at;
  std::string label;
};

/// The marks of an axis of numbers: at multiples of 1, 2 or 5 times a power of ten, with one of them at each
/// end, so that `low` and `high` lie between them. At most eight.
/// @param low, high finite, not the one above the other, and not beyond 1e15
std::vector<Tick<double>> NumberTicks(double low, double high);

/// The marks of an axis of time: at round minutes, hours, days, months or years inside the bounds, in UTC.
/// At most seven.
std::vector<Tick<Seconds>> DateTicks(Seconds from, Seconds to);

/// The number with at most ten digits, in every locale the same.
std::string NumberText(double number);

}  // namespace host::archive
