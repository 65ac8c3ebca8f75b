#include "host/archive/IsoTime.h"

#include <cstdio>
#include <regex>

#include "host/base/WallClock.h"

namespace host::archive {

std::optional<Seconds> IsoMoment(std::string_view text) {
  // Date; hours and minutes; seconds and a fraction; zone.
  static const std::regex kForm(
      R"((\d{4}-\d\d-\d\d)(?:[T ](\d\d:\d\d)(?:(:\d\d)(?:\.\d+)?)?(?:Z|([+-]\d\d):?(\d\d))?)?)");
  std::match_results<std::string_view::const_iterator> parts;
  if (!std::regex_match(text.begin(), text.end(), parts, kForm)) return {};
  const auto part = [&parts](std::size_t number, const char* otherwise) {
    return parts[number].matched ? parts[number].str() : otherwise;
  };
  const auto moment =
      MomentOf(part(1, "") + "T" + part(2, "00:00") + part(3, ":00") + part(4, "+00") + ":" + part(5, "00"));
  return moment ? std::optional(Seconds(std::chrono::seconds(moment->utc))) : std::nullopt;
}

std::string IsoText(Seconds moment) {
  using namespace std::chrono;
  const auto day = floor<days>(moment);
  const year_month_day date(day);
  const hh_mm_ss time(moment - day);
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", int(date.year()), unsigned(date.month()),
                unsigned(date.day()), int(time.hours().count()), int(time.minutes().count()),
                int(time.seconds().count()));
  return text;
}

std::optional<std::string> UtcText(std::string_view text) {
  const auto moment = IsoMoment(text);
  return moment ? std::optional(IsoText(*moment)) : std::nullopt;
}

Seconds UtcNow() { return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()); }

}  // namespace host::archive
