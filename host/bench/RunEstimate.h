#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/serial/Wire.h"

namespace host::bench {

/// Estimates how long a run still takes, from the pauses of the protocol and the average reply time so far.
class RunEstimate {
 public:
  /// @param tests number of single tests in each element of the run
  void Plan(std::vector<std::size_t> tests) { tests_ = std::move(tests); }
  /// The run has reached an element: its place from 1.
  void Reach(std::size_t place);
  void Take(const serial::WireRecord& record);

  /// 0 when nothing is left, or nothing was planned.
  orvik::platform::Time Left(orvik::platform::Time now) const;
  /// "about 1:05 left", with seconds of the wall; empty when nothing is left.
  /// @param timeScale how many times faster than the wall clock the run is
  std::string Text(orvik::platform::Time now, double timeScale) const;

 private:
  std::vector<std::size_t> tests_;
  std::size_t place_ = 0;
  std::size_t answered_ = 0;  ///< commands of this element
  std::size_t replies_ = 0;   ///< of the whole run
  orvik::platform::Time replyTime_{};
  orvik::platform::Time sent_{};
  orvik::platform::Time answeredAt_{};
  bool waiting_ = false;
};

}  // namespace host::bench
