#pragma once

#include <time.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <vector>

namespace benchmarks {

/// Processor time of this thread. What only computes would take as long on the clock of an idle machine.
inline std::chrono::duration<double> ThreadTime() {
  timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

/// How often `step`, which only computes, can be done in a second of processor time: the best of several
/// stretches, since whatever else the machine does can only slow one down. One stretch before them warms up.
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

/// The least processor time of several goes, in seconds. What `act` returns is let go of after the clock has
/// stopped.
template <class Act>
double LeastSeconds(const Act& act) {
  constexpr int kGoes = 5;
  double least = std::numeric_limits<double>::max();
  for (int go = 0; go < kGoes; ++go) {
    const auto start = ThreadTime();
    const auto made = act();
    least = std::min(least, std::chrono::duration<double>(ThreadTime() - start).count());
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
