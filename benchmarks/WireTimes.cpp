#include "benchmarks/WireTimes.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace benchmarks {

namespace {

constexpr std::chrono::hours kDay{24};

std::chrono::microseconds TimeOfDay(const std::string& stamp) {
  int hours = 0, minutes = 0, seconds = 0, micros = 0;
  if (std::sscanf(stamp.c_str(), "%*d-%*d-%*dT%d:%d:%d.%6dZ", &hours, &minutes, &seconds, &micros) != 4)
    throw std::runtime_error("\"" + stamp + "\" is no time of a wire log");
  return std::chrono::hours(hours) + std::chrono::minutes(minutes) + std::chrono::seconds(seconds) +
         std::chrono::microseconds(micros);
}

}  // namespace

std::vector<WireEntry> ReadWire(const std::string& file) {
  std::ifstream stream(file);
  std::vector<WireEntry> entries;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    std::string stamp;
    WireEntry entry;
    fields >> stamp >> entry.direction;
    std::getline(fields >> std::ws, entry.text);
    entry.time = TimeOfDay(stamp);
    if (!entries.empty() && entry.time + kDay / 2 < entries.back().time) entry.time += kDay;
    entries.push_back(std::move(entry));
  }
  if (entries.empty()) throw std::runtime_error(file + " holds no wire log");
  return entries;
}

std::vector<std::chrono::microseconds> CommandSpacing(const std::vector<WireEntry>& log) {
  std::vector<std::chrono::microseconds> spacing;
  const WireEntry* previous = nullptr;
  for (const auto& entry : log) {
    if (entry.direction != "sent") continue;
    if (previous) spacing.push_back(entry.time - previous->time);
    previous = &entry;
  }
  return spacing;
}

std::chrono::microseconds TesterTime(const std::vector<WireEntry>& trace) {
  std::chrono::microseconds total{0};
  const WireEntry* asked = nullptr;
  for (const auto& entry : trace) {
    if (entry.direction == "recv") asked = &entry;
    if (entry.direction == "sent" && asked) {
      total += entry.time - asked->time;
      asked = nullptr;
    }
  }
  return total;
}

}  // namespace benchmarks
