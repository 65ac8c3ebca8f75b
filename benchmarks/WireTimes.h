#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace benchmarks {

/// One line of a wire log or of the tester's trace.
struct WireEntry {
  std::chrono::microseconds time{};  ///< since midnight UTC of the first entry's day
  std::string direction;             ///< "sent", "recv", "lost" or "note"
  std::string text;
};

/// Reads "TIME DIRECTION TEXT" lines. Throws std::runtime_error for a line that is none.
std::vector<WireEntry> ReadWire(const std::string& file);

/// The times between one command sent and the next.
std::vector<std::chrono::microseconds> CommandSpacing(const std::vector<WireEntry>& log);

/// How long the tester was at its replies, all in all, by its own trace.
std::chrono::microseconds TesterTime(const std::vector<WireEntry>& trace);

}  // namespace benchmarks
