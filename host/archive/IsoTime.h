#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace host::archive {

using Seconds = std::chrono::sys_seconds;

/// The moment that an ISO 8601 text names: a date such as 2026-11-21 (its beginning), or a date and a time
/// such as 2026-11-21T12:30, 2026-11-21T12:30:05Z or 2026-11-21 12:30:05.25+01:00. Without a zone it is UTC.
/// Empty for anything else, or a day that does not exist.
std::optional<Seconds> IsoMoment(std::string_view text);

/// 2026-11-21T12:30:05Z: texts that sort as the moments do.
std::string IsoText(Seconds moment);

/// `IsoText` of the `IsoMoment`.
std::optional<std::string> UtcText(std::string_view text);

/// Now, by the machine's clock.
Seconds UtcNow();

}  // namespace host::archive
