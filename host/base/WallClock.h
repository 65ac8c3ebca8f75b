#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Returns the date and time of day, such as "2026-11-21T14:03:22+01:00": local time and its distance from
/// UTC.
using WallClock = std::function<std::string()>;

/// The time of day of this machine, in its time zone.
std::string LocalTimeText();

/// The parts of a text from `WallClock`.
struct Moment {
  std::int64_t utc = 0;  ///< seconds since 1970
  std::string day;       ///< "2026-11-21", local
  std::string minute;    ///< "14:03", local
  std::string zone;      ///< "+01:00"
};

/// None for a text of another form.
std::optional<Moment> MomentOf(std::string_view text);

}  // namespace host
