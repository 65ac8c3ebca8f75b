#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/archive/ArchivedDocument.h"

namespace host::archive {

/// A limit of a standard for the time in which its bounds were the same.
struct LimitStretch {
  std::size_t standard = 0;  ///< index into `TrendLimits::standards`
  /// Dates of the first reading and of the one after the last; empty at the ends of the trend.
  std::optional<std::string> from, to;
  std::optional<double> low, high;
  bool operator==(const LimitStretch&) const = default;
};

/// The limits that the readings of a trend were judged by.
struct TrendLimits {
  std::vector<std::string> standards;  ///< "IEC 62353, class I": each once, in the order they appear
  std::vector<LimitStretch> stretches;
};

/// @param unit that of the drawing; limits that cannot be converted to it are left out
TrendLimits LimitsOf(const std::vector<TrendPoint>& points, const std::string& unit);

/// "IEC 62353, class I"
std::string StandardText(const judge::JudgedLimit& limit);

/// "IEC 62353, class I: 100 to 300 mOhm", "...: at most 300 mOhm"
std::string LimitText(const judge::JudgedLimit& limit);

}  // namespace host::archive
