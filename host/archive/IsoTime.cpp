#include "host/archive/IsoTime.h"

#include <cstdio>

namespace bench {

namespace {

/// Takes a text apart from its begin on; what does not fit makes it bad.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  int Digits(std::size_t count) {
    int number = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const char c = Next();
      if (c < '0' || c > '9') good_ = false;
      number = number * 10 + (c - '0');
    }
    return number;
  }
  void Sign(char wanted) {
    if (Next() != wanted) good_ = false;
  }
  bool Take(char wanted) {
    if (rest_.empty() || rest_.front() != wanted) return false;
    rest_.remove_prefix(1);
    return true;
  }
  void SkipDigits() {
    (void)Digits(1);
    while (!rest_.empty() && rest_.front() >= '0' && rest_.front() <= '9') rest_.remove_prefix(1);
  }
  bool AtEnd() const { return rest_.empty(); }
  bool Good() const { return good_; }

 private:
  char Next() {
    if (rest_.empty()) {
      good_ = false;
      return '0';
    }
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  std::string_view rest_;
  bool good_ = true;
};

std::chrono::seconds ZoneOf(Scanner& text) {
  if (text.AtEnd() || text.Take('Z')) return {};
  const bool east = text.Take('+');
  if (!east) text.Sign('-');
  const auto hours = std::chrono::hours(text.Digits(2));
  text.Take(':');
  const auto offset = hours + std::chrono::minutes(text.Digits(2));
  return east ? offset : -offset;
}

}  // namespace

std::optional<Seconds> IsoMoment(std::string_view text) {
  using namespace std::chrono;
  Scanner scanner(text);
  const auto year = scanner.Digits(4);
  scanner.Sign('-');
  const auto month = static_cast<unsigned>(scanner.Digits(2));
  scanner.Sign('-');
  const auto day = static_cast<unsigned>(scanner.Digits(2));
  const year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  if (!scanner.Good() || !date.ok()) return {};
  if (scanner.AtEnd()) return Seconds(sys_days(date));

  if (!scanner.Take('T') && !scanner.Take(' ')) return {};
  const int hour = scanner.Digits(2);
  scanner.Sign(':');
  const int minute = scanner.Digits(2);
  int second = 0;
  if (scanner.Take(':')) {
    second = scanner.Digits(2);
    if (scanner.Take('.')) scanner.SkipDigits();
  }
  const auto zone = ZoneOf(scanner);
  if (!scanner.Good() || !scanner.AtEnd() || hour > 23 || minute > 59 || second > 60) return {};
  return Seconds(sys_days(date)) + hours(hour) + minutes(minute) + seconds(second) - zone;
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

}  // namespace bench
