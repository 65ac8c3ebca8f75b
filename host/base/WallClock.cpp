#include "host/base/WallClock.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "host/base/Text.h"

namespace host {
namespace {

constexpr std::string_view kForm = "####-##-##T##:##:##@##:##";

bool HasForm(std::string_view text) {
  if (text.size() != kForm.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char letter = text[i];
    const bool fits = kForm[i] == '#'   ? letter >= '0' && letter <= '9'
                      : kForm[i] == '@' ? letter == '+' || letter == '-'
                                        : letter == kForm[i];
    if (!fits) return false;
  }
  return true;
}

int Number(std::string_view text, std::size_t at, std::size_t digits) {
  return WholeNumber(text.substr(at, digits)).value_or(0);
}

}  // namespace

std::string LocalTimeText() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const auto minutes = std::labs(local.tm_gmtoff) / 60;
  char day[64], zone[32];
  std::strftime(day, sizeof day, "%Y-%m-%dT%H:%M:%S", &local);
  std::snprintf(zone, sizeof zone, "%c%02ld:%02ld", local.tm_gmtoff < 0 ? '-' : '+', minutes / 60,
                minutes % 60);
  return std::string(day) + zone;
}

std::optional<Moment> MomentOf(std::string_view text) {
  if (!HasForm(text)) return {};
  using namespace std::chrono;
  const year_month_day day{year(Number(text, 0, 4)), month(static_cast<unsigned>(Number(text, 5, 2))),
                           std::chrono::day(static_cast<unsigned>(Number(text, 8, 2)))};
  const int hour = Number(text, 11, 2), minute = Number(text, 14, 2), second = Number(text, 17, 2);
  if (!day.ok() || hour > 23 || minute > 59 || second > 60) return {};
  const int ahead = (Number(text, 20, 2) * 60 + Number(text, 23, 2)) * (text[19] == '-' ? -60 : 60);
  Moment moment;
  moment.utc = duration_cast<seconds>(sys_days(day).time_since_epoch()).count() + hour * 3600 + minute * 60 +
               second - ahead;
  moment.day = text.substr(0, 10);
  moment.minute = text.substr(11, 5);
  moment.zone = text.substr(19);
  return moment;
}

}  // namespace host
