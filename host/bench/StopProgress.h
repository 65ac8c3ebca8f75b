#pragma once

#include <string>

#include "host/bench/ExchangeView.h"
#include "toolkit/loop/ILoop.h"

namespace host::bench {

/// Answers a repeated stop request with what the program waits for, and how long at most.
class StopProgress {
 public:
  /// @param timeScale how many times faster than the wall clock the run is
  StopProgress(serial::Wire& wire, const toolkit::loop::ILoop& loop, double timeScale);

  /// A stop was requested. The current or next exchange ends first; then the session is closed.
  void Begin();
  bool Begun() const { return begun_; }

  /// The longest time until the session with the tester is closed, on the program's clock; 0 when none is
  /// open.
  orvik::platform::Time Remaining() const;
  /// "Already stopping: ...", with seconds of the wall.
  std::string Text() const;

 private:
  void Take(const serial::WireRecord& record);

  const toolkit::loop::ILoop& loop_;
  const double timeScale_;
  ExchangeView exchange_;
  bool begun_ = false;
  /// How many commands may still be sent for the first time: one of the test that runs, the "STST" that ends
  /// it, "EREM".
  int commandsLeft_ = 0;
  orvik::platform::Subscription heard_;
};

}  // namespace host::bench
