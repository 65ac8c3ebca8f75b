#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/archive/ArchivedDocument.h"

namespace bench {

/// A limit of a standard, as long as it held with the same bounds.
struct LimitStretch {
  std::size_t standard = 0;  ///< index into `TrendLimits::standards`
  /// From the date of the one reading to that of the other; none at the first and behind the last.
  std::optional<std::string> from, to;
  std::optional<double> low, high;
  bool operator==(const LimitStretch&) const = default;
};

/// The limits that the readings of a trend were judged by.
struct TrendLimits {
  std::vector<std::string> standards;  ///< "IEC 62353, class I": each once, in the order they appear
  std::vector<LimitStretch> stretches;
};

/// @param unit that of the drawing; limits that cannot be told in it are left out
TrendLimits LimitsOf(const std::vector<TrendPoint>& points, const std::string& unit);

/// "IEC 62353, class I"
std::string StandardText(const judge::JudgedLimit& limit);

/// "IEC 62353, class I: 100 to 300 mOhm", "...: at most 300 mOhm"
std::string LimitText(const judge::JudgedLimit& limit);

}  // namespace bench
