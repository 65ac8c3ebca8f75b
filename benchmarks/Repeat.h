#pragma once

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <vector>

namespace benchmarks {

/// Processor time of this thread. What only computes would take as long on the clock of an idle machine.
inline std::chrono::duration<double> ThreadTime() {
  timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

/// How often `step`, which only computes, can be done in a second of processor time: the best of several
/// stretches, since other load only slows one down. One stretch before them warms up.
inline double BestRate(const std::function<void()>& step) {
  constexpr int kStretches = 6;
  constexpr std::chrono::duration<double> kStretch{0.2};
  double best = 0;
  for (int stretch = 0; stretch <= kStretches; ++stretch) {
    const auto start = ThreadTime();
    std::chrono::duration<double> passed{};
    long done = 0;
    while (passed < kStretch) {
      for (int i = 0; i < 16; ++i, ++done) step();
      passed = ThreadTime() - start;
    }
    if (stretch > 0) best = std::max(best, static_cast<double>(done) / passed.count());
  }
  return best;
}

/// Processor time of one go, in seconds, with a trimmed heap.
/// What `act` returns is released after the measurement.
template <class Act>
double SecondsOf(const Act& act) {
  malloc_trim(0);
  const auto start = ThreadTime();
  const auto made = act();
  return std::chrono::duration<double>(ThreadTime() - start).count();
}

/// Measures each of the ways so often, by turns, so that all of them meet the same machine; the least of
/// each, since other load only slows them down.
template <class... Ways>
std::array<double, sizeof...(Ways)> LeastOfEach(int rounds, const Ways&... ways) {
  std::array<double, sizeof...(Ways)> least{ways()...};
  for (int round = 1; round < rounds; ++round) {
    const std::array<double, sizeof...(Ways)> now{ways()...};
    for (std::size_t i = 0; i < now.size(); ++i) least[i] = std::min(least[i], now[i]);
  }
  return least;
}

/// The middle one of the values; there must be one.
inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace benchmarks
