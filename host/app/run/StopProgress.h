#pragma once

#include <string>

#include "host/app/run/ExchangeView.h"
#include "host/loop/ILoop.h"

namespace bench {

/// Tells a person who asks to stop again what the program waits for, and how long at most.
class StopProgress {
 public:
  /// @param timeScale how many times faster than the wall the clock goes
  StopProgress(Wire& wire, const ILoop& loop, double timeScale);

  /// A stop was asked for: what goes out from now on closes the session.
  void Begin() { begun_ = true; }
  bool Begun() const { return begun_; }

  /// The longest time until the session with the tester is closed, on the program's clock; 0 when none is
  /// open.
  orvik::platform::Time Remaining() const;
  /// "Already stopping: ...", with seconds of the wall.
  std::string Text() const;

 private:
  /// The two commands that close a session: the one that ends the running test, then "EREM".
  enum class Closing { kNeither, kTest, kSession };

  void Take(const WireRecord& record);

  const ILoop& loop_;
  const double timeScale_;
  ExchangeView exchange_;
  bool begun_ = false;
  Closing closing_ = Closing::kNeither;
  orvik::platform::Subscription heard_;
};

}  // namespace bench
