#pragma once

#include <csignal>
#include <functional>
#include <utility>
#include <vector>

#include "platform/Event.h"

namespace bench {

namespace headless {
class Application;
}

/// Turns SIGINT, SIGTERM and SIGHUP into calls on the user-interface thread, for as long as it lives. One for
/// the process. A SIGHUP that the program was told to ignore, as by "nohup", stays ignored. A reader of the
/// output who has gone does not end the program meanwhile. Then each signal does again what it did
/// before.
class StopSignals {
 public:
  /// `stop` is called while messages are processed, with the number of the signal: for every signal once.
  StopSignals(headless::Application& application, std::function<void(int signal)> stop);
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;
  ~StopSignals();

 private:
  void Install(int signal, void (*handler)(int));
  void Deliver();

  std::function<void(int)> stop_;
  std::vector<std::pair<int, struct sigaction>> before_;  ///< what was set for each signal
  orvik::platform::Subscription woken_;
};

}  // namespace bench
